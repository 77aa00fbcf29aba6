// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What an operator copies from a list, as text for other programs.
#pragma once

#include "base/export.h"
#include "screen/list_view.h"

#include <cstddef>
#include <string>
#include <vector>

namespace dn::screen {

/// Cells beside each other, by position in the order shown and by column, all counted from 0.
struct DN_INTERNAL CellRange {
    std::size_t firstRow = 0;
    std::size_t lastRow = 0;
    std::size_t firstColumn = 0;
    std::size_t lastColumn = 0;
};

struct CopyForm {
    std::vector<std::size_t> order; ///< the columns from left to right, where they do not stand in their own order
    bool headers = false;           ///< with a line of the columns' captions ahead of all others
};

/// A line for each row that has one of the cells, in the order shown, with a tab between its cells. Every column
/// that has one of them takes part in every line. A text that would fall apart stands between quotes, as
/// spreadsheets have it. Ranges may overlap and reach beyond the list.
DN_INTERNAL std::string copiedText(const ListView& list, std::vector<CellRange> ranges, const CopyForm& form = {});

} // namespace dn::screen
