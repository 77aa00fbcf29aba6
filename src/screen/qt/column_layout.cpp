// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/column_layout.h"

#include <QHeaderView>

#include <algorithm>
#include <numeric>

namespace dn::screen::qt {
namespace {

constexpr int widest = 10'000; // logical pixels: more than all screens of a desk

bool isPermutation(const std::vector<int>& order)
{
    std::vector<int> own(order.size());
    std::iota(own.begin(), own.end(), 0);
    return std::is_permutation(own.begin(), own.end(), order.begin(), order.end());
}

} // namespace

ColumnLayout columnLayoutOf(const QHeaderView& header)
{
    ColumnLayout layout;
    for (int place = 0; place < header.count(); ++place) {
        layout.order.push_back(header.logicalIndex(place));
        layout.widths.push_back(header.sectionSize(place));
    }
    return layout;
}

bool arrangeColumns(QHeaderView& header, const ColumnLayout& layout)
{
    const auto count = static_cast<std::size_t>(header.count());
    const bool fits =
        layout.order.size() == count && layout.widths.size() == count && isPermutation(layout.order) &&
        std::all_of(layout.widths.begin(), layout.widths.end(),
                    [&](int width) { return header.minimumSectionSize() <= width && width <= widest; });
    if (!fits) return false;
    for (int place = 0; place < header.count(); ++place) {
        header.resizeSection(place, layout.widths[static_cast<std::size_t>(place)]);
        header.moveSection(header.visualIndex(layout.order[static_cast<std::size_t>(place)]), place);
    }
    return true;
}

} // namespace dn::screen::qt
