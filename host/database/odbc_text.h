// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// ODBC connection strings: keys and values between semicolons, a value in braces where it holds one.
#pragma once

#include <string>
#include <string_view>

namespace dn::host {

/// The value of PWD= or PASSWORD=, without its braces; empty when there is none.
std::string odbcPassword(std::string_view text);

/// The string with "***" for the password, to be shown.
std::string odbcWithoutPassword(std::string_view text);

} // namespace dn::host
