// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The looks of the nine dialogs, of the boxes, and of the windows that come ahead of the main one.

#include "dialogs/dlg_agendar_contacto.h"
#include "dialogs/dlg_corregir.h"
#include "dialogs/dlg_dir_mail.h"
#include "dialogs/dlg_filtro.h"
#include "dialogs/dlg_nuevo_pros.h"
#include "dialogs/dlg_que_h.h"
#include "dialogs/dlg_sel_agente.h"
#include "dialogs/dlg_show.h"
#include "dialogs/dlg_tools.h"
#include "host/desktop/first_start.h"
#include "host/desktop/password_box.h"
#include "host/waiting_note.h"
#include "host/worker.h"
#include "screen/qt/form_view.h"
#include "screen/qt/guard.h"
#include "screen/qt/ports.h"
#include "tests/approved/approval.h"
#include "tests/approved/in_scheme.h"
#include "tests/host/desktop/fake_keyring.h"
#include "tests/screen/qt/accessible_tree.h"
#include "tests/screen/qt/documented_keys.h"
#include "tests/screen/qt/modal_driver.h"
#include "tests/support/fake_connection.h"
#include "tests/support/fake_ports.h"

#include <QApplication>
#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <string>

namespace dn::tests {
namespace {

using testing::IsEmpty;

void looksAndReads(QWidget& window, const std::string& name)
{
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QApplication::processEvents();
    QApplication::processEvents();
    looksAsApproved(window, QString::fromStdString(name));
    EXPECT_THAT(cutOff(window), IsEmpty()) << name;
    EXPECT_THAT(unnamed(window), IsEmpty()) << name;
    EXPECT_THAT(unreached(window), IsEmpty()) << name;
    EXPECT_THAT(lettersAgainstPage(window), IsEmpty()) << name;
}

TEST(PageOnTheKeyboard, tells_of_windows_that_there_are) { EXPECT_THAT(unknownWindowsOfPage(), IsEmpty()); }

class DialogLooks : public testing::Test {
protected:
    DialogLooks()
    {
        cnn.onContaining("Agente").gives({"Sys_PK", "Nombre"},
                                         {{whole(7), text("Ana")}, {whole(9), text("Beto")}});
        cnn.onContaining("uf_Interes").gives({"uf_Interes"}, {{text("Silos")}});
        cnn.onContaining("uf_Origen").gives({"uf_Origen"}, {{text("Llamada")}});
        cnn.onContaining("uf_Referencia").gives({"uf_Referencia"}, {{text("Un amigo")}});
    }

    template <class Dialog>
    void looks(
        Dialog& dialog, const char* name, const char* picture = nullptr, const std::function<void()>& fill = [] {})
    {
        ports.events.expectModal(name, [&](screen::Form& form) {
            fill();
            screen::qt::FormView view(form, nullptr, guard);
            looksAndReads(view, (picture == nullptr ? name : picture) + scheme);
            form.closeWindow();
        });
        dialog.Show();
    }

    void newProspect()
    {
        dialogs::dlgNuevoPros dialog(ports.ports());
        dialog.Cnn = &cnn;
        looks(dialog, "dlgNuevoPros", nullptr, [&] {
            dialog.txtNombre.type("Luz Ñúñez");
            dialog.txtTelefono.type("961 111 2233");
            dialog.txtCorreo.type("luz@example.com");
            dialog.txtEmpresa.type("Silos del Sureste");
            dialog.txtPuesto.type("Compras");
        });
    }

    void dayForTheNextContact()
    {
        dialogs::dlgAgendarContacto dialog(ports.ports());
        dialog.Cnn = &cnn;
        looks(dialog, "dlgAgendarContacto", "dlgAgendarContacto-dia", [&] { dialog.opt2.choose(); });
    }

    void filter()
    {
        dialogs::dlgFiltro dialog(ports.ports());
        dialog.Cnn = &cnn;
        looks(dialog, "dlgFiltro");
    }

