// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Made-up people and companies, put together from the vocabulary.
#pragma once

#include "host/database/sample/dice.h"
#include "host/database/sample/words.h"

#include <string>
#include <string_view>

namespace dn::host::sample {

/// The text without accents and signs, in small letters: "Íñigo O'Higgins" gives "inigo.ohiggins".
std::string plainName(std::string_view text);

std::string fullName(Dice& dice);
std::string company(Dice& dice);
/// An address of a domain that no real mail goes to.
std::string mailAddress(Dice& dice, std::string_view name);
/// Ten digits in one of the ways in which people write them.
std::string telephone(Dice& dice);
std::string streetAddress(Dice& dice);
std::string postalCode(Dice& dice);

} // namespace dn::host::sample
