// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The database key behind a row of a list: the row's key is a letter and the number.
#pragma once

#include "screen/list_view.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dn::desk {

/// The row that a command works on. @throws RuntimeError when the list has no selected row.
screen::ListItem selectedRow(screen::ListView& list);

/// The key behind a row, as the text from the second character of the row's key on.
std::string keyDigits(const screen::ListItem& row);

/// The same as a number. @throws RuntimeError when it is none, or does not fit.
std::int32_t keyNumber(const screen::ListItem& row);

} // namespace dn::desk
