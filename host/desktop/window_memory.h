// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the operator's window looked like when he left it: its place and size, and the columns of the control's
// lists. The control has no settings of its own; this is the host's.
#pragma once

#include "screen/qt/ctr_dn_contacts_widget.h"

#include <QString>
#include <QWidget>

#include <optional>

namespace dn::host {

class WindowMemory {
public:
    /// Reads how the columns are designed. @param window and the control on it outlive this.
    WindowMemory(QWidget& window, screen::qt::CtrDnContactsWidget& control, QString file);

    /// Arranges the window as it was left. What the file does not hold, or holds in a form that does not fit,
    /// stays.
    /// @param withPlace its place and size too.
    void restore(bool withPlace);
    void save() const;
    /// Gives all columns the widths and the order that they have in this program until somebody changes them:
    /// those of the control, with what the day's queue can spare taken from it.
    void resetColumns();

private:
    QWidget& window_;
    screen::qt::CtrDnContactsWidget& control_;
    QString file_;
    screen::qt::ColumnLayouts designed_;
};

/// Gives a window that has not been shown its first size. On a screen without room for that it fills the screen.
void takeFirstPlace(QWidget& window, QSize designed);

/// The theme that the operator chose, by its name in `themes`; empty for none.
QString rememberedTheme(const QString& file);
void rememberTheme(const QString& file, const QString& theme);

/// The agent who worked last.
std::optional<int> rememberedAgent(const QString& file);
void rememberAgent(const QString& file, int agent);

/// Where the settings of this program lie: ~/.config/dncontacts/NAME.
QString settingsFile(const QString& name);

} // namespace dn::host
