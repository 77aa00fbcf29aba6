// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What an operator keeps when the server goes away under him: a real server that is killed, and the real window.

#include "host/database/file_lock.h"
#include "tests/approved/approval.h"
#include "tests/host/screens/losing_the_server.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTimer>

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <csignal>
#include <utility>

namespace dn::host::tests {
namespace {

using dn::tests::MariaServer;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using namespace std::chrono_literals;

/// Other texts in the bar, for a picture that tells nothing of this machine and this second.
class ThePicturedBar : public LosingTheServer {
protected:
    void shows(const char* text, const char* reason)
    {
        auto& first = in<QLabel>("lblConexion");
        do {
            first.setText(text);
            in<QLabel>("lblMotivo").setText(reason);
            QApplication::processEvents();
        } while (first.text() != text); // it counts the seconds
    }
    /// Nothing in the bar is cut off.
    void showsWhole()
    {
        QApplication::processEvents();
        for (const QAbstractButton* button : in("BarraDeConexion").findChildren<QAbstractButton*>())
            EXPECT_TRUE(!button->isVisible() || button->width() >= button->sizeHint().width());
        for (const QLabel* label : in("BarraDeConexion").findChildren<QLabel*>())
            EXPECT_TRUE(!label->isVisible() || label->height() >= label->heightForWidth(label->width()));
    }
};

TEST_F(LosingTheServer, tells_and_goes_on_with_the_same_row_and_the_typed_note)
{
    opens(desk::prospectos);
    selects(elements().prospects.lvw, "K1");
    auto& note = in<QPlainTextEdit>("txtText");
    note.setFocus();
    presses(note, "pide precios");
    EXPECT_EQ(bar(), "");

    server->kill();
    ASSERT_TRUE(tells("Se perdió la conexión con la base de datos: lo que haga ahora no se guarda.")) << bar();
    presses(note, " por volumen");
    server->restart();
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_THAT(bar(), HasSubstr("Compruebe si quedó guardado lo último que hizo."));

    EXPECT_EQ(selected(elements().prospects.lvw), "K1");
    EXPECT_EQ(elements().prospects.lvw.ListItems().Count(), 2);
    EXPECT_EQ(elements().top.lblItem(desk::prospectos).BackColor(), desk::TabStrip::activeColour);
    EXPECT_TRUE(in("lvw").isVisible());
    EXPECT_FALSE(in("lvwHoy").isVisible());
    EXPECT_EQ(elements().detail.txtText.Text(), "pide precios por volumen");
    EXPECT_EQ(focus(), "txtText");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_THAT(notes(), ElementsAre("1 pide precios por volumen"));
    clicks("cmdCerrarAviso");
    EXPECT_EQ(bar(), "");
}

TEST_F(LosingTheServer, gives_back_what_a_list_that_came_out_empty_had_selected)
{
    opens(desk::prospectos);
    selects(elements().prospects.lvw, "K2"); // the first one is selected in every list that was loaded
    QTest::keyClick(&*window, Qt::Key_Shift);
    QTest::qWait(300); // the window has looked around, as it does behind a key
    server->kill();
    elements().top.lblItem(desk::prospectos).click();
    EXPECT_EQ(elements().prospects.lvw.ListItems().Count(), 0);
    server->restart();
    ASSERT_TRUE(goesOn());
    EXPECT_EQ(selected(elements().prospects.lvw), "K2");
    EXPECT_THAT(elements().detail.txtInfo.Text(), HasSubstr("Gil"));
}

TEST_F(LosingTheServer, a_list_that_is_being_loaded_is_loaded_to_its_end_first)
{
    opens(desk::prospectos);
    bool yielded = false;
    QTimer::singleShot(0, &*window, [&] { // in the yield of the load
        yielded = QGuiApplication::overrideCursor() != nullptr;
        server->restart();
        EXPECT_TRUE(tells("Conexión restablecida")) << bar();
        EXPECT_FALSE(startsMeanwhile());
    });
    elements().top.lblItem(desk::prospectos).click();
    EXPECT_TRUE(yielded);
    EXPECT_FALSE(window->ready());
    EXPECT_TRUE(goesOn()) << bar();
}

TEST_F(ThePicturedBar, waits_for_its_time_or_for_the_button)
{
    opens(desk::prospectos, once());
    window->resize(960, 480);
    server->kill();
    ASSERT_TRUE(tells("Nuevo intento en 60 s.")) << bar();
    EXPECT_THAT(in<QLabel>("lblMotivo").text().toStdString(),
                AllOf(HasSubstr("No se pudo abrir la base de datos"), testing::Not(HasSubstr("clave-de-prueba"))));
    shows("Se perdió la conexión con la base de datos: lo que haga ahora no se guarda. Nuevo intento en 60 s.",
          "No se pudo abrir la base de datos «ventas» en db.example.com:3306, usuario ana.");
    dn::tests::looksAsApproved(in("BarraDeConexion"), "BarraDeConexion");
    showsWhole();
    clicks("cmdReconectar");
    EXPECT_THAT(bar(), HasSubstr("Reconectando…"));
    EXPECT_FALSE(in("cmdReconectar").isEnabled());
    ASSERT_TRUE(tells("Nuevo intento en 60 s.")) << "nobody is there yet";
    server->restart();
    clicks("cmdReconectar");
    EXPECT_TRUE(goesOn()) << bar();
    shows("Conexión restablecida a las 10:15. Compruebe si quedó guardado lo último que hizo.", "");
    dn::tests::looksAsApproved(in("BarraDeConexion"), "BarraDeConexion-restablecida");
}

TEST_F(LosingTheServer, an_hourglass_that_a_failure_left_behind_keeps_nobody_waiting)
{
    opens(desk::prospectos);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    server->restart();
    EXPECT_TRUE(goesOn()) << bar();
    QGuiApplication::restoreOverrideCursor();
}

TEST_F(LosingTheServer, keeps_an_administrators_agent_filter_and_checks)
{
    opens(desk::prospectos, quickly(), {0, true, "jefa"});
    elements().top.cbAgente.pick("Ana");
    elements().prospects.lvw.toggleCheck(1);
    const std::string checked(elements().prospects.lvw.ListItems()(2).Key());
    server->restart();
    ASSERT_TRUE(goesOn());
    EXPECT_EQ(elements().top.cbAgente.Text(), "Ana");
    EXPECT_TRUE(elements().prospects.lvw.ListItems()(checked).Checked());
    elements().prospects.cbStatus.pick("Descartado");
    clicks("cmdCerrarAviso");
    server->restart();
    ASSERT_TRUE(goesOn());
    EXPECT_EQ(elements().prospects.cbStatus.Text(), "Descartado");
    elements().top.lblItem(desk::proyectos).click();
    elements().projects.cbProjStatusProj.pick("Fríos");
    clicks("cmdCerrarAviso");
    server->restart();
    ASSERT_TRUE(goesOn());
    EXPECT_EQ(elements().projects.cbProjStatusProj.Text(), "Fríos");
}

TEST_F(LosingTheServer, goes_back_to_each_tab)
{
    opens(std::nullopt);
    reach(*server)->execute(
        "INSERT INTO Persona (Sys_PK, Nombre, IEjecutivo) VALUES (5, 'Eva', 7), (6, 'Iris', 7)");
    EXPECT_TRUE(in("picHoy").isVisible()) << "the first screen";
    selects(elements().today.lvwHoy, "K2");
    server->restart();
    ASSERT_TRUE(goesOn());
    EXPECT_TRUE(in("picHoy").isVisible());
    EXPECT_EQ(selected(elements().today.lvwHoy), "K2");
    EXPECT_EQ(selected(elements().prospects.lvw), "K2");
    clicks("cmdCerrarAviso");

    elements().top.lblItem(desk::contactos).click();
    selects(elements().persons.lvwContactos, "PK6");
    server->restart();
    ASSERT_TRUE(goesOn());
    EXPECT_TRUE(in("lvwContactos").isVisible());
    EXPECT_EQ(selected(elements().persons.lvwContactos), "PK6");
}

TEST_F(LosingTheServer, an_open_window_keeps_what_was_typed_and_stores_it_afterwards)
{
    opens(desk::prospectos);
    selects(elements().prospects.lvw, "K1");
    operatorAt.expect("dlgCorregir", [&](QWidget& dialog) {
        types(dialog, "txtTelefono", "961 555");
        server->kill();
        operatorAt.expect("MsgBox", [](QWidget& box) {
            EXPECT_NE(boxText(box), "");
            dn::tests::pressButton(box, "Aceptar");
        });
        QTest::mouseClick(dialog.findChild<QAbstractButton*>("cmdOk"), Qt::LeftButton);
        EXPECT_TRUE(dialog.isVisible());
        ASSERT_TRUE(tells("Se perdió la conexión"));
        server->restart();
        ASSERT_TRUE(tells("Conexión restablecida")) << bar();
        EXPECT_FALSE(startsMeanwhile()) << "the control is not started anew below an open window";
        EXPECT_EQ(line(dialog, "txtTelefono").text(), "961 555");
        dialog.activateWindow();
        QTest::mouseClick(dialog.findChild<QAbstractButton*>("cmdOk"), Qt::LeftButton);
    });
    clicks("cmdEditC");
    ASSERT_TRUE(goesOn());
    EXPECT_EQ(reach(*server)->execute("SELECT uf_Telefono FROM ut_icontact WHERE Sys_PK = 1")->value(0).toText(),
              "961 555");
    EXPECT_EQ(selected(elements().prospects.lvw), "K1");
}

TEST_F(LosingTheServer, a_call_goes_on_and_the_control_is_started_anew_behind_it)
{
    opens(desk::prospectos);
    selects(elements().prospects.lvw, "K1");
    clicks("cmdCall");
    server->restart();
    ASSERT_TRUE(tells("Conexión restablecida")) << bar();
    EXPECT_FALSE(startsMeanwhile());
    EXPECT_TRUE(window->control().Call_Progress());
    clicks("cmdContesta");
    clicks("cmdCallCon(6)");
    elements().call.txtResCall.edit("quiere una visita");
    operatorAt.expect("dlgQueH", [](QWidget& question) { question.close(); });
    clicks("cmdOkCall");
    ASSERT_TRUE(goesOn());
    EXPECT_THAT(notes(), ElementsAre(StartsWith("1 Se estableció llamada al 961 Con éxito.")));
    EXPECT_EQ(selected(elements().prospects.lvw), "K1");
}

TEST_F(LosingTheServer, a_menu_that_is_open_stays_open)
{
    opens(desk::prospectos);
    QMenu& menu = *window->menuBar()->actions().constFirst()->menu();
    menu.popup(window->mapToGlobal(QPoint(0, 20)));
    server->restart();
    ASSERT_TRUE(tells("Conexión restablecida")) << bar();
    EXPECT_FALSE(startsMeanwhile());
    EXPECT_TRUE(menu.isVisible());
    menu.close();
    EXPECT_TRUE(goesOn()) << bar();
}

TEST_F(LosingTheServer, a_hanging_server_does_not_hang_the_window)
{
    opens(desk::prospectos);
    server->freeze();
    elements().top.lblItem(desk::prospectos).click(); // a second, as the text of the connection says
    ASSERT_TRUE(tells("Reconectando…")) << bar();
    elements().detail.txtText.Enabled(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar().find("Nuevo intento") != std::string::npos; }, 20'000))
        << "the attempt is given up by itself";
    server->thaw();
    EXPECT_TRUE(goesOn());
    EXPECT_EQ(elements().prospects.lvw.ListItems().Count(), 2);
}

TEST_F(LosingTheServer, one_that_comes_and_goes_is_not_stormed)
{
    opens(desk::prospectos, once());
    server->restart();
    ASSERT_TRUE(goesOn()) << bar();
    server->restart();
    EXPECT_TRUE(tells("Nuevo intento en 60 s.")) << bar();
    clicks("cmdReconectar");
    EXPECT_TRUE(goesOn()) << bar();
}

TEST_F(LosingTheServer, one_that_stood_for_a_while_is_tried_at_once_again)
{
    Rhythm rhythm = once();
    rhythm.steady = 0s;
    opens(desk::prospectos, rhythm);
    for (int i = 0; i < 3; ++i) {
        server->restart();
        ASSERT_TRUE(goesOn()) << bar();
        clicks("cmdCerrarAviso");
    }
}

/// Another one holds a table, for as long as this lives: who reads it waits until his time is over.
class TableInUse {
public:
    TableInUse(const MariaServer& server, const std::string& table) : holder_(reach(server))
    {
        holder_->execute("LOCK TABLES " + table + " WRITE");
    }

private:
    std::unique_ptr<data::Connection> holder_;
};

TEST_F(LosingTheServer, one_whose_statements_hang_behind_the_reconnection_is_not_stormed)
{
    Rhythm rhythm = once();
    rhythm.steady = 500ms; // a statement is given up after a second
    opens(desk::prospectos, rhythm);
    server->restart();
    std::optional<TableInUse> inUse(std::in_place, *server, "Agente");
    ASSERT_TRUE(tells("Nuevo intento en 60 s.")) << bar();
    inUse.reset();
    clicks("cmdReconectar");
    EXPECT_TRUE(goesOn()) << bar();
    EXPECT_EQ(elements().prospects.lvw.ListItems().Count(), 2);
}

TEST_F(LosingTheServer, lost_again_while_the_control_is_started_it_is_started_once_more)
{
    opens(desk::contactos);
    reach(*server)->execute("INSERT INTO Persona (Sys_PK, Nombre, IEjecutivo) VALUES (5, 'Eva', 7)");
    int loads = 0;
    int fatal = -1;
    auto& picContactos = elements().persons.picContactos; // goes out of sight ahead of each load
    const auto loading = picContactos.changed.connect([&] {
        if (picContactos.Visible() || ++loads != fatal) return;
        server->restart();
        reach(*server)->execute("INSERT INTO Persona (Sys_PK, Nombre, IEjecutivo) VALUES (6, 'Iris', 7)");
    });
    server->restart();
    ASSERT_TRUE(goesOn()) << bar();
    clicks("cmdCerrarAviso");
    fatal = std::exchange(loads, 0); // the last one, behind which the control has nothing more to ask
    operatorAt.expect("MsgBox", [&](QWidget& box) {
        EXPECT_EQ(loads, fatal);
        EXPECT_TRUE(tells("Se perdió la conexión")) << bar();
        EXPECT_TRUE(tells("Conexión restablecida")) << bar();
        dn::tests::pressButton(box, "Aceptar");
    });
    server->restart();
    ASSERT_TRUE(QTest::qWaitFor([&] { return loads >= fatal; }, 20'000));
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(elements().persons.lvwContactos.ListItems().Count(), 2) << "the last one came behind the loss";
}

TEST_F(LosingTheServer, that_was_lost_between_its_opening_and_the_start_is_waited_for)
{
    database.emplace(openDatabase(options()));
    window.emplace(*database, Worker{7, false, "ana"}, quickly());
    window->show();
    server->restart();
    operatorAt.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(boxText(box), "Error al conectar al servidor.");
        dn::tests::pressButton(box, "Aceptar");
    });
    EXPECT_NO_THROW(window->start(std::nullopt));
    QAction* const refresh = window->menuBar()->actions().constFirst()->menu()->actions().constFirst();
    EXPECT_NO_THROW(refresh->trigger()) << "there is nothing yet to be loaded anew";
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(elements().top.cbAgente.Text(), "Ana");
    EXPECT_TRUE(in("lvwHoy").isVisible());
}

/// Takes connections and says nothing.
class SilentServer {
public:
    SilentServer() : listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* const general = reinterpret_cast<sockaddr*>(&address);
        if (::bind(listener_.get(), general, size) != 0 || ::listen(listener_.get(), 5) != 0 ||
            ::getsockname(listener_.get(), general, &size) != 0)
            throw std::runtime_error("no port");
        port_ = ntohs(address.sin_port);
    }
    std::string text(int seconds) const
    {
        return "mariadb://ana@127.0.0.1:" + std::to_string(port_) +
               "/x?connect_timeout=" + std::to_string(seconds);
    }
    /// The next one that comes.
    UniqueFd takes() const { return UniqueFd(::accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC)); }
    /// Whether he still waits for a word.
    static bool waits(const UniqueFd& guest)
    {
        pollfd end{guest.get(), POLLIN | POLLRDHUP, 0};
        return ::poll(&end, 1, 0) == 0;
    }

private:
    UniqueFd listener_;
    int port_ = 0;
};

