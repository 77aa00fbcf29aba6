// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/list_view.h"

#include "base/runtime_error.h"

#include <algorithm>

namespace dn::screen {

std::optional<ListItem> ListView::SelectedItem()
{
    if (selected_ == ListRows::none) return std::nullopt;
    return handle(selected_);
}

void ListView::AddColumn(std::string text, Twips width, std::string key)
{
    columns_.push_back({static_cast<int>(columns_.size()) + 1, std::move(text), width, std::move(key)});
    columnsChanged.emit();
}

void ListView::ClearColumns()
{
    columns_.clear();
    columnsChanged.emit();
}

void ListView::SortKey(int column)
{
    if (column == sortKey_) return;
    keepSorted(); // rows of equal text keep the order that the former key gave them
    set(sortKey_, column);
    sortingChanged();
}

void ListView::SortOrder(int order)
{
    if (order == sortOrder_) return;
    set(sortOrder_, order);
    sortingChanged();
}

void ListView::Sorted(bool sorted)
{
    if (sorted == sorted_) return;
    keepSorted(); // taking the flag away leaves the rows as they stand
    set(sorted_, sorted);
    sortingChanged();
}

void ListView::clickRow(std::size_t position)
{
    if (!usable() || position >= rows().count()) return;
    const ListItem clicked = handle(rows().rowAt(position)); // what listens to the selection may empty the list
    select(rows_.rowAt(position));
    ItemClick.emit(clicked);
}

void ListView::doubleClickRow(std::size_t position)
{
    if (usable() && position < rows().count()) DblClick.emit();
}

void ListView::doubleClickEmpty()
{
    if (usable()) DblClick.emit();
}

void ListView::toggleCheck(std::size_t position)
{
    if (!usable() || !checkBoxes_ || position >= rows().count()) return;
    ListItem item = handle(rows().rowAt(position));
    item.Checked(!item.Checked());
    ItemCheck.emit(item);
}

void ListView::clickHeader(int column)
{
    if (!usable() || column < 0 || column >= static_cast<int>(columns_.size())) return;
    const ColumnHeader header = columns_[static_cast<std::size_t>(column)];
    ColumnClick.emit(header);
}

const ListRows& ListView::rows() const
{
    keepSorted();
    return rows_;
}

std::optional<std::size_t> ListView::selectedPosition() const
{
    if (selected_ == ListRows::none) return std::nullopt;
    return rows().positionOf(selected_);
}

ListChanges ListView::takeChanges()
{
    dirty_ = false;
    const ListChanges changes = changes_;
    forgetChanges();
    return changes;
}

void ListView::select(ListRows::RowNumber row)
{
    if (row == selected_) return;
    selected_ = row;
    changed.emit();
}

void ListView::keepSorted() const
{
    if (!unsorted_) return;
    unsorted_ = false;
    rows_.sort(static_cast<std::size_t>(std::max(0, sortKey_)), sortOrder_ == descending);
}

void ListView::sortingChanged()
{
    if (!sorted_) return;
    unsorted_ = true;
    changes_.order = true;
    markDirty();
}

void ListView::textChanged(ListRows::RowNumber row)
{
    if (sorted_)
        sortingChanged(); // the row may belong elsewhere; its position is found out when it is asked for
    else
        markChanged(row);
}

void ListView::markChanged(ListRows::RowNumber row)
{
    if (row == marked_) return; // a row is filled cell by cell
    marked_ = row;
    if (!unsorted_) { // else its position is not known yet, and all positions are shown anew
        const std::size_t position = rows_.positionOf(row);
        const bool none = changes_.firstChanged == changes_.behindLastChanged;
        changes_.firstChanged = none ? position : std::min(changes_.firstChanged, position);
        changes_.behindLastChanged = none ? position + 1 : std::max(changes_.behindLastChanged, position + 1);
    }
    markDirty(); // last: whoever takes the changes at once gets this one too
}

void ListView::forgetChanges()
{
    changes_ = ListChanges();
    marked_ = ListRows::none;
}

void ListView::markDirty()
{
    if (dirty_) return;
    dirty_ = true;
    dirty.emit();
}

} // namespace dn::screen
