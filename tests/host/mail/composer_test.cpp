// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The window in which a mail is written.

#include "host/mail/attachments_field.h"
#include "tests/host/mail/mails.h"

#include <QDialog>
#include <QJsonArray>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTest>

namespace dn::host::tests {
namespace {

namespace fs = std::filesystem;
using dn::tests::pressButton;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class Writing : public Mails {
protected:
    MailServer& toAServer(std::vector<std::string> moods = {})
    {
        mailServer = std::make_unique<MailServer>(std::move(moods));
        settings.url = mailServer->url();
        return *mailServer;
    }

    std::unique_ptr<MailServer> mailServer;
};

TEST_F(Writing, sends_to_the_server_and_stores_the_mail_once)
{
    MailServer& to = toAServer();
    EXPECT_TRUE(writes([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), "Correo: María Ñúñez");
        EXPECT_EQ(textIn(window, "De"), "Ana López <ana@example.com>");
        EXPECT_EQ(textIn(window, "Para"), "maria@acme.example");
        EXPECT_EQ(textIn(window, "lblAviso"), "");
        types(window, "Asunto", "Cotización nº 5");
        types(window, "Señora:\nÁrbol");
        pressButton(window, "Enviar");
    }));
    ASSERT_EQ(to.count(), 1);
    EXPECT_EQ(to.mail()["subject"].toString(), "Cotización nº 5");
    EXPECT_EQ(to.mail()["body"].toString(), "Señora:\nÁrbol\n");
    EXPECT_EQ(to.mail()["from_name"].toString(), "Ana López");
    EXPECT_EQ(history(), (std::vector<Row>{{maria, "ana@example.com", "maria@acme.example", "Cotización nº 5",
                                            "Señora:\nÁrbol", "Ana López"}}));
    EXPECT_EQ("<" + value("SELECT id_mensaje FROM correo_historial") + ">",
              to.mail()["id"].toString().toStdString());
}

TEST_F(Writing, to_several_joined_by_semicolons_sends_one_mail_to_each)
{
    MailServer& to = toAServer();
    EXPECT_TRUE(writes(
        [](QWidget& window) {
            types(window, "Asunto", "x");
            pressButton(window, "Enviar");
        },
        silo, "ana@acme.example;acme@acme.example;luz@acme.example"));
    EXPECT_THAT(texts(to.envelope()["to"]),
                ElementsAre("ana@acme.example", "acme@acme.example", "luz@acme.example"));
    EXPECT_EQ(history()[0][2], "ana@acme.example; acme@acme.example; luz@acme.example");
}

TEST_F(Writing, without_a_server_keeps_the_mail_in_the_outbox_and_says_so)
{
    EXPECT_TRUE(writes([this](QWidget& window) {
        EXPECT_THAT(
            textIn(window, "lblAviso").toStdString(),
            testing::AllOf(HasSubstr("el mensaje no sale, se guarda como archivo .eml en la bandeja de salida"),
                           HasSubstr(settings.outbox.string())));
        types(window, "Asunto", "Hola");
        types(window, "texto");
        pressButton(window, keeps);
    }));
    ASSERT_EQ(outbox().size(), 1U);
    EXPECT_EQ(parsed(outbox()[0])["subject"].toString(), "Hola");
    EXPECT_EQ(history().size(), 1U);
}

TEST_F(Writing, without_a_sender_uses_one_of_its_own_for_the_outbox)
{
    settings.from.clear();
    EXPECT_TRUE(writes([](QWidget& window) {
        EXPECT_EQ(textIn(window, "De"), "Ana López");
        types(window, "Asunto", "Hola");
        pressButton(window, keeps);
    }));
    EXPECT_EQ(parsed(outbox().at(0))["from"].toString(), "dncontacts@localhost");
}

TEST_F(Writing, given_up_sends_and_stores_nothing)
{
    EXPECT_FALSE(writes([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); }));
    EXPECT_FALSE(writes([this](QWidget& window) {
        types(window, "Asunto", "Hola");
        expectQuestion("El correo no se ha enviado", "Seguir escribiendo");
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_TRUE(window.isVisible());
        expectQuestion("El correo no se ha enviado", "Descartar");
        pressButton(window, "Cancelar");
    }));
    EXPECT_THAT(outbox(), IsEmpty());
    EXPECT_THAT(history(), IsEmpty());
}

TEST_F(Writing, needs_good_addresses)
{
    EXPECT_TRUE(writes(
        [](QWidget& window) {
            EXPECT_EQ(focus(), "Para");
            types(window, "Asunto", "Hola");
            pressButton(window, keeps);
            EXPECT_EQ(messageBelow(window, "Para"), "Escriba al menos una dirección de correo.");
            EXPECT_EQ(focus(), "Para");
            types(window, "Para", "maria@acme.example; luz");
            pressButton(window, keeps);
            EXPECT_THAT(messageBelow(window, "Para"), HasSubstr("«luz» no es una dirección"));
            types(window, "Para", "maria@acme.example; luz@ñandú.mx;");
            pressButton(window, keeps);
        },
        maria, ""));
    EXPECT_THAT(texts(parsed(outbox().at(0))["to"]), ElementsAre("maria@acme.example", "luz@xn--and-6ma2c.mx"));
}

