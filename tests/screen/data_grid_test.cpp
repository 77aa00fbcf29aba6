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

TEST_F(DataGridTest, is_sorted_by_a_header_and_the_other_way_round_by_the_same_again)
{
    for (const char* name : {"ñu", "Ana", "nube", "", "Zoé"})
        row(name, std::string(name) == "Ana" ? "z" : "a");
    grid.clickHeader(0);
    EXPECT_THAT(names(), ElementsAre("", "Ana", "nube", "ñu", "Zoé"));
    grid.clickHeader(0);
    EXPECT_THAT(names(), ElementsAre("Zoé", "ñu", "nube", "Ana", ""));
    grid.clickHeader(1);
    EXPECT_EQ(names().back(), "Ana");
    EXPECT_EQ(grid.SortOrder(), screen::ListView::ascending);
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
