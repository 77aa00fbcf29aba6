// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The patterns and pictures by which the control writes dates and numbers.
#pragma once

#include "base/date_time.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dn {

/// Writes a moment by a pattern of "yyyy", "mm", "mmm" (Spanish month of three letters, "ene" to "dic"), "dd",
/// "hh", "nn" (minutes) and "ss"; every other character stands for itself.
std::string formatDate(const DateTime& moment, std::string_view pattern);

/// The same, at the end of a text.
void appendDate(std::string& text, const DateTime& moment, std::string_view pattern);

/// The default text of a moment: "dd/mm/yyyy hh:nn:ss", at midnight "dd/mm/yyyy", without a date "hh:nn:ss".
std::string defaultText(const DateTime& moment);
/// The same, at the end of a text.
void appendDefaultText(std::string& text, const DateTime& moment);

/// The picture "000": at least three digits, the sign ahead of them ("-005").
std::string formatThreeDigits(std::int64_t number);

/// The picture "#,#.00": a comma between thousands, two decimals rounded half away from zero, no digit ahead of
/// the point for an amount below one (".00", ".50").
/// @param decimal an exact decimal text, as a database delivers it: sign, digits, "." and digits, or an exponent.
/// A text that is no number comes back as it is.
std::string formatAmount(std::string_view decimal);

/// The picture "##-##-##-##-##" of a telephone: the digits of the number fill the places from the right, the
/// hyphens always show, digits beyond ten stand at the left. A text that is no number comes back as it is.
std::string formatTelephone(std::string_view text);

} // namespace dn
