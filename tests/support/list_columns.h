// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The columns of a list view as a table reads: header and width.
#pragma once

#include "screen/list_view.h"

#include <string>
#include <utility>
#include <vector>

namespace dn::tests {

using Columns = std::vector<std::pair<std::string, screen::Twips>>;

inline Columns columnsOf(const screen::ListView& list)
{
    Columns columns;
    for (const screen::ColumnHeader& header : list.ColumnHeaders())
        columns.emplace_back(header.Text, header.Width);
    return columns;
}

} // namespace dn::tests
