// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/queued_projects.h"

#include "tests/stories/story_server.h"

namespace dn::tests {
namespace {

std::int64_t lastKey(data::Connection& database)
{
    return std::stoll(database.execute("SELECT @@IDENTITY")->value(0).toText());
}

void fillCatalogue(data::Connection& database, const std::string& table, const std::string& insert)
{
    if (!database.execute("SELECT Sys_PK FROM " + table + " WHERE Sys_PK = 1")->Eof()) return;
    for (const std::string& statement : {storyServer().keysOn(table), insert, storyServer().keysOff(table)})
        if (!statement.empty()) database.execute(statement);
}

} // namespace

void fillCatalogues(data::Connection& database)
{
    fillCatalogue(database, "Meta", "INSERT INTO Meta (Sys_PK, Descripcion) VALUES (1, 'Venta')");
    fillCatalogue(database, "mdtpactividad", "INSERT INTO mdtpactividad (Sys_PK, Nombre) VALUES (1, 'Llamada')");
}

std::int64_t openProject(data::Connection& database, const std::string& name, std::int32_t agent)
{
    database.execute("INSERT INTO Organizacion (Nombre, Tel1) VALUES ('Org. " + name + "', '961 111')");
    const std::string organisation = std::to_string(lastKey(database));
    database.execute("INSERT INTO Persona (Nombre, IOrganizacion) VALUES ('" + name + "', " + organisation + ")");
    database.execute("INSERT INTO Proyecto (Descripcion, IEjecutivo, IMeta, IOrganizacion, IContacto, UF_Status1) "
                     "VALUES ('Proyecto de " +
                     name + "', " + std::to_string(agent) + ", 1, " + organisation + ", " +
                     std::to_string(lastKey(database)) + ", 1)");
    return lastKey(database);
}

void pendingActivity(data::Connection& database, std::int64_t project, const std::string& due)
{
    database.execute("INSERT INTO actividad (IProyecto, ITpActividad, Asunto, FInicio) VALUES (" +
                     std::to_string(project) + ", 1, 'Llamar', " + due + ")");
}

} // namespace dn::tests
