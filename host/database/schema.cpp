// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/schema.h"

#include "data/error.h"
#include "host/database/host_error.h"
#include "host/database/schema_scripts.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dn::host {
namespace {

constexpr std::array contract{
    "ut_icontact",
    "xt_biticontact",
    "ut_ReferenciaContacto",
    "ut_OrigenContacto",
    "ut_InteresContacto",
    "qhoy",
    "qatascados",
    "Proyecto",
    "Persona",
    "Organizacion",
    "Agente",
    "Ejecutivo",
    "Meta",
    "actividad",
    "mdtpactividad",
    "Ciudad",
};

bool answers(data::Connection& connection, const std::string& statement)
{
    try {
        connection.execute(statement);
        return true;
    } catch (const data::Error&) {
        if (connection.State() != data::Connection::open) throw;
        return false;
    }
}

bool exists(data::Connection& connection, const std::string& table)
{
    return answers(connection, "SELECT 1 FROM " + table + " WHERE 1 = 0");
}

std::string_view folderOf(Engine engine) { return engine == Engine::mariadb ? "mariadb" : "sqlserver"; }

void requireEmpty(data::Connection& connection)
{
    std::string found;
    for (const char* object : contract)
        if (exists(connection, object)) found += (found.empty() ? "" : ", ") + std::string(object);
    if (found.empty()) return;
    throw HostError(
        "La base de datos ya tiene " + found +
        ", que no creó este programa o no terminó de crear. No se ha cambiado nada; indique una base vacía "
        "o no pida crear las tablas.");
}

} // namespace

std::vector<std::string> statementsOf(std::string_view script)
{
    std::vector<std::string> statements;
    std::string statement;
    while (!script.empty()) {
        const std::size_t end = std::min(script.find('\n'), script.size() - 1);
        const std::string_view line = script.substr(0, end + 1);
        script.remove_prefix(end + 1);
        if (line.starts_with("--") || (statement.empty() && line == "\n")) continue;
        statement += line;
        if (!line.ends_with(";\n")) continue;
        statement.resize(statement.size() - 2);
        statements.push_back(std::exchange(statement, {}));
    }
    return statements;
}

Engine engineOf(data::Connection& connection)
{
    return answers(connection, "SELECT @@lower_case_table_names") ? Engine::mariadb : Engine::sqlServer;
}

int schemaVersionOf(data::Connection& connection)
{
    if (!exists(connection, "dn_esquema")) return 0;
    const auto rows = connection.execute("SELECT MAX(version) FROM dn_esquema");
    return rows && !rows->Eof() && !rows->value(0).isNull() ? rows->value(0).toInt32() : 0;
}

std::vector<std::string> missingObjects(data::Connection& connection)
{
    std::vector<std::string> missing;
    for (const char* object : contract)
        if (!exists(connection, object)) missing.emplace_back(object);
    return missing;
}

void createSchema(data::Connection& connection, Engine engine)
{
    requireEmpty(connection);
    bool any = false;
    for (const SchemaScript& script : schemaScripts()) {
        if (script.engine != folderOf(engine)) continue;
        any = true;
        for (const std::string& statement : statementsOf(script.text))
            connection.execute(statement);
    }
    if (!any) throw HostError("Este programa no sabe crear las tablas en este motor de base de datos.");
}

void markSchema(data::Connection& connection)
{
    connection.execute("INSERT INTO dn_esquema (version, creado) VALUES (" + std::to_string(schemaVersion) +
                       ", CURRENT_TIMESTAMP)");
}

} // namespace dn::host
