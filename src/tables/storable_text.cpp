// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tables/storable_text.h"

#include "base/text.h"

#include <cstdint>
#include <cstring>

namespace dn::tables {
namespace {

bool isControl(char32_t c) { return (c < 0x20 && c != U'\t' && c != U'\n') || (c >= 0x7F && c < 0xA0); }

bool isSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

bool isNoCharacter(char32_t c) { return (c & 0xFFFE) == 0xFFFE || (c >= 0xFDD0 && c <= 0xFDEF); }

} // namespace

// Eight at a time while all of them are plain: nearly all that is written is.
std::size_t plainBytes(std::string_view text)
{
    constexpr std::uint64_t each = 0x0101010101010101;
    constexpr std::uint64_t high = each * 0x80;
    std::size_t count = 0;
    for (std::uint64_t eight = 0; count + sizeof(eight) <= text.size(); count += sizeof(eight)) {
        std::memcpy(&eight, text.data() + count, sizeof(eight));
        const std::uint64_t unlikeDelete = eight ^ each * 0x7F;
        const std::uint64_t below = (eight - each * ' ') | (unlikeDelete - each); // borrows where one is
        if (((eight | below) & high) != 0) break;
    }
    while (count < text.size() && isPlain(text[count]))
        ++count;
    return count;
}

char32_t takeStorable(std::string_view& text)
{
    constexpr char32_t replacement = 0xFFFD;
    const char32_t character = takeCharacter(text);
    if (character == U'\r') {
        if (!text.empty() && text.front() == '\n') text.remove_prefix(1);
        return U'\n';
    }
    const bool bad = isControl(character) || isSurrogate(character) || isNoCharacter(character);
    return bad ? replacement : character;
}

} // namespace dn::tables