TEST_F(Writing, lets_no_hostile_address_subject_or_text_out_of_its_place)
{
    for (const char* bad :
         {"a@x.mx\r\nRCPT TO:<b@x.mx>", "a@x.mx>\nBcc: b@x.mx", "\"a\nb\"@x.mx", "a@x.mx NOTIFY=NEVER"})
        EXPECT_FALSE(writes(
            [this](QWidget& window) {
                types(window, "Asunto", "Hola");
                pressButton(window, keeps);
                EXPECT_NE(messageBelow(window, "Para"), "");
                expectQuestion("El correo no se ha enviado", "Descartar");
                QTest::keyClick(&window, Qt::Key_Escape);
            },
            maria, bad));
    EXPECT_TRUE(writes([](QWidget& window) {
        line(window, "Asunto").setText("Hola\r\nBcc: otro@x.mx");
        types(window, ".\nBcc: otro@x.mx");
        pressButton(window, keeps);
    }));
    const QJsonObject mail = parsed(outbox().at(0));
    EXPECT_THAT(texts(mail["to"]), ElementsAre("maria@acme.example"));
    EXPECT_THAT(texts(mail["headers"]), Not(testing::Contains("Bcc")));
}

TEST_F(Writing, without_a_subject_asks)
{
    EXPECT_TRUE(writes([this](QWidget& window) {
        expectQuestion("no lleva asunto", "Escribir el asunto");
        pressButton(window, keeps);
        EXPECT_EQ(window.focusWidget()->objectName(), "Asunto");
        expectQuestion("no lleva asunto", "Enviar sin asunto");
        pressButton(window, keeps);
    }));
    EXPECT_EQ(history().at(0).at(3), "");
}

TEST_F(Writing, that_the_server_refuses_is_told_and_everything_typed_stays)
{
    MailServer& to = toAServer({"refuse"});
    EXPECT_TRUE(writes(
        [this](QWidget& window) {
            types(window, "Asunto", "Hola");
            types(window, "texto");
            expectNotice("«nadie@acme.example»");
            pressButton(window, "Enviar");
            waitUntilItCameBack(window);
            EXPECT_EQ(textIn(window, "Texto"), "texto");
            EXPECT_EQ(textIn(window, "Asunto"), "Hola");
            EXPECT_THAT(history(), IsEmpty()) << "not sent means not stored";
            types(window, "Para", "maria@acme.example");
            pressButton(window, "Enviar");
        },
        maria, "nadie@acme.example"));
    EXPECT_EQ(to.count(), 1);
    EXPECT_EQ(history().size(), 1U);
}

