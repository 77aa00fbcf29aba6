// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A data grid under real clicks and keys: which cells are selected, what is copied of them, and how a cell is
// changed.

#include "screen/data_grid.h"
#include "screen/qt/data_grid_view.h"
#include "tests/screen/qt/keyboard.h"
#include "tests/screen/qt/stage.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>

namespace dn::tests {
namespace {

using testing::ElementsAre;

class DataGridViewTest : public StageTest {
protected:
    DataGridViewTest()
    {
        place(grid, 0, 0, 400, 200);
        for (const char* name : {"Nombre", "Correos", "Telefonos"}) {
            grid.AddColumn(name, 1500, name);
            grid.Dataset().AddField(name, 10);
        }
        grid.Dataset().Active(true);
        for (const std::string name : {"c", "a", "b"})
            add(name, name + "@x", "961 " + name);
        grid.Dataset().First();
    }
    ~DataGridViewTest() override { view.reset(); }

    void add(const std::string& name, const std::string& mail, const std::string& telephone)
    {
        screen::MemoryDataset& rows = grid.Dataset();
        rows.Append();
        rows.FieldValue("Nombre", name);
        rows.FieldValue("Correos", mail);
        rows.FieldValue("Telefonos", telephone);
        rows.Post();
    }

    screen::qt::DataGridView& table() { return widget<screen::qt::DataGridView>("dxGrid"); }

    /// Shows the grid with the keyboard on its first cell.
    void open()
    {
        show();
        settle();
        table().setFocus();
    }

    QPoint at(int row, int column) { return table().visualRect(table().model()->index(row, column)).center(); }
    void click(int row, int column, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, modifiers, at(row, column));
    }
    void doubleClick(int row, int column)
    {
        click(row, column);
        QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, at(row, column));
        settle();
    }
    /// A key in whatever has the keyboard.
    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }
    /// Each letter goes to what has the keyboard by then: the first one opens a cell.
    static void writes(const char* text)
    {
        for (const QChar letter : QString::fromUtf8(text))
            presses(*QApplication::focusWidget(), letter);
    }
    static std::string focus() { return QApplication::focusWidget()->objectName().toStdString(); }

    std::string copied()
    {
        QApplication::clipboard()->setText(QStringLiteral("antes"));
        key(Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text().toStdString();
    }

    std::string cell(int row, int column)
    {
        return std::string(
            grid.rows().cell(grid.rows().rowAt(static_cast<std::size_t>(row)), static_cast<std::size_t>(column)));
    }

    screen::DataGrid grid{&root, "dxGrid"};
};

// ---- Selecting and copying

TEST_F(DataGridViewTest, copies_the_cell_that_is_selected)
{
    open();
    EXPECT_EQ(focus(), "dxGrid");
    EXPECT_EQ(copied(), "c");
    click(1, 1);
    EXPECT_EQ(copied(), "a@x");
    EXPECT_EQ(grid.selectedPosition(), 1U);
}

TEST_F(DataGridViewTest, copies_all_cells_that_are_selected)
{
    open();
    click(0, 0);
    click(1, 1, Qt::ShiftModifier);
    EXPECT_EQ(copied(), "c\tc@x\na\ta@x");
    click(2, 2, Qt::ControlModifier);
    EXPECT_EQ(copied(), "c\tc@x\t\na\ta@x\t\n\t\t961 b");
}

TEST_F(DataGridViewTest, copies_what_the_mouse_was_drawn_over)
{
    open();
    QTest::mousePress(table().viewport(), Qt::LeftButton, {}, at(0, 1));
    QTest::mouseMove(table().viewport(), at(1, 2));
    QTest::mouseMove(table().viewport(), at(2, 2));
    QTest::mouseRelease(table().viewport(), Qt::LeftButton, {}, at(2, 2));
    EXPECT_EQ(copied(), "c@x\t961 c\na@x\t961 a\nb@x\t961 b");
}

TEST_F(DataGridViewTest, copies_rows_by_their_numbers)
{
    open();
    QHeaderView& numbers = *table().verticalHeader();
    EXPECT_TRUE(numbers.isVisible());
    EXPECT_EQ(table().model()->headerData(2, Qt::Vertical).toInt(), 3);
    const auto clickNumber = [&](int row, Qt::KeyboardModifiers modifiers) {
        QTest::mouseClick(numbers.viewport(), Qt::LeftButton, modifiers,
                          {4, numbers.sectionViewportPosition(row) + 4});
    };
    clickNumber(0, {});
    clickNumber(2, Qt::ControlModifier);
    EXPECT_EQ(copied(), "c\tc@x\t961 c\nb\tb@x\t961 b");
}

