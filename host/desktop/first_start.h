// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The window of the first start: sample data, or a database of the operator's own with its connection tried out.
#pragma once

#include "host/desktop/keyring.h"
#include "host/desktop/start_choice.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include <functional>
#include <string>
#include <vector>

class QFormLayout;

namespace dn::host {

/// What the operator decided.
struct StartAnswer {
    StartChoice choice;
    std::string password;
    bool keepPassword = false;
};

class FirstStart : public QDialog {
public:
    /// Tells what the connection texts of a database's servers lead to; throws what is wrong with all of them.
    using ConnectionTest = std::function<QString(const std::vector<std::string>& servers)>;

    /// @param keyring has the password of an account whose field stays empty. It outlives this.
    FirstStart(ConnectionTest test, Keyring& keyring, QWidget* over = nullptr);

    /// Words it for an operator who works already, and goes on with what he has until the next start.
    void asksForTheNextTime();
    /// Fills the window with what was chosen before, but for the password.
    void fillWith(const StartAnswer& before);
    /// Tells what went wrong with the last choice.
    void complain(const QString& problem);

    StartAnswer answer() const;

    void accept() override;

private:
    void build(bool canKeep);
    QWidget* ownFields();
    void follow();
    void tryOut();
    void say(const QString& text, bool isProblem);
    OwnDatabase database() const;
    std::string password() const;

    ConnectionTest test_;
    Keyring& keyring_;
    QRadioButton* sample_ = new QRadioButton("&Probar con datos de ejemplo", this);
    QRadioButton* own_ = new QRadioButton("Usar &mi propia base de datos", this);
    QLabel* greeting_ = nullptr;
    QPushButton* begins_ = nullptr;
    QPushButton* leaves_ = nullptr;
    QWidget* fields_ = nullptr;
    QFormLayout* form_ = nullptr;
    QComboBox* kind_ = new QComboBox(this);
    QLineEdit* servers_ = new QLineEdit(this);
    QSpinBox* port_ = new QSpinBox(this);
    QLineEdit* name_ = new QLineEdit(this);
    QLineEdit* text_ = new QLineEdit(this);
    QLineEdit* user_ = new QLineEdit(this);
    QLineEdit* password_ = new QLineEdit(this);
    QCheckBox* keep_ = new QCheckBox("&Guardar la clave en el llavero del escritorio", this);
    QCheckBox* create_ = new QCheckBox("Crear las &tablas (en una base vacía)", this);
    QPushButton* tryButton_ = new QPushButton("P&robar la conexión", this);
    QLabel* result_ = new QLabel(this);
};

} // namespace dn::host
