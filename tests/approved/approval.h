// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Holds a window against the picture of it that somebody has looked at and found good.
#pragma once

#include <QImage>
#include <QRect>
#include <QWidget>

#include <vector>

namespace dn::tests {

/// Of two pictures of 32 bits: pixels that differ by more than what the reduction of an approved picture to 256
/// colours makes of a soft edge. Another size makes all of them differ.
int differing(const QImage& taken, const QImage& approved);

/// Of the same: areas whose shade differs on the whole, be it as little as from one row of a list to the next,
/// where no pixel differs much. None where the sizes differ.
std::vector<QRect> shaded(const QImage& taken, const QImage& approved);

/// Whether the environment brings the fonts of the approved pictures, as it does under ctest.
bool hasApprovedFonts();

/// At which of the program's scales a window is compared.
enum class Scales : bool { one, oneAndThree };

/// Fails unless a picture looks like the approved one in that file. What was taken, what was approved and where
/// they differ are then left side by side in the folder "pictures-that-differ" below the working folder. With
/// DN_APPROVE set in the environment the picture is put instead into the folder that it names, unless it looks as
/// approved.
void isAsApproved(const QImage& picture, const QString& path);

/// The same of a window, as it looks when nothing moves in it any longer. Other fonts and other scales than those
/// of the approved pictures are not compared.
void looksAsApproved(QWidget& window, const QString& name, Scales scales = Scales::one);

} // namespace dn::tests
