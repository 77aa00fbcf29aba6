// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What a list view tells the view that shows it: once for many changes, and which rows they touched.

#include "screen/list_view.h"
#include "tests/support/listener.h"
#include "tests/support/prospect_list.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

namespace dn::screen {
namespace {

using tests::addRow;
using tests::Listener;

struct Changes : testing::Test, tests::ListOnScreen {
    Listener dirty{list.dirty};
    Listener cleared{list.cleared};

    void fill()
    {
        for (const char* key : {"K0", "K1", "K2", "K3", "K4"})
            addRow(list, key, {key, "sub"});
        list.takeChanges();
    }

    void expectRange(std::size_t first, std::size_t behindLast)
    {
        const ListChanges changes = list.takeChanges();
        EXPECT_EQ(changes.firstChanged, first);
        EXPECT_EQ(changes.behindLastChanged, behindLast);
        EXPECT_FALSE(changes.order);
    }
};

TEST_F(Changes, are_none_at_first)
{
    expectRange(0, 0);
    EXPECT_EQ(dirty.count(), 0);
}

TEST_F(Changes, of_a_whole_load_are_told_once)
{
    for (int i = 0; i < 1000; ++i)
        addRow(list, "K" + std::to_string(i), {"text", "sub"});

    EXPECT_EQ(dirty.count(), 1);
    EXPECT_EQ(cleared.count(), 0);
    expectRange(0, 1000);
}

TEST_F(Changes, of_one_row_and_then_another_and_the_first_again_are_all_told)
{
    fill();
    for (const char* key : {"K1", "K3", "K1"})
        list.ListItems()(key).ListSubItems().Add("more");
    expectRange(1, 4);
    list.ListItems()("K1").ListSubItems().Add("more"); // the row that was told last
    expectRange(1, 2);
}

TEST_F(Changes, of_a_long_load_are_told_behind_a_screenful_and_then_once_in_many_rows)
{
    std::vector<std::size_t> rowsThen;
    const Subscription growing = list.growing.connect([&] { rowsThen.push_back(list.rows().count()); });
    for (std::size_t i = 0; i < 2 * ListView::manyRows + ListView::screenful; ++i)
        addRow(list, "K" + std::to_string(i), {"text", "sub"});
    EXPECT_THAT(rowsThen, testing::ElementsAre(ListView::screenful, ListView::manyRows + ListView::screenful));
    addRow(list, "another", {"text", "sub"});
    EXPECT_EQ(rowsThen.size(), 3U);
}

TEST_F(Changes, are_told_anew_once_they_were_taken)
{
    fill();
    ASSERT_EQ(dirty.count(), 1);

    list.ListItems()("K2").Checked(true);
    list.ListItems()("K2").Checked(false);
    EXPECT_EQ(dirty.count(), 2);

    expectRange(2, 3);
    expectRange(0, 0);
}

TEST_F(Changes, span_from_the_first_row_to_behind_the_last)
{
    fill();

    list.ListItems()("K3").SmallIcon(2);
    list.ListItems()("K1").ToolTipText("tip");
    list.ListItems()("K2").ListSubItems()(1).ForeColor(1);

    expectRange(1, 4);
}

TEST_F(Changes, of_the_first_row_alone_are_a_range_too)
{
    fill();

    list.ListItems()("K0").Paint(1, true);

    expectRange(0, 1);
}

TEST_F(Changes, each_kind_is_told)
{
    fill();
    ListItem item = list.ListItems()("K2");
    const std::vector<std::function<void()>> kinds{
        [&] { item.Checked(true); },
        [&] { item.SmallIcon(3); },
        [&] { item.ToolTipText("tip"); },
        [&] { item.Paint(1, true); },
        [&] { item.ListSubItems().Add("more"); },
        [&] { item.ListSubItems()(1).ForeColor(2); },
        [&] { item.ListSubItems()(1).ReportIcon(2); },
    };
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        SCOPED_TRACE(i);
        const int before = dirty.count();
        kinds[i]();
        EXPECT_EQ(dirty.count(), before + 1);
        expectRange(2, 3);
    }
}

TEST_F(Changes, a_mark_that_stays_as_it_is_is_none)
{
    fill();

    list.ListItems()("K2").Checked(false);

    EXPECT_EQ(dirty.count(), 1);
}

TEST_F(Changes, are_complete_for_whoever_takes_them_at_once)
{
    fill();
    ListChanges seen;
    const auto eager = list.dirty.connect([&] { seen = list.takeChanges(); });

    list.ListItems()("K3").Checked(true);

    EXPECT_EQ(seen.firstChanged, 3U);
    EXPECT_EQ(seen.behindLastChanged, 4U);
    expectRange(0, 0);
}

TEST_F(Changes, of_a_sort_are_a_new_order)
{
    fill();

    list.SortOrder(ListView::descending);
    EXPECT_EQ(dirty.count(), 1);
    list.Sorted(true);

    EXPECT_EQ(dirty.count(), 2);
    EXPECT_TRUE(list.takeChanges().order);
    EXPECT_FALSE(list.takeChanges().order);
}

TEST_F(Changes, of_key_and_order_in_a_sorted_list_are_new_orders)
{
    fill();
    list.Sorted(true);
    list.takeChanges();

    list.SortKey(1);
    EXPECT_TRUE(list.takeChanges().order);
    list.SortOrder(ListView::descending);
    EXPECT_TRUE(list.takeChanges().order);
    list.SortOrder(ListView::descending);
    EXPECT_FALSE(list.takeChanges().order);
    list.Sorted(false);
    EXPECT_FALSE(list.takeChanges().order);
}

TEST_F(Changes, of_texts_in_a_sorted_list_are_a_new_order_and_those_of_looks_a_range)
{
    fill();
    list.SortOrder(ListView::descending);
    list.Sorted(true);
    EXPECT_EQ(list.rows().rowAt(0), 4U);
    list.takeChanges();

    list.ListItems()("K4").Checked(true);
    expectRange(0, 1);

    addRow(list, "K9", {"K9"});
    EXPECT_TRUE(list.takeChanges().order);
    EXPECT_EQ(list.rows().cell(list.rows().rowAt(0), 0), "K9");
}

TEST_F(Changes, of_looks_before_the_order_is_known_are_part_of_the_new_order)
{
    fill();
    list.SortOrder(ListView::descending);
    ListItem item = list.ListItems()("K4");
    list.Sorted(true);

    item.Checked(true);

    const ListChanges changes = list.takeChanges();
    EXPECT_TRUE(changes.order);
    EXPECT_EQ(changes.firstChanged, changes.behindLastChanged);
}

TEST_F(Changes, Clear_is_told_at_once_and_takes_the_pending_ones_along)
{
    fill();
    list.ListItems()("K3").Checked(true);
    list.Sorted(true);

    list.ListItems().Clear();

    EXPECT_EQ(cleared.count(), 1);
    expectRange(0, 0);
}

TEST_F(Changes, Clear_is_told_when_the_rows_are_gone_already)
{
    fill();
    int rowsSeen = -1;
    bool selectionSeen = true;
    const auto watch = list.cleared.connect([&] {
        rowsSeen = list.ListItems().Count();
        selectionSeen = list.selectedPosition().has_value();
    });

    list.ListItems().Clear();

    EXPECT_EQ(rowsSeen, 0);
    EXPECT_FALSE(selectionSeen);
}

TEST_F(Changes, Clear_of_an_empty_list_begins_a_load_and_changes_nothing)
{
    list.ListItems().Clear();

    EXPECT_EQ(cleared.count(), 1);
    EXPECT_EQ(dirty.count(), 0);
}

TEST_F(Changes, of_the_load_after_a_Clear_are_told)
{
    fill();
    const int before = dirty.count();

    list.ListItems().Clear();
    addRow(list, "K1", {"one"});
    addRow(list, "K2", {"two"});

    EXPECT_EQ(cleared.count(), 1);
    EXPECT_EQ(dirty.count(), before + 1);
    expectRange(0, 2);
}

TEST_F(Changes, Remove_is_a_clearing_with_the_rest_to_be_shown_anew)
{
    fill();
    const int before = dirty.count();
    list.ListItems()("K4").Checked(true);

    list.ListItems().Remove("K1");

    EXPECT_EQ(cleared.count(), 1);
    EXPECT_EQ(dirty.count(), before + 1);
    EXPECT_EQ(list.rows().count(), 4U);
    const ListChanges changes = list.takeChanges();
    EXPECT_LE(changes.behindLastChanged, list.rows().count());
}

TEST_F(Changes, of_the_selection_are_told_apart_from_those_of_rows)
{
    fill();
    const Listener changed(list.changed);
    const int before = dirty.count();

    list.ListItems()("K2").Selected(true);

    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(dirty.count(), before);
}

} // namespace
} // namespace dn::screen