TEST_F(Writing, can_be_cancelled_while_it_goes_out_and_the_window_goes_on)
{
    toAServer({"mute"});
    EXPECT_FALSE(writes([this](QWidget& window) {
        types(window, "Asunto", "Hola");
        pressButton(window, "Enviar");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(textIn(window, "lblEstado"), "Enviando…");
        EXPECT_FALSE(line(window, "Para").isEnabled());
        pressButton(window, "Enviar"); // disabled: nothing
        expectNotice("Se canceló el envío.");
        pressButton(window, "Cancelar el envío");
        waitUntilItCameBack(window);
        EXPECT_TRUE(line(window, "Para").isEnabled());
        expectQuestion("El correo no se ha enviado", "Descartar");
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
    EXPECT_THAT(history(), IsEmpty());
}

TEST_F(Writing, under_bad_settings_is_refused_and_shows_why)
{
    settings.url = "smtp://x";
    settings.problem = "Falta la dirección del remitente («from»).";
    settings.warnings = {"Otros usuarios pueden leer la clave"};
    EXPECT_FALSE(writes([this](QWidget& window) {
        EXPECT_THAT(textIn(window, "lblAviso").toStdString(),
                    testing::AllOf(HasSubstr("Falta la dirección del remitente"), HasSubstr("Otros usuarios")));
        expectNotice("Falta la dirección del remitente");
        pressButton(window, "Enviar");
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
}

// ---- Files that go with a mail

class Attaching : public Writing {
protected:
    static QListWidget& list(QWidget& window) { return *window.findChild<QListWidget*>("lstAdjuntos"); }
    static std::vector<std::string> listed(QWidget& window)
    {
        std::vector<std::string> lines;
        for (int i = 0; i < list(window).count(); ++i)
            lines.push_back(list(window).item(i)->text().toStdString());
        return lines;
    }
    static AttachmentsField& attachments(QWidget& window)
    {
        return static_cast<AttachmentsField&>(*list(window).parentWidget());
    }
    /// Chooses a file in the dialog.
    void attaches(QWidget& window, const fs::path& file)
    {
        operatorAt.expect("Adjuntar", [&](QWidget& dialog) {
            auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
            ASSERT_NE(name, nullptr);
            name->setText(QString::fromStdString(file.string()));
            dynamic_cast<QDialog&>(dialog).done(QDialog::Accepted);
        });
        pressButton(window, "Adjuntar…");
    }
};

TEST_F(Attaching, shows_names_and_sizes_and_takes_away_again)
{
    const fs::path list = folder.holds("lista de precios.pdf", std::string(1500, 'x'));
    const fs::path plan = folder.holds("plano ñ.png", std::string(1'500'000, 'y'));
    EXPECT_TRUE(writes([&](QWidget& window) {
        EXPECT_EQ(textIn(window, "lblTotal"), "Sin archivos adjuntos");
        types(window, "Asunto", "Hola");
        attaches(window, list);
        attaches(window, plan);
        attaches(window, plan);
        EXPECT_THAT(listed(window), ElementsAre("lista de precios.pdf  (2 KB)", "plano ñ.png  (1.4 MB)"));
        EXPECT_EQ(textIn(window, "lblTotal"), "2 archivos adjuntos, 1.4 MB");
        Attaching::list(window).setCurrentRow(0);
        pressButton(window, "Quitar");
        EXPECT_THAT(listed(window), ElementsAre("plano ñ.png  (1.4 MB)"));
        attaches(window, list);
        pressButton(window, keeps);
    }));
    const QJsonArray files = parsed(outbox().at(0))["attachments"].toArray();
    ASSERT_EQ(files.size(), 2);
    EXPECT_EQ(files[0]["name"].toString(), "plano ñ.png");
    EXPECT_EQ(files[1]["size"].toInt(), 1500);
    EXPECT_THAT(history().at(0).at(4),
                HasSubstr("[Archivo adjunto: plano ñ.png, 1.4 MB]\n[Archivo adjunto: lista de"));
}

TEST_F(Attaching, refuses_what_cannot_go)
{
    settings.limit = 1;
    const fs::path large = folder.holds("grande.bin", std::string(1'100'000, 'x'));
    EXPECT_FALSE(writes([&](QWidget& window) {
        expectNotice("el máximo que lleva un correo");
        attachments(window).add(QString::fromStdString(large.string()));
        expectNotice("No se puede leer el archivo");
        attachments(window).add("/no/hay");
        expectNotice("No se puede leer el archivo");
        attachments(window).add("/");
        EXPECT_THAT(listed(window), IsEmpty());
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
}

TEST_F(Attaching, a_file_that_is_gone_when_the_mail_goes_out_is_told)
{
    const fs::path file = folder.holds("lista.pdf", "x");
    EXPECT_FALSE(writes([&](QWidget& window) {
        types(window, "Asunto", "Hola");
        attachments(window).add(QString::fromStdString(file.string()));
        fs::remove(file);
        expectNotice("No se pudo leer el archivo");
        pressButton(window, keeps);
        waitUntilItCameBack(window);
        expectQuestion("El correo no se ha enviado", "Descartar");
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
    EXPECT_THAT(history(), IsEmpty());
}

TEST_F(Attaching, a_file_that_grew_beyond_the_limit_is_told)
{
    settings.limit = 1;
    const fs::path file = folder.holds("lista.pdf", "x");
    const fs::path other = folder.holds("otra.pdf", std::string(600'000, 'x'));
    EXPECT_FALSE(writes([&](QWidget& window) {
        types(window, "Asunto", "Hola");
        attachments(window).add(QString::fromStdString(other.string()));
        attachments(window).add(QString::fromStdString(file.string()));
        folder.holds("lista.pdf", std::string(600'000, 'x'));
        expectNotice("lista.pdf» creció: ahora los archivos pasan de 1 MB");
        pressButton(window, keeps);
        waitUntilItCameBack(window);
        EXPECT_EQ(listed(window).size(), 2U);
        expectQuestion("El correo no se ha enviado", "Descartar");
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
    EXPECT_THAT(outbox(), IsEmpty());
}

TEST_F(Attaching, shows_how_far_a_slow_server_is_and_the_window_goes_on)
{
    MailServer& slow = toAServer({"slow"});
    const fs::path file = folder.holds("plano.pdf", std::string(3'000'000, 'x'));
    EXPECT_TRUE(writes([&](QWidget& window) {
        types(window, "Asunto", "Hola");
        attachments(window).add(QString::fromStdString(file.string()));
        pressButton(window, "Enviar");
        const auto* const progress = window.findChild<QProgressBar*>("Avance");
        EXPECT_TRUE(QTest::qWaitFor([&] { return progress->value() > 0; }, 20'000)) << "the events go on";
        EXPECT_TRUE(progress->isVisible());
        EXPECT_LT(progress->value(), 100);
        EXPECT_EQ(slow.count(), 0);
        EXPECT_THAT(history(), IsEmpty());
        slow.letGoOn();
    }));
    EXPECT_EQ(slow.mail()["attachments"][0]["size"].toInt(), 3'000'000);
    EXPECT_THAT(history().at(0).at(4), HasSubstr("[Archivo adjunto: plano.pdf, 2.9 MB]"));
}

} // namespace
} // namespace dn::host::tests
