// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What a connection string of ODBC must say for us and may leave out.
#pragma once

#include "data/odbc/connection.h"

#include <string>
#include <string_view>

namespace dn::data::odbc {

/// Whether a keyword stands in the string, without regard to case; a value in braces is not searched.
bool hasKeyword(std::string_view connectionString, std::string_view keyword);

/// The string with the time-outs and the character set of those drivers that take them from there. A driver passes
/// over the keywords of others.
std::string completed(std::string_view connectionString, TimeOuts timeOuts);

} // namespace dn::data::odbc
