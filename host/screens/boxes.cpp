// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace dn::host {
namespace {

void show(QWidget* over, QMessageBox::Icon icon, const QString& text)
{
    QMessageBox box(icon, QApplication::applicationDisplayName(), text, QMessageBox::NoButton, over);
    box.setObjectName("Aviso");
    box.setTextFormat(Qt::PlainText);
    box.addButton("&Aceptar", QMessageBox::AcceptRole);
    box.exec();
}

} // namespace

QWidget* windowBelow(QWidget* mainWindow)
{
    if (QWidget* const modal = QApplication::activeModalWidget(); modal != nullptr) return modal;
    return mainWindow;
}

void tell(QWidget* over, const QString& text) { show(over, QMessageBox::Information, text); }

void report(QWidget* over, const std::exception& failure)
{
    show(over, QMessageBox::Warning, QString::fromUtf8(failure.what()));
}

void tellNotAvailable(QWidget* over) { tell(over, "Esta pantalla aún no está disponible en esta versión."); }

} // namespace dn::host
