// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the table shows of the rows, and when.

#include "screen/qt/colours.h"
#include "screen/qt/list_cell_painter.h"
#include "tests/screen/qt/list_view_fixture.h"

#include <QApplication>
#include <QBrush>
#include <QFont>
#include <QHeaderView>
#include <QIcon>
#include <QScrollBar>
#include <QSignalSpy>

namespace dn::tests {
namespace {

using namespace dn::screen;

class PaintSpy : public QObject {
public:
    explicit PaintSpy(QWidget& widget) : QObject(&widget) { widget.installEventFilter(this); }

    int count() const { return count_; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) ++count_;
        return QObject::eventFilter(watched, event);
    }

private:
    int count_ = 0;
};

TEST_F(ListViewTest, rows_are_published_once_a_turn)
{
    show();
    const QSignalSpy inserted(&model(), &QAbstractItemModel::rowsInserted);
    addRows(0, 1200);
    EXPECT_EQ(model().rowCount(), 0);
    EXPECT_EQ(inserted.count(), 0);
    settle();
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(model().rowCount(), 1200);
    addRows(1200, 1300);
    settle();
    EXPECT_EQ(inserted.count(), 2);
    EXPECT_EQ(shown(1299, 2), QStringLiteral("c1299"));
}

TEST_F(ListViewTest, the_first_rows_of_a_long_load_are_painted_once_while_the_others_come)
{
    addRows(0, 3);
    show();
    table().paintBeginningAfter(std::chrono::milliseconds(0));
    const PaintSpy& paints = *new PaintSpy(*table().viewport()); // owned by the viewport
    list.ListItems().Clear();
    addRows(0, 3000);
    EXPECT_EQ(model().rowCount(), 64);
    EXPECT_EQ(paints.count(), 1);
    EXPECT_EQ(shown(63, 2), QStringLiteral("c63"));
    EXPECT_FALSE(table().currentIndex().isValid()); // which row is selected is told at the end
    settle();
    EXPECT_EQ(model().rowCount(), 3000);
    EXPECT_EQ(shown(2999, 2), QStringLiteral("c2999"));
    EXPECT_EQ(table().currentIndex().row(), 0);
}

TEST_F(ListViewTest, a_load_that_begins_on_the_screen_keeps_the_place_of_the_selected_row)
{
    addRows(0, 1000);
    show();
    table().paintBeginningAfter(std::chrono::milliseconds(0));
    list.ListItems()("K500").Selected(true);
    settle();
    table().verticalScrollBar()->setValue(495);
    list.ListItems().Clear();
    addRows(0, 1000);
    EXPECT_EQ(model().rowCount(), 64);
    list.ListItems()("K500").Selected(true);
    settle();
    EXPECT_EQ(table().verticalScrollBar()->value(), 495);
    EXPECT_EQ(table().currentIndex().row(), 500);
}

TEST_F(ListViewTest, a_load_that_yields_ahead_of_its_statement_begins_on_the_screen_too)
{
    addRows(0, 3);
    show();
    table().paintBeginningAfter(std::chrono::milliseconds(0));
    list.ListItems().Clear();
    settle();
    EXPECT_EQ(model().rowCount(), 0);
    addRows(0, 3000);
    EXPECT_EQ(model().rowCount(), 64);
}

TEST_F(ListViewTest, the_very_first_load_begins_on_the_screen_too)
{
    show();
    table().paintBeginningAfter(std::chrono::milliseconds(0));
    list.ListItems().Clear(); // as each load begins, whether there were rows or not
    addRows(0, 3000);
    EXPECT_EQ(model().rowCount(), 64);
}

TEST_F(ListViewTest, rows_that_came_soon_enough_are_painted_once_all_are_there)
{
    addRows(0, 3);
    show();
    table().paintBeginningAfter(std::chrono::hours(1));
    list.ListItems().Clear();
    addRows(0, 1200);
    EXPECT_EQ(model().rowCount(), 0);
}

TEST_F(ListViewTest, a_load_is_painted_as_a_whole_where_its_beginning_would_tell_nothing)
{
    addRows(0, 3);
    show();
    table().paintBeginningAfter(std::chrono::milliseconds(0));

    list.ListItems().Clear();
    addRows(0, 64); // one screenful
    EXPECT_EQ(model().rowCount(), 0);
    settle();
    addRows(64, 1200); // more rows, and no new load
    EXPECT_EQ(model().rowCount(), 64);
    settle();

    list.Sorted(true); // the first to come need not be the first in the end
    list.ListItems().Clear();
    addRows(0, 1200);
    EXPECT_EQ(model().rowCount(), 0);
    settle();
    list.Sorted(false);

    list.Visible(false);
    settle();
    list.ListItems().Clear();
    addRows(0, 1200);
    EXPECT_EQ(model().rowCount(), 0);
}

TEST_F(ListViewTest, rows_that_go_away_are_gone_before_anything_is_painted)
{
    addRows(0, 1000);
    show();
    list.ListItems().Clear();
    EXPECT_EQ(model().rowCount(), 0); // at once
    table().viewport()->repaint();
    addRows(0, 3);
    table().viewport()->repaint(); // rows that are not published yet
    EXPECT_EQ(model().rowCount(), 0);
    settle();
    EXPECT_EQ(model().rowCount(), 3);
}

TEST_F(ListViewTest, a_position_that_the_element_does_not_have_has_no_data)
{
    addRows(0, 10);
    show();
    const QModelIndex last = model().index(9, 0);
    bool asked = false;
    QObject::connect(&model(), &QAbstractItemModel::rowsAboutToBeRemoved, &model(), [&] {
        asked = true; // the element's rows are gone, the table does not know it yet
        EXPECT_FALSE(last.data().isValid());
        EXPECT_FALSE(last.data(Qt::DecorationRole).isValid());
    });
    list.ListItems().Clear();
    EXPECT_TRUE(asked);
}

TEST_F(ListViewTest, a_load_nested_in_the_yield_of_another_leaves_the_rows_of_both_in_order)
{
    addRows(0, 500);
    show();
    const auto yield = [] {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    };
    bool nested = false;
    wires.push_back(list.ColumnClick.connect([&](const ColumnHeader&) {
        list.ListItems().Clear();
        if (!nested) {
            nested = true; // the operator clicks again while the first load yields
            QTest::mouseClick(table().horizontalHeader()->viewport(), Qt::LeftButton, {}, {50, 10});
        }
        yield();
        list.ListItems().Clear();
        addRows(0, 300);
        yield();
        addRows(300, 600);
    }));
    QTest::mouseClick(table().horizontalHeader()->viewport(), Qt::LeftButton, {}, {50, 10});
    settle();
    ASSERT_EQ(headers.size(), 2U);
    ASSERT_EQ(model().rowCount(), 600);
    for (const int row : {0, 299, 300, 599})
        EXPECT_EQ(shown(row, 0).toInt(), row);
    EXPECT_EQ(table().currentIndex().row(), 0);
}

TEST_F(ListViewTest, a_row_that_changes_is_painted_anew_and_no_row_is_inserted)
{
    addRows(0, 100);
    show();
    const QSignalSpy inserted(&model(), &QAbstractItemModel::rowsInserted);
    const QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
    list.ListItems()("K7").Paint(0x0000FF, true);
    list.ListItems()("K9").Checked(true);
    settle();
    EXPECT_EQ(inserted.count(), 0);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 7);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 9);
}

