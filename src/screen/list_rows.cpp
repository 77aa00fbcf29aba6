// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/list_rows.h"

#include "base/runtime_error.h"
#include "screen/row_order.h"

#include <algorithm>
#include <utility>

namespace dn::screen {

void ListRows::clear()
{
    // Swapped and not cleared: a list of a million rows gives its memory back.
    std::vector<RowBlock>().swap(rows_);
    arena_.clear();
    std::vector<RowNumber>().swap(order_);
    std::vector<std::uint32_t>().swap(positions_);
    index_.clear();
    open_ = none;
}

ListRows::RowNumber ListRows::add(std::string_view key, std::string_view text, int smallIcon)
{
    const auto row = static_cast<RowNumber>(rows_.size());
    RowDraft& next = scratch(); // filled ahead of all else: key and text may lie in the row that closes now
    next.clear();
    next.key = key;
    next.add(text);
    next.smallIcon = iconNumber(smallIcon);
    close();
    // All that may run out of memory comes ahead of the index, which must not name a row that is not there.
    if (rows_.size() == rows_.capacity()) rows_.reserve(std::max<std::size_t>(16, 2 * rows_.size()));
    const auto keyOf = [this](RowNumber other) { return this->key(other); };
    if (!next.key.empty() && !index_.insertNew(next.key, row, keyOf))
        throw RuntimeError("La clave no es única en la colección");
    rows_.emplace_back();
    openDraft_ = 1 - openDraft_;
    open_ = row;
    if (!order_.empty()) completeOrder();
    return row;
}

void ListRows::remove(RowNumber row)
{
    close();
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(row));
    if (!order_.empty()) {
        std::erase(order_, row);
        for (RowNumber& number : order_)
            if (number > row) --number;
        positions_.resize(order_.size());
        for (std::size_t i = 0; i < order_.size(); ++i)
            positions_[order_[i]] = static_cast<std::uint32_t>(i);
    }
    index_.clear();
    for (RowNumber n = 0; n < rows_.size(); ++n)
        if (!key(n).empty()) index_.insert(key(n), n);
}

ListRows::RowNumber ListRows::find(std::string_view key) const
{
    return index_.find(key, [this](RowNumber n) { return this->key(n); });
}

std::string_view ListRows::cell(RowNumber row, std::size_t cell) const
{
    if (!isOpen(row)) return rows_[row].cell(cell);
    return cell < draft().ends.size() ? draft().cell(cell) : std::string_view();
}

std::string_view ListRows::cellsFrom(RowNumber row, std::size_t cell) const
{
    const std::size_t count = cellCount(row);
    if (cell >= count) return {};
    const std::string_view first = this->cell(row, cell);
    const std::string_view last = this->cell(row, count - 1);
    return {first.data(), static_cast<std::size_t>(last.data() - first.data()) + last.size()};
}

Colour ListRows::colour(RowNumber row, std::size_t cell) const
{
    if (isOpen(row)) {
        for (const CellStyle& style : draft().styles)
            if (style.cell == cell && style.hasColour) return style.colour;
        return draft().foreColour;
    }
    const CellStyle* const style = rows_[row].style(cell);
    return style != nullptr && style->hasColour ? style->colour : rows_[row].foreColour();
}

int ListRows::reportIcon(RowNumber row, std::size_t cell) const
{
    if (isOpen(row)) {
        for (const CellStyle& style : draft().styles)
            if (style.cell == cell) return style.icon;
        return 0;
    }
    const CellStyle* const style = rows_[row].style(cell);
    return style != nullptr ? style->icon : 0;
}

void ListRows::checked(RowNumber row, bool value)
{
    if (isOpen(row))
        draft().checked = value;
    else
        rows_[row].checked(value);
}

void ListRows::smallIcon(RowNumber row, int icon)
{
    if (isOpen(row))
        draft().smallIcon = iconNumber(icon);
    else
        rows_[row].smallIcon(iconNumber(icon));
}

void ListRows::sort(std::size_t sortCell, bool descending)
{
    close();
    RowOrder order(rows_.size());
    for (std::size_t position = 0; position < rows_.size(); ++position) {
        const RowNumber row = rowAt(position);
        order.add(row, cell(row, sortCell));
    }
    order_ = order.sorted(descending);
    positions_.resize(order_.size());
    for (std::size_t position = 0; position < order_.size(); ++position)
        positions_[order_[position]] = static_cast<std::uint32_t>(position);
}

std::size_t ListRows::overhead() const
{
    std::size_t bytes = rows_.capacity() * sizeof(RowBlock) + order_.capacity() * sizeof(RowNumber) +
                        positions_.capacity() * sizeof(std::uint32_t) + index_.bytes();
    for (RowNumber row = 0; row < rows_.size(); ++row)
        if (!isOpen(row)) bytes += rows_[row].overhead();
    return bytes;
}

void ListRows::close()
{
    if (open_ == none) return;
    rows_[open_] = RowBlock(draft(), arena_);
    open_ = none;
}

// A row that came after a sort stands at the end until the list is sorted again.
void ListRows::completeOrder()
{
    while (order_.size() < rows_.size()) {
        positions_.push_back(static_cast<std::uint32_t>(order_.size()));
        order_.push_back(static_cast<RowNumber>(order_.size()));
    }
}

} // namespace dn::screen
