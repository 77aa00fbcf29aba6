// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/boxes.h"

#include <QApplication>
#include <QLineEdit>
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

void offerToClear(QLineEdit& line)
{
    line.setClearButtonEnabled(true);
    for (auto* const button : line.findChildren<QAbstractButton*>())
        button->setAccessibleName("Borrar lo escrito");
}

void tell(QWidget* over, const QString& text) { show(over, QMessageBox::Information, text); }

void report(QWidget* over, const std::exception& failure)
{
    show(over, QMessageBox::Warning, QString::fromUtf8(failure.what()));
}

bool ask(QWidget* over, const QString& question, const QString& yes, const QString& no)
{
    QMessageBox box(QMessageBox::Question, QApplication::applicationDisplayName(), question, QMessageBox::NoButton,
                    over);
    box.setObjectName("Pregunta");
    box.setTextFormat(Qt::PlainText);
    const QPushButton* const agrees = box.addButton(yes, QMessageBox::AcceptRole);
    QPushButton* const refuses = box.addButton(no, QMessageBox::RejectRole);
    box.setDefaultButton(refuses);
    box.setEscapeButton(refuses);
    box.exec();
    return box.clickedButton() == agrees;
}

} // namespace dn::host
