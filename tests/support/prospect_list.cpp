// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/prospect_list.h"

namespace dn::tests {

std::vector<std::string> column(screen::ListView& list, int index)
{
    std::vector<std::string> texts;
    for (int row = 1; row <= list.ListItems().Count(); ++row) {
        const screen::ListItem item = list.ListItems()(row);
        texts.emplace_back(index == 0 ? item.Text() : item.ListSubItems()(index).Text());
    }
    return texts;
}

screen::ListItem addRow(screen::ListView& list, const std::string& key, std::initializer_list<const char*> cells)
{
    const char* const* cell = cells.begin();
    const screen::ListItem item = list.ListItems().Add(key, *cell);
    while (++cell != cells.end())
        item.ListSubItems().Add(*cell);
    return item;
}

ListOnScreen::ListOnScreen()
{
    list.AddColumn("Tipo", 1440);
    list.AddColumn("Nombre", 2440, "uf_Nombre");
}

} // namespace dn::tests
