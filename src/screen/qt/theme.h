// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The look of the control: calm, compact, one family of type at a fixed size in logical pixels, in whatever
// colours (light or dark) the application has.
#pragma once

#include "base/export.h"

#include <QFont>
#include <QPalette>

class QApplication;
class QWidget;

namespace dn::screen::qt {

/// The first family of a list of well readable ones that the machine has, 12 logical pixels high: the frame of
/// the layout is fixed, so the size of the text is too.
DN_EXPORT QFont controlFont();

/// Gives a screen of the control, and all widgets in it, the look. A window of it is built first.
DN_EXPORT void dress(QWidget& root);

/// The last two are of high contrast: black and white, no grey between a text and what it stands on.
enum class Scheme { light, dark, whiteOnBlack, blackOnWhite };

/// The colours of all widgets in a scheme.
DN_EXPORT QPalette schemePalette(Scheme scheme);

/// The scheme that is nearest to a desktop's own palette.
DN_EXPORT Scheme schemeOf(const QPalette& desktop);

/// For a program that is built around the control: the look, the palette and the toolkit's own Spanish texts
/// for all its windows, in the scheme that is nearest to the desktop's own palette.
DN_EXPORT void applyTheme(QApplication& application);
/// The same in a scheme that was chosen.
DN_EXPORT void applyTheme(QApplication& application, Scheme scheme);

} // namespace dn::screen::qt