class BesideASilentServer : public LosingTheServer {
protected:
    DatabaseOptions options() override
    {
        DatabaseOptions result = LosingTheServer::options();
        result.further = {silent.text(3)};
        return result;
    }

    SilentServer silent;
};

TEST_F(BesideASilentServer, the_window_closes_during_an_attempt_without_waiting_for_its_end)
{
    opens(desk::prospectos);
    server->kill();
    const UniqueFd guest = [&] {
        EXPECT_TRUE(tells("Reconectando…")) << bar();
        return silent.takes();
    }();
    window.reset();
    EXPECT_TRUE(SilentServer::waits(guest)) << "the attempt has been waited for";
    database.reset(); // the attempt needs nothing of it
}

class LosingThePrivateServer : public LosingTheServer {
protected:
    DatabaseOptions options() override
    {
        DatabaseOptions result;
        result.server.folder = server->folder() / "propio";
        result.server.bufferPoolMegabytes = 32;
        result.server.lockPatience = 2s;
        result.demoRows = 5;
        return result;
    }
};

TEST_F(LosingThePrivateServer, the_window_goes_on_while_another_program_keeps_it_from_starting)
{
    opens(desk::prospectos);
    std::optional<FileLock> held(std::in_place, database->server()->folder().lock, 1s);
    ASSERT_EQ(::kill(database->server()->pid(), SIGKILL), 0);
    ASSERT_TRUE(tells("Reconectando…")) << bar() << in<QLabel>("lblMotivo").text().toStdString();
    held.reset();
    EXPECT_TRUE(goesOn()) << bar();
}

