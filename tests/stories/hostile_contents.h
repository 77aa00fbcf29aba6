// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator before lists of rows that nobody expected.
#pragma once

#include "tests/stories/project_operator.h"

#include <string>
#include <vector>

namespace dn::tests {

class HostileContents : public ProjectOperator {
protected:
    HostileContents() { database("SET sql_mode = 'ALLOW_INVALID_DATES'"); }

    static std::vector<std::string> keysOf(screen::ListView& list)
    {
        std::vector<std::string> keys;
        for (int row = 1; row <= list.ListItems().Count(); ++row)
            keys.emplace_back(list.ListItems()(row).Key());
        return keys;
    }
    static std::vector<std::string> cellsOf(screen::ListView& list, int column)
    {
        std::vector<std::string> cells;
        for (int row = 1; row <= list.ListItems().Count(); ++row) {
            const screen::ListItem item = list.ListItems()(row);
            cells.emplace_back(column == 0 ? item.Text() : item.ListSubItems()(column).Text());
        }
        return cells;
    }

    /// Each row, clicked, is the selected one, its key leads the detail, and its log is asked for.
    void eachRowIsItself()
    {
        const std::vector<std::string> keys = keysOf(lvw());
        for (std::size_t row = 0; row < keys.size(); ++row) {
            lvw().clickRow(row);
            EXPECT_EQ(lvw().SelectedItem()->Key(), keys[row]);
            EXPECT_THAT(sees("txtInfo"), testing::StartsWith(keys[row] + " | "));
            EXPECT_EQ(cnn->statements.back(), "SELECT * FROM xt_biticontact WHERE uf_Iicontact = " +
                                                  keys[row].substr(1) + " ORDER BY uf_Tiempo");
        }
    }

    screen::ListView& lvw() { return control.elements().prospects.lvw; }
};

} // namespace dn::tests
