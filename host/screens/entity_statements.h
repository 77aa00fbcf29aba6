// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The statements of the search. Each gives key, three parts of a name, telephone and mail address; patterns are
// for LIKE, with "!" ahead of what would be a wildcard. All hold for every engine.
#pragma once

#include "host/database/statement.h"

#include <string>
#include <string_view>

namespace dn::host {

/// The words of a text as they stand; others may lie between them, so that "ana lópez" fits Ana María López. A
/// bracket opens a set of letters on SQL Server.
std::string patternOf(std::string_view text);

// What begins with the pattern, by an index.
Statement personsFrom(const std::string& pattern);
Statement personsOfSurname(const std::string& pattern);
/// @param firstName the pattern's first word.
Statement personsInFull(const std::string& firstName, const std::string& pattern);
Statement organisationsFrom(const std::string& pattern);
Statement organisationsTradingAs(const std::string& pattern);

// What holds the pattern anywhere, among the keys from `first` to `last`.
Statement personsWith(const std::string& pattern, std::int32_t first, std::int32_t last);
Statement organisationsWith(const std::string& pattern, std::int32_t first, std::int32_t last);

/// The first and the last key, or two nulls.
Statement personKeys();
Statement organisationKeys();

} // namespace dn::host
