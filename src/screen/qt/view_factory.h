// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Makes the widget for each kind of element.
#pragma once

#include "screen/element.h"
#include "screen/qt/focus_keeper.h"
#include "screen/qt/guard.h"

#include <vector>

namespace dn::screen::qt {

/// Builds the views of all elements inside a container, to any depth.
/// @param parent the container's own widget; it owns them.
/// @return element and widget of each; the timers, which show nothing, are not among them.
std::vector<View> buildViews(Container& container, QWidget& parent, Guard& guard);

} // namespace dn::screen::qt
