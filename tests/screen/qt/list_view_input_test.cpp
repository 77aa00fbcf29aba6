// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator on a list view: real clicks and keys, and what the element hears of them.

#include "screen/qt/list_cell_painter.h"
#include "tests/screen/qt/list_view_fixture.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMenu>
#include <QScrollBar>
#include <QToolTip>

namespace dn::tests {
namespace {

using namespace dn::screen;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(ListViewTest, a_click_on_a_row_selects_it_and_clicks_it_once)
{
    addRows(0, 100);
    show();
    click(3);
    EXPECT_THAT(clicked, ElementsAre("K3"));
    EXPECT_EQ(list.selectedPosition(), 3U);
    EXPECT_EQ(table().currentIndex().row(), 3);
    EXPECT_TRUE(table().hasFocus());
    click(3); // also on the selected row
    EXPECT_THAT(clicked, ElementsAre("K3", "K3"));
    QTest::mouseClick(table().viewport(), Qt::MiddleButton, {}, at(5, 1));
    EXPECT_EQ(list.selectedPosition(), 3U);
}

TEST_F(ListViewTest, dragging_over_rows_clicks_the_first_alone)
{
    addRows(0, 100);
    show();
    QTest::mousePress(table().viewport(), Qt::LeftButton, {}, at(2, 1));
    QTest::mouseMove(table().viewport(), at(6, 1));
    QTest::mouseRelease(table().viewport(), Qt::LeftButton, {}, at(6, 1));
    EXPECT_THAT(clicked, ElementsAre("K2"));
    EXPECT_EQ(table().currentIndex().row(), 2);
}

TEST_F(ListViewTest, a_double_click_on_a_row_and_beside_the_rows)
{
    addRows(0, 3);
    show();
    click(1);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, at(1, 1));
    EXPECT_EQ(clicked.back(), "+");
    clicked.clear();
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, {20, 250});
    EXPECT_EQ(clicked.back(), "+");
    EXPECT_THAT(clicked, testing::Not(testing::Contains("K2")));
}

TEST_F(ListViewTest, keys_walk_the_rows_and_click_each)
{
    addRows(0, 1000);
    show();
    click(0);
    clicked.clear();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    EXPECT_THAT(clicked, ElementsAre("K1", "K2", "K1"));
    clicked.clear();
    press(Qt::Key_End);
    EXPECT_THAT(clicked, ElementsAre("K999"));
    EXPECT_TRUE(table().viewport()->rect().contains(at(999, 0)));
    press(Qt::Key_End); // is there already
    press(Qt::Key_Down);
    EXPECT_THAT(clicked, ElementsAre("K999"));
    press(Qt::Key_Home);
    EXPECT_EQ(clicked.back(), "K0");
    press(Qt::Key_PageDown);
    const int page = static_cast<int>(*list.selectedPosition());
    EXPECT_GT(page, 5);
    EXPECT_LT(page, 20);
    press(Qt::Key_PageUp);
    EXPECT_EQ(list.selectedPosition(), 0U);
}

TEST_F(ListViewTest, keys_in_an_empty_list_do_nothing)
{
    show();
    for (const int key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_PageUp,
                          Qt::Key_Space, Qt::Key_Return, Qt::Key_A})
        press(key);
    EXPECT_THAT(clicked, IsEmpty());
}

TEST_F(ListViewTest, enter_is_a_double_click_on_the_selected_row)
{
    addRows(0, 3);
    show();
    press(Qt::Key_Return);
    EXPECT_THAT(clicked, ElementsAre("+"));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
    QApplication::sendEvent(&table(), &held);
    EXPECT_THAT(clicked, ElementsAre("+")) << "a key that is held down";
}

TEST_F(ListViewTest, left_and_right_scroll_and_a_row_keeps_the_horizontal_place)
{
    list.AddColumn("Ancha", 15000);
    addRows(0, 100);
    show();
    press(Qt::Key_Right);
    const int place = table().horizontalScrollBar()->value();
    EXPECT_GT(place, 0);
    press(Qt::Key_End);
    EXPECT_EQ(table().horizontalScrollBar()->value(), place);
    press(Qt::Key_Left);
    EXPECT_EQ(table().horizontalScrollBar()->value(), 0);
}

TEST_F(ListViewTest, typed_letters_lead_to_the_row_that_begins_with_them)
{
    addRows(0, 100);
    list.ListItems().Add("Kx", "Xilófono");
    show();
    clicked.clear();
    press(Qt::Key_X);
    EXPECT_THAT(clicked, ElementsAre("Kx"));
    EXPECT_EQ(table().currentIndex().row(), 100);
    EXPECT_TRUE(table().viewport()->rect().contains(at(100, 0)));
}

TEST_F(ListViewTest, a_check_box_is_clicked_beside_the_selection)
{
    addRows(0, 10);
    list.CheckBoxes(true);
    show();
    const QPoint box = table().checkRect(4).center();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, box);
    EXPECT_THAT(checked, ElementsAre("K4"));
    EXPECT_THAT(clicked, IsEmpty());
    EXPECT_TRUE(list.ListItems()("K4").Checked());
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, box);
    EXPECT_FALSE(list.ListItems()("K4").Checked());
    QTest::mousePress(table().viewport(), Qt::LeftButton, {}, box);
    QTest::mouseRelease(table().viewport(), Qt::LeftButton, {}, at(8, 1)); // let go elsewhere
    EXPECT_EQ(checked.size(), 2U);
    click(4);
    press(Qt::Key_Space);
    EXPECT_EQ(checked.size(), 3U);
    EXPECT_TRUE(list.ListItems()("K4").Checked());
    EXPECT_THAT(clicked, ElementsAre("K4")) << "the key checks and does not click";
}

