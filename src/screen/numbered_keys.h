// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Rows by keys like "K17": where the numbers of a list lie close together, as those of one table do, the number is
// the place in a table of rows, at four to sixteen bytes a row. A search touches four bytes of a memory so small
// that the processor keeps it at hand; a hash table of a million rows it does not.
#pragma once

#include "base/export.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dn::screen {

class DN_INTERNAL NumberedKeys {
public:
    using RowNumber = std::uint32_t;

    static constexpr RowNumber none = 0xFFFFFFFF;

    /// The row of a key; `none` also for a key that would not be kept here.
    RowNumber find(std::string_view key) const
    {
        const std::optional<std::size_t> number = numberOf(key);
        return number && *number < rows_.size() ? rows_[*number] : none;
    }

    /// Adds a key that is not here yet. The first one gives the letters that all have in common.
    /// @return whether it was taken: it has other letters, is no number behind them, or lies too far from the
    /// others.
    bool insert(std::string_view key, RowNumber row)
    {
        if (count_ == 0) letters_ = key.substr(0, std::min(key.find_first_of("0123456789"), longestLetters));
        const std::optional<std::size_t> number = numberOf(key);
        if (!number || *number >= slotsARow * (count_ + fewest)) return false;
        if (*number >= rows_.size()) makeRoom(*number);
        rows_[*number] = row;
        ++count_;
        return true;
    }

    std::size_t bytes() const { return rows_.capacity() * sizeof(RowNumber); }

private:
    static constexpr std::size_t slotsARow = 4;
    static constexpr std::size_t fewest = 16; // rows ahead of which a number counts as close to the others
    static constexpr std::size_t longestLetters = 4;

    // One number, one way to write it: "K7" and never "K07", so that the number alone tells the key.
    std::optional<std::size_t> numberOf(std::string_view key) const
    {
        if (!key.starts_with(letters_)) return std::nullopt;
        key.remove_prefix(letters_.size());
        if (key.empty() || key.front() < '0' || key.front() > '9' || (key.front() == '0' && key.size() > 1))
            return std::nullopt;
        std::uint32_t number = 0;
        const char* const end = key.data() + key.size();
        const auto [stop, failure] = std::from_chars(key.data(), end, number);
        if (failure != std::errc() || stop != end) return std::nullopt;
        return number;
    }

    void makeRoom(std::size_t number)
    {
        if (number >= rows_.capacity()) rows_.reserve(std::max(number + 1, rows_.capacity() * 2));
        rows_.resize(number + 1, none);
    }

    std::string letters_;
    std::vector<RowNumber> rows_; // by number
    std::size_t count_ = 0;
};

} // namespace dn::screen
