// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Templates in the window, writing with the keyboard alone, the history, and databases that lack its table.

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "screen/qt/ctr_dn_contacts_widget.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/host/mail/mails.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QTest>
#include <QTreeWidget>

namespace dn::host::tests {
namespace {

using dn::tests::pressButton;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class Mailing : public Mails {
protected:
    void aTemplate(const char* name, const char* content)
    {
        folder.holds(name, content);
        templates = folder.path().string();
    }
    static void chooses(QWidget& window, int index)
    {
        auto* const box = window.findChild<QComboBox*>("Plantilla");
        ASSERT_NE(box, nullptr);
        ASSERT_TRUE(box->isVisible());
        box->setFocus();
        while (box->currentIndex() < index)
            QTest::keyClick(box, Qt::Key_Down);
    }
};

class FromTemplates : public Mailing {};

TEST_F(FromTemplates, fills_the_fields_of_a_prospect)
{
    aTemplate("Seguimiento.txt",
              "Asunto: Su visita, {nombre}\n\nEstimada {Nombre} de {empresa} ({puesto}, {telefono}, "
              "{correo}, {ciudad}, {estado}, {pais}):\n{usuario}\n");
    EXPECT_TRUE(writes([](QWidget& window) {
        chooses(window, 1);
        EXPECT_EQ(textIn(window, "Asunto"), "Su visita, María Ñúñez");
        EXPECT_EQ(textIn(window, "Texto"),
                  "Estimada María Ñúñez de Acme (Compras, 961, maria@acme.example, Tuxtla, "
                  "Chiapas, México):\nAna López\n");
        pressButton(window, keeps);
    }));
    EXPECT_EQ(history().at(0).at(3), "Su visita, María Ñúñez");
}

TEST_F(FromTemplates, fills_the_fields_of_a_project)
{
    aTemplate("x.txt", "{nombre} de {empresa}: {proyecto} ({meta}), {fecha}");
    EXPECT_TRUE(writes(
        [](QWidget& window) {
            chooses(window, 1);
            EXPECT_THAT(textIn(window, "Texto").toStdString(),
                        StartsWith("Ana López de Acme del Sureste: Silo y molino (Venta de licencias), "));
            EXPECT_FALSE(textIn(window, "Texto").contains('{'));
            types(window, "Asunto", "x");
            pressButton(window, keeps);
        },
        silo));
}

TEST_F(FromTemplates, does_not_send_a_field_that_nobody_filled_in)
{
    server().execute("UPDATE ut_icontact SET uf_Puesto = '  ', uf_Nombre = ' Ana '");
    aTemplate("x.txt", "Asunto: A la {puesto}\nEstimada {puesto}: {nombre}.");
    EXPECT_FALSE(writes([this](QWidget& window) {
        chooses(window, 1);
        EXPECT_THAT(textIn(window, "Texto").toStdString(), HasSubstr(": Ana."));
        pressButton(window, keeps);
        EXPECT_THAT(messageBelow(window, "Asunto"), HasSubstr("Falta llenar {puesto}"));
        types(window, "Asunto", "x");
        expectNotice("Falta llenar {puesto}");
        pressButton(window, keeps);
        EXPECT_EQ(window.focusWidget()->objectName(), "Texto");
        expectQuestion("no se ha enviado", "Descartar");
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
}

TEST_F(FromTemplates, asks_ahead_of_writing_over_what_was_typed)
{
    aTemplate("x.txt", "de la plantilla");
    EXPECT_FALSE(writes([this](QWidget& window) {
        types(window, "a mano");
        expectQuestion("reemplaza lo que ya escribió", "Dejar");
        chooses(window, 1);
        EXPECT_EQ(textIn(window, "Texto"), "a mano");
        expectQuestion("reemplaza lo que ya escribió", "Reemplazar");
        auto* const box = window.findChild<QComboBox*>("Plantilla");
        box->setCurrentIndex(0);
        chooses(window, 1);
        EXPECT_EQ(textIn(window, "Texto"), "de la plantilla");
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
}

TEST_F(FromTemplates, takes_the_mobile_number_of_a_contact_whose_office_has_an_empty_one)
{
    server().execute("UPDATE Persona SET Tel_Trabajo = ''");
    aTemplate("x.txt", "Le llamo al {telefono}");
    EXPECT_FALSE(writes(
        [](QWidget& window) {
            chooses(window, 1);
            EXPECT_EQ(textIn(window, "Texto"), "Le llamo al 9612222222");
            QTest::keyClick(&window, Qt::Key_Escape);
        },
        silo));
}

TEST_F(FromTemplates, shows_no_choice_where_there_are_none)
{
    EXPECT_FALSE(writes([](QWidget& window) {
        EXPECT_FALSE(window.findChild<QComboBox*>("Plantilla")->isVisible());
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
}

// ---- The keyboard alone

TEST_F(Mailing, needs_nothing_but_the_keyboard)
{
    folder.holds("lista.pdf", "x");
    EXPECT_TRUE(writes(
        [](QWidget& window) {
            EXPECT_EQ(focus(), "Para");
            presses(*QApplication::focusWidget(), "maria@acme.example");
            hits(Qt::Key_Return);
            EXPECT_EQ(focus(), "Asunto") << "Enter goes on and sends nothing";
            presses(*QApplication::focusWidget(), "Hola");
            hits(Qt::Key_Tab);
            EXPECT_EQ(focus(), "Texto");
            presses(*QApplication::focusWidget(), "uno");
            hits(Qt::Key_Return);
            presses(*QApplication::focusWidget(), "dos");
            std::vector<std::string> further;
            for (int i = 0; i < 4; ++i) {
                hits(Qt::Key_Tab);
                further.push_back(focus());
            }
            EXPECT_THAT(further, ElementsAre("cmdAdjuntar", "cmdEnviar", "cmdCancelar", "Para"));
            QTest::keyClick(&window, Qt::Key_T, Qt::AltModifier);
            EXPECT_EQ(focus(), "Texto");
            hits(Qt::Key_Return, Qt::ControlModifier);
        },
        maria, ""));
    EXPECT_EQ(history().at(0).at(4), "uno\ndos");
}

// ---- What is stored, and where it cannot be

TEST_F(Mailing, tells_when_the_mail_is_out_but_was_not_stored)
{
    EXPECT_TRUE(writes([this](QWidget& window) {
        types(window, "Asunto", "Hola");
        failAfter(0);
        expectNotice("El correo se envió, pero no se pudo anotar en su historial");
        pressButton(window, keeps);
    })) << "sent is sent";
    EXPECT_THAT(history(), IsEmpty());
    EXPECT_EQ(outbox().size(), 1U);
}

class WithoutTable : public Mails {
protected:
    void SetUp() override
    {
        Mails::SetUp();
        server().execute("RENAME TABLE correo_historial TO otra");
    }
    void TearDown() override { server().execute("RENAME TABLE otra TO correo_historial"); }
};

TEST_F(WithoutTable, mails_go_out_and_the_window_says_that_no_history_is_kept)
{
    EXPECT_TRUE(writes([](QWidget& window) {
        EXPECT_THAT(textIn(window, "lblAviso").toStdString(), HasSubstr("no tiene la tabla correo_historial"));
        types(window, "Asunto", "Hola");
        pressButton(window, keeps);
    }));
    EXPECT_EQ(outbox().size(), 1U);
}

TEST_F(WithoutTable, the_history_says_so_in_clear_words)
{
    expectNotice("no tiene la tabla correo_historial");
    mail()->VerHistorial(maria);
}

TEST_F(Mailing, goes_on_when_the_party_cannot_be_read)
{
    for (int statement = 0; statement < 2; ++statement) {
        failAfter(statement);
        EXPECT_TRUE(writes([statement](QWidget& window) {
            const bool told = textIn(window, "lblAviso").contains("No se pudieron leer los datos");
            EXPECT_EQ(told, statement == 0);
            types(window, "Asunto", "Hola");
            pressButton(window, keeps);
        }));
    }
    EXPECT_EQ(history().size(), 2U);
}

TEST_F(Mailing, keeps_the_password_to_itself)
{
    const MailServer to({"auth"});
    settings.url = to.url();
    settings.user = "ana";
    settings.password = "secreto ;\"ñ";
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_TRUE(writes([](QWidget& window) {
        types(window, "Asunto", "Hola");
        pressButton(window, "Enviar");
    }));
    const std::string said = testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr();
    ASSERT_EQ(to.count(), 1);
    EXPECT_EQ(to.envelope()["login"].toString(), "ana") << "it was used";
    EXPECT_THAT(said, testing::AllOf(Not(HasSubstr("secreto")), Not(HasSubstr("AUTH"))));
    EXPECT_THAT(contentOf("/proc/self/cmdline"), Not(HasSubstr("secreto")));
    EXPECT_THAT(sent, Not(IsEmpty()));
    EXPECT_THAT(sent, testing::Each(Not(HasSubstr("secreto"))));
    EXPECT_THAT(contentOf(to.file()), Not(HasSubstr("secreto")));
}

TEST_F(Mailing, finds_the_party_and_its_mails_by_an_index)
{
    server().execute("INSERT INTO ut_icontact (uf_Nombre) SELECT seq FROM seq_1_to_300");
    server().execute("INSERT INTO Proyecto (Descripcion) SELECT seq FROM seq_1_to_300");
    server().execute(
        "INSERT INTO correo_historial (identificador, destinatarios) SELECT seq, 'x' FROM seq_1_to_300");
    for (const char* record : {maria, silo}) {
        operatorAt.expect("VerHistorial", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
        sent.clear();
        mail()->VerHistorial(record);
        int looked = 0;
        for (const std::string& statement : sent) {
            if (statement.find("Sys_GUID =") == std::string::npos &&
                statement.find("identificador =") == std::string::npos)
                continue;
            ++looked;
            EXPECT_NE(rows("EXPLAIN " + statement).at(0).at(3), "ALL") << statement;
        }
        EXPECT_EQ(looked, 2) << record;
    }
}

// ---- The history

class MailHistory : public Mails {
protected:
    void SetUp() override
    {
        Mails::SetUp();
        server().execute(
            "INSERT INTO correo_historial (identificador, tiempo, remitente, destinatarios, asunto, "
            "cuerpo, usuario) VALUES ('CT.AAAA', '2026-03-14 09:30:00', 'ana@example.com', "
            "'maria@acme.example; luz@acme.example', 'Cotización', 'Primera\nlínea', 'Ana'), ('CT.AAAA', "
            "'2026-03-15 10:00:00', NULL, 'maria@acme.example', NULL, NULL, NULL), ('PY.BBBB', "
            "'2026-03-15 10:00:00', 'x', 'y', 'de otro', 'z', 'Ana')");
    }
    void looks(const std::string& record, const std::function<void(QWidget&, QTreeWidget&)>& act)
    {
        operatorAt.expect("VerHistorial", [act](QWidget& window) {
            act(window, *window.findChild<QTreeWidget*>("lstCorreos"));
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        mail()->VerHistorial(record);
    }
};

TEST_F(MailHistory, shows_the_mails_of_the_record_the_latest_first)
{
    looks(maria, [](QWidget& window, QTreeWidget& list) {
        EXPECT_EQ(window.windowTitle(), "Historial de correos: María Ñúñez");
        ASSERT_EQ(list.topLevelItemCount(), 2);
        EXPECT_EQ(list.topLevelItem(0)->text(0), "15/03/2026 10:00");
        EXPECT_EQ(list.topLevelItem(1)->text(1), "maria@acme.example; luz@acme.example");
        EXPECT_EQ(list.topLevelItem(1)->text(2), "Cotización");
        EXPECT_EQ(textIn(window, "lblCorreos"), "Correos &enviados (2)");
        EXPECT_EQ(textIn(window, "Texto"), "");
        EXPECT_EQ(focus(), "lstCorreos");
        hits(Qt::Key_Down);
        EXPECT_EQ(textIn(window, "Texto"), "Primera\nlínea");
        EXPECT_EQ(textIn(window, "lblCorreo"),
                  "De: ana@example.com\nPara: maria@acme.example; luz@acme.example\nAsunto: Cotización");
        EXPECT_TRUE(window.findChild<QPlainTextEdit*>("Texto")->isReadOnly());
    });
}

TEST_F(MailHistory, of_a_record_without_mails_says_so)
{
    looks("CT.NADIE", [](QWidget& window, QTreeWidget& list) {
        EXPECT_EQ(list.topLevelItemCount(), 0);
        EXPECT_EQ(textIn(window, "lblCorreos"), "No se ha enviado ningún correo.");
        EXPECT_EQ(window.windowTitle(), "Historial de correos");
    });
}

TEST_F(MailHistory, that_cannot_be_read_is_told)
{
    failAfter(0);
    expectNotice("");
    mail()->VerHistorial(maria);
    failAfter(2);
    expectNotice("");
    mail()->VerHistorial(maria);
    looks(maria, [this](QWidget& window, QTreeWidget&) {
        failAfter(0);
        expectNotice("");
        hits(Qt::Key_Down);
        EXPECT_EQ(textIn(window, "Texto"), "");
    });
}

// ---- With the control

class FromTheControl : public Mailing {
protected:
    void SetUp() override
    {
        Mailing::SetUp();
        server().execute("TRUNCATE TABLE xt_biticontact");
        server().execute("INSERT INTO Agente (Sys_PK, Nombre) VALUES (7, 'Sofía')");
        server().execute("UPDATE ut_icontact SET uf_IEjecutivo = 7");
        control.hostObjects(&factory);
        control.SetObjects(&server(), agent, false, "Sofía");
        HostObject lands;
        control.InitUICRM("/ajustes", lands);
        control.RefreshData();
        control.elements().top.lblItem(desk::prospectos).click();
        control.elements().detail.txtText.Text("a medio escribir");
    }
    /// Presses "Correo" and lets the operator act in the window.
    void presses(const std::function<void(QWidget&)>& act)
    {
        operatorAt.expect("Enviar", act);
        control.elements().detail.cmdSend.press();
    }
    std::string note() { return control.elements().detail.txtText.Text(); }
    static std::vector<Row> log()
    {
        return rows("SELECT uf_Mensaje, uf_Usuario, uf_Iicontact FROM xt_biticontact");
    }

    screen::qt::CtrDnContactsWidget widget;
    ctrDnContacts& control = widget.control();
    const std::vector<Row> once{{"Se envió un mensaje de correo electrónico", "Sofía", "31"}};
};

TEST_F(FromTheControl, a_mail_leaves_its_line_in_the_log_and_one_given_up_none)
{
    presses([](QWidget& window) {
        EXPECT_EQ(textIn(window, "Para"), "maria@acme.example");
        types(window, "Asunto", "Hola");
        pressButton(window, keeps);
    });
    EXPECT_EQ(log(), once);
    EXPECT_EQ(history().at(0).at(0), maria);
    EXPECT_EQ(note(), "");
    presses([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    EXPECT_EQ(log(), once);
    EXPECT_EQ(history().size(), 1U);
}

TEST_F(FromTheControl, a_mail_that_the_server_refuses_leaves_nothing_until_it_takes_it)
{
    const MailServer to({"refuse"});
    settings.url = to.url();
    server().execute("UPDATE ut_icontact SET uf_EMail = 'nadie@acme.example'");
    control.elements().top.lblItem(desk::prospectos).click();
    control.elements().detail.txtText.Text("a medio escribir");
    presses([this](QWidget& window) {
        types(window, "Asunto", "Hola");
        expectNotice("«nadie@acme.example»");
        pressButton(window, "Enviar");
        waitUntilItCameBack(window);
        expectQuestion("El correo no se ha enviado", "Descartar");
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    EXPECT_THAT(log(), IsEmpty());
    EXPECT_THAT(history(), IsEmpty());
    EXPECT_EQ(note(), "a medio escribir");
    presses([this](QWidget& window) {
        types(window, "Asunto", "Hola");
        expectNotice("«nadie@acme.example»");
        pressButton(window, "Enviar");
        waitUntilItCameBack(window);
        types(window, "Para", "maria@acme.example");
        pressButton(window, "Enviar");
    });
    EXPECT_EQ(to.count(), 1);
    EXPECT_EQ(log(), once);
    EXPECT_EQ(history().size(), 1U);
}

TEST_F(FromTheControl, a_mail_that_could_not_be_stored_is_in_the_log_once_all_the_same)
{
    const MailServer to;
    settings.url = to.url();
    presses([this](QWidget& window) {
        types(window, "Asunto", "Hola");
        failAfter(0);
        expectNotice("El correo se envió, pero no se pudo anotar en su historial");
        pressButton(window, "Enviar");
    });
    EXPECT_EQ(to.count(), 1);
    EXPECT_THAT(history(), IsEmpty());
    EXPECT_EQ(log(), once);
}

} // namespace
} // namespace dn::host::tests
