// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Texts of the database as the files of other programs may hold them: every character one that those programs
// know, and every line end one line feed.
#pragma once

#include <cstddef>
#include <string_view>

namespace dn::tables {

/// Whether a byte stands for itself in every file format here.
constexpr bool isPlain(char byte) { return byte >= ' ' && byte <= '~'; }

/// How many bytes at the front are plain.
std::size_t plainBytes(std::string_view text);

/// Reads the character at the front and takes it off. A carriage return, with or without a line feed, comes as a
/// line feed; control characters, bytes of no valid sequence and code points that are no characters as U+FFFD.
/// @param text UTF-8, not empty.
char32_t takeStorable(std::string_view& text);

} // namespace dn::tables
