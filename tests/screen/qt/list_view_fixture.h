// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A list view of three columns with its widget, and what the operator did to it.
#pragma once

#include "screen/list_view.h"
#include "screen/qt/list_view_view.h"
#include "tests/screen/qt/stage.h"

#include <QAbstractItemModel>

#include <string>
#include <vector>

namespace dn::tests {

class ListViewTest : public StageTest {
protected:
    ListViewTest();
    ~ListViewTest() override { view.reset(); }

    /// Adds rows "K<n>" with the texts "<n>", "b<n>" and "c<n>".
    void addRows(int first, int behind);
    screen::qt::ListViewView& table() { return widget<screen::qt::ListViewView>("lvw"); }
    QAbstractItemModel& model() { return *table().model(); }
    QString shown(int row, int column) { return model().index(row, column).data().toString(); }
    /// The middle of a cell, in the table's viewport.
    QPoint at(int row, int column);
    void click(int row);
    void press(int key) { QTest::keyClick(&table(), static_cast<Qt::Key>(key)); }

    screen::ImageList images{"images", {"contact-new", "contact-verified"}};
    screen::ListView list{&root, "lvw"};
    std::vector<std::string> clicked; ///< keys of the rows clicked, "+" for a double click
    std::vector<std::string> checked; ///< keys of the rows whose box was clicked
    std::vector<int> headers;         ///< indices of the headers clicked
    screen::Subscriptions wires;
};

} // namespace dn::tests
