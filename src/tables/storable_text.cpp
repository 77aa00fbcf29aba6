// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tables/storable_text.h"

#include "base/text.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace dn::tables {
namespace {

bool isControl(char32_t c) { return (c < 0x20 && c != U'\t' && c != U'\n') || (c >= 0x7F && c < 0xA0); }

bool isSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

bool isNoCharacter(char32_t c) { return (c & 0xFFFE) == 0xFFFE || (c >= 0xFDD0 && c <= 0xFDEF); }

// U+00C0 to U+00FF: nearly all that is not plain in these texts.
bool isAccentedLetter(std::string_view text)
{
    return text.size() >= 2 && text[0] == '\xC3' && (static_cast<unsigned char>(text[1]) & 0xC0U) == 0x80U;
}

// Eight bytes as a number, the first one the lowest.
std::uint64_t lowestFirst(const char* bytes)
{
    std::uint64_t eight = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&eight, bytes, sizeof(eight));
    } else {
        for (std::size_t i = 0; i < sizeof(eight); ++i)
            eight |= static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    }
    return eight;
}

// A bit for the first of eight bytes that is not plain; those behind it may have one too many, by its borrow.
std::uint64_t notPlainOf(const char* bytes)
{
    constexpr std::uint64_t each = 0x0101010101010101;
    const std::uint64_t eight = lowestFirst(bytes);
    const std::uint64_t unlikeDelete = eight ^ each * 0x7F;
    return (eight | (eight - each * ' ') | (unlikeDelete - each)) & each * 0x80;
}

std::size_t firstOf(std::uint64_t bits) { return static_cast<std::size_t>(std::countr_zero(bits)) / 8; }

} // namespace

// Eight at a time: nearly all that is written is plain.
std::size_t plainBytes(std::string_view text)
{
    std::size_t count = 0;
    for (; count + sizeof(std::uint64_t) <= text.size(); count += sizeof(std::uint64_t))
        if (const std::uint64_t others = notPlainOf(text.data() + count); others != 0)
            return count + firstOf(others);
    if (text.size() >= sizeof(std::uint64_t)) { // the last eight, some of which were plain already
        const std::size_t last = text.size() - sizeof(std::uint64_t);
        const std::uint64_t others = notPlainOf(text.data() + last);
        return others == 0 ? text.size() : last + firstOf(others);
    }
    while (count < text.size() && isPlain(text[count]))
        ++count;
    return count;
}

char32_t takeStorable(std::string_view& text)
{
    if (isAccentedLetter(text)) {
        const char32_t letter = 0xC0U | (static_cast<unsigned char>(text[1]) & 0x3FU);
        text.remove_prefix(2);
        return letter;
    }
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
