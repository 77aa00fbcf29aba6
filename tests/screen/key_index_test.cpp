// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/key_index.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dn::screen {
namespace {

struct Keys : testing::Test {
    std::vector<std::string> keys;
    KeyIndex index;

    auto keyOf() const
    {
        return [this](KeyIndex::RowNumber row) { return std::string_view(keys[row]); };
    }

    void add(std::string key)
    {
        keys.push_back(std::move(key));
        index.insert(keys.back(), static_cast<KeyIndex::RowNumber>(keys.size() - 1));
    }

    KeyIndex::RowNumber find(std::string_view key) const { return index.find(key, keyOf()); }
};

TEST_F(Keys, none_is_found_at_first)
{
    EXPECT_EQ(find("K1"), KeyIndex::none);
    EXPECT_EQ(find(""), KeyIndex::none);
    EXPECT_EQ(index.bytes(), 0U);
}

TEST_F(Keys, ten_thousand_are_found_each_at_its_row_and_no_other)
{
    for (int i = 0; i < 10'000; ++i)
        add("K" + std::to_string(i));

    for (int i = 0; i < 10'000; ++i) {
        ASSERT_EQ(find("K" + std::to_string(i)), static_cast<KeyIndex::RowNumber>(i));
        ASSERT_EQ(find("P" + std::to_string(i)), KeyIndex::none);
    }
}

TEST_F(Keys, are_told_apart_by_case_and_length)
{
    add("K1");
    add("k1");
    add("K12");

    EXPECT_EQ(find("K1"), 0U);
    EXPECT_EQ(find("k1"), 1U);
    EXPECT_EQ(find("K12"), 2U);
    EXPECT_EQ(find("K"), KeyIndex::none);
}

TEST_F(Keys, are_gone_after_clear_and_so_is_the_memory)
{
    add("K1");
    ASSERT_GT(index.bytes(), 0U);

    index.clear();

    EXPECT_EQ(find("K1"), KeyIndex::none);
    EXPECT_EQ(index.bytes(), 0U);
    add("K2");
    EXPECT_EQ(find("K2"), 1U);
}

TEST_F(Keys, cost_at_most_twenty_bytes_each_in_a_long_list)
{
    // The table doubles: between four fifths and two fifths of it are in use.
    for (const std::size_t count : {50'000U, 100'000U, 105'000U}) {
        while (keys.size() < count)
            add("K" + std::to_string(keys.size()));
        EXPECT_LE(index.bytes(), count * 20 + 200) << count;
    }
}

} // namespace
} // namespace dn::screen
