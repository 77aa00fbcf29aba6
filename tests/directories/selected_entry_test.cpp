// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Reading the key and the cells of the selected row.

#include "directories/selected_entry.h"
#include "tests/support/prospect_list.h"

#include <gtest/gtest.h>

namespace dn::directories {
namespace {

struct Entry : testing::Test {
    tests::ListOnScreen screen;

    std::int32_t keyOf(const std::string& rowKey)
    {
        screen.list.ListItems().Clear();
        tests::addRow(screen.list, rowKey, {"a", "b"});
        std::int32_t result = 77;
        ItemKeyPK(screen.list, result);
        return result;
    }
};

TEST_F(Entry, has_the_number_behind_its_prefix_in_either_case)
{
    EXPECT_EQ(keyOf("PK12"), 12);
    EXPECT_EQ(keyOf("pk12"), 12);
    EXPECT_EQ(keyOf("PK2147483647"), 2'147'483'647);
    EXPECT_EQ(keyOf("PKpk5PK"), 5) << "every one of them is taken out";
    EXPECT_EQ(keyOf("pPKk6"), 6) << "the capitals first, then what they leave";
}

TEST_F(Entry, has_the_key_0_when_there_is_no_number)
{
    for (const char* key : {"PK", "PKx", "Pk12", "PK2147483648", "K 1"})
        EXPECT_EQ(keyOf(key), 0) << key;
}

TEST_F(Entry, has_the_key_0_and_no_text_when_no_row_is_selected)
{
    std::int32_t key = 77;
    ItemKeyPK(screen.list, key);
    EXPECT_EQ(key, 0);
    std::string text = "x";
    ItemSubText(screen.list, 1, text);
    EXPECT_EQ(text, "");
}

TEST_F(Entry, gives_its_sub_items_and_nothing_beyond_them)
{
    tests::addRow(screen.list, "PK1", {"código", "Ana", "Ruiz"});
    std::string text;
    ItemSubText(screen.list, 2, text);
    EXPECT_EQ(text, "Ruiz");
    for (const int index : {0, 3, -1}) {
        text = "x";
        ItemSubText(screen.list, static_cast<std::int16_t>(index), text);
        EXPECT_EQ(text, "") << index;
    }
}

} // namespace
} // namespace dn::directories
