// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Colours on their way to the toolkit, and texts that stay legible on any background.
#pragma once

#include "screen/element.h"

#include <QColor>
#include <QHash>

#include <cstddef>
#include <optional>

class QPalette;
class QWidget;

namespace dn::screen::qt {

/// @param colour as the elements hold it, blue in the high byte.
QColor fromColour(Colour colour);

/// How far two colours stand apart: 1 for equal ones to 21 for black and white (WCAG 2).
double contrast(const QColor& one, const QColor& other);

/// The contrasts that texts need (WCAG 2): in general, in the schemes of high contrast, and while they are
/// disabled.
constexpr double readable = 4.5;
constexpr double starklyReadable = 7;
constexpr double faintlyReadable = 3;

/// The colour itself where it can be read on the background, else the nearest lighter or darker one that can.
/// @param least the contrast that it needs.
QColor legible(const QColor& colour, const QColor& background, double least = readable);

/// The same, found out once for each pair: a list paints a few colours over and over.
class LegibleInks {
public:
    QColor on(const QColor& background, const QColor& colour, double least) const;

private:
    struct Pair {
        QRgb background, colour;
        double least;

        friend bool operator==(const Pair&, const Pair&) = default;
        friend std::size_t qHash(const Pair& pair, std::size_t seed = 0)
        {
            return qHashMulti(seed, pair.background, pair.colour, pair.least);
        }
    };

    mutable QHash<Pair, QColor> known_;
};

/// Whether a palette is one of high contrast, which has nothing but black and white; others stay a little below.
bool isStark(const QPalette& palette);

/// The ink for what is over and done with in a list: fainter than the rest, and still readable on both papers of
/// the rows.
QColor pastInk(const QPalette& palette);

/// A colour between two: 0 is the one, 1 the other.
QColor mixed(const QColor& one, const QColor& other, float share);

/// Gives a widget the colour of its element for a background, with an ink that can be read on it. White is paper:
/// it takes the colour that the theme gives to fields and lists.
void dressInColour(QWidget& widget, std::optional<Colour> back);

/// Black or white, whichever reads better on the background.
QColor inkOn(const QColor& background);

} // namespace dn::screen::qt
