// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/day.h"

#include "base/date_time.h"
#include "tests/stories/queued_projects.h"

namespace dn::tests {

Day::Day()
{
    fillCatalogues(*beside);
    itIs("2026-03-14 09:30:00");
}

void Day::itIs(const std::string& moment)
{
    ports.clock.now = parseIso(moment).value();
    const std::size_t sent = cnn->statements.size();
    storyServer().setClock(moment, {beside.get(), cnn.get()});
    cnn->statements.resize(sent); // not the control's
}

// The server has no zones of its own; one year of one zone is enough here.
void Day::livesInMadrid()
{
    database("SET time_zone = '+00:00'");
    database("REPLACE INTO mysql.time_zone (Time_zone_id, Use_leap_seconds) VALUES (1, 'N')");
    database("REPLACE INTO mysql.time_zone_name (Name, Time_zone_id) VALUES ('Europe/Madrid', 1)");
    database(
        "REPLACE INTO mysql.time_zone_transition_type VALUES (1, 0, 3600, 0, 'CET'), (1, 1, 7200, 1, 'CEST')");
    database("REPLACE INTO mysql.time_zone_transition VALUES (1, UNIX_TIMESTAMP('2026-03-29 01:00:00'), 1), (1, "
             "UNIX_TIMESTAMP('2026-10-25 01:00:00'), 0)");
    database("SET time_zone = 'Europe/Madrid'");
    cnn->execute("SET time_zone = 'Europe/Madrid'");
    cnn->statements.pop_back(); // not the control's
}

std::int64_t Day::project(const std::string& name, std::int32_t agent)
{
    return openProject(*beside, name, agent);
}

void Day::activity(std::int64_t project, const std::string& due)
{
    pendingActivity(*beside, project, "'" + due + "'");
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
