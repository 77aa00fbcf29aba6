// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The entry of the menu "Archivo" that leads back to the window of the first start.
#pragma once

#include "host/desktop/beginning.h"

#include <QMenu>

namespace dn::host {

/// Adds it ahead of the last entry, which ends the program. @param beginning outlives the menu. @param window the
/// program's, over which it asks.
void addChoosing(QMenu& file, Beginning& beginning, QWidget& window);

} // namespace dn::host
