// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/picture.h"

#include "host/database/host_error.h"

#include <QApplication>
#include <QPixmap>
#include <QWidget>

namespace dn::host {

void savePicture(QWidget& window, const QString& path)
{
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    QApplication::processEvents(); // the lists publish their rows once a turn of the event loop
    QApplication::processEvents();
    if (!window.grab().save(path, "PNG"))
        throw HostError("No se pudo escribir la imagen «" + path.toStdString() +
                        "». Compruebe que la carpeta existe y que puede escribir en ella.");
}

} // namespace dn::host