    void mailLists()
    {
        FakeRecordset rows(
            Rows{{"uf_Email", "uf_Nombre", "uf_Telefono", "uf_Empresa"},
                 {{text("luz@example.com"), text("Luz Ñúñez"), text("961 111 2233"), text("Silos")}}});
        dialogs::dlgShow dialog(ports.ports());
        dialog.rsContactos = &rows;
        looks(dialog, "dlgShow");
    }

    void whatComesNext()
    {
        dialogs::dlgQueH dialog(ports.ports());
        looks(dialog, "dlgQueH", nullptr, [&] { dialog.Option1.choose(); });
    }

    /// The window of the first start with a database of the operator's own, which did not open.
    void ownDatabase(host::FirstStart& window)
    {
        own.keepPassword = true;
        own.choice.own = true;
        own.choice.database = {.servers = {{"db.example.com"}}, .name = "ventas", .text = {}, .user = "ana"};
        window.fillWith(own);
        window.complain(QStringLiteral("No se pudo abrir la base de datos."));
        looksAndReads(window, "primer-inicio-propia" + scheme);
    }

    static QString untried(const std::vector<std::string>& /*servers*/) { return {}; }

    std::string scheme; ///< at the end of a picture's name
    FakeConnection cnn;
    FakePorts ports;
    screen::qt::Guard guard;
    host::FakeKeyring keyring;
    host::StartAnswer own;
};

TEST_F(DialogLooks, of_a_new_prospect) { newProspect(); }

TEST_F(DialogLooks, of_the_next_contact)
{
    dialogs::dlgAgendarContacto dialog(ports.ports());
    dialog.Cnn = &cnn;
    looks(dialog, "dlgAgendarContacto");
}

TEST_F(DialogLooks, of_a_day_for_the_next_contact) { dayForTheNextContact(); }

TEST_F(DialogLooks, of_a_correction)
{
    dialogs::dlgCorregir dialog(ports.ports());
    dialog.txtNombre.Text("Luz Ñúñez");
    dialog.txtCorreo.Text("luz@example.com");
    looks(dialog, "dlgCorregir");
}

TEST_F(DialogLooks, of_the_agents)
{
    dialogs::dlgSelAgente dialog(ports.ports());
    dialog.Cnn = &cnn;
    looks(dialog, "dlgSelAgente");
}

TEST_F(DialogLooks, of_what_comes_next) { whatComesNext(); }

TEST_F(DialogLooks, of_the_addresses)
{
    dialogs::dlgDirMail dialog(ports.ports());
    dialog.AddItem("luz@example.com");
    dialog.AddItem("ventas@example.com");
    looks(dialog, "dlgDirMail");
}

TEST_F(DialogLooks, of_the_group_tool)
{
    dialogs::dlgTools dialog(ports.ports());
    dialog.Cnn = &cnn;
    looks(dialog, "dlgTools");
}

TEST_F(DialogLooks, of_the_filter) { filter(); }

TEST_F(DialogLooks, of_the_mail_lists) { mailLists(); }

TEST_F(DialogLooks, of_the_first_start)
{
    host::FirstStart window(untried, keyring);
    looksAndReads(window, "primer-inicio");
    ownDatabase(window);
    own.choice.database.odbc = true;
    own.choice.database.text = "DRIVER={FreeTDS};SERVER=db.example.com;DATABASE=ventas";
    window.fillWith(own);
    looksAndReads(window, "primer-inicio-odbc");
}

/// Those dialogs that have most in them.
class DialogLooksInSchemes : public DialogLooks, public testing::WithParamInterface<OtherScheme> {
protected:
    DialogLooksInSchemes() { scheme = GetParam().second; }

