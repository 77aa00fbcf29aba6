// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Rows on their way into the order of a column. Each text is taken apart once, into a key of bytes, and the rows
// are sorted by eight bytes of their keys at a time: comparing two texts letter by letter, where they lie among
// the other cells, took ten times as long.
#pragma once

#include "base/export.h"
#include "screen/key_index.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dn::screen {

class DN_INTERNAL RowOrder {
public:
    using RowNumber = KeyIndex::RowNumber;

    explicit RowOrder(std::size_t rows);

    /// Adds a row with the text that it is sorted by.
    void add(RowNumber row, std::string_view text);

    /// The rows in Spanish order of their texts, or the other way round; those of equal texts as they were added.
    std::vector<RowNumber> sorted(bool descending);

private:
    /// A row and the part of its key that it is being sorted by, as a number.
    struct Entry {
        std::uint64_t part;
        std::uint32_t next;  ///< which part of all keys comes then
        std::uint32_t place; ///< in the order of adding
    };

    /// Rows beside each other whose keys are alike so far.
    struct Run {
        std::size_t begin;
        std::size_t end;
    };

    void takePart(Entry& entry, bool descending) const;
    void sort(Run run);
    void openRuns(Run sorted, std::vector<Run>& open) const;

    std::vector<RowNumber> rows_;     // by place
    std::string keys_;                // each filled up with zeros to whole parts
    std::vector<std::uint32_t> ends_; // by place, in parts
    std::vector<Entry> entries_;
    std::vector<Entry> spare_;
};

} // namespace dn::screen
