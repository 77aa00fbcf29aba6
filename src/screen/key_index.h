// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Finds a row of a list view by its key in constant time, at ten to twenty bytes a row: a flat table of row
// numbers with open addressing. The keys themselves lie in the rows.
#pragma once

#include "base/export.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace dn::screen {

class DN_INTERNAL KeyIndex {
public:
    using RowNumber = std::uint32_t;

    static constexpr RowNumber none = 0xFFFFFFFF;

    void clear()
    {
        std::vector<Slot>().swap(slots_);
        used_ = 0;
    }

    std::size_t bytes() const { return slots_.capacity() * sizeof(Slot); }

    /// The row of a key, or `none`.
    /// @param keyOf gives the key of a row; asked only where the hashes are equal.
    template <class KeyOfRow>
    RowNumber find(std::string_view key, const KeyOfRow& keyOf) const
    {
        if (slots_.empty()) return none;
        const std::uint32_t hash = hashOf(key);
        for (std::size_t slot = home(hash);; slot = next(slot)) {
            const Slot& candidate = slots_[slot];
            if (candidate.row == none) return none;
            if (candidate.hash == hash && keyOf(candidate.row) == key) return candidate.row;
        }
    }

    /// Adds a row whose key the index does not hold yet.
    void insert(std::string_view key, RowNumber row)
    {
        makeRoom();
        place({row, hashOf(key)});
        ++used_;
    }

    /// Adds a row unless the index holds its key: find and insert on one way through the memory, which is what a
    /// long list costs most. @return whether it was added.
    template <class KeyOfRow>
    bool insertNew(std::string_view key, RowNumber row, const KeyOfRow& keyOf)
    {
        makeRoom();
        const std::uint32_t hash = hashOf(key);
        std::size_t slot = home(hash);
        for (; slots_[slot].row != none; slot = next(slot))
            if (slots_[slot].hash == hash && keyOf(slots_[slot].row) == key) return false;
        slots_[slot] = {row, hash};
        ++used_;
        return true;
    }

private:
    // The hash beside the row spares a look at the row itself, which lies somewhere in a large memory.
    struct Slot {
        RowNumber row = none;
        std::uint32_t hash = 0;
    };

    static std::uint32_t hashOf(std::string_view key)
    {
        return static_cast<std::uint32_t>(std::hash<std::string_view>()(key));
    }

    // By the upper bits: a table that grows then takes its entries over from front to back, and not each from
    // somewhere to somewhere.
    std::size_t home(std::uint32_t hash) const { return hash >> shift_; }

    std::size_t next(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }

    void place(const Slot& entry)
    {
        std::size_t slot = home(entry.hash);
        while (slots_[slot].row != none)
            slot = next(slot);
        slots_[slot] = entry;
    }

    void makeRoom()
    {
        if ((used_ + 1) * 5 > slots_.size() * 4) grow();
    }

    void grow()
    {
        std::vector<Slot> old(slots_.empty() ? 16 : slots_.size() * 2); // a power of two
        old.swap(slots_);
        shift_ = 32U - static_cast<unsigned>(std::countr_zero(slots_.size()));
        for (const Slot& entry : old)
            if (entry.row != none) place(entry);
    }

    std::vector<Slot> slots_;
    std::size_t used_ = 0;
    unsigned shift_ = 32; // of a hash, down to as many bits as the table takes
};

} // namespace dn::screen