    InScheme worn_{GetParam().first};
};

TEST_P(DialogLooksInSchemes, of_a_new_prospect) { newProspect(); }
TEST_P(DialogLooksInSchemes, of_a_day_for_the_next_contact) { dayForTheNextContact(); }
TEST_P(DialogLooksInSchemes, of_the_filter) { filter(); }
TEST_P(DialogLooksInSchemes, of_the_mail_lists) { mailLists(); }
TEST_P(DialogLooksInSchemes, of_what_comes_next) { whatComesNext(); }
TEST_P(DialogLooksInSchemes, of_the_first_start)
{
    host::FirstStart window(untried, keyring);
    ownDatabase(window);
}

INSTANTIATE_TEST_SUITE_P(All, DialogLooksInSchemes, otherSchemes());

/// Windows that wait for their own end.
class BoxLooks : public testing::Test {
protected:
    void expectLooks(const char* window, const std::string& name)
    {
        operatorAt.expect(window, [name](QWidget& shown) {
            looksAndReads(shown, name);
            QTest::keyClick(&shown, Qt::Key_Escape);
        });
    }

    void question(const std::string& scheme)
    {
        expectLooks("MsgBox", "MsgBox-pregunta" + scheme);
        boxes.MsgBox(
            {.prompt = "Esta acción pondrá al prospecto seleccionado en estado de Sin interés. ¿Desea continuar?",
             .buttons = screen::MessageBox::Buttons::yesNo});
    }

    void whoWorks(const std::string& scheme)
    {
        expectLooks("QuienTrabaja", "QuienTrabaja" + scheme);
        EXPECT_EQ(host::askWhoWorks({{4, "Diana Marroquín Solís"}, {7, "Ana"}, {9, "Beto Ñandú"}}, 7),
                  std::nullopt);
    }

    ModalDriver operatorAt;
    screen::qt::QtDialogs boxes;
};

TEST_F(BoxLooks, of_a_message)
{
    expectLooks("MsgBox", "MsgBox");
    boxes.MsgBox({.prompt = "Error al conectar al servidor.",
                  .icon = screen::MessageBox::Icon::critical,
                  .title = "Fuerza de ventas"});
}

TEST_F(BoxLooks, of_a_question) { question(""); }

class BoxLooksInSchemes : public BoxLooks, public testing::WithParamInterface<OtherScheme> {
protected:
    InScheme worn_{GetParam().first};
};

TEST_P(BoxLooksInSchemes, of_a_question) { question(GetParam().second); }
TEST_P(BoxLooksInSchemes, of_who_works) { whoWorks(GetParam().second); }

INSTANTIATE_TEST_SUITE_P(All, BoxLooksInSchemes, otherSchemes());

TEST_F(BoxLooks, of_a_text_asked_for)
{
    expectLooks("InputBox", "InputBox");
    boxes.InputBox("Motivo:");
}

TEST_F(BoxLooks, of_a_note)
{
    expectLooks("InputBox", "InputBox-nota");
    boxes.InputBox("Nota:");
}

TEST_F(BoxLooks, of_who_works) { whoWorks(""); }

TEST_F(BoxLooks, of_a_password_asked_for)
{
    expectLooks("PedirClave", "PedirClave");
    host::askPassword({.title = "Clave de la base de datos",
                       .account = "ana@db.example.com:3306/ventas",
                       .accepts = "&Entrar",
                       .rejects = "C&ambiar…",
                       .canKeep = true},
                      nullptr);
}

TEST_F(BoxLooks, of_the_password_of_the_mail)
{
    expectLooks("PedirClave", "PedirClave-correo");
    host::askPassword({.title = "Clave del correo",
                       .account = "ana en correo.example.com",
                       .accepts = "&Enviar",
                       .rejects = "Ca&ncelar",
                       .canKeep = true},
                      nullptr);
}

TEST_F(BoxLooks, of_the_note_that_asks_to_wait)
{
    host::WaitingNote note;
    note.tell("Creando las tablas…");
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto shown = std::find_if(all.begin(), all.end(), [](const QWidget* window) {
        return window->objectName() == "NotaDeEspera" && window->isVisible();
    });
    ASSERT_NE(shown, all.end());
    looksAndReads(**shown, "NotaDeEspera");
}

} // namespace
} // namespace dn::tests
