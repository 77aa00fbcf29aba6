// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A key that brought up a window and is still held down must not answer it.
#pragma once

#include <QWidget>

namespace dn::screen::qt {

/// Makes a window deaf to the repetitions of Enter and Escape; each of them counts when it is pressed anew. A text
/// of several lines goes on taking line breaks.
/// @param window with all the widgets that it will have.
void ignoreHeldKeys(QWidget& window);

} // namespace dn::screen::qt