TEST_F(ListViewTest, a_list_without_check_boxes_has_none_to_click)
{
    addRows(0, 10);
    show();
    press(Qt::Key_Space); // the first row is selected by itself, and this clicks it
    EXPECT_THAT(clicked, ElementsAre("K0"));
    click(2);
    press(Qt::Key_Space);
    EXPECT_THAT(clicked, ElementsAre("K0", "K2", "K2"));
    EXPECT_TRUE(table().checkRect(2).isEmpty());
    EXPECT_THAT(checked, IsEmpty());
}

TEST_F(ListViewTest, headers_are_clicked_by_mouse_and_by_menu)
{
    addRows(0, 10);
    show();
    QTest::mouseClick(table().horizontalHeader()->viewport(), Qt::LeftButton, {}, {150, 10});
    EXPECT_THAT(headers, ElementsAre(2));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {10, 10}, table().mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(table().viewport(), &event);
    auto* const menu = table().findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    const QList<QAction*> columns = menu->actions().back()->menu()->actions();
    ASSERT_EQ(columns.size(), 3);
    EXPECT_EQ(columns[2]->text(), QStringLiteral("«Tres»"));
    columns[2]->trigger();
    EXPECT_THAT(headers, ElementsAre(2, 3));
    menu->close();
}

TEST_F(ListViewTest, headers_that_do_nothing_are_neither_pressed_nor_offered)
{
    screen::ListView plain{&root, "lvwPlain"};
    plain.AddColumn("Uno", 1500);
    plain.ListItems().Add("K1", "uno");
    place(plain, 0, 310, 100, 80);
    show();
    auto& table = widget<screen::qt::ListViewView>("lvwPlain");
    EXPECT_FALSE(table.horizontalHeader()->sectionsClickable());
    EXPECT_TRUE(this->table().horizontalHeader()->sectionsClickable());
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {10, 10}, table.mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(table.viewport(), &event);
    auto* const menu = table.findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->findChild<QMenu*>(), nullptr);
    menu->close();
}

TEST_F(ListViewTest, a_disabled_list_takes_no_input)
{
    addRows(0, 10);
    list.CheckBoxes(true);
    show();
    list.Enabled(false);
    click(3);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, at(1, 1));
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, table().checkRect(2).center());
    QTest::mouseClick(table().horizontalHeader()->viewport(), Qt::LeftButton, {}, {150, 10});
    press(Qt::Key_Down);
    EXPECT_THAT(clicked, IsEmpty());
    EXPECT_THAT(checked, IsEmpty());
    EXPECT_THAT(headers, IsEmpty());
    EXPECT_EQ(list.selectedPosition(), 0U);
}

TEST_F(ListViewTest, a_click_that_reloads_the_list_ends_on_the_new_rows)
{
    addRows(0, 100);
    show();
    wires.push_back(list.ItemClick.connect([this](const ListItem& item) {
        const std::string key(item.Key());
        list.ListItems().Clear();
        addRows(0, 50);
        list.ListItems()(key).Selected(true);
    }));
    click(7);
    EXPECT_EQ(model().rowCount(), 50);
    EXPECT_EQ(table().currentIndex().row(), 7);
    EXPECT_THAT(clicked, ElementsAre("K7"));
}

TEST_F(ListViewTest, figures_a_little_too_wide_are_shown_in_full_and_words_are_not)
{
    for (const char* text : {"15/03/2026 08:05:09", "quince de marzo 26"}) {
        const ListItem item = list.ListItems().Add(std::string("K") + text, text);
        ListItem(item).SmallIcon(1);
    }
    list.SmallIcons(&images);
    show();
    const auto* const painter = static_cast<const qt::ListCellPainter*>(table().itemDelegate());
    const auto missing =
        [&](int row) { // how much narrower than its text a cell may be that still shows it in full
            QStyleOptionViewItem option;
            option.widget = &table();
            option.font = table().font();
            option.fontMetrics = table().fontMetrics();
            option.decorationSize = {16, 16};
            option.rect = table().visualRect(model().index(row, 0));
            int width = 300;
            for (; width > 0; --width) {
                option.rect.setWidth(width);
                if (painter->isCutOff(option, model().index(row, 0))) break;
            }
            return (width + 1) - 28 - table().fontMetrics().horizontalAdvance(shown(row, 0));
        };
    EXPECT_LT(missing(0), -5);
    EXPECT_GT(missing(0), -25);
    EXPECT_EQ(missing(1), 0) << "a word is cut off, and its tool tip shows it";
}

TEST_F(ListViewTest, the_tool_tip_shows_a_text_that_is_cut_off_and_the_rows_own)
{
    const std::string longText(80, 'm');
    const ListItem item = list.ListItems().Add("K1", "corto");
    item.ListSubItems().Add(longText);
    ListItem(item).ToolTipText("<b>comentario</b>");
    show();
    const auto tipOver = [&](int column) {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, at(0, column), table().viewport()->mapToGlobal(at(0, column)));
        QApplication::sendEvent(table().viewport(), &event);
        return QToolTip::text();
    };
    EXPECT_FALSE(tipOver(0).contains(QStringLiteral("corto")));
    EXPECT_TRUE(tipOver(0).contains(QStringLiteral("&lt;b&gt;comentario")));
    EXPECT_TRUE(tipOver(1).contains(QString::fromStdString(longText)));
    EXPECT_TRUE(tipOver(1).contains(QStringLiteral("comentario")));
}

} // namespace
} // namespace dn::tests
