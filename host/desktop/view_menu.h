// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The menu "Ver": the theme, and the columns as they were designed.
#pragma once

#include "host/desktop/themes.h"
#include "host/desktop/window_memory.h"

#include <QMenuBar>

namespace dn::host {

/// Adds the menu ahead of the last one, which is the help.
/// @param memory outlives the bar. @param file keeps the theme. @param desktop as `useTheme` takes it.
void addViewMenu(QMenuBar& bar, WindowMemory& memory, const QString& file, const QString& theme,
                 const QPalette& desktop);

} // namespace dn::host
