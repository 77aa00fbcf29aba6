// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// When a sort that was measured counts as done.

#include "bench/order.h"

#include <gtest/gtest.h>

namespace dn::bench {
namespace {

TEST(InOrder, asks_every_pair_of_neighbours)
{
    screen::ListView list(nullptr, "lvw");
    for (const char* text : {"ana", "Álvaro", "Beto"})
        list.ListItems().Add({}, text);
    EXPECT_FALSE(isInOrder(list.rows(), 0, false)) << "an accent does not part Álvaro from ana by more than his l";
    list.ListItems().Clear();
    for (const char* text : {"Álvaro", "ana", "ana", "Beto"})
        list.ListItems().Add({}, text);
    EXPECT_TRUE(isInOrder(list.rows(), 0, false)) << "equal neighbours are in order";
    EXPECT_FALSE(isInOrder(list.rows(), 0, true));
    list.ListItems().Add({}, "beta");
    EXPECT_FALSE(isInOrder(list.rows(), 0, false)) << "the last one, too";
}

TEST(InOrder, goes_by_the_cell_and_the_direction)
{
    screen::ListView list(nullptr, "lvw");
    list.ListItems().Add({}, "a").ListSubItems().Add("2");
    list.ListItems().Add({}, "b").ListSubItems().Add("1");
    EXPECT_TRUE(isInOrder(list.rows(), 0, false));
    EXPECT_FALSE(isInOrder(list.rows(), 1, false));
    EXPECT_TRUE(isInOrder(list.rows(), 1, true));
}

} // namespace
} // namespace dn::bench
