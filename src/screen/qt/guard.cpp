// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/guard.h"

#include "screen/qt/text.h"

#include <QMessageBox>
#include <QtDebug>

#include <stdexcept>

namespace dn::screen::qt {

void Guard::report(const std::exception& error) noexcept
{
    try {
        if (handler_)
            handler_(error);
        else
            show(error);
    } catch (const std::exception& second) {
        qWarning("Error in the error handler: %s", second.what());
    } catch (...) {
        qWarning("Error in the error handler");
    }
}

void Guard::reportUnknown() noexcept { report(std::runtime_error("Error desconocido")); }

// A timer may fail at every tick: one box at a time, the rest goes to the log alone.
void Guard::show(const std::exception& error)
{
    qWarning("%s", error.what());
    if (showing_) return;
    showing_ = true;
    QMessageBox box(QMessageBox::Critical, {}, fromUtf8(error.what()));
    box.setObjectName(QStringLiteral("ErrorBox"));
    box.setTextFormat(Qt::PlainText);
    box.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
    box.exec();
    showing_ = false;
}

} // namespace dn::screen::qt
