// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the program remembers of its window, and the menu about its looks.

#include "host/desktop/view_menu.h"
#include "host/desktop/window_memory.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QMainWindow>
#include <QMenu>
#include <QScreen>
#include <QTableView>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::host {
namespace {

/// A window with the control on it, as the program has it.
struct Window : QMainWindow {
    explicit Window(const QString& file)
        : control(new screen::qt::CtrDnContactsWidget(this)), memory(*this, *control, file)
    {
        setCentralWidget(control);
        resize(900, 600);
    }
    QHeaderView& header(const char* list) { return *control->findChild<QTableView*>(list)->horizontalHeader(); }

    screen::qt::CtrDnContactsWidget* control;
    WindowMemory memory;
};

class WindowMemoryTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QString file = folder.filePath("ventana.ini");
};

TEST_F(WindowMemoryTest, brings_back_the_size_and_the_columns)
{
    Window first(file);
    first.show();
    first.resize(777, 555);
    first.header("lvw").resizeSection(3, 222);
    first.header("lvwProy").moveSection(4, 0);
    first.memory.save();
    Window second(file);
    second.memory.restore(true);
    second.show();
    EXPECT_EQ(second.size(), QSize(777, 555));
    EXPECT_EQ(second.control->columnLayouts(), first.control->columnLayouts());
    EXPECT_EQ(second.header("lvw").sectionSize(3), 222);
    EXPECT_EQ(second.header("lvwProy").logicalIndex(0), 4);
}

TEST_F(WindowMemoryTest, leaves_a_size_alone_that_was_asked_for)
{
    Window first(file);
    first.resize(777, 555);
    first.header("lvw").resizeSection(3, 222);
    first.memory.save();
    Window second(file);
    second.memory.restore(false);
    EXPECT_EQ(second.size(), QSize(900, 600));
    EXPECT_EQ(second.header("lvw").sectionSize(3), 222);
}

TEST_F(WindowMemoryTest, forgets_what_makes_no_sense)
{
    Window designed(file);
    const auto before = designed.control->columnLayouts();
    for (const char* text :
         {"", "[columnas]\nlvw\\orden=uno, dos\nlvw\\anchos=@Variant(basura)\n",
          "[columnas]\nlvw\\orden=0\nlvw\\anchos=1\nlvwOtra\\orden=1\n[ventana]\nlugar=basura\n", "\x01\xff[[["}) {
        QFile broken(file);
        ASSERT_TRUE(broken.open(QIODevice::WriteOnly | QIODevice::Truncate));
        broken.write(text);
        broken.close();
        designed.memory.restore(true);
        EXPECT_EQ(designed.control->columnLayouts(), before) << text;
        EXPECT_EQ(designed.size(), QSize(900, 600)) << text;
    }
}

TEST_F(WindowMemoryTest, the_number_to_call_shows_in_the_queue_without_scrolling)
{
    constexpr int telephone = 4;
    Window window(file);
    window.resize(1048, 600);
    window.memory.resetColumns();
    window.show();
    const QHeaderView& header = window.header("lvwHoy");
    constexpr int scrollBar = 13;
    const int room = 1048 - 242 - 2 - scrollBar; // beside the detail, within the edge of the list
    EXPECT_LE(header.sectionPosition(telephone) + header.sectionSize(telephone), room);
    EXPECT_EQ(header.sectionSize(telephone), 133) << "as wide as the control has it";
    EXPECT_LE(header.length(), room + 1280 - 1048) << "all of them in a window as designed";
}

TEST_F(WindowMemoryTest, knows_who_worked_last)
{
    EXPECT_EQ(rememberedAgent(file), std::nullopt);
    rememberAgent(file, 7);
    EXPECT_EQ(rememberedAgent(file), 7);
    EXPECT_EQ(rememberedTheme(file), "");
}

class ViewMenuTest : public WindowMemoryTest {
protected:
    ViewMenuTest()
    {
        window.menuBar()->addMenu("Archivo");
        window.menuBar()->addMenu("Ayuda");
    }
    ~ViewMenuTest() override { QApplication::setPalette(before); }

    QAction& action(const char* name) { return *window.menuBar()->findChild<QAction*>(name); }

    const QPalette before = QApplication::palette();
    Window window{file};
};

TEST_F(ViewMenuTest, stands_ahead_of_the_help)
{
    addViewMenu(*window.menuBar(), window.memory, file, {}, before);
    std::vector<std::string> captions;
    for (const QAction* menu : window.menuBar()->actions())
        captions.push_back(menu->text().toStdString());
    EXPECT_THAT(captions, testing::ElementsAre("Archivo", "&Ver", "Ayuda"));
}

TEST_F(ViewMenuTest, changes_and_remembers_the_theme)
{
    addViewMenu(*window.menuBar(), window.memory, file, "oscuro", before);
    EXPECT_TRUE(action("tema-oscuro").isChecked());
    action("tema-contraste").trigger();
    EXPECT_TRUE(action("tema-contraste").isChecked());
    EXPECT_FALSE(action("tema-oscuro").isChecked());
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(Qt::black));
    EXPECT_EQ(rememberedTheme(file), "contraste");
    action("tema-auto").trigger();
    EXPECT_EQ(QApplication::palette().color(QPalette::Window),
              schemePalette(screen::qt::schemeOf(before)).color(QPalette::Window));
}

TEST_F(ViewMenuTest, gives_the_columns_their_design_again)
{
    addViewMenu(*window.menuBar(), window.memory, file, {}, before);
    window.memory.resetColumns();
    const auto designed = window.control->columnLayouts();
    window.header("lvw").moveSection(2, 0);
    window.header("lvwHoy").resizeSection(1, 50);
    QMenu* const menu = window.menuBar()->findChild<QMenu*>("menuVer");
    menu->actions().back()->trigger();
    EXPECT_EQ(window.control->columnLayouts(), designed);
}

TEST_F(WindowMemoryTest, a_first_window_is_as_designed_where_it_fits_and_else_fills_the_screen)
{
    const QSize room = QApplication::primaryScreen()->availableGeometry().size();
    QWidget small;
    takeFirstPlace(small, {640, 480});
    EXPECT_EQ(small.size(), QSize(640, 480));
    EXPECT_FALSE(small.isMaximized());
    QWidget wide;
    takeFirstPlace(wide, {room.width() + 1, 480});
    EXPECT_EQ(wide.size(), QSize(room.width(), 480));
    EXPECT_TRUE(wide.isMaximized());
    QWidget high;
    takeFirstPlace(high, {640, room.height() + 1});
    EXPECT_EQ(high.size(), QSize(640, room.height()));
    EXPECT_TRUE(high.isMaximized());
}

} // namespace
} // namespace dn::host
