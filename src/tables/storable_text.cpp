// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tables/storable_text.h"

#include "base/text.h"

namespace dn::tables {
namespace {

bool isControl(char32_t c) { return (c < 0x20 && c != U'\t' && c != U'\n') || (c >= 0x7F && c < 0xA0); }

bool isSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

bool isNoCharacter(char32_t c) { return (c & 0xFFFE) == 0xFFFE || (c >= 0xFDD0 && c <= 0xFDEF); }

} // namespace

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
