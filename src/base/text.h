// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// UTF-8 texts as the control treats them: lengths and cuts in characters (code points), blanks that are U+0020 and
// nothing else, comparisons that fold case in all of Unicode and keep accents apart.
#pragma once

#include "base/export.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace dn {

/// A carriage return and a line feed: the line end of every multi-line text here.
inline constexpr std::string_view crlf = "\r\n";

/// Whether all bytes are below 128.
DN_INTERNAL bool isAscii(std::string_view text);

/// Characters, not bytes. A byte that belongs to no valid sequence counts as one character.
DN_INTERNAL std::size_t length(std::string_view text);

/// Without the blanks (U+0020) at both ends.
DN_INTERNAL std::string_view trimmed(std::string_view text);

/// Without any of the places where `part`, which is not empty, stands; what comes together by that stays.
DN_INTERNAL std::string without(std::string_view text, std::string_view part);

/// Reads the character at the front and takes it off. Invalid bytes come one at a time as U+DC80 to U+DCFF, so
/// that they stay distinct from each other and from every valid text.
/// @param text not empty.
DN_INTERNAL char32_t takeCharacter(std::string_view& text);

/// Appends a character in UTF-8; U+DC80 to U+DCFF give back the invalid byte that they stand for.
DN_INTERNAL void appendCharacter(std::string& text, char32_t character);

/// Small letter of a character by the simple folding of the C++ library; every other character as it is.
DN_INTERNAL char32_t foldCase(char32_t character);

/// The character itself and, of those below U+10000, all others that fold to it.
/// @param folded what foldCase() gave.
DN_INTERNAL std::vector<char32_t> charactersThatFoldTo(char32_t folded);

/// The text with every character folded; for comparing, and for `lower case` where a procedure asks for it.
DN_INTERNAL std::string toLower(std::string_view text);

DN_INTERNAL bool equalsNoCase(std::string_view left, std::string_view right);

} // namespace dn
