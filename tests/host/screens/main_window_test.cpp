// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the program's own window adds to the control, and how both look together.

#include "desk/tab_strip.h"
#include "host/main_window.h"
#include "tests/approved/approval.h"
#include "tests/host/screens/fixture.h"
#include "tests/support/maria_server.h"

#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QTest>

namespace dn::host::tests {
namespace {

using testing::ElementsAre;

class ProgramWindow : public Screens {
protected:
    void SetUp() override
    {
        Screens::SetUp();
        server().execute("INSERT INTO Agente (Sys_PK, Nombre) VALUES (7, 'Eva')");
        server().execute("INSERT INTO ut_icontact (uf_Nombre, uf_Email, uf_IEjecutivo) VALUES "
                         "('Luz', 'luz@example.com', 7), ('Gil', 'gil@example.com', 8)");
    }

    /// The window with the operator before it.
    void open()
    {
        window.show();
        window.start(std::nullopt);
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    static DatabaseOptions onTheSharedServer()
    {
        DatabaseOptions options;
        options.connect = "mariadb://" + std::string(dn::tests::MariaServer::user) + ":" +
                          std::string(dn::tests::MariaServer::password) +
                          "@localhost/pantallas?socket=" + dn::tests::sharedServer().socket();
        return options;
    }

    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    static std::string total(const QWidget& lists)
    {
        const auto* const label = lists.findChild<QLabel*>("lblTotal");
        return label == nullptr ? "" : label->text().toStdString();
    }

    /// Chooses the entry with the keyboard: the letter of the menu, then that of the entry.
    void choosesExport()
    {
        QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_E);
    }

    Database database = openDatabase(onTheSharedServer());
    MainWindow window{database, Worker{agent, false, "eva"}};
};

TEST_F(ProgramWindow, looks_as_approved)
{
    window.resize(1000, 480);
    window.show();
    window.start(desk::contactos);
    QApplication::processEvents();
    QApplication::processEvents(); // the lists publish their rows once a turn
    dn::tests::looksAsApproved(window, "VentanaPrincipal");
}

TEST_F(ProgramWindow, names_the_export_in_its_menu)
{
    std::vector<std::string> entries;
    for (const QAction* action : window.menuBar()->actions().constFirst()->menu()->actions())
        if (!action->isSeparator()) entries.push_back(action->text().toStdString());
    EXPECT_THAT(entries, ElementsAre("&Actualizar", "&Exportar listas de correo...", "&Salir"));
}

TEST_F(ProgramWindow, opens_the_export_from_its_menu)
{
    open();
    operatorAt.expect("dlgFiltro", [&](QWidget& filter) {
        EXPECT_EQ(filter.windowTitle(), "Exportar listas de correo");
        EXPECT_EQ(focus(), "chkContactos");
        key(Qt::Key_Space);
        key(Qt::Key_Return);
        filter.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&filter));
        key(Qt::Key_Escape);
    });
    operatorAt.expect("dlgShow", [](QWidget& lists) {
        EXPECT_EQ(total(lists), "Total de Registros: 2");
        EXPECT_EQ(focus(), "dxGrid");
        key(Qt::Key_Escape);
    });
    choosesExport();
    EXPECT_TRUE(window.isVisible());
}

} // namespace
} // namespace dn::host::tests
