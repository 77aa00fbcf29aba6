// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/sample/dice.h"

namespace dn::host::sample {

std::string Dice::identifier()
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (int word = 0; word < 2; ++word) {
        std::uint64_t bits = engine_();
        for (int i = 0; i < 16; ++i, bits >>= 4U)
            text += digits[bits & 15U];
    }
    return text;
}

} // namespace dn::host::sample
