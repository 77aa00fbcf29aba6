// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The data grid: its table in memory, row by row, and the sort by its headers.

#include "base/runtime_error.h"
#include "screen/data_grid.h"
#include "screen/panels.h"

#include <gmock/gmock.h>

namespace dn::tests {
namespace {

using testing::ElementsAre;

struct DataGridTest : testing::Test {
    screen::Form form{"dlg"};
    screen::DataGrid grid{&form, "dxGrid"};
    screen::MemoryDataset& dataset = grid.Dataset();

    DataGridTest()
    {
        form.Visible(true);
        for (const char* name : {"Nombre", "Correos"}) {
            grid.AddColumn(name, 3000, name);
            dataset.AddField(name, 150);
        }
        dataset.Active(true);
    }

    void row(const std::string& name, const std::string& mail)
    {
        dataset.Append();
        dataset.FieldValue("Nombre", name);
        dataset.FieldValue("Correos", mail);
        dataset.Post();
    }

    std::vector<std::string> names()
    {
        std::vector<std::string> shown;
        for (int i = 1; i <= grid.ListItems().Count(); ++i)
            shown.emplace_back(grid.ListItems()(i).Text());
        return shown;
    }
};

TEST_F(DataGridTest, shows_a_row_when_it_is_committed)
{
    dataset.Append();
    dataset.FieldValue("Nombre", "Ana");
    EXPECT_EQ(dataset.FieldValue("Nombre"), "Ana");
    EXPECT_EQ(dataset.FieldValue("Correos"), "");
    EXPECT_EQ(dataset.RecordCount(), 0);
    dataset.FieldValue("Correos", std::string(200, 'x'));
    dataset.Post();
    EXPECT_EQ(dataset.RecordCount(), 1);
    EXPECT_EQ(grid.ListItems()(1).Text(), "Ana");
    EXPECT_EQ(grid.ListItems()(1).ListSubItems()(1).Text(), std::string(200, 'x'));
    EXPECT_EQ(dataset.FieldSize("Correos"), 150);
}

TEST_F(DataGridTest, forgets_a_row_that_was_not_committed)
{
    dataset.Append();
    dataset.FieldValue("Nombre", "Ana");
    dataset.Append();
    EXPECT_EQ(dataset.FieldValue("Nombre"), "");
    dataset.Post();
    EXPECT_THAT(names(), ElementsAre(""));
}

TEST_F(DataGridTest, refuses_what_makes_no_sense)
{
    EXPECT_THROW(dataset.Post(), RuntimeError);
    EXPECT_THROW(dataset.FieldValue("Nombre"), RuntimeError);
    EXPECT_THROW(dataset.FieldValue("Nombre", "x"), RuntimeError);
    EXPECT_THROW(dataset.AddField("Otro", 1), RuntimeError);
    dataset.Append();
    EXPECT_THROW(dataset.FieldValue("Otro", "x"), RuntimeError);
    EXPECT_THROW(dataset.FieldSize("Otro"), RuntimeError);
    dataset.Active(false);
    EXPECT_THROW(dataset.Append(), RuntimeError);
}

TEST_F(DataGridTest, goes_to_the_first_row_where_there_is_one)
{
    dataset.First();
    row("b", "");
    row("a", "");
    grid.clickRow(1);
    std::size_t revealed = 9;
    const screen::Subscription wire = grid.revealed.connect([&](std::size_t position) { revealed = position; });
    dataset.First();
    EXPECT_EQ(grid.selectedPosition(), 0U);
    EXPECT_EQ(revealed, 0U);
}

TEST_F(DataGridTest, says_whether_rows_can_be_opened)
{
    EXPECT_TRUE(dataset.Active());
    dataset.Active(false);
    EXPECT_FALSE(dataset.Active());
}

TEST_F(DataGridTest, is_sorted_by_a_header_and_the_other_way_round_by_the_same_again)
{
    for (const char* name : {"ñu", "Ana", "nube", "", "Zoé"})
        row(name, std::string(name) == "Ana" ? "z" : "a");
    grid.clickHeader(0);
    EXPECT_THAT(names(), ElementsAre("", "Ana", "nube", "ñu", "Zoé"));
    grid.clickHeader(0);
    EXPECT_THAT(names(), ElementsAre("Zoé", "ñu", "nube", "Ana", ""));
    grid.clickHeader(0);
    EXPECT_THAT(names(), ElementsAre("", "Ana", "nube", "ñu", "Zoé"));
    grid.clickHeader(1);
    EXPECT_EQ(names().back(), "Ana");
    EXPECT_EQ(grid.SortOrder(), screen::ListView::ascending);
}

// ---- What the operator changes

struct CellEditing : DataGridTest {
    CellEditing()
    {
        row("b", "b@x");
        row("a", "a@x");
    }

