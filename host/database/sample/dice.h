// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Chance that falls alike on every machine: the standard library's distributions differ between its makers.
#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>

namespace dn::host::sample {

class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}

    /// A whole number, both ends included.
    int between(int least, int most)
    {
        return least + static_cast<int>(engine_() % static_cast<std::uint64_t>(most - least + 1));
    }
    bool chance(int percent) { return between(1, 100) <= percent; }
    /// One of the words.
    std::string_view pick(std::span<const std::string_view> words)
    {
        return words[static_cast<std::size_t>(engine_() % words.size())];
    }
    /// 32 hexadecimal digits.
    std::string identifier();

private:
    std::mt19937_64 engine_;
};

} // namespace dn::host::sample
