// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/screen/qt/list_view_fixture.h"

namespace dn::tests {

using namespace dn::screen;

ListViewTest::ListViewTest()
{
    place(list, 0, 0, 400, 300);
    for (const char* header : {"Uno", "Dos", "Tres"})
        list.AddColumn(header, 1500);
    wires.push_back(list.ItemClick.connect([this](ListItem item) { clicked.emplace_back(item.Key()); }));
    wires.push_back(list.DblClick.connect([this] { clicked.emplace_back("+"); }));
    wires.push_back(list.ItemCheck.connect([this](ListItem item) { checked.emplace_back(item.Key()); }));
    wires.push_back(
        list.ColumnClick.connect([this](const ColumnHeader& header) { headers.push_back(header.Index); }));
}

void ListViewTest::addRows(int first, int behind)
{
    for (int n = first; n < behind; ++n) {
        const std::string number = std::to_string(n);
        const ListItem item = list.ListItems().Add("K" + number, number);
        item.ListSubItems().Add("b" + number);
        item.ListSubItems().Add("c" + number);
    }
}

QPoint ListViewTest::at(int row, int column) { return table().visualRect(model().index(row, column)).center(); }

void ListViewTest::click(int row) { QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, at(row, 1)); }

} // namespace dn::tests
