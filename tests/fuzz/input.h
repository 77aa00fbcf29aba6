// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The bytes of an input, taken apart as a target asks for them. Texts end at the byte 0x1E, so that an input stays
// readable and a change in one text leaves the others alone.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace dn::fuzz {

class Input {
public:
    explicit Input(std::string_view bytes) : rest_(bytes) {}

    bool empty() const { return rest_.empty(); }

    /// The next text, up to the next separator or the end.
    std::string text()
    {
        constexpr char separator = '\x1E';
        const std::size_t end = std::min(rest_.find(separator), rest_.size());
        std::string taken(rest_.substr(0, end));
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        return taken;
    }

    /// All that is left.
    std::string rest()
    {
        std::string taken(rest_);
        rest_ = {};
        return taken;
    }

    /// 0 at the end.
    std::uint8_t byte()
    {
        if (rest_.empty()) return 0;
        const auto taken = static_cast<std::uint8_t>(rest_.front());
        rest_.remove_prefix(1);
        return taken;
    }

    bool flag() { return (byte() & 1U) != 0; }

    /// Below `count`.
    std::size_t choice(std::size_t count) { return byte() % count; }

    /// Of eight bytes, the least one first.
    std::int64_t number()
    {
        std::uint64_t bits = 0;
        for (unsigned at = 0; at < 64; at += 8)
            bits |= static_cast<std::uint64_t>(byte()) << at;
        return static_cast<std::int64_t>(bits);
    }

private:
    std::string_view rest_;
};

} // namespace dn::fuzz