TEST_F(LosingThePrivateServer, starts_it_again)
{
    opens(desk::prospectos);
    const pid_t killed = database->server()->pid();
    ASSERT_EQ(::kill(killed, SIGKILL), 0);
    ASSERT_TRUE(goesOn()) << bar() << in<QLabel>("lblMotivo").text().toStdString();
    EXPECT_NE(database->server()->pid(), killed);
    EXPECT_EQ(database->connection().execute("SELECT COUNT(*) FROM ut_icontact")->value(0).toText(), "5");
}

class SeveralServers : public LosingTheServer {
protected:
    DatabaseOptions options() override
    {
        DatabaseOptions result;
        result.connect = "mariadb://nadie@127.0.0.1:" + std::to_string(dn::tests::freePort()) + "/nada";
        result.further = {textTo(*server), textTo(*other)};
        return result;
    }

    std::unique_ptr<MariaServer> other = serverWithRows();
};

TEST_F(SeveralServers, the_next_one_takes_over)
{
    reach(*other)->execute("UPDATE ut_icontact SET uf_Nombre = 'Luz María' WHERE Sys_PK = 1");
    opens(desk::prospectos);
    EXPECT_THAT(database->description(), AllOf(HasSubstr(server->socket()), HasSubstr("(servidor 2 de 3)")));
    server->kill();
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_THAT(database->description(), AllOf(HasSubstr(other->socket()), HasSubstr("(servidor 3 de 3)")));
    selects(elements().prospects.lvw, "K1");
    EXPECT_THAT(elements().detail.txtInfo.Text(), HasSubstr("Luz María"));

    server->restart();
    other->kill();
    ASSERT_TRUE(tells("Se perdió"));
    ASSERT_TRUE(goesOn()) << "and round again";
    EXPECT_THAT(database->description(), HasSubstr("(servidor 2 de 3)"));
}

TEST_F(SeveralServers, tells_what_each_of_them_said)
{
    server->kill();
    other->kill();
    try {
        openDatabase(options());
        ADD_FAILURE() << "nobody is there";
    } catch (const HostError& failure) {
        EXPECT_THAT(failure.what(),
                    AllOf(HasSubstr("«nada»"), HasSubstr(server->socket()), HasSubstr(other->socket())));
    }
}

} // namespace
} // namespace dn::host::tests
