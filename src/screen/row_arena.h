// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The memory of the rows of one list. Rows come by the hundred thousand and go all at once, so they lie one behind
// the other in large pieces: no bookkeeping for each row, and no search for its place when it goes.
#pragma once

#include "base/export.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace dn::screen {

class DN_INTERNAL RowArena {
public:
    /// What every block begins at a multiple of.
    static constexpr std::size_t alignment = 4;

    RowArena() = default;

    RowArena(RowArena&& other) noexcept { swap(other); }

    RowArena& operator=(RowArena&& other) noexcept
    {
        swap(other);
        return *this;
    }

    RowArena(const RowArena&) = delete;
    RowArena& operator=(const RowArena&) = delete;
    ~RowArena() = default;

    /// Memory that stays where it is until the arena is cleared.
    void* allocate(std::size_t bytes)
    {
        bytes = (bytes + alignment - 1) / alignment * alignment;
        if (bytes > left_) addPiece(bytes);
        left_ -= bytes;
        return std::exchange(next_, next_ + bytes);
    }

    /// Gives all memory back at once.
    void clear() { *this = RowArena(); }

    /// Bytes taken from the heap.
    std::size_t bytes() const { return bytes_; }

private:
    static constexpr std::size_t smallestPiece = 4U << 10U;
    static constexpr std::size_t largestPiece = 256U << 10U;

    // Each piece is as large as all before it together, up to a limit: small lists stay small.
    void addPiece(std::size_t needed)
    {
        const std::size_t size = std::max(needed, std::clamp(bytes_, smallestPiece, largestPiece));
        pieces_.push_back(std::make_unique_for_overwrite<char[]>(size)); // NOLINT(modernize-avoid-c-arrays)
        next_ = pieces_.back().get();
        left_ = size;
        bytes_ += size;
    }

    void swap(RowArena& other) noexcept
    {
        pieces_.swap(other.pieces_);
        std::swap(next_, other.next_);
        std::swap(left_, other.left_);
        std::swap(bytes_, other.bytes_);
    }

    // A vector of char would be filled with zeros ahead of its use.
    std::vector<std::unique_ptr<char[]>> pieces_; // NOLINT(modernize-avoid-c-arrays)
    char* next_ = nullptr;
    std::size_t left_ = 0;
    std::size_t bytes_ = 0;
};

} // namespace dn::screen
