// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/queued_projects.h"

namespace dn::tests {

void fillCatalogues(data::Connection& database)
{
    database.execute("INSERT IGNORE INTO Meta (Sys_PK, Descripcion) VALUES (1, 'Venta')");
    database.execute("INSERT IGNORE INTO mdtpactividad (Sys_PK, Nombre) VALUES (1, 'Llamada')");
}

std::int64_t openProject(data::Connection& database, const std::string& name, std::int32_t agent)
{
    database.execute("INSERT INTO Organizacion (Nombre, Tel1) VALUES ('Org. " + name + "', '961 111')");
    database.execute("INSERT INTO Persona (Nombre, IOrganizacion) VALUES ('" + name + "', LAST_INSERT_ID())");
    database.execute("INSERT INTO Proyecto (Descripcion, IEjecutivo, IMeta, IOrganizacion, IContacto, UF_Status1) "
                     "SELECT 'Proyecto de " +
                     name + "', " + std::to_string(agent) +
                     ", 1, IOrganizacion, Sys_PK, 1 FROM Persona WHERE Sys_PK = LAST_INSERT_ID()");
    return database.execute("SELECT LAST_INSERT_ID()")->value(0).toWhole();
}

void pendingActivity(data::Connection& database, std::int64_t project, const std::string& due)
{
    database.execute("INSERT INTO actividad (IProyecto, ITpActividad, Asunto, FInicio) VALUES (" +
                     std::to_string(project) + ", 1, 'Llamar', " + due + ")");
}

} // namespace dn::tests
