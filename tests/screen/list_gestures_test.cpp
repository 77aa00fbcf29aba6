// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the operator can do on a list view: clicks, double clicks, check marks and headers.

#include "base/runtime_error.h"
#include "screen/list_view.h"
#include "tests/support/listener.h"
#include "tests/support/out_of_reach.h"
#include "tests/support/prospect_list.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

namespace dn::screen {
namespace {

using testing::ElementsAre;
using tests::addRow;
using tests::column;
using tests::Listener;

struct Gestures : testing::Test, tests::ListOnScreen {
    std::string selectedKey() { return list.SelectedItem() ? std::string(list.SelectedItem()->Key()) : "none"; }

    void fill()
    {
        for (const char* key : {"K1", "K2", "K3"})
            addRow(list, key, {key, "sub"});
    }
};

TEST_F(Gestures, a_click_selects_the_row_and_hands_it_over)
{
    fill();
    std::vector<std::string> heard;
    const auto watch = list.ItemClick.connect(
        [&](const ListItem& item) { heard.push_back(std::string(item.Key()) + " of " + selectedKey()); });

    list.clickRow(1);
    list.clickRow(1);
    list.clickRow(0);

    EXPECT_THAT(heard, ElementsAre("K2 of K2", "K2 of K2", "K1 of K1"));
}

TEST_F(Gestures, a_click_counts_positions_in_the_order_shown)
{
    fill();
    list.SortOrder(ListView::descending);
    list.Sorted(true);

    list.clickRow(0);

    EXPECT_EQ(selectedKey(), "K3");
}

TEST_F(Gestures, a_double_click_raises_its_event_on_a_row_and_beside_the_rows)
{
    fill();
    const Listener doubles(list.DblClick);
    const Listener clicks(list.ItemClick);

    list.doubleClickRow(2);
    list.doubleClickEmpty();

    EXPECT_EQ(doubles.count(), 2);
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(selectedKey(), "K1");
}

TEST_F(Gestures, a_check_by_hand_turns_the_mark_and_hands_the_row_over)
{
    fill();
    list.CheckBoxes(true);
    std::vector<std::string> heard;
    const auto watch = list.ItemCheck.connect([&](const ListItem& item) {
        heard.push_back(std::string(item.Key()) + (item.Checked() ? " marked" : " unmarked"));
    });

    list.toggleCheck(1);
    list.toggleCheck(1);

    EXPECT_THAT(heard, ElementsAre("K2 marked", "K2 unmarked"));
    EXPECT_EQ(selectedKey(), "K1");
}

TEST_F(Gestures, a_check_by_code_raises_nothing)
{
    fill();
    list.CheckBoxes(true);
    const Listener checks(list.ItemCheck);

    list.ListItems()("K2").Checked(true);

    EXPECT_TRUE(list.ListItems()("K2").Checked());
    EXPECT_FALSE(list.ListItems()("K1").Checked());
    EXPECT_EQ(checks.count(), 0);
}

TEST_F(Gestures, has_no_check_by_hand_without_check_boxes)
{
    fill();
    const Listener checks(list.ItemCheck);

    list.toggleCheck(0);

    EXPECT_FALSE(list.ListItems()("K1").Checked());
    EXPECT_EQ(checks.count(), 0);
}

TEST_F(Gestures, a_click_on_a_header_hands_the_column_over_and_sorts_nothing_by_itself)
{
    fill();
    std::vector<std::string> heard;
    const auto watch = list.ColumnClick.connect(
        [&](const ColumnHeader& header) { heard.push_back(std::to_string(header.Index) + header.Text); });

    list.clickHeader(1);
    list.clickHeader(0);

    EXPECT_THAT(heard, ElementsAre("2Nombre", "1Tipo"));
    EXPECT_FALSE(list.Sorted());
    EXPECT_EQ(list.SortKey(), 0);
    EXPECT_EQ(list.SortOrder(), ListView::ascending);
}

TEST_F(Gestures, a_header_may_go_while_its_click_is_heard)
{
    std::string heard;
    const auto watch = list.ColumnClick.connect([&](const ColumnHeader& header) {
        list.ClearColumns();
        heard = header.Text;
    });

    list.clickHeader(1);

    EXPECT_EQ(heard, "Nombre");
}

TEST_F(Gestures, gestures_where_no_row_or_column_is_do_nothing)
{
    fill();
    list.CheckBoxes(true);
    const Listener clicks(list.ItemClick);
    const Listener doubles(list.DblClick);
    const Listener checks(list.ItemCheck);
    const Listener headers(list.ColumnClick);

    list.clickRow(3);
    list.doubleClickRow(3);
    list.toggleCheck(3);
    list.clickHeader(2);
    list.clickHeader(-1);

    EXPECT_EQ(clicks.count() + doubles.count() + checks.count() + headers.count(), 0);
    EXPECT_EQ(selectedKey(), "K1");
}

TEST_F(Gestures, gestures_are_refused_out_of_reach)
{
    fill();
    list.CheckBoxes(true);
    const Listener clicks(list.ItemClick);
    const Listener doubles(list.DblClick);
    const Listener checks(list.ItemCheck);
    const Listener headers(list.ColumnClick);

    tests::outOfReach({&list, &panel, &control}, [&] {
        list.clickRow(1);
        list.doubleClickRow(1);
        list.doubleClickEmpty();
        list.toggleCheck(1);
        list.clickHeader(1);
    });

    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(doubles.count(), 0);
    EXPECT_EQ(checks.count(), 0);
    EXPECT_EQ(headers.count(), 0);
    EXPECT_EQ(selectedKey(), "K1");
    EXPECT_FALSE(list.ListItems()("K2").Checked());
}

TEST_F(Gestures, may_be_loaded_anew_by_whoever_hears_a_click)
{
    fill();
    const auto reload = list.ItemClick.connect([&](const ListItem&) {
        list.ListItems().Clear();
        addRow(list, "K7", {"seven"});
    });
    std::vector<std::string> heard;
    const auto behind = list.ItemClick.connect([&](const ListItem& item) {
        EXPECT_THROW(item.Key(), RuntimeError);
        heard.push_back(selectedKey());
    });

    list.clickRow(2);

    EXPECT_THAT(heard, ElementsAre("K7"));
    EXPECT_THAT(column(list), ElementsAre("seven"));
}

} // namespace
} // namespace dn::screen
