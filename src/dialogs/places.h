// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The countries that a prospect may come from, and the states of Mexico.
#pragma once

#include <array>

namespace dn::dialogs {

/// The country whose states are asked for.
inline constexpr const char* mexico = "México";

/// In the order offered. Mexico stands at the head and once more in its place in the alphabet.
extern const std::array<const char*, 27> countries;

extern const std::array<const char*, 32> mexicanStates;

} // namespace dn::dialogs
