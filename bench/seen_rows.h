// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What one way of reading brought, so that it can be held against what another brought.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_set>

namespace dn::bench {

/// Rows in the order in which they came: a key that comes again is passed over, as a list passes it over.
class SeenRows {
public:
    /// @param text of one column of the row.
    void add(std::int64_t key, std::string_view text)
    {
        if (!keys_.insert(key).second) return;
        mix(static_cast<std::uint64_t>(key));
        mix(std::hash<std::string_view>()(text));
    }

    std::size_t count() const { return keys_.size(); }
    /// Whether both saw the same keys with the same texts in the same order.
    bool operator==(const SeenRows& other) const { return count() == other.count() && sum_ == other.sum_; }

private:
    void mix(std::uint64_t value) { sum_ = (sum_ ^ value) * 0x100000001B3U + (sum_ >> 29U); }

    std::unordered_set<std::int64_t> keys_;
    std::uint64_t sum_ = 0;
};

} // namespace dn::bench
