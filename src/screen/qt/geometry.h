// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Twips to logical pixels. Edges are rounded and never lengths: what touches in twips touches on the screen.
#pragma once

#include "screen/element.h"

#include <QRect>

namespace dn::screen::qt {

inline constexpr Twips twipsPerPixel = 15;

/// The pixel edge next to an edge in twips; a half rounds up, on either side of zero.
constexpr int pixelEdge(Twips edge)
{
    const Twips shifted = 2 * edge + twipsPerPixel;
    const Twips whole = 2 * twipsPerPixel;
    return shifted >= 0 ? shifted / whole : -((whole - 1 - shifted) / whole);
}

/// The place of an element in its container, in logical pixels.
inline QRect pixelRect(const Element& element)
{
    const QPoint topLeft(pixelEdge(element.Left()), pixelEdge(element.Top()));
    const QPoint behind(pixelEdge(element.Left() + element.Width()), pixelEdge(element.Top() + element.Height()));
    return {topLeft, QSize(behind.x() - topLeft.x(), behind.y() - topLeft.y())};
}

} // namespace dn::screen::qt
