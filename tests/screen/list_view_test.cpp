// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A list view as a whole: its columns and its selection.

#include "screen/list_view.h"
#include "tests/support/listener.h"
#include "tests/support/prospect_list.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace dn::screen {
namespace {

using tests::addRow;
using tests::Listener;

struct List : testing::Test, tests::ListOnScreen {
    std::string selectedKey() { return list.SelectedItem() ? std::string(list.SelectedItem()->Key()) : "none"; }

    void fill()
    {
        for (const char* key : {"K1", "K2", "K3"})
            addRow(list, key, {key, "sub"});
    }
};

TEST_F(List, numbers_its_columns_from_1)
{
    ASSERT_EQ(list.ColumnHeaders().size(), 2U);
    const ColumnHeader& second = list.ColumnHeaders()[1];
    EXPECT_EQ(list.ColumnHeaders()[0].Index, 1);
    EXPECT_EQ(list.ColumnHeaders()[0].Key, "");
    EXPECT_EQ(second.Index, 2);
    EXPECT_EQ(second.Text, "Nombre");
    EXPECT_EQ(second.Width, 2440);
    EXPECT_EQ(second.Key, "uf_Nombre");
}

TEST_F(List, tells_of_columns_that_come_and_go)
{
    const Listener columns(list.columnsChanged);

    list.ClearColumns();
    EXPECT_TRUE(list.ColumnHeaders().empty());
    list.AddColumn("Código", 1000, "Codigo");

    EXPECT_EQ(columns.count(), 2);
    EXPECT_EQ(list.ColumnHeaders()[0].Index, 1);
}

TEST_F(List, keeps_its_images_and_check_boxes)
{
    const ImageList images("imgContactos", {"new"});
    EXPECT_EQ(list.SmallIcons(), nullptr);
    EXPECT_FALSE(list.CheckBoxes());
    const Listener changed(list.changed);

    list.SmallIcons(&images);
    list.CheckBoxes(true);
    list.CheckBoxes(true);

    EXPECT_EQ(list.SmallIcons(), &images);
    EXPECT_TRUE(list.CheckBoxes());
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(List, selects_its_first_row_by_itself_and_raises_no_click)
{
    const Listener clicks(list.ItemClick);
    EXPECT_EQ(list.SelectedItem(), std::nullopt);
    EXPECT_EQ(list.selectedPosition(), std::nullopt);

    fill();

    EXPECT_EQ(selectedKey(), "K1");
    EXPECT_EQ(list.selectedPosition(), 0U);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(List, has_no_selection_after_Clear_and_the_next_first_row_gets_it)
{
    fill();
    list.ListItems()("K3").Selected(true);

    list.ListItems().Clear();
    EXPECT_EQ(selectedKey(), "none");
    EXPECT_EQ(list.selectedPosition(), std::nullopt);

    addRow(list, "K9", {"nine"});
    EXPECT_EQ(selectedKey(), "K9");
}

TEST_F(List, selects_one_row_at_a_time_by_code_without_a_click)
{
    fill();
    const Listener clicks(list.ItemClick);
    const Listener changed(list.changed);

    list.ListItems()("K2").Selected(true);
    list.ListItems()("K2").Selected(true);

    EXPECT_EQ(selectedKey(), "K2");
    EXPECT_FALSE(list.ListItems()("K1").Selected());
    EXPECT_TRUE(list.ListItems()("K2").Selected());
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(List, only_the_selected_row_can_lose_the_selection)
{
    fill();

    list.ListItems()("K2").Selected(false);
    EXPECT_EQ(selectedKey(), "K1");

    list.ListItems()("K1").Selected(false);
    EXPECT_EQ(selectedKey(), "none");
}

TEST_F(List, keeps_the_selection_on_its_row_when_another_is_removed)
{
    fill();
    list.ListItems()("K2").Selected(true);

    list.ListItems().Remove("K1");
    EXPECT_EQ(selectedKey(), "K2");
    EXPECT_EQ(list.selectedPosition(), 0U);

    list.ListItems().Remove("K3");
    EXPECT_EQ(selectedKey(), "K2");
}

TEST_F(List, has_no_selection_after_the_selected_row_is_removed)
{
    fill();

    list.ListItems().Remove("K1");

    EXPECT_EQ(selectedKey(), "none");
}

TEST_F(List, selects_the_first_row_shown_when_a_row_comes_while_none_is_selected)
{
    fill();
    list.ListItems()("K1").Selected(false);

    addRow(list, "K4", {"K4"});

    EXPECT_EQ(selectedKey(), "K1");
}

TEST_F(List, keeps_the_selection_on_its_row_through_a_sort)
{
    fill();
    list.ListItems()("K1").Selected(true);

    list.SortOrder(ListView::descending);
    list.Sorted(true);

    EXPECT_EQ(selectedKey(), "K1");
    EXPECT_EQ(list.selectedPosition(), 2U);
    EXPECT_EQ(list.SelectedItem()->Index(), 3);
}

} // namespace
} // namespace dn::screen
