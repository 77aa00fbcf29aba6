// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// ODBC connection strings: keys and values between semicolons, a value in braces where it holds one.
#pragma once

#include <string>
#include <string_view>

namespace dn::host {

/// The value of PWD= or PASSWORD=, without its braces; empty when there is none.
std::string odbcPassword(std::string_view text);

/// Whether each value that begins with a brace has the one that closes it. Without it, all that comes behind is a
/// part of that value.
bool odbcValuesEnd(std::string_view text);

/// The string with "***" for the password, and for a value that does not end, to be shown.
std::string odbcWithoutPassword(std::string_view text);

} // namespace dn::host
