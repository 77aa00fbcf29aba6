// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Which commands a list offers where the operator asks for what he can do with a row: buttons that stand on the
// screen anyway. Whether one can be used, and what it does, is the button's own business.
#pragma once

#include "base/export.h"
#include "desk/elements.h"

#include <string_view>
#include <vector>

namespace dn::shell {

/// The buttons that work on the selected row of one of the five lists, those that lie in one panel together.
/// @param list its name. Nothing for another list.
DN_INTERNAL std::vector<screen::Button*> commandsOf(std::string_view list, desk::Elements& elements);

} // namespace dn::shell
