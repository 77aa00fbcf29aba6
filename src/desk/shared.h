// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The small routines that every list uses.
#pragma once

#include "data/value.h"
#include "screen/list_view.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dn::desk {

/// Writes the text form of a value; a null gives the empty text.
void NullATexto(const data::Value& value, std::string& result);
/// The same without a copy where the text is there already, as it is in most cells.
/// @param room takes a text that has to be made. @return good as long as the value and `room`.
std::string_view textOrEmpty(const data::Value& value, std::string& room);

/// The display colour of a colour code: 1 red, 2 green, 3 blue, 4 purple, 0 for everything else, a null included.
screen::Colour ColorProyecto(const data::Value& code);
screen::Colour ColorProyecto(std::int64_t code);

/// Gives a row and all its sub-items one colour; bold when it is not 0.
void PaintProyItem(screen::ListItem& item, screen::Colour color);

} // namespace dn::desk
