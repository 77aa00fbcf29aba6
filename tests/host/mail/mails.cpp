// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/host/mail/mails.h"

#include "host/mail/mail_history.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace dn::host::tests {

void Mails::SetUp()
{
    Screens::SetUp();
    server().execute("TRUNCATE TABLE correo_historial");
    server().execute(
        "INSERT INTO ut_icontact (Sys_PK, Sys_GUID, uf_Nombre, uf_Empresa, uf_Puesto, uf_Telefono, "
        "uf_EMail, uf_Ciudad, uf_Estado, uf_Pais) VALUES (31, 'AAAA', 'María Ñúñez', 'Acme', 'Compras', "
        "'961', 'maria@acme.example', 'Tuxtla', 'Chiapas', 'México')");
    server().execute(
        "INSERT INTO Proyecto (Sys_PK, Sys_GUID, IOrganizacion, IContacto, IMeta, Descripcion) VALUES "
        "(41, 'BBBB', 11, 21, 3, 'Silo y molino')");
    settings.from = "ana@example.com";
    settings.outbox = folder.path() / "bandeja";
    settings.tls = false;
    std::shared_ptr<ScreenContext> shared;
    factory.mailBy([&shared](const std::shared_ptr<ScreenContext>& context) {
        shared = context;
        return nullptr;
    });
    static_cast<void>(factory.newCorreoHost());
    keepsMailHistory(shared->database); // opens the connection, so that tests count their own statements alone
    factory.mailBy([this](const std::shared_ptr<ScreenContext>& context) {
        return std::make_shared<Mailer>(
            context, [this] { return settings; }, password);
    });
}

std::shared_ptr<CorreoHost> Mails::mail()
{
    std::shared_ptr<CorreoHost> object = factory.newCorreoHost();
    object->Inicia(&server(), templates, "Ana López");
    return object;
}

bool Mails::writes(const std::function<void(QWidget&)>& act, const std::string& record,
                   const std::string& addresses)
{
    operatorAt.expect("Enviar", act);
    bool result = false;
    mail()->Enviar(record, addresses, "", "", "", "", result);
    return result;
}

std::vector<Row> Mails::history()
{
    return rows(
        "SELECT identificador, remitente, destinatarios, asunto, cuerpo, usuario FROM correo_historial ORDER "
        "BY Sys_PK");
}

std::vector<std::filesystem::path> Mails::outbox() const
{
    std::error_code none;
    return {std::filesystem::directory_iterator(settings.outbox, none), std::filesystem::directory_iterator()};
}

void types(QWidget& window, const char* text)
{
    auto* const body = window.findChild<QPlainTextEdit*>("Texto");
    ASSERT_NE(body, nullptr);
    body->setFocus();
    const QStringList lines = QString::fromUtf8(text).split('\n');
    for (const QString& line : lines) {
        if (&line != &lines.front()) QTest::keyClick(body, Qt::Key_Return);
        presses(*body, line);
    }
}

void hits(int key, Qt::KeyboardModifiers modifiers)
{
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
}

QString textIn(QWidget& window, const char* name)
{
    if (const auto* const text = window.findChild<QPlainTextEdit*>(name); text != nullptr)
        return text->toPlainText();
    if (const auto* const label = window.findChild<QLabel*>(name); label != nullptr)
        return label->isVisible() ? label->text() : QString();
    return line(window, name).text();
}

void waitUntilItCameBack(QWidget& window)
{
    const auto* const sends = window.findChild<QPushButton*>("cmdEnviar");
    ASSERT_NE(sends, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([sends] { return sends->isEnabled(); }, 4000));
}

} // namespace dn::host::tests
