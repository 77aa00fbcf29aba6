// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/first_start.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <initializer_list>

namespace dn::host {
namespace {

constexpr int textWidth = 520; // logical pixels

enum Kind : int { mariadb, odbc };

QLabel* paragraph(const QString& text, QWidget* parent)
{
    auto* const label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

/// What an option means, below it and in line with its caption.
QLabel* explanation(const QString& text, QWidget* parent)
{
    constexpr int indent = 22;
    QLabel* const label = paragraph(text, parent);
    label->setContentsMargins(indent, 0, 0, 4);
    return label;
}

} // namespace

FirstStart::FirstStart(ConnectionTest test, Keyring& keyring, QWidget* over)
    : QDialog(over), test_(std::move(test)), keyring_(keyring)
{
    setObjectName("PrimerInicio");
    setWindowTitle("Bienvenida");
    build(keyring_.answers());
    for (auto* const choice : {sample_, own_})
        connect(choice, &QRadioButton::toggled, this, [this] { follow(); });
    connect(kind_, &QComboBox::currentIndexChanged, this, [this] { follow(); });
    connect(tryButton_, &QPushButton::clicked, this, [this] { tryOut(); });
    sample_->setChecked(true);
    follow();
    sample_->setFocus();
}

void FirstStart::build(bool canKeep)
{
    sample_->setObjectName("optEjemplo");
    own_->setObjectName("optPropia");
    auto* const buttons = new QDialogButtonBox(this);
    begins_ = buttons->addButton("&Empezar", QDialogButtonBox::AcceptRole);
    begins_->setObjectName("cmdEmpezar");
    begins_->setDefault(true);
    leaves_ = buttons->addButton("&Salir", QDialogButtonBox::RejectRole);
    leaves_->setObjectName("cmdSalir");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const layout = new QVBoxLayout(this);
    greeting_ = paragraph("Este programa lleva sus prospectos, sus proyectos y sus llamadas. ¿Con qué "
                          "datos quiere trabajar? Después le preguntará quién es usted.",
                          this);
    greeting_->setObjectName("lblSaludo");
    greeting_->setFixedWidth(textWidth); // and with it the window's, whatever shows below
    layout->addWidget(greeting_);
    layout->addWidget(sample_);
    layout->addWidget(explanation("Todo queda en su carpeta y no hace falta instalar nada más. Puede cambiar y "
                                  "borrar lo que quiera.",
                                  this));
    layout->addWidget(own_);
    layout->addWidget(explanation("La de su empresa, en un servidor MariaDB, MySQL o SQL Server.", this));
    fields_ = ownFields();
    layout->addWidget(fields_);
    if (!canKeep) {
        keep_->setText("No hay llavero en este escritorio: la clave se pide cada vez");
        keep_->setEnabled(false);
    }
    keep_->setChecked(canKeep);
    result_->setObjectName("lblResultado");
    result_->setTextFormat(Qt::PlainText);
    result_->setWordWrap(true);
    layout->addWidget(result_);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* FirstStart::ownFields()
{
    auto* const fields = new QWidget(this);
    form_ = new QFormLayout(fields);
    form_->setContentsMargins(22, 0, 0, 0);
    const auto add = [this](const QString& label, QWidget* field, const QString& name) {
        field->setObjectName(name);
        field->setAccessibleName(QString(label).remove(u'&').remove(u':'));
        form_->addRow(label, field);
    };
    kind_->addItems({"MariaDB o MySQL", "SQL Server u otro, por ODBC"});
    add("&Clase de servidor:", kind_, "cbClase");
    add("Ser&vidor:", servers_, "txtServidor");
    const QString several =
        "Si la base está en varios servidores, escríbalos todos, el preferido primero, separados por "
        "comas o espacios. También sirve la ruta de un socket.";
    servers_->setPlaceholderText("servidor, o varios: nodo1, nodo2:3307");
    servers_->setToolTip(several);
    servers_->setAccessibleDescription(several);
    port_->setRange(1, ServerAddress::lastPort);
    port_->setValue(ServerAddress::standardPort);
    add("Puert&o:", port_, "txtPuerto");
    add("&Base de datos:", name_, "txtBase");
    text_->setPlaceholderText("DRIVER=FreeTDS;SERVER=…;DATABASE=…");
    add("Ca&dena de conexión:", text_, "txtCadena");
    add("&Usuario:", user_, "txtUsuario");
    password_->setEchoMode(QLineEdit::Password);
    add("C&lave:", password_, "txtClave");
    keep_->setObjectName("chkGuardar");
    form_->addRow(keep_);
    create_->setObjectName("chkCrear");
    form_->addRow(create_);
    tryButton_->setObjectName("cmdProbar");
    tryButton_->setAutoDefault(false);
    auto* const row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(tryButton_);
    form_->addRow(row);
    return fields;
}

// Only what the choice asks for shows.
void FirstStart::follow()
{
    const bool byOdbc = kind_->currentIndex() == odbc;
    fields_->setVisible(own_->isChecked());
    for (QWidget* const field : std::initializer_list<QWidget*>{servers_, port_, name_})
        form_->setRowVisible(field, !byOdbc);
    form_->setRowVisible(text_, byOdbc);
    say({}, false);
}

void FirstStart::asksForTheNextTime()
{
    setWindowTitle("Elegir otra base de datos");
    greeting_->setText(
        "¿Con qué datos quiere trabajar la próxima vez que abra el programa? Hasta entonces sigue con "
        "los de ahora.");
    begins_->setText("&Elegir");
    leaves_->setText("Ca&ncelar");
}

void FirstStart::fillWith(const StartAnswer& before)
{
    (before.choice.own ? own_ : sample_)->setChecked(true);
    if (!before.choice.own) return;
    const OwnDatabase& database = before.choice.database;
    kind_->setCurrentIndex(database.odbc ? odbc : mariadb);
    for (const ServerAddress& server : database.servers) {
        if (!server.socket.isEmpty()) continue;
        port_->setValue(server.port); // of the first that has one
        break;
    }
    servers_->setText(written(database.servers, port_->value()));
    servers_->setCursorPosition(0);
    name_->setText(database.name);
    text_->setText(database.text);
    text_->setCursorPosition(0); // the driver, which tells most
    user_->setText(database.user);
    create_->setChecked(before.choice.createSchema);
    keep_->setChecked(keep_->isEnabled() && before.keepPassword);
}

void FirstStart::complain(const QString& problem) { say(problem, true); }

OwnDatabase FirstStart::database() const
{
    OwnDatabase database;
    database.odbc = kind_->currentIndex() == odbc;
    database.user = user_->text().trimmed();
    if (database.odbc) {
        database.text = text_->text().trimmed();
        return database;
    }
    database.servers = readServers(servers_->text(), port_->value());
    database.name = name_->text().trimmed();
    return database;
}

// The field comes up empty, also where the keyring has a password for that account: then it is still the one.
std::string FirstStart::password() const
{
    const std::string typed = password_->text().toStdString();
    return typed.empty() ? keptPassword(keyring_, accountOf(database())) : typed;
}

StartAnswer FirstStart::answer() const
{
    StartAnswer answer;
    answer.choice.own = own_->isChecked();
    if (!answer.choice.own) return answer;
    answer.choice.database = database();
    answer.password = password();
    answer.keepPassword = keep_->isEnabled() && keep_->isChecked();
    answer.choice.createSchema = create_->isChecked();
    return answer;
}

void FirstStart::tryOut()
{
    if (const QString problem = problemOf(database()); !problem.isEmpty()) {
        complain(problem);
        return;
    }
    say("Probando…", false);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    try {
        say(test_(connectTexts(database(), password())), false);
    } catch (const std::exception& failure) {
        complain(QString::fromUtf8(failure.what()));
    }
    QApplication::restoreOverrideCursor();
}

void FirstStart::accept()
{
    const QString problem = own_->isChecked() ? problemOf(database()) : QString();
    if (problem.isEmpty())
        QDialog::accept();
    else
        complain(problem);
}

// A sign ahead of the text, for whoever does not tell the colours apart.
void FirstStart::say(const QString& text, bool isProblem)
{
    result_->setText(text.isEmpty() || !isProblem ? text : "⚠ " + text);
    result_->setVisible(!text.isEmpty());
}

} // namespace dn::host