TEST_F(DataGridViewTest, selects_with_the_keyboard_alone)
{
    open();
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    EXPECT_EQ(focus(), "dxGrid");
    EXPECT_EQ(copied(), "a@x");
    EXPECT_EQ(grid.selectedPosition(), 1U);
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(copied(), "a@x\nb@x");
    key(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(copied(), "b\tb@x\t961 b");
    key(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(copied(), "c@x\na@x\nb@x");
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copied(), "c\tc@x\t961 c\na\ta@x\t961 a\nb\tb@x\t961 b");
    EXPECT_EQ(focus(), "dxGrid");
}

TEST_F(DataGridViewTest, frames_the_cell_that_has_the_keyboard)
{
    open();
    key(Qt::Key_Down);
    key(Qt::Key_A, Qt::ControlModifier);
    const auto edge = [&](int row, int column) {
        const QRect cell = table().visualRect(table().model()->index(row, column));
        return colourAt(*table().viewport(), {cell.left() + 1, cell.center().y()});
    };
    EXPECT_EQ(edge(1, 0), table().palette().color(QPalette::HighlightedText));
    EXPECT_EQ(edge(0, 0), table().palette().color(QPalette::Highlight));
    EXPECT_EQ(edge(1, 1), table().palette().color(QPalette::Highlight));
}

TEST_F(DataGridViewTest, without_a_selection_leaves_the_clipboard_alone)
{
    grid.ListItems().Clear();
    open();
    EXPECT_EQ(copied(), "antes");
}

TEST_F(DataGridViewTest, offers_copying_selecting_and_sorting_in_its_menu)
{
    open();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, table().mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&table(), &event);
    auto* const menu = table().findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    std::vector<std::string> entries;
    for (const QAction* action : menu->actions())
        if (!action->isSeparator()) entries.push_back(action->text().toStdString());
    ASSERT_THAT(entries, ElementsAre("Copiar", "Seleccionar todo", "&Ordenar por"));
    menu->actions()[1]->trigger();
    menu->actions()[0]->trigger();
    EXPECT_EQ(QApplication::clipboard()->text().count(u'\n'), 2);
    const QList<QAction*> columns = menu->actions().back()->menu()->actions();
    ASSERT_EQ(columns.size(), 3);
    EXPECT_EQ(columns[0]->text(), QStringLiteral("«Nombre»"));
    columns[0]->trigger();
    EXPECT_EQ(cell(0, 0), "a");
    menu->close();
}

// ---- Sorting

TEST_F(DataGridViewTest, is_sorted_by_its_headers_and_the_selected_row_goes_with_the_order)
{
    open();
    QHeaderView& header = *table().horizontalHeader();
    const auto clickHeader = [&] {
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {header.sectionViewportPosition(0) + 20, 5});
        settle();
    };
    key(Qt::Key_End, Qt::ControlModifier);
    key(Qt::Key_Home);
    EXPECT_EQ(copied(), "b");
    clickHeader();
    EXPECT_EQ(cell(0, 0), "a");
    EXPECT_EQ(table().currentIndex().row(), 1);
    EXPECT_EQ(grid.selectedPosition(), 1U);
    EXPECT_EQ(copied(), "b");
    EXPECT_TRUE(header.isSortIndicatorShown());
    clickHeader();
    EXPECT_EQ(cell(0, 0), "c");
    EXPECT_EQ(copied(), "b");
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::DescendingOrder);
}

// ---- Changing cells

TEST_F(DataGridViewTest, opens_a_cell_with_F2_and_keeps_the_text_with_enter)
{
    open();
    key(Qt::Key_Right);
    key(Qt::Key_F2);
    EXPECT_EQ(focus(), "dxGrid.cell");
    const QAccessibleInterface* field = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
    EXPECT_EQ(field->text(QAccessible::Name), QStringLiteral("Correos"));
    key(Qt::Key_End);
    writes(".mx");
    EXPECT_EQ(cell(0, 1), "c@x") << "not kept yet";
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), "dxGrid");
    EXPECT_EQ(cell(0, 1), "c@x.mx");
    EXPECT_EQ(copied(), "c@x.mx");
}

