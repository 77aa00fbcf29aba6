// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A control whose fake database has a queue of the day, prospects and projects.
#pragma once

#include "tests/support/project_fixture.h"
#include "tests/support/prospect_list.h"

#include <string>
#include <vector>

namespace dn::tests {

inline constexpr const char* dueStatement = "select * from qhoy where ejecutivo=7 order by cita, tipo, sys_pk";
inline constexpr const char* stuckStatement =
    "select * from qatascados where ejecutivo=7 order by cita, tipo, sys_pk";

class TodayTest : public ProjectTest {
protected:
    /// The rows that the views of the queue give from now on, whoever asks.
    void due(std::vector<std::vector<Cell>> rows)
    {
        cnn.onContaining("from qhoy").gives(columns(), std::move(rows));
    }
    void stuck(std::vector<std::vector<Cell>> rows)
    {
        cnn.onContaining("from qatascados").gives(columns(), std::move(rows));
    }

    static std::vector<std::string> columns()
    {
        return {"ejecutivo", "Tipo", "Sys_PK", "cita", "Contacto", "empresa", "telefono", "email"};
    }

    static std::vector<Cell> queued(const std::string& tipo, std::int64_t key, const Cell& cita = null)
    {
        const std::string n = std::to_string(key);
        return {whole(7),           text(tipo),          whole(key),      cita,
                text("Nombre" + n), text("Empresa" + n), text("961" + n), text("correo" + n)};
    }
    static std::vector<Cell> queuedProspect(std::int64_t key, const Cell& cita = null)
    {
        return queued("Contacto", key, cita);
    }
    static std::vector<Cell> queuedProject(std::int64_t key, const Cell& cita = null)
    {
        return queued("Proyecto", key, cita);
    }

    screen::ListView& lvwHoy() { return elements().today.lvwHoy; }
    void openToday()
    {
        elements().top.lblItem(desk::hoy).click();
        cnn.forgetStatements();
    }
    void click(const std::string& key)
    {
        lvwHoy().clickRow(static_cast<std::size_t>(lvwHoy().ListItems()(std::string_view(key)).Index()) - 1);
    }
    static std::string selectedKeyOf(screen::ListView& list)
    {
        return list.SelectedItem() ? std::string(list.SelectedItem()->Key()) : "none";
    }
    std::string info() { return elements().detail.txtInfo.Text(); }
};

} // namespace dn::tests
