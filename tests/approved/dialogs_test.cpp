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
#include "screen/qt/theme.h"
#include "tests/approved/approval.h"
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

namespace dn::tests {
namespace {

using testing::IsEmpty;

void looksAndReads(QWidget& window, const char* name)
{
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QApplication::processEvents();
    QApplication::processEvents();
    looksAsApproved(window, name);
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
            looksAndReads(view, picture == nullptr ? name : picture);
            form.closeWindow();
        });
        dialog.Show();
    }

    FakeConnection cnn;
    FakePorts ports;
    screen::qt::Guard guard;
};

TEST_F(DialogLooks, of_a_new_prospect)
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

TEST_F(DialogLooks, of_the_next_contact)
{
    dialogs::dlgAgendarContacto dialog(ports.ports());
    dialog.Cnn = &cnn;
    looks(dialog, "dlgAgendarContacto");
}

TEST_F(DialogLooks, of_a_day_for_the_next_contact)
{
    dialogs::dlgAgendarContacto dialog(ports.ports());
    dialog.Cnn = &cnn;
    looks(dialog, "dlgAgendarContacto", "dlgAgendarContacto-dia", [&] { dialog.opt2.choose(); });
}

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

TEST_F(DialogLooks, of_what_comes_next)
{
    dialogs::dlgQueH dialog(ports.ports());
    looks(dialog, "dlgQueH", nullptr, [&] { dialog.Option1.choose(); });
}

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

TEST_F(DialogLooks, of_the_filter)
{
    dialogs::dlgFiltro dialog(ports.ports());
    dialog.Cnn = &cnn;
    looks(dialog, "dlgFiltro");
}

TEST_F(DialogLooks, of_the_mail_lists)
{
    FakeRecordset rows(Rows{{"uf_Email", "uf_Nombre", "uf_Telefono", "uf_Empresa"},
                            {{text("luz@example.com"), text("Luz Ñúñez"), text("961 111 2233"), text("Silos")}}});
    dialogs::dlgShow dialog(ports.ports());
    dialog.rsContactos = &rows;
    looks(dialog, "dlgShow");
}

TEST_F(DialogLooks, of_the_first_start)
{
    host::FirstStart window([](const std::vector<std::string>&) { return QString(); }, true);
    looksAndReads(window, "primer-inicio");
    host::StartAnswer own;
    own.keepPassword = true;
    own.choice.own = true;
    host::OwnDatabase& database = own.choice.database;
    database = {.servers = {{"db.example.com"}}, .name = "ventas", .text = {}, .user = "ana"};
    window.fillWith(own);
    window.complain(QStringLiteral("No se pudo abrir la base de datos."));
    looksAndReads(window, "primer-inicio-propia");
    database.odbc = true;
    database.text = "DRIVER={FreeTDS};SERVER=db.example.com;DATABASE=ventas";
    window.fillWith(own);
    looksAndReads(window, "primer-inicio-odbc");
}

TEST_F(DialogLooks, of_a_new_prospect_in_the_dark)
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(schemePalette(screen::qt::Scheme::dark));
    dialogs::dlgNuevoPros dialog(ports.ports());
    dialog.Cnn = &cnn;
    looks(dialog, "dlgNuevoPros", "dlgNuevoPros-oscuro");
    QApplication::setPalette(before);
}

/// Windows that wait for their own end.
class BoxLooks : public testing::Test {
protected:
    void expectLooks(const char* window, const char* name)
    {
        operatorAt.expect(window, [name](QWidget& shown) {
            looksAndReads(shown, name);
            QTest::keyClick(&shown, Qt::Key_Escape);
        });
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

TEST_F(BoxLooks, of_a_question)
{
    expectLooks("MsgBox", "MsgBox-pregunta");
    boxes.MsgBox(
        {.prompt = "Esta acción pondrá al prospecto seleccionado en estado de Sin interés. ¿Desea continuar?",
         .buttons = screen::MessageBox::Buttons::yesNo});
}

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

TEST_F(BoxLooks, of_who_works)
{
    expectLooks("QuienTrabaja", "QuienTrabaja");
    EXPECT_EQ(host::askWhoWorks({{4, "Diana Marroquín Solís"}, {7, "Ana"}, {9, "Beto Ñandú"}}, 7), std::nullopt);
}

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