    std::string cell(int row, int column)
    {
        const screen::ListItem item = grid.ListItems()(row);
        return std::string(column == 0 ? item.Text() : item.ListSubItems()(column).Text());
    }
};

TEST_F(CellEditing, changes_the_cell_and_nothing_else)
{
    EXPECT_FALSE(grid.ReadOnly());
    grid.edit(0, 1, "otro@x");
    grid.edit(1, 0, "Ñu");
    EXPECT_EQ(cell(1, 0), "b");
    EXPECT_EQ(cell(1, 1), "otro@x");
    EXPECT_EQ(cell(2, 0), "Ñu");
    EXPECT_EQ(cell(2, 1), "a@x");
    grid.edit(0, 0, "");
    EXPECT_EQ(cell(1, 0), "");
    EXPECT_EQ(cell(1, 1), "otro@x");
    EXPECT_EQ(dataset.RecordCount(), 2);
}

TEST_F(CellEditing, tells_the_view_which_row_looks_different)
{
    grid.takeChanges();
    grid.edit(1, 1, "otro@x");
    const screen::ListChanges changes = grid.takeChanges();
    EXPECT_FALSE(changes.order);
    EXPECT_EQ(changes.firstChanged, 1U);
    EXPECT_EQ(changes.behindLastChanged, 2U);
}

TEST_F(CellEditing, is_refused_where_there_is_nothing_to_change)
{
    grid.edit(2, 0, "x");
    grid.edit(0, 2, "x");
    grid.edit(0, -1, "x");
    grid.ReadOnly(true);
    grid.edit(0, 0, "x");
    grid.ReadOnly(false);
    grid.Enabled(false);
    grid.edit(0, 0, "x");
    grid.Enabled(true);
    form.Visible(false);
    grid.edit(0, 0, "x");
    EXPECT_THAT(names(), ElementsAre("b", "a"));
    EXPECT_EQ(cell(1, 1), "b@x");
}

// The row would jump away under the operator's hands.
TEST_F(CellEditing, leaves_a_sorted_row_where_it_stands_until_a_header_is_clicked)
{
    grid.clickHeader(0);
    EXPECT_THAT(names(), ElementsAre("a", "b"));
    grid.edit(0, 0, "z");
    EXPECT_THAT(names(), ElementsAre("z", "b"));
    EXPECT_FALSE(grid.Sorted());
    grid.clickHeader(0);
    EXPECT_THAT(names(), ElementsAre("b", "z"));
    EXPECT_EQ(grid.SortOrder(), screen::ListView::ascending);
}

TEST_F(CellEditing, that_changes_nothing_keeps_the_sort)
{
    grid.clickHeader(0);
    grid.edit(0, 0, "a");
    EXPECT_TRUE(grid.Sorted());
}

TEST_F(CellEditing, takes_as_many_characters_as_the_field_or_the_text_there)
{
    EXPECT_EQ(grid.room(0, 0), 150U);
    row(std::string(200, 'x') + "ñ", "");
    EXPECT_EQ(grid.room(2, 0), 201U);
    EXPECT_EQ(grid.room(2, 1), 150U);
    EXPECT_EQ(grid.room(3, 0), 0U);
    EXPECT_EQ(grid.room(0, 2), 0U);
}

TEST_F(DataGridTest, without_fields_has_no_rows)
{
    screen::DataGrid empty(&form, "otro");
    empty.Dataset().Active(true);
    empty.Dataset().Append();
    empty.Dataset().Post();
    EXPECT_EQ(empty.Dataset().RecordCount(), 0);
}

} // namespace
} // namespace dn::tests
