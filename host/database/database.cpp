// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/database.h"

#include "data/error.h"
#include "host/database/sample_data.h"
#include "host/database/schema.h"

namespace dn::host {
namespace {

constexpr const char* privateName = "dncontacts";
constexpr std::size_t defaultDemoRows = 3000;
/// Seconds. Making a million prospects has single steps that are slower than any of the control's statements.
constexpr unsigned setUpReadTimeout = 3600;

DatabaseChoice patient(MariadbTarget target)
{
    target.readTimeout = setUpReadTimeout;
    return target;
}

void say(const Progress& progress, const std::string& text)
{
    if (progress) progress(text);
}

/// Between two programs that find a new database at the same time. The server frees it with the connection.
void lockSetUp(data::Connection& connection, Engine engine)
{
    if (engine != Engine::mariadb)
        connection.execute("EXEC sp_getapplock @Resource = 'dncontacts.esquema', @LockMode = 'Exclusive', "
                           "@LockOwner = 'Session', @LockTimeout = 1800000");
    const auto held = connection.execute(engine == Engine::mariadb
                                             ? "SELECT GET_LOCK('dncontacts.esquema', 1800)"
                                             : "SELECT APPLOCK_MODE('public', 'dncontacts.esquema', 'Session')");
    const std::string answer = held && !held->Eof() ? std::string(held->value(0).raw()) : "";
    if (answer != "1" && answer != "Exclusive")
        throw HostError(
            "Otro programa está creando las tablas de esta base de datos. Espere a que termine y vuelva a "
            "intentarlo.");
}

void requireKnownVersion(int version)
{
    if (version <= schemaVersion) return;
    throw HostError("La base de datos es de una versión más nueva de este programa (" + std::to_string(version) +
                    "; aquí se conoce hasta la " + std::to_string(schemaVersion) + "). Actualice el programa.");
}

void makeEverything(data::Connection& connection, Engine engine, std::size_t demoRows, const Progress& progress)
{
    say(progress, "Creando las tablas…");
    createSchema(connection, engine);
    if (demoRows > 0) writeSampleData(connection, engine, {.prospects = demoRows}, progress);
    markSchema(connection);
}

/// Makes the private database anew unless it is complete: whatever an interrupted first start left was never used.
bool prepareOwn(const PrivateServer& server, const DatabaseOptions& options, const Progress& progress)
{
    const auto connection = connect(patient(server.target("")));
    lockSetUp(*connection, Engine::mariadb);
    connection->execute("CREATE DATABASE IF NOT EXISTS dncontacts");
    connection->execute("USE dncontacts");
    const int version = schemaVersionOf(*connection);
    requireKnownVersion(version);
    if (version > 0) return false;
    connection->execute("DROP DATABASE dncontacts");
    connection->execute("CREATE DATABASE dncontacts");
    connection->execute("USE dncontacts");
    makeEverything(*connection, Engine::mariadb, options.demoRows.value_or(defaultDemoRows), progress);
    return true;
}

bool prepareForeign(ServerList& servers, const DatabaseOptions& options, const Progress& progress)
{
    if (!options.createSchema) return false;
    const auto connection = servers.connect({.readTimeout = setUpReadTimeout});
    const Engine engine = engineOf(*connection);
    lockSetUp(*connection, engine);
    const int version = schemaVersionOf(*connection);
    requireKnownVersion(version);
    if (version > 0) return false;
    makeEverything(*connection, engine, options.demoRows.value_or(0), progress);
    return true;
}

std::optional<std::string> letterCaseWarning(data::Connection& connection)
{
    if (engineOf(connection) != Engine::mariadb) return {};
    const auto rows = connection.execute("SELECT @@lower_case_table_names");
    if (!rows || rows->Eof() || rows->value(0).toInt32() != 0) return {};
    return "El servidor distingue mayúsculas y minúsculas en los nombres de las tablas (lower_case_table_names = "
           "0): "
           "parte de las consultas no encontrará sus tablas y las listas saldrán vacías. Pida a quien lo "
           "administra "
           "que lo inicie con lower_case_table_names=1.";
}

std::optional<std::string> missingWarning(data::Connection& connection)
{
    std::string names;
    for (const std::string& name : missingObjects(connection))
        names += (names.empty() ? "" : ", ") + name;
    if (names.empty()) return {};
    return "A la base de datos le falta: " + names +
           ". Lo que dependa de ello saldrá vacío. Para crear las tablas en una base vacía, inicie el programa "
           "con "
           "--create-schema.";
}

std::optional<std::string> demoWarning(const DatabaseOptions& options, bool created)
{
    if (created || options.demoRows.value_or(0) == 0) return {};
    return std::string("La base de datos ya existía: no se añadieron datos de ejemplo.");
}

void keep(std::vector<std::string>& warnings, std::optional<std::string> warning)
{
    if (warning) warnings.push_back(std::move(*warning));
}

std::vector<DatabaseChoice> choicesOf(const DatabaseOptions& options)
{
    std::vector<DatabaseChoice> choices{parseDatabaseChoice(options.connect)};
    for (const std::string& further : options.further)
        choices.push_back(parseDatabaseChoice(further));
    return choices;
}

} // namespace

Database::Revival Database::revival() const
{
    return [server = server_, servers = servers_](const std::stop_token& givenUp) {
        if (server) server->revive(givenUp);
        return servers->connect({.givenUp = givenUp});
    };
}

Database openDatabase(const DatabaseOptions& options, const Progress& progress)
try {
    Database database;
    if (options.connect.empty()) {
        database.server_ = std::make_shared<PrivateServer>(options.server, progress);
        database.servers_ =
            std::make_shared<ServerList>(std::vector<DatabaseChoice>{database.server_->target(privateName)});
        database.created_ = prepareOwn(*database.server_, options, progress);
    } else {
        database.servers_ = std::make_shared<ServerList>(choicesOf(options));
        database.created_ = prepareForeign(*database.servers_, options, progress);
    }
    database.connection_ = std::make_unique<LastingConnection>(database.openConnection());
    keep(database.warnings_, letterCaseWarning(*database.connection_));
    keep(database.warnings_, missingWarning(*database.connection_));
    keep(database.warnings_, demoWarning(options, database.created_));
    return database;
} catch (const data::Error& error) {
    throw HostError("No se pudo preparar la base de datos. El servidor dice: " + std::string(error.what()));
}

} // namespace dn::host
