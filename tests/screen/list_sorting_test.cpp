// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Sorting a list view by the texts of a column, and keeping it sorted.

#include "screen/list_view.h"
#include "tests/support/prospect_list.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace dn::screen {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using tests::addRow;
using tests::column;

struct Sorting : testing::Test, tests::ListOnScreen {
    void add(std::initializer_list<const char*> texts)
    {
        for (const char* text : texts)
            list.ListItems().Add("", text);
    }

    void sortBy(int sortKey, int order = ListView::ascending)
    {
        list.SortKey(sortKey);
        list.SortOrder(order);
        list.Sorted(true);
    }
};

struct OrderCase {
    const char* name;
    std::vector<std::string> ascending;
};

void PrintTo(const OrderCase& orderCase, std::ostream* out) { *out << orderCase.name; }

class Orders : public Sorting, public testing::WithParamInterface<OrderCase> {};

TEST_P(Orders, hold_both_ways)
{
    std::vector<std::string> expected = GetParam().ascending;
    // Added in an order that is neither the right one nor its reverse.
    for (std::size_t i = 0; i < expected.size(); ++i)
        list.ListItems().Add("", expected[(i * 3 + 1) % expected.size()]);

    sortBy(0);
    EXPECT_THAT(column(list), ElementsAreArray(expected));

    list.SortOrder(ListView::descending);
    EXPECT_THAT(column(list), ElementsAreArray(expected.rbegin(), expected.rend()));
}

INSTANTIATE_TEST_SUITE_P(All, Orders,
                         testing::Values(OrderCase{"letters", {"Ana", "beto", "Carla", "dario"}},
                                         OrderCase{"ñ after n", {"nube", "nzz", "ñame", "Ñu", "oca"}},
                                         OrderCase{"accents behind plain letters", {"ama", "ámbar", "ana", "aná"}},
                                         OrderCase{"accents between letters", {"Adela", "Álvaro", "Beto", "Éric"}},
                                         OrderCase{"empty first", {"", " ", "0", "a"}},
                                         OrderCase{"texts and not numbers", {"1", "10", "100", "2", "9"}},
                                         OrderCase{"padded numbers", {"001", "002", "010", "100"}},
                                         OrderCase{"dates",
                                                   {"", "2023-12-31", "2024-01-01", "2024-02-01 10:00:00"}},
                                         OrderCase{"digits ahead of letters", {"<Definir>", "5", "K", "z"}},
                                         OrderCase{"beyond the common start",
                                                   {"contacto a", "contacto b", "contacto ñ", "contacto o"}}));

TEST_F(Sorting, is_without_regard_to_case_and_keeps_equals_as_they_stood)
{
    add({"b", "ANA", "ana", "B", "Ana", "ÁNA", "ána"});

    sortBy(0);

    EXPECT_THAT(column(list), ElementsAre("ANA", "ana", "Ana", "ÁNA", "ána", "b", "B"));
}

TEST_F(Sorting, descending_keeps_equals_as_they_stood_too)
{
    add({"b", "ANA", "ana", "B", "Ana"});

    sortBy(0, ListView::descending);

    EXPECT_THAT(column(list), ElementsAre("b", "B", "ANA", "ana", "Ana"));
}

TEST_F(Sorting, turning_the_order_twice_brings_equals_back_as_they_stood)
{
    add({"x", "X", "a"});
    sortBy(0);

    list.SortOrder(ListView::descending);
    EXPECT_THAT(column(list), ElementsAre("x", "X", "a"));
    list.SortOrder(ListView::ascending);

    EXPECT_THAT(column(list), ElementsAre("a", "x", "X"));
}

TEST_F(Sorting, takes_the_column_of_the_key)
{
    addRow(list, "K1", {"a", "3"});
    addRow(list, "K2", {"b", "1"});
    addRow(list, "K3", {"c", "2"});

    sortBy(1);

    EXPECT_THAT(column(list), ElementsAre("b", "c", "a"));
}

TEST_F(Sorting, a_row_without_the_cell_counts_as_empty)
{
    addRow(list, "K1", {"a", "1"});
    addRow(list, "K2", {"b"});

    sortBy(1);

    EXPECT_THAT(column(list), ElementsAre("b", "a"));
}

TEST_F(Sorting, a_second_key_keeps_the_order_of_the_first_among_equals)
{
    addRow(list, "K1", {"z", "2"});
    addRow(list, "K2", {"b", "1"});
    addRow(list, "K3", {"y", "1"});
    addRow(list, "K4", {"a", "1"});

    sortBy(0);
    EXPECT_THAT(column(list), ElementsAre("a", "b", "y", "z"));
    list.SortKey(1);

    EXPECT_THAT(column(list), ElementsAre("a", "b", "y", "z"));
}