TEST_F(ListViewTest, cells_give_texts_colours_weights_icons_and_tool_tips)
{
    addRows(0, 2);
    list.SmallIcons(&images);
    list.CheckBoxes(true);
    const ListItem first = list.ListItems()(1);
    ListItem(first).SmallIcon(2);
    ListItem(first).Paint(0x0000FF, true);
    ListItem(first).ToolTipText("comentario");
    first.ListSubItems()(1).ForeColor(0xFF8080);
    first.ListSubItems()(2).ReportIcon(1);
    ListItem(first).Checked(true);
    show();
    const QModelIndex text = model().index(0, 0);
    EXPECT_EQ(text.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(0xFF, 0, 0));
    EXPECT_TRUE(text.data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(text.data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_EQ(text.data(Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_EQ(text.data(Qt::ToolTipRole).toString(), QStringLiteral("comentario"));
    EXPECT_EQ(model().index(0, 1).data(Qt::ForegroundRole).value<QBrush>().color(), QColor(0x80, 0x80, 0xFF));
    EXPECT_FALSE(model().index(0, 1).data(Qt::DecorationRole).isValid());
    EXPECT_FALSE(model().index(0, 1).data(Qt::CheckStateRole).isValid());
    EXPECT_FALSE(model().index(0, 2).data(Qt::DecorationRole).value<QIcon>().isNull());
    const QModelIndex plain = model().index(1, 0);
    EXPECT_FALSE(plain.data(Qt::ForegroundRole).isValid());
    EXPECT_FALSE(plain.data(Qt::FontRole).isValid());
    EXPECT_EQ(plain.data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
}

TEST_F(ListViewTest, a_row_without_an_image_begins_where_the_others_do)
{
    addRows(0, 3);
    list.ListItems()("K0").SmallIcon(2);
    list.ListItems()("K2").SmallIcon(9); // the images have no such number
    const auto textOf = [&](int row, int column) {
        QStyleOptionViewItem option;
        option.widget = &table();
        option.decorationSize = {16, 16};
        option.rect = table().visualRect(model().index(row, column));
        static_cast<const screen::qt::ListCellPainter*>(table().itemDelegate())
            ->describe(option, model().index(row, column));
        return table().style()->subElementRect(QStyle::SE_ItemViewItemText, &option, &table()).left();
    };
    show();
    const int bare = textOf(1, 0);
    EXPECT_LT(bare, 10) << "a list without images keeps no place for one";
    list.SmallIcons(&images);
    settle();
    EXPECT_GE(textOf(0, 0), bare + 16);
    EXPECT_EQ(textOf(1, 0), textOf(0, 0));
    EXPECT_EQ(textOf(2, 0), textOf(0, 0));
    EXPECT_LT(textOf(1, 1) - table().columnViewportPosition(1), 10);
}

TEST_F(ListViewTest, headers_and_widths_come_from_the_element)
{
    show();
    QHeaderView& header = *table().horizontalHeader();
    EXPECT_EQ(model().headerData(1, Qt::Horizontal).toString(), QStringLiteral("Dos"));
    EXPECT_EQ(header.sectionSize(0), 100);
    list.ClearColumns();
    list.AddColumn("Otra", 1440);
    list.AddColumn("Y otra", 800);
    settle();
    EXPECT_EQ(model().columnCount(), 2);
    EXPECT_EQ(header.sectionSize(0), 96);
    EXPECT_EQ(header.sectionSize(1), 53); // 149.3 less 96: edges are rounded
    EXPECT_FALSE(header.stretchLastSection());
}

TEST_F(ListViewTest, a_sort_shows_its_order_and_keeps_the_selected_row_selected)
{
    addRows(0, 30);
    show();
    click(5);
    list.SortKey(0);
    list.SortOrder(screen::ListView::descending);
    list.Sorted(true);
    settle();
    EXPECT_EQ(shown(0, 0), QStringLiteral("9"));
    EXPECT_EQ(shown(table().currentIndex().row(), 0), QStringLiteral("5"));
    EXPECT_TRUE(table().horizontalHeader()->isSortIndicatorShown());
    EXPECT_EQ(table().horizontalHeader()->sortIndicatorSection(), 0);
    EXPECT_EQ(table().horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    addRows(100, 101); // keeps its place in the order
    settle();
    EXPECT_EQ(shown(model().rowCount() - 2, 0), QStringLiteral("1"));
}

TEST_F(ListViewTest, the_table_selects_and_reveals_what_the_code_selects_and_reveals)
{
    addRows(0, 1000);
    show();
    EXPECT_EQ(table().currentIndex().row(), 0);
    list.ListItems()("K700").Selected(true);
    list.ListItems()("K700").EnsureVisible();
    settle();
    EXPECT_EQ(table().currentIndex().row(), 700);
    EXPECT_TRUE(table().selectionModel()->isRowSelected(700));
    EXPECT_TRUE(table().viewport()->rect().contains(at(700, 0)));
    EXPECT_THAT(clicked, testing::IsEmpty()); // a selection by code raises nothing
    list.ListItems()("K700").Selected(false);
    settle();
    EXPECT_FALSE(table().currentIndex().isValid());
    EXPECT_FALSE(table().selectionModel()->hasSelection());
}

TEST_F(ListViewTest, a_list_that_is_built_anew_starts_with_its_selected_row_in_view)
{
    addRows(0, 1000);
    show();
    list.ListItems().Clear();
    addRows(0, 1000);
    list.ListItems()("K900").Selected(true);
    settle();
    EXPECT_TRUE(table().viewport()->rect().contains(at(900, 0)));
}

TEST_F(ListViewTest, a_list_that_is_built_anew_keeps_the_selected_row_where_it_stood)
{
    addRows(0, 1000);
    show();
    table().verticalScrollBar()->setValue(495);
    click(500);
    list.ListItems().Clear();
    QApplication::processEvents(); // the load yields
    addRows(10, 1000);             // ten rows above it are gone
    list.ListItems()("K500").Selected(true);
    settle();
    EXPECT_EQ(table().verticalScrollBar()->value(), 485);
    table().verticalScrollBar()->setValue(0); // the operator looks elsewhere
    list.ListItems().Clear();
    addRows(0, 1000);
    list.ListItems()("K500").Selected(true);
    settle();
    EXPECT_TRUE(table().viewport()->rect().contains(at(500, 0)));
    list.ListItems().Clear();
    addRows(0, 5);
    settle();
    EXPECT_EQ(table().verticalScrollBar()->value(), 0);
}

TEST_F(ListViewTest, removing_a_row_leaves_the_others)
{
    addRows(0, 10);
    show();
    list.ListItems().Remove("K4");
    EXPECT_EQ(model().rowCount(), 0);
    settle();
    EXPECT_EQ(model().rowCount(), 9);
    EXPECT_EQ(shown(4, 0), QStringLiteral("5"));
}

TEST_F(ListViewTest, a_list_that_ends_before_its_table_leaves_an_empty_table)
{
    auto other = std::make_unique<screen::ListView>(&root, "lvwOther");
    other->AddColumn("Uno", 1500);
    other->ListItems().Add("K1", "uno");
    place(*other, 0, 310, 100, 80);
    show();
    auto& shownOther = widget<qt::ListViewView>("lvwOther");
    EXPECT_EQ(shownOther.model()->rowCount(), 1);
    other.reset();
    EXPECT_EQ(shownOther.model()->rowCount(), 0);
    shownOther.viewport()->repaint();
    QTest::mouseClick(shownOther.viewport(), Qt::LeftButton, {}, {20, 10});
    QTest::keyClick(&shownOther, Qt::Key_Down);
    settle();
}

TEST_F(ListViewTest, colours_of_rows_are_legible_on_light_and_dark_bases)
{
    for (const Colour colour : {0x0000FFU, 0x004000U, 0xFF0000U, 0x800080U, 0xFF8080U, 0xFFFFFFU})
        for (const QColor& base : {QColor(Qt::white), QColor(0x1B, 0x1E, 0x24), QColor(0x2B, 0x6C, 0xB0)})
            EXPECT_GE(qt::contrast(qt::legible(qt::fromColour(colour), base), base), 4.5)
                << std::hex << colour << " on " << base.name().toStdString();
    EXPECT_EQ(qt::legible(qt::fromColour(0x004000), Qt::white), QColor(0, 0x40, 0)); // readable as it is
}

} // namespace
} // namespace dn::tests
