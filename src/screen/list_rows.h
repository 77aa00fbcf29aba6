// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The rows of a list view: where they lie, how they are found by key, and in which order they show.
//
// A row has a number, its place in the order of adding, which never changes while it lives; and a position,
// its place on the screen, which a sort changes. The row added last is still open: its cells collect in a
// buffer until the next row comes, so that each row is written once, at its exact size.
#pragma once

#include "base/export.h"
#include "screen/key_index.h"
#include "screen/row_block.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace dn::screen {

class DN_INTERNAL ListRows {
public:
    using RowNumber = KeyIndex::RowNumber;
    static constexpr RowNumber none = KeyIndex::none;

    std::size_t count() const { return rows_.size(); }

    void clear();

    /// @throws RuntimeError when the key is there already; nothing is added then. An empty key is never found
    /// again and may repeat.
    RowNumber add(std::string_view key, std::string_view text, int smallIcon);
    /// Takes a row away; the numbers of the rows behind it move down by one.
    void remove(RowNumber row);
    RowNumber find(std::string_view key) const;

    // Reading, also of the open row.
    std::string_view key(RowNumber row) const { return isOpen(row) ? draft().key : rows_[row].key(); }

    std::size_t cellCount(RowNumber row) const
    {
        return isOpen(row) ? draft().ends.size() : rows_[row].cellCount();
    }

    /// Empty for a cell that the row does not have.
    std::string_view cell(RowNumber row, std::size_t cell) const;

    /// The texts of all cells from one on, one behind the other without anything between.
    std::string_view cellsFrom(RowNumber row, std::size_t cell) const;

    std::string_view toolTip(RowNumber row) const { return isOpen(row) ? draft().toolTip : rows_[row].toolTip(); }

    Colour colour(RowNumber row, std::size_t cell) const;

    bool bold(RowNumber row) const { return isOpen(row) ? draft().bold : rows_[row].bold(); }

    bool checked(RowNumber row) const { return isOpen(row) ? draft().checked : rows_[row].checked(); }

    int smallIcon(RowNumber row) const { return isOpen(row) ? draft().smallIcon : rows_[row].smallIcon(); }

    int reportIcon(RowNumber row, std::size_t cell) const;

    // Changing.
    void checked(RowNumber row, bool value);
    void smallIcon(RowNumber row, int icon);

    /// Adds a text behind the cells that the row has.
    void addCell(RowNumber row, std::string_view text)
    {
        edit(row, [text](RowDraft& draft) { draft.add(text); });
    }

    /// Applies a change to a row's draft; a row that is not open is rebuilt.
    template <class Change>
    void edit(RowNumber row, Change&& change)
    {
        if (isOpen(row)) {
            change(draft());
            return;
        }
        rows_[row].copyTo(scratch());
        change(scratch());
        rows_[row].rewrite(scratch(), arena_);
    }

    // The order on the screen.
    RowNumber rowAt(std::size_t position) const
    {
        return order_.empty() ? static_cast<RowNumber>(position) : order_[position];
    }

    std::size_t positionOf(RowNumber row) const { return order_.empty() ? row : positions_[row]; }

    /// Sorts by the text of a cell, in Spanish order; rows of equal text keep the order in which they stand.
    void sort(std::size_t cell, bool descending);

    /// Bytes that the rows take beside their text, as allocated.
    std::size_t overhead() const;

private:
    bool isOpen(RowNumber row) const { return row == open_; }

    RowDraft& draft() { return drafts_[openDraft_]; }
    const RowDraft& draft() const { return drafts_[openDraft_]; }
    RowDraft& scratch() { return drafts_[1 - openDraft_]; }

    void close();
    void completeOrder();

    RowArena arena_;
    std::vector<RowBlock> rows_;
    std::vector<RowNumber> order_;         // by position; empty while it is the order of adding
    std::vector<std::uint32_t> positions_; // by row number; empty with order_
    KeyIndex index_;
    std::array<RowDraft, 2> drafts_; // of the open row, and one to work in
    std::size_t openDraft_ = 0;
    RowNumber open_ = none;
};

} // namespace dn::screen
