// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The statements of a new prospect: the INSERT with its markers, how a marker gets its value, and the calls by
// which the database learns new texts for the combos.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace dn::dialogs {

/// The INSERT of a prospect, with a marker such as "@uf_Nombre" for each value.
std::string prospectInsert(bool mySql);

using ParamValue = std::variant<std::string, std::int32_t>;

/// Puts a value in the place of a column's marker, wherever it stands in the statement: also in a text that an
/// earlier marker brought in. A text comes in quotes, its pairs of carriage return and line feed written as
/// the four characters \r\n and its apostrophes lost; a number in decimal.
/// @param null writes NULL in the place of a number.
void SetParam(std::string& statement, std::string_view column, const ParamValue& value, bool null = false);

/// The call of a stored procedure with one text, which goes in as it is.
std::string learningCall(bool mySql, std::string_view procedure, std::string_view text);

} // namespace dn::dialogs
