// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What both drivers say and do alike.
#pragma once

#include "base/export.h"
#include "data/error.h"
#include "data/value.h"

#include <string>
#include <string_view>

namespace dn::data {

/// @throws Error for a statement without text: no server can be asked what it thinks of it.
DN_INTERNAL void requireText(std::string_view statement);

/// The error of everything that is asked of a connection after its end.
DN_INTERNAL Error connectionClosed();

/// The error of a move or a look behind the last row.
DN_INTERNAL Error noRow();

/// The value of a cell in a column of dates: its text without a fraction of zeros (one driver sends it, another
/// does not), a null for the zero date, a text for what is neither a day of the calendar nor a time of day
/// ("838:59:59", "2026-00-10").
DN_INTERNAL Value deliveredDate(std::string_view raw);

/// A field of bits as decimal digits; servers send it as bytes, the highest first.
DN_INTERNAL std::string digitsOfBits(std::string_view bytes);

/// Without the drivers' prefixes: "[vendor][server]Text" is "Text".
DN_INTERNAL std::string_view withoutPrefixes(std::string_view message);

} // namespace dn::data
