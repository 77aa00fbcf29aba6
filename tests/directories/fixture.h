// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A control with persons and organisations in its database.
#pragma once

#include "tests/support/control_fixture.h"
#include "tests/support/prospect_list.h"

#include <string>
#include <vector>

namespace dn::tests {

/// The columns that the statements give.
struct DirectoryColumns {
    static std::vector<std::string> persons()
    {
        return {"Sys_PK",   "Codigo",      "Nombre",    "Apellido1", "Apellido2", "EMail",    "EMail2",
                "Tel_Casa", "Tel_Trabajo", "Tel_Movil", "Domicilio", "Colonia",   "CodPostal"};
    }
    static std::vector<std::string> organisations()
    {
        return {"Sys_PK", "Codigo", "Nombre",  "NombreComercial", "Tel1",    "Tel2",      "Tel3",
                "Fax",    "EMail",  "WebSite", "Domicilio",       "Colonia", "CodPostal", "Nacionalidad"};
    }
};

class DirectoryTest : public ControlTest {
protected:
    /// The rows that every statement of a directory gives from now on; columns as the statement names them.
    void persons(std::vector<std::vector<Cell>> rows)
    {
        cnn.onContaining("FROM Persona").gives(DirectoryColumns::persons(), std::move(rows));
    }
    void organisations(std::vector<std::vector<Cell>> rows)
    {
        cnn.onContaining("FROM Organizacion").gives(DirectoryColumns::organisations(), std::move(rows));
    }

    /// A person whose cells are the key behind the name of their column: "Codigo-4".
    static std::vector<Cell> person(std::int64_t key) { return entry(key, DirectoryColumns::persons()); }
    static std::vector<Cell> organisation(std::int64_t key)
    {
        return entry(key, DirectoryColumns::organisations());
    }

    /// All cells of a row from left to right.
    static std::vector<std::string> cells(const screen::ListItem& row)
    {
        std::vector<std::string> texts{std::string(row.Text())};
        for (int i = 1; i <= row.ListSubItems().Count(); ++i)
            texts.emplace_back(row.ListSubItems()(i).Text());
        return texts;
    }

    void open(int tab)
    {
        elements().top.lblItem(tab).click();
        cnn.forgetStatements();
        host.log.calls.clear();
    }

    static std::string selectedKeyOf(screen::ListView& list)
    {
        return list.SelectedItem() ? std::string(list.SelectedItem()->Key()) : "none";
    }

private:
    static std::vector<Cell> entry(std::int64_t key, const std::vector<std::string>& columns)
    {
        std::vector<Cell> row{whole(key)};
        for (std::size_t i = 1; i < columns.size(); ++i)
            row.push_back(text(columns[i] + "-" + std::to_string(key)));
        return row;
    }
};

} // namespace dn::tests
