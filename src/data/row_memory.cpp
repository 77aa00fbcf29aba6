// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/row_memory.h"

#include "data/error.h"

#include <algorithm>

namespace dn::data {

RowMemory::Word* RowMemory::room(std::size_t textBytes)
{
    if (textBytes >= null) throw Error("HY001", 0, "Una fila del resultado ocupa más de 2 GB");
    const std::size_t words = wordsOf(textBytes);
    Block& block = blockFor(words);
    Word* const row = block.words.get() + block.used;
    block.used += words;
    bytes_ += words * sizeof(Word);
    ++waiting_;
    return row;
}

// Blocks grow, so that a result of one row takes 4 KB and a long one is held in few pieces.
RowMemory::Block& RowMemory::blockFor(std::size_t words)
{
    if (blocks_.empty() || blocks_.back().capacity - blocks_.back().used < words) {
        const std::size_t grown = blocks_.empty() ? smallestBlock : 2 * blocks_.back().capacity;
        const std::size_t capacity = std::max(words, std::min(grown, largestBlock));
        // NOLINTNEXTLINE(modernize-avoid-c-arrays)
        blocks_.push_back({std::make_unique_for_overwrite<Word[]>(capacity), capacity, 0});
    }
    return blocks_.back();
}

bool RowMemory::next()
{
    while (!blocks_.empty() && read_ == blocks_.front().used) {
        const bool last = blocks_.size() == 1;
        passBlock();
        if (last) break;
    }
    if (waiting_ == 0) {
        present_ = nullptr;
        return false;
    }
    present_ = blocks_.front().words.get() + read_;
    read_ += wordsOf(present_[columns_]);
    --waiting_;
    return true;
}

// The last block stays for the rows to come.
void RowMemory::passBlock()
{
    bytes_ -= blocks_.front().used * sizeof(Word);
    read_ = 0;
    if (blocks_.size() > 1)
        blocks_.pop_front();
    else
        blocks_.front().used = 0;
}

} // namespace dn::data
