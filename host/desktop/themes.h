// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The themes that the operator can choose from, by the names that the command line, the menu and the settings use.
#pragma once

#include "screen/qt/theme.h"

#include <QPalette>
#include <QString>

#include <optional>
#include <vector>

namespace dn::host {

struct Theme {
    QString name;                             ///< on the command line
    QString caption;                          ///< in the menu
    std::optional<screen::qt::Scheme> scheme; ///< nothing: as the desktop has it
};

/// All of them, the desktop's own first.
const std::vector<Theme>& themes();

/// The theme of a name, the desktop's own for a name that there is not.
const Theme& themeNamed(const QString& name);
bool isTheme(const QString& name);

/// Gives the running program a theme. @param desktop the palette that the program found when it started.
void useTheme(const Theme& theme, const QPalette& desktop);

} // namespace dn::host
