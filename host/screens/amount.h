// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Reading an amount as an operator types it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace dn::host {

/// Reads "1234.50", "1,234.50", ".5", blanks at both ends and a "$" ahead left aside. Commas must stand between
/// groups of three digits.
/// @return an exact decimal ("1234.50", "0.5"), or nothing for what is no amount: a sign, more than two decimals,
/// more than 15 digits ahead of the point.
std::optional<std::string> readAmount(std::string_view text);

} // namespace dn::host
