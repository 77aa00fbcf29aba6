// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A small list of prospects on a screen, and how it reads from top to bottom.
#pragma once

#include "screen/list_view.h"
#include "screen/panels.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace dn::tests {

/// The texts of a column in the order shown; column 0 is the rows' own text.
std::vector<std::string> column(screen::ListView& list, int index = 0);

/// Adds a row with sub-items.
screen::ListItem addRow(screen::ListView& list, const std::string& key, std::initializer_list<const char*> cells);

/// A list inside a panel of a control, with two columns.
struct ListOnScreen {
    ListOnScreen();

    screen::UserControl control{"control"};
    screen::PicturePanel panel{&control, "panel"};
    screen::ListView list{&panel, "lvw"};
};

} // namespace dn::tests
