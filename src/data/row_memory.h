// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Rows of a result in the client's memory, for one forward pass.
//
// A row is one run of bytes: where each cell starts (four bytes a cell), then the cells' text. Rows lie behind
// each other in blocks that never move, so the views into the present row stay good while further rows are taken
// in. A block that was passed is freed or filled again.
#pragma once

#include "base/export.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <deque>
#include <memory>
#include <string_view>

namespace dn::data {

class DN_INTERNAL RowMemory {
public:
    explicit RowMemory(std::size_t columns) : columns_(columns) {}

    /// Appends a row.
    /// @param cellAt called with each column, twice, gives its text; a view without data (nullptr) is a null.
    template <class CellAt>
    void append(const CellAt& cellAt);

    /// Goes to the next row, the first one at the start. @return false when none is there; the present row is gone
    /// then, and its room is used again.
    bool next();

    /// A cell of the present row, without data (nullptr) for a null.
    std::string_view cell(std::size_t column) const
    {
        const std::uint32_t start = present_[column];
        if ((start & null) != 0) return {};
        return {text(present_) + start, (present_[column + 1] & ~null) - start};
    }

    std::size_t waiting() const { return waiting_; } ///< rows behind the present one
    std::size_t bytes() const { return bytes_; }     ///< of all rows held, the present one included

private:
    using Word = std::uint32_t;
    static constexpr Word null = 0x8000'0000U; // set in the start of a cell that is null
    static constexpr std::size_t smallestBlock = 1024;
    static constexpr std::size_t largestBlock = 32'768; // in words, but for a row that needs more

    struct Block {
        std::unique_ptr<Word[]> words; // NOLINT(modernize-avoid-c-arrays): never filled with zeros first
        std::size_t capacity = 0;
        std::size_t used = 0;
    };

    const char* text(const Word* row) const { return reinterpret_cast<const char*>(row + columns_ + 1); }
    char* text(Word* row) const { return reinterpret_cast<char*>(row + columns_ + 1); }
    std::size_t wordsOf(std::size_t textBytes) const
    {
        return columns_ + 1 + (textBytes + sizeof(Word) - 1) / sizeof(Word);
    }

    Word* room(std::size_t textBytes); // takes the words of a new row
    Block& blockFor(std::size_t words);
    void passBlock();

    std::size_t columns_;
    std::deque<Block> blocks_;
    std::size_t read_ = 0; // words of the first block that were passed, the present row included
    std::size_t waiting_ = 0;
    std::size_t bytes_ = 0;
    const Word* present_ = nullptr;
};

template <class CellAt>
void RowMemory::append(const CellAt& cellAt)
{
    std::size_t size = 0;
    for (std::size_t i = 0; i < columns_; ++i)
        size += cellAt(i).size();
    Word* const starts = room(size);
    char* const front = text(starts);
    Word at = 0;
    for (std::size_t i = 0; i < columns_; ++i) {
        const std::string_view cell = cellAt(i);
        starts[i] = cell.data() == nullptr ? at | null : at;
        if (!cell.empty()) std::memcpy(front + at, cell.data(), cell.size());
        at += static_cast<Word>(cell.size());
    }
    starts[columns_] = at;
}

} // namespace dn::data
