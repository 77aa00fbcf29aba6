// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the program's own window adds to the control, and how both look together.

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "host/desktop/choosing.h"
#include "host/desktop/view_menu.h"
#include "host/main_window.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/approved/approval.h"
#include "tests/host/desktop/fake_keyring.h"
#include "tests/host/screens/fixture.h"
#include "tests/screen/qt/accessible_tree.h"
#include "tests/screen/qt/documented_keys.h"
#include "tests/support/maria_server.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

#include <functional>
#include <utility>
#include <vector>

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

    void looksInAMenu(QMenu& menu, const char* name)
    {
        menu.popup(window.mapToGlobal(QPoint(0, 20)));
        dn::tests::looksAsApproved(menu, name);
        EXPECT_THAT(dn::tests::lettersAgainstPage(menu), testing::IsEmpty()) << name;
        menu.close();
    }

    /// What works from everywhere in the window: the letters of its menus and of the search, the keys of their
    /// entries and those of the commands.
    std::vector<dn::tests::NamedKey> keys()
    {
        std::vector<dn::tests::NamedKey> all;
        const auto add = [&](const QKeySequence& key, const QString& caption) {
            if (!key.isEmpty())
                all.push_back({key.toString(QKeySequence::PortableText).toStdString(),
                               QString(caption).remove('&').remove(':').toStdString()});
        };
        for (const QAction* menu : window.menuBar()->actions()) {
            add(QKeySequence::mnemonic(menu->text()), menu->text());
            for (const QAction* entry : menu->menu()->actions())
                add(entry->shortcut(), entry->text());
        }
        const std::function<void(const screen::Element&)> walk = [&](const screen::Element& element) {
            if (const auto* const button = dynamic_cast<const screen::Button*>(&element); button != nullptr)
                add(QKeySequence(QString::fromStdString(button->Shortcut())),
                    QString::fromStdString(button->Caption()));
            if (const auto* const label = dynamic_cast<const screen::Label*>(&element);
                label != nullptr && label->UseMnemonic())
                add(QKeySequence::mnemonic(QString::fromStdString(label->Caption())),
                    QString::fromStdString(label->Caption()));
            const auto* const container = dynamic_cast<const screen::Container*>(&element);
            if (container == nullptr) return;
            for (const screen::Element* child : container->children())
                walk(*child);
        };
        walk(window.control().elements().control);
        return all;
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
    const QTemporaryDir folder;
    WindowMemory memory(window, window.widget(), folder.filePath("ventana.ini"));
    addViewMenu(*window.menuBar(), memory, folder.filePath("ventana.ini"), "claro", QApplication::palette());
    FakeKeyring keyring;
    Beginning beginning(folder.filePath("inicio.ini"), keyring, {});
    addChoosing(*window.menuBar()->actions().constFirst()->menu(), beginning, window);
    window.resize(1000, 480);
    window.show();
    window.start(desk::contactos);
    QApplication::processEvents();
    QApplication::processEvents(); // the lists publish their rows once a turn
    dn::tests::looksAsApproved(window, "VentanaPrincipal");
    for (const int width : {1280, 1048, 800}) {
        window.resize(width, 480);
        QApplication::processEvents();
        EXPECT_THAT(dn::tests::cutOff(window), testing::IsEmpty()) << width;
    }
    EXPECT_THAT(dn::tests::unnamed(window), testing::IsEmpty());
    EXPECT_THAT(dn::tests::unreached(window), testing::IsEmpty());
    const QList<QAction*> menus = window.menuBar()->actions();
    ASSERT_EQ(menus.size(), 3);
    for (const auto& [index, name] :
         {std::pair(0, "menu-Archivo"), std::pair(1, "menu-Ver"), std::pair(2, "menu-Ayuda")}) {
        looksInAMenu(*menus.at(index)->menu(), name);
    }
    looksInAMenu(*menus.at(1)->menu()->actions().constFirst()->menu(), "menu-Tema");
    EXPECT_THAT(dn::tests::keysAgainstPage(keys()), testing::IsEmpty());
}

TEST_F(ProgramWindow, begins_on_the_queue_of_the_day_whose_rows_find_their_records)
{
    open();
    EXPECT_EQ(window.control().activeTab(), desk::hoy);
    auto& elements = window.control().elements();
    elements.today.lvwHoy.clickRow(0);
    EXPECT_EQ(elements.today.lvwHoy.ListItems()(1).Text(), "Contacto");
    EXPECT_THAT(elements.detail.txtInfo.Text(), testing::HasSubstr("Luz"));
    EXPECT_TRUE(elements.detail.txtText.Enabled());
}

TEST_F(ProgramWindow, begins_on_the_prospects_where_nobodys_work_is_in_view)
{
    MainWindow supervisors(database, Worker{0, true, "jefa"});
    supervisors.show();
    supervisors.start(std::nullopt);
    EXPECT_EQ(supervisors.control().activeTab(), desk::prospectos);
}

TEST_F(ProgramWindow, tells_about_itself_and_its_database)
{
    open();
    operatorAt.expect("AcercaDe", [](QWidget& shown) {
        auto& box = dynamic_cast<QMessageBox&>(shown);
        EXPECT_THAT(box.text().toStdString(), testing::HasSubstr("Base de datos: "));
        EXPECT_THAT(box.text().toStdString(), testing::HasSubstr("pantallas"));
        box.setText("DN Contactos 0.1.0\n\nBase de datos: MariaDB, ventas en db.example.com");
        dn::tests::looksAsApproved(box, "AcercaDe");
        dn::tests::pressButton(box, "Aceptar");
    });
    window.menuBar()->actions().constLast()->menu()->actions().constLast()->trigger();
}

TEST_F(ProgramWindow, opens_its_manual_once_and_brings_it_back_to_the_front)
{
    open();
    const auto manuals = [this] { return window.findChildren<QWidget*>("Manual"); };
    key(Qt::Key_F1);
    ASSERT_EQ(manuals().size(), 1);
    QWidget* const manual = manuals().constFirst();
    EXPECT_EQ(manual->findChild<QTextBrowser*>("Paginas")->source().fileName().toStdString(), "manual.md");
    EXPECT_FALSE(manual->isModal());
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    key(Qt::Key_F1);
    EXPECT_EQ(manuals().size(), 1);
    ASSERT_TRUE(QTest::qWaitForWindowActive(manual));
    QTest::keyClick(manual->findChild<QTextBrowser*>("Paginas"), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return manuals().isEmpty(); }));
}

TEST_F(ProgramWindow, shows_the_hourglass_while_it_reads_anew)
{
    open();
    bool shown = false;
    const auto watching = window.control().elements().today.lvwHoy.cleared.connect(
        [&] { shown = QApplication::overrideCursor() != nullptr; });
    key(Qt::Key_F5);
    EXPECT_TRUE(shown);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
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
