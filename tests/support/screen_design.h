// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A screen as a text: each element with its kind, place and looks, one to a line, in the order of the key Tab
// where there is one. The designs that were found good are files; a change of a screen shows as a change of a few
// lines.
#pragma once

#include "screen/element.h"

#include <string>

namespace dn::tests {

/// The container and all that lies in it. What is as in any new element is left out.
std::string designOf(screen::Container& screen);

} // namespace dn::tests
