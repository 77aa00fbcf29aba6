// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/view_menu.h"

#include <QActionGroup>
#include <QMenu>

namespace dn::host {

void addViewMenu(QMenuBar& bar, WindowMemory& memory, const QString& file, const QString& theme,
                 const QPalette& desktop)
{
    auto* const menu = new QMenu("&Ver", &bar);
    menu->setObjectName("menuVer");
    QMenu* const looks = menu->addMenu("&Tema");
    looks->setObjectName("menuTema");
    auto* const group = new QActionGroup(looks);
    for (const Theme& one : themes()) {
        QAction* const action = looks->addAction(one.caption);
        action->setObjectName("tema-" + one.name);
        action->setCheckable(true);
        action->setChecked(one.name == themeNamed(theme).name);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &bar, [&one, file, desktop] {
            useTheme(one, desktop);
            rememberTheme(file, one.name);
        });
    }
    QObject::connect(menu->addAction("&Restablecer las columnas"), &QAction::triggered, &bar,
                     [&memory] { memory.resetColumns(); });
    const QList<QAction*> menus = bar.actions();
    bar.insertMenu(menus.isEmpty() ? nullptr : menus.back(), menu);
}

} // namespace dn::host
