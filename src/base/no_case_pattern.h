// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A text to look for without regard to case, over and over: a list's search holds it against a million rows.
#pragma once

#include "base/export.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace dn {

/// Two bytes at a fixed distance that every text has which holds the pattern, in either case. They are looked for
/// first, many places at a step; what lacks them, as nearly all texts do, needs no other look.
struct DN_INTERNAL BytePair {
    unsigned char first = 0;
    unsigned char second = 0;
    unsigned char firstCase = 0;  ///< the bit that tells the cases of `first` apart, set in it; 0 for none
    unsigned char secondCase = 0; ///< the same of `second`
    std::size_t gap = 0;          ///< from the first to the second; 0 where one byte is all there is
    std::size_t offset = 0;       ///< of the first in the folded pattern

    /// The first place from `from` on where the text has them, npos for none.
    std::size_t findIn(std::string_view text, std::size_t from) const;
};

/// A text to look for without regard to case; for a search that is repeated over many texts.
class DN_INTERNAL NoCasePattern {
public:
    explicit NoCasePattern(std::string_view pattern);

    /// Whether the text holds the pattern. An empty pattern is held by every text.
    bool isIn(std::string_view text) const;

private:
    bool isAnywhereIn(std::string_view text) const;

    std::string folded_;
    bool ascii_;
    bool beginsInside_; ///< with a byte that may also stand inside of a character
    bool mayDiffer_;    ///< in length, between its cases
    std::optional<BytePair> pair_;
    std::array<bool, 256> starts_; ///< the bytes with which a text can begin that folds to the pattern
};

/// Whether `text` holds `part`, without regard to case. An empty part is held by every text.
DN_INTERNAL bool containsNoCase(std::string_view text, std::string_view part);

} // namespace dn
