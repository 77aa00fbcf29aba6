// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The menu of a list's context: the screen's own buttons, copying, and sorting.

#include "screen/button.h"
#include "tests/screen/qt/list_view_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>

namespace dn::tests {
namespace {

using testing::ElementsAre;

class ListMenuTest : public ListViewTest {
protected:
    ListMenuTest()
    {
        place(panel, 310, 0, 200, 200);
        call.Caption("&Llamar");
        call.Shortcut("F8");
        red.ToolTipText("Rojo & más");
        red.BackColor(0x0000FF);
        hidden.Caption("Oculto");
        hidden.Visible(false);
        for (screen::Button* button : {&call, &red, &hidden})
            wires.push_back(button->Click.connect([this, button] { pressed.push_back(button->name()); }));
        addRows(0, 10);
    }
    ~ListMenuTest() override { view.reset(); }

    void opens()
    {
        show();
        table().offer({&call, &red, &hidden});
        QApplication::clipboard()->setText("antes");
    }

    QMenu& menuAt(const QPoint& place, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
    {
        delete table().findChild<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
        QContextMenuEvent event(reason, place, table().viewport()->mapToGlobal(place));
        QApplication::sendEvent(table().viewport(), &event);
        auto* const menu = table().findChild<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
        if (menu == nullptr) throw std::logic_error("no menu");
        return *menu;
    }
    QMenu& menuOf(int row) { return menuAt(at(row, 1)); }

    static QAction& entry(const QMenu& menu, const char* text)
    {
        for (QAction* action : menu.actions())
            if (action->text() == QString::fromUtf8(text)) return *action;
        throw std::logic_error(std::string("no such entry: ") + text);
    }
    static std::vector<std::string> entries(const QMenu& menu)
    {
        std::vector<std::string> texts;
        for (const QAction* action : menu.actions())
            texts.push_back(action->isSeparator() ? "-" : action->text().toStdString());
        return texts;
    }
    static std::string copied() { return QApplication::clipboard()->text().toStdString(); }

    screen::PicturePanel panel{&root, "panel"};
    screen::Button call{&root, "call"};
    screen::Button red{&panel, "red"};
    screen::Button hidden{&panel, "hidden"};
    std::vector<std::string> pressed;
};

TEST_F(ListMenuTest, offers_the_buttons_that_show_panel_by_panel_then_copying_then_sorting)
{
    opens();
    EXPECT_THAT(entries(menuOf(2)), ElementsAre("&Llamar", "-", "Rojo && más", "-", "Copiar el renglón",
                                                "Copiar la celda", "Copiar toda la lista", "-", "&Ordenar por"));
    EXPECT_EQ(entry(menuOf(2), "&Llamar").shortcut(), QKeySequence(Qt::Key_F8));
    list.CheckBoxes(true);
    EXPECT_FALSE(entry(menuOf(2), "Copiar los renglones marcados").isEnabled());
}

TEST_F(ListMenuTest, an_entry_is_enabled_exactly_when_its_button_can_be_used)
{
    opens();
    EXPECT_TRUE(entry(menuOf(2), "&Llamar").isEnabled());
    call.Enabled(false);
    EXPECT_FALSE(entry(menuOf(2), "&Llamar").isEnabled());
    EXPECT_TRUE(entry(menuOf(2), "Rojo && más").isEnabled());
    panel.Enabled(false);
    EXPECT_FALSE(entry(menuOf(2), "Rojo && más").isEnabled());
    hidden.Visible(true);
    EXPECT_FALSE(entry(menuOf(2), "Oculto").isEnabled());
    panel.Visible(false);
    EXPECT_THROW(entry(menuOf(2), "Oculto"), std::logic_error);
}

TEST_F(ListMenuTest, an_entry_presses_its_button)
{
    opens();
    entry(menuOf(2), "&Llamar").trigger();
    entry(menuOf(2), "Rojo && más").trigger();
    EXPECT_THAT(pressed, ElementsAre("call", "red"));
    QAction& late = entry(menuOf(2), "&Llamar");
    call.Visible(false); // while the menu stood open
    late.trigger();
    EXPECT_THAT(pressed, ElementsAre("call", "red"));
}

TEST_F(ListMenuTest, what_a_button_throws_goes_where_the_host_wants_it)
{
    opens();
    errorsExpected = true;
    wires.push_back(call.Click.connect([] { throw std::runtime_error("no hay línea"); }));
    entry(menuOf(2), "&Llamar").trigger();
    EXPECT_THAT(errors, ElementsAre("no hay línea"));
}

TEST_F(ListMenuTest, the_right_button_clicks_another_row_and_leaves_the_selected_one_alone)
{
    opens();
    QTest::mouseClick(table().viewport(), Qt::RightButton, {}, at(3, 1));
    EXPECT_THAT(clicked, ElementsAre("K3"));
    QTest::mouseClick(table().viewport(), Qt::RightButton, {}, at(3, 2));
    EXPECT_THAT(clicked, ElementsAre("K3"));
    list.CheckBoxes(true);
    settle();
    QTest::mouseClick(table().viewport(), Qt::RightButton, {}, table().checkRect(3).center());
    EXPECT_TRUE(checked.empty());
}

TEST_F(ListMenuTest, copies_the_row_the_cell_what_is_checked_and_everything)
{
    list.CheckBoxes(true);
    list.ListItems()("K1").Checked(true);
    list.ListItems()("K2").Checked(true);
    list.ListItems()("K7").Checked(true);
    opens();
    click(4);
    QMenu& menu = menuAt(at(5, 2));
    entry(menu, "Copiar el renglón").trigger();
    EXPECT_EQ(copied(), "4\tb4\tc4");
    entry(menu, "Copiar la celda").trigger();
    EXPECT_EQ(copied(), "c5");
    entry(menu, "Copiar los renglones marcados").trigger();
    EXPECT_EQ(copied(), "Uno\tDos\tTres\n1\tb1\tc1\n2\tb2\tc2\n7\tb7\tc7");
    entry(menu, "Copiar toda la lista").trigger();
    EXPECT_EQ(QApplication::clipboard()->text().count(u'\n'), 10);
    list.ListItems().Clear();
    EXPECT_FALSE(entry(menuAt({5, 5}), "Copiar toda la lista").isEnabled());
    EXPECT_FALSE(entry(menuAt({5, 5}), "Copiar el renglón").isEnabled());
}

TEST_F(ListMenuTest, copies_a_long_cell_whole)
{
    const std::string text = std::string(5'000, 'x') + "\r\nñ";
    list.ListItems().Add("Kx", "x").ListSubItems().Add(text);
    opens();
    entry(menuAt(at(10, 1)), "Copiar la celda").trigger();
    EXPECT_EQ(QApplication::clipboard()->text().size(), 5'003);
    EXPECT_TRUE(copied().ends_with("ñ"));
}

TEST_F(ListMenuTest, copies_the_columns_as_they_stand)
{
    opens();
    click(4);
    table().horizontalHeader()->moveSection(2, 0);
    QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copied(), "c4\t4\tb4");
}

TEST_F(ListMenuTest, sorts_by_the_column_that_is_chosen)
{
    opens();
    const auto* const columns = menuOf(2).findChild<QMenu*>();
    ASSERT_NE(columns, nullptr);
    EXPECT_THAT(entries(*columns), ElementsAre("«Uno»", "«Dos»", "«Tres»"));
    entry(*columns, "«Dos»").trigger();
    entry(*columns, "«Uno»").trigger();
    EXPECT_THAT(headers, ElementsAre(2, 1));
    wires.clear();
    EXPECT_THROW(entry(menuOf(2), "&Ordenar por"), std::logic_error) << "nobody sorts this list";
}

TEST_F(ListMenuTest, shows_each_commands_picture_and_colour)
{
    call.Picture("call");
    opens();
    EXPECT_FALSE(entry(menuOf(2), "&Llamar").icon().isNull());
    const QIcon icon = entry(menuOf(2), "Rojo && más").icon();
    const QImage swatch = icon.pixmap(16).toImage();
    ASSERT_FALSE(swatch.isNull());
    EXPECT_EQ(swatch.pixelColor(1, 1), QColor(Qt::red));
    EXPECT_EQ(entry(menuOf(2), "Rojo && más").icon().cacheKey(), icon.cacheKey())
        << "one for all menus, or each would leave its own in the toolkit's cache";
}

TEST_F(ListMenuTest, tells_the_keys_without_taking_them)
{
    opens();
    const QMenu& menu = menuOf(2);
    EXPECT_EQ(entry(menu, "Copiar el renglón").shortcut(), QKeySequence(QKeySequence::Copy));
    for (const char* text : {"&Llamar", "Copiar el renglón"})
        EXPECT_EQ(entry(menu, text).shortcutContext(), Qt::WidgetShortcut) << text;
}

TEST_F(ListMenuTest, shows_where_the_pointer_is_and_goes_when_it_is_closed)
{
    opens();
    const QPointer<QMenu> menu = &menuOf(2);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(menu->pos(), table().viewport()->mapToGlobal(at(2, 1)));
    menu->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return menu.isNull(); }));
}

TEST_F(ListMenuTest, the_menu_key_opens_it_below_the_selected_row)
{
    opens();
    click(2);
    const QMenu& menu = menuAt({0, 0}, QContextMenuEvent::Keyboard);
    const QRect row = table().visualRect(model().index(2, 0));
    EXPECT_EQ(menu.pos(), table().viewport()->mapToGlobal(QPoint(0, row.bottom() + 1)));
    EXPECT_THROW(entry(menu, "Copiar la celda"), std::logic_error);
}

} // namespace
} // namespace dn::tests
