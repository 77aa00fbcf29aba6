// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/choosing.h"

#include <QApplication>
#include <QMessageBox>

namespace dn::host {

void addChoosing(QMenu& file, Beginning& beginning, QWidget& window)
{
    auto* const choose = new QAction("Elegir otra &base de datos…", &window);
    QObject::connect(choose, &QAction::triggered, &window, [&window, &beginning] {
        if (!beginning.chooseAgain(&window)) return;
        QMessageBox::information(&window, QApplication::applicationDisplayName(),
                                 "La próxima vez que abra el programa se usará la base de datos que eligió.");
    });
    file.insertAction(file.actions().constLast(), choose);
}

} // namespace dn::host
