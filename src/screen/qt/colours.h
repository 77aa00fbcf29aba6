// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Colours on their way to the toolkit, and texts that stay legible on any background.
#pragma once

#include "screen/element.h"

#include <QColor>
#include <QHash>

#include <optional>
#include <utility>

class QWidget;

namespace dn::screen::qt {

/// @param colour as the elements hold it, blue in the high byte.
QColor fromColour(Colour colour);

/// How far two colours stand apart: 1 for equal ones to 21 for black and white (WCAG 2).
double contrast(const QColor& one, const QColor& other);

/// The colour itself where it can be read on the background, else the nearest lighter or darker one that can.
QColor legible(const QColor& colour, const QColor& background);

/// The same, found out once for each pair: a list paints a few colours over and over.
class LegibleInks {
public:
    QColor on(const QColor& background, const QColor& colour) const;

private:
    mutable QHash<std::pair<QRgb, QRgb>, QColor> known_;
};

/// A colour between two: 0 is the one, 1 the other.
QColor mixed(const QColor& one, const QColor& other, float share);

/// Gives a widget the colour of its element for a background, with an ink that can be read on it. White is paper:
/// it takes the colour that the theme gives to fields and lists.
void dressInColour(QWidget& widget, std::optional<Colour> back);

/// Black or white, whichever reads better on the background.
QColor inkOn(const QColor& background);

} // namespace dn::screen::qt
