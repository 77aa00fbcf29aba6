// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The drawings of the control, by name. They are SVG and stay sharp at every scale.
#pragma once

#include <QIcon>

#include <string_view>

namespace dn::screen::qt {

/// The picture of that name; a null icon for an empty name and for a name that nobody drew.
const QIcon& drawing(std::string_view name);

/// Nothing to see, as large as a drawing in a list.
const QIcon& blank();

} // namespace dn::screen::qt