TEST_F(Sorting, a_second_key_keeps_the_order_of_the_first_though_nobody_looked_between)
{
    addRow(list, "K1", {"z", "2"});
    addRow(list, "K2", {"y", "1"});
    addRow(list, "K3", {"b", "2"});
    addRow(list, "K4", {"a", "1"});

    sortBy(0);
    list.SortKey(1);

    EXPECT_THAT(column(list), ElementsAre("a", "y", "b", "z"));
}

TEST_F(Sorting, waits_for_the_flag)
{
    add({"b", "a"});

    list.SortKey(0);
    list.SortOrder(ListView::descending);
    EXPECT_THAT(column(list), ElementsAre("b", "a"));
    list.SortOrder(ListView::ascending);
    EXPECT_THAT(column(list), ElementsAre("b", "a"));

    list.Sorted(true);
    EXPECT_THAT(column(list), ElementsAre("a", "b"));
}

TEST_F(Sorting, keeps_additions_in_their_place_while_the_flag_is_set)
{
    list.Sorted(true);
    add({"m", "a", "z"});
    EXPECT_THAT(column(list), ElementsAre("a", "m", "z"));

    add({"b"});

    EXPECT_THAT(column(list), ElementsAre("a", "b", "m", "z"));
    EXPECT_EQ(list.ListItems()(2).Text(), "b");
}

TEST_F(Sorting, puts_a_new_row_behind_its_equals)
{
    sortBy(0);
    add({"ana", "b"});
    EXPECT_THAT(column(list), ElementsAre("ana", "b"));

    add({"ANA"});

    EXPECT_THAT(column(list), ElementsAre("ana", "ANA", "b"));
}

TEST_F(Sorting, counts_the_sub_items_that_come_after_the_row)
{
    sortBy(1);

    addRow(list, "K1", {"a", "2"});
    EXPECT_THAT(column(list), ElementsAre("a"));
    addRow(list, "K2", {"b", "1"});

    EXPECT_THAT(column(list), ElementsAre("b", "a"));
}

TEST_F(Sorting, survives_Clear_as_a_setting)
{
    sortBy(0, ListView::descending);
    add({"a", "b"});
    ASSERT_THAT(column(list), ElementsAre("b", "a"));

    list.ListItems().Clear();
    add({"c", "e", "d"});

    EXPECT_TRUE(list.Sorted());
    EXPECT_THAT(column(list), ElementsAre("e", "d", "c"));
}

TEST_F(Sorting, leaves_the_rows_as_they_stand_when_the_flag_is_taken_away)
{
    add({"b", "c", "a"});
    list.Sorted(true);

    list.Sorted(false);
    EXPECT_THAT(column(list), ElementsAre("a", "b", "c"));

    add({"0"});
    list.SortOrder(ListView::descending);

    EXPECT_THAT(column(list), ElementsAre("a", "b", "c", "0"));
}

TEST_F(Sorting, counts_up_to_the_moment_when_the_flag_is_taken_away_though_nobody_looked_till_later)
{
    add({"b", "c", "a"});
    list.Sorted(true);
    list.Sorted(false);
    add({"0"});
    list.SortOrder(ListView::descending);

    EXPECT_THAT(column(list), ElementsAre("a", "b", "c", "0"));
}

TEST_F(Sorting, starts_again_from_the_order_shown_when_the_flag_comes_back)
{
    addRow(list, "K1", {"b", "1"});
    addRow(list, "K2", {"a", "1"});
    list.Sorted(true);
    list.Sorted(false);
    list.SortKey(1);

    list.Sorted(true);

    EXPECT_THAT(column(list), ElementsAre("a", "b"));
}

TEST_F(Sorting, by_a_column_that_no_row_has_changes_nothing)
{
    add({"b", "a"});

    sortBy(7);
    EXPECT_THAT(column(list), ElementsAre("b", "a"));
    EXPECT_EQ(list.SortKey(), 7);
}

TEST_F(Sorting, finds_rows_by_key_and_tells_their_place)
{
    addRow(list, "K1", {"b"});
    addRow(list, "K2", {"a"});

    list.Sorted(true);

    EXPECT_EQ(list.ListItems()("K1").Index(), 2);
    EXPECT_EQ(list.ListItems()("K2").Index(), 1);
}

TEST_F(Sorting, holds_after_a_row_is_removed)
{
    for (const char* text : {"c", "a", "b"})
        list.ListItems().Add(std::string("K") + text, text);
    list.Sorted(true);

    list.ListItems().Remove("Kb");
    EXPECT_THAT(column(list), ElementsAre("a", "c"));
    add({"b"});

    EXPECT_THAT(column(list), ElementsAre("a", "b", "c"));
}

} // namespace
} // namespace dn::screen
