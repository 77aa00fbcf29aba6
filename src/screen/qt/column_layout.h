// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// How an operator has arranged the columns of a list. The lists themselves forget it; a host may keep it for the
// next start. What a list is sorted by is no part of it.
#pragma once

#include "base/export.h"

#include <map>
#include <string>
#include <vector>

class QHeaderView;

namespace dn::screen::qt {

/// The columns of one list.
struct ColumnLayout {
    std::vector<int> order;  ///< the columns from left to right, each by its number counted from 0
    std::vector<int> widths; ///< by column, in logical pixels

    /// The same order and the same widths.
    bool operator==(const ColumnLayout& other) const = default;
};

/// By the name of the list.
using ColumnLayouts = std::map<std::string, ColumnLayout>;

/// How they stand now.
DN_EXPORT ColumnLayout columnLayoutOf(const QHeaderView& header);

/// Arranges the columns. @return false, and nothing is changed, when the layout does not fit these columns:
/// another number of them, one twice, or a width that nobody can have dragged.
DN_EXPORT bool arrangeColumns(QHeaderView& header, const ColumnLayout& layout);

} // namespace dn::screen::qt
