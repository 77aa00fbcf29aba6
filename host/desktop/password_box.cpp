// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/password_box.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace dn::host {

std::optional<PasswordAnswer> askPassword(const PasswordQuestion& question, QWidget* over)
{
    QDialog box(over);
    box.setObjectName("PedirClave");
    box.setWindowTitle(question.title);
    auto* const label =
        new QLabel("&Clave de " + QString(question.account).replace(u'&', QLatin1String("&&")) + ":", &box);
    auto* const password = new QLineEdit(&box);
    password->setObjectName("txtClave");
    password->setAccessibleName("Clave");
    password->setEchoMode(QLineEdit::Password);
    label->setBuddy(password);
    auto* const keep = new QCheckBox("&Guardar la clave en el llavero del escritorio", &box);
    keep->setObjectName("chkGuardar");
    keep->setVisible(question.canKeep);
    keep->setChecked(question.canKeep);
    auto* const buttons = new QDialogButtonBox(&box);
    buttons->addButton(question.accepts, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(question.rejects, QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
    auto* const layout = new QVBoxLayout(&box);
    for (QWidget* const part : {static_cast<QWidget*>(label), static_cast<QWidget*>(password),
                                static_cast<QWidget*>(keep), static_cast<QWidget*>(buttons)})
        layout->addWidget(part);
    box.setMinimumWidth(420);
    if (box.exec() != QDialog::Accepted) return std::nullopt;
    return PasswordAnswer{password->text().toStdString(), question.canKeep && keep->isChecked()};
}

} // namespace dn::host
