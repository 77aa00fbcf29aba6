// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/day.h"

#include "base/date_time.h"

namespace dn::tests {

Day::Day()
{
    for (const char* table : {"Meta", "mdtpactividad"})
        database(std::string("DELETE FROM ") + table);
    database("INSERT INTO Meta (Sys_PK, Descripcion) VALUES (1, 'Venta')");
    database("INSERT INTO mdtpactividad (Sys_PK, Nombre) VALUES (1, 'Llamada')");
    itIs("2026-03-14 09:30:00");
}

void Day::itIs(const std::string& moment)
{
    ports.clock.now = parseIso(moment).value();
    const std::size_t sent = cnn->statements.size();
    storyServer().setClock(moment, {beside.get(), cnn.get()});
    cnn->statements.resize(sent); // not the control's
}

std::int64_t Day::project(const std::string& name, std::int32_t agent)
{
    database("INSERT INTO Organizacion (Nombre, Tel1) VALUES ('Org. " + name + "', '961 111')");
    const std::string organisation = std::to_string(lastKey());
    database("INSERT INTO Persona (Nombre, IOrganizacion) VALUES ('" + name + "', " + organisation + ")");
    database("INSERT INTO Proyecto (Descripcion, IEjecutivo, IMeta, IOrganizacion, IContacto, UF_Status1) VALUES "
             "('Proyecto de " +
             name + "', " + std::to_string(agent) + ", 1, " + organisation + ", " + std::to_string(lastKey()) +
             ", 1)");
    return lastKey();
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
    std::vector<std::string> lines;
    const auto rows = beside->execute(
        "SELECT uf_IProy, uf_Iicontact, uf_Usuario, uf_Tiempo, uf_Mensaje FROM xt_biticontact ORDER BY Sys_PK");
    for (; !rows->Eof(); rows->MoveNext()) {
        const bool prospect = rows->value(0).isNull();
        std::string line(prospect ? "prospecto" : "proyecto");
        for (const std::size_t column : {prospect ? 1U : 0U, 2U, 3U, 4U})
            line.append(" ").append(rows->value(column).raw());
        lines.push_back(line);
    }
    return lines;
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
