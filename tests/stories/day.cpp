// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/day.h"

#include "base/date_time.h"

namespace dn::tests {

Day::Day()
{
    database("INSERT IGNORE INTO Meta (Sys_PK, Descripcion) VALUES (1, 'Venta')");
    database("INSERT IGNORE INTO mdtpactividad (Sys_PK, Nombre) VALUES (1, 'Llamada')");
    itIs("2026-03-14 09:30:00");
}

void Day::itIs(const std::string& moment)
{
    ports.clock.now = parseIso(moment).value();
    const std::string statement = "SET timestamp = UNIX_TIMESTAMP('" + moment + "')";
    database(statement);
    cnn->execute(statement);
    cnn->statements.pop_back(); // not the control's
}

std::int64_t Day::project(const std::string& name, std::int32_t agent)
{
    database("INSERT INTO Organizacion (Nombre, Tel1) VALUES ('Org. " + name + "', '961 111')");
    database("INSERT INTO Persona (Nombre, IOrganizacion) VALUES ('" + name + "', LAST_INSERT_ID())");
    database("INSERT INTO Proyecto (Descripcion, IEjecutivo, IMeta, IOrganizacion, IContacto, UF_Status1) SELECT "
             "'Proyecto de " +
             name + "', " + std::to_string(agent) +
             ", 1, IOrganizacion, Sys_PK, 1 FROM Persona WHERE Sys_PK = "
             "LAST_INSERT_ID()");
    return beside->execute("SELECT LAST_INSERT_ID()")->value(0).toWhole();
}

void Day::activity(std::int64_t project, const std::string& due)
{
    database("INSERT INTO actividad (IProyecto, ITpActividad, Asunto, FInicio) VALUES (" +
             std::to_string(project) + ", 1, 'Llamar', '" + due + "')");
}

void Day::whileTheHost(const std::string& call, const std::vector<std::string>& statements)
{
    host.log.during = [this, call, statements](const std::string& called) {
        if (called != call) return;
        for (const std::string& statement : statements)
            database(statement);
    };
}

void Day::clicksQueue(const std::string& contact)
{
    control.elements().today.lvwHoy.clickRow(queuePosition(contact));
}

std::vector<std::string> Day::seesQueue()
{
    std::vector<std::string> lines;
    screen::ListItems rows = control.elements().today.lvwHoy.ListItems();
    for (int i = 1; i <= rows.Count(); ++i) {
        const screen::ListItem row = rows(i);
        lines.push_back(std::string(row.Text())
                            .append(" ")
                            .append(row.ListSubItems()(1).Text())
                            .append(" ")
                            .append(row.ListSubItems()(2).Text()));
    }
    return lines;
}

std::vector<std::string> Day::log()
{
    return inTheDatabase(
        "SELECT CONCAT(IF(uf_IProy IS NULL, CONCAT('prospecto ', uf_Iicontact), CONCAT('proyecto ', "
        "uf_IProy)), ' ', uf_Usuario, ' ', uf_Tiempo, ' ', uf_Mensaje) FROM xt_biticontact ORDER BY "
        "Sys_PK");
}

std::size_t Day::queuePosition(const std::string& contact)
{
    const auto lines = seesQueue();
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (lines[i].size() > contact.size() && lines[i].ends_with(" " + contact)) return i;
    ADD_FAILURE() << contact << " is not in the queue";
    return lines.size();
}

} // namespace dn::tests