TEST_F(DataGridViewTest, opens_a_long_text_whole_though_the_cell_shows_its_beginning)
{
    grid.ListItems()(1).cell(0, std::string(3'000, 'x'));
    open();
    EXPECT_EQ(table().model()->index(0, 0).data().toString().size(), 1'000);
    key(Qt::Key_F2);
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text().size(), 3'000);
    key(Qt::Key_Escape);
}

TEST_F(DataGridViewTest, opens_a_cell_with_enter_a_double_click_or_typing)
{
    open();
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), "dxGrid.cell");
    key(Qt::Key_Escape);
    EXPECT_EQ(focus(), "dxGrid");
    doubleClick(2, 0);
    EXPECT_EQ(focus(), "dxGrid.cell");
    key(Qt::Key_Escape);
    writes("Ñu");
    EXPECT_EQ(focus(), "dxGrid.cell");
    key(Qt::Key_Return);
    EXPECT_EQ(cell(2, 0), "Ñu") << "typing puts another text in the cell's place";
}

TEST_F(DataGridViewTest, leaves_a_cell_as_it_was_with_escape)
{
    open();
    writes("x");
    key(Qt::Key_Escape);
    EXPECT_EQ(focus(), "dxGrid");
    EXPECT_EQ(cell(0, 0), "c");
}

TEST_F(DataGridViewTest, keeps_a_text_with_tab_and_opens_the_next_cell)
{
    open();
    writes("uno");
    key(Qt::Key_Tab);
    EXPECT_EQ(cell(0, 0), "uno");
    EXPECT_EQ(focus(), "dxGrid.cell");
    writes("dos");
    key(Qt::Key_Return);
    EXPECT_EQ(cell(0, 1), "dos");
}

TEST_F(DataGridViewTest, keeps_a_text_when_the_operator_goes_elsewhere)
{
    open();
    writes("uno");
    click(2, 2);
    EXPECT_EQ(cell(0, 0), "uno");
}

TEST_F(DataGridViewTest, does_not_touch_a_text_that_was_only_looked_at)
{
    add("dos\nlíneas y más de diez", "", "");
    open();
    click(3, 0);
    key(Qt::Key_F2);
    key(Qt::Key_End);
    key(Qt::Key_Return);
    EXPECT_EQ(cell(3, 0), "dos\nlíneas y más de diez");
}

TEST_F(DataGridViewTest, takes_no_more_than_the_field_is_meant_for_and_cuts_nothing_off)
{
    add(std::string("😀😀😀😀😀😀😀😀😀😀😀😀"), "", "");
    open();
    click(0, 0);
    writes("123456789012");
    key(Qt::Key_Return);
    EXPECT_EQ(cell(0, 0), "1234567890");
    click(3, 0);
    key(Qt::Key_F2);
    EXPECT_EQ(dynamic_cast<QLineEdit&>(*QApplication::focusWidget()).text().toStdString(), cell(3, 0));
}

TEST_F(DataGridViewTest, leaves_a_sorted_row_where_it_was_changed)
{
    grid.clickHeader(0);
    open();
    click(0, 0);
    writes("z");
    key(Qt::Key_Return);
    EXPECT_EQ(cell(0, 0), "z");
    EXPECT_FALSE(table().horizontalHeader()->isSortIndicatorShown());
}

TEST_F(DataGridViewTest, for_reading_alone_opens_no_cell_and_still_copies)
{
    grid.ReadOnly(true);
    open();
    key(Qt::Key_F2);
    key(Qt::Key_Return);
    doubleClick(0, 0);
    EXPECT_EQ(focus(), "dxGrid");
    writes("b");
    EXPECT_EQ(focus(), "dxGrid");
    EXPECT_EQ(cell(0, 0), "c");
    EXPECT_EQ(copied(), "b") << "typed letters lead to a row";
}

TEST_F(DataGridViewTest, the_numbers_of_the_rows_have_room)
{
    open();
    const QHeaderView& numbers = *table().verticalHeader();
    EXPECT_GE(numbers.width(), numbers.fontMetrics().horizontalAdvance("999") + 8);
}

} // namespace
} // namespace dn::tests
