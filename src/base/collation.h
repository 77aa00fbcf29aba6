// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Spanish order of texts, for the lists that a click on a header sorts.
//
// A text is compared letter by letter without regard to case and to accents, ñ being a letter of its own after n;
// where that tells no difference, the accents decide (plain ahead of accented). Two texts that differ only in case
// are equal, so that a stable sort keeps them as they stood. Digits come ahead of letters, signs ahead of digits.
// An empty text comes first. The standard library has no such order without an installed locale, hence this table.
#pragma once

#include <string>
#include <string_view>

namespace dn {

/// Less than 0, 0 or more than 0, as `left` stands before, beside or behind `right`.
int compareSpanish(std::string_view left, std::string_view right);

/// Appends the key of a text: bytes whose plain order, the shorter ahead, is that of compareSpanish; texts that it
/// finds equal have the same key. For sorting many texts, each of which is then taken apart once.
void appendCollationKey(std::string& keys, std::string_view text);

} // namespace dn
