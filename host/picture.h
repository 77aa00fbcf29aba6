// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The window as a picture, for a machine without a display and for the documents.
#pragma once

#include <QString>

class QWidget;

namespace dn::host {

/// Shows the window off screen, waits until it has painted everything, and saves it as PNG.
/// @throws HostError when the file cannot be written.
void savePicture(QWidget& window, const QString& path);

} // namespace dn::host
