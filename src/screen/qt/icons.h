// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The drawings of the control, by name. They are SVG and stay sharp at every scale. Each is made once: the toolkit
// keeps something of every picture that it has ever drawn.
#pragma once

#include <QColor>
#include <QIcon>

#include <string_view>

namespace dn::screen::qt {

/// The picture of that name; a null icon for an empty name and for a name that nobody drew.
const QIcon& drawing(std::string_view name);

/// The same on a ground of a colour, as large as in a list. @param scale of the screen that it shows on.
const QIcon& drawingOn(const QColor& ground, std::string_view name, qreal scale);

/// Nothing to see, as large as a drawing in a list.
const QIcon& blank();

} // namespace dn::screen::qt
