// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Holds a window against the picture of it that somebody has looked at and found good.
#pragma once

#include <QImage>
#include <QWidget>

namespace dn::tests {

/// Pixels that differ by more than what the reduction of an approved picture to 256 colours makes of a soft edge.
/// Another size makes all of them differ.
int differing(const QImage& taken, const QImage& approved);

/// Whether the environment brings the fonts of the approved pictures, as it does under ctest.
bool hasApprovedFonts();

/// At which of the program's scales a window is compared.
enum class Scales : bool { one, oneAndThree };

/// Fails unless the window looks as approved. What was taken, what was approved and where they differ are then
/// left side by side in the folder "pictures-that-differ" below the working folder. With DN_APPROVE set in the
/// environment the picture is taken anew instead, into the folder that it names, unless it looks as approved.
/// Other fonts and other scales than those of the approved pictures are not compared.
void looksAsApproved(QWidget& window, const QString& name, Scales scales = Scales::one);

} // namespace dn::tests
