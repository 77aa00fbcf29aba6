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

TEST_F(Keys, that_are_there_are_not_added_again)
{
    for (int i = 0; i < 3000; ++i) {
        keys.push_back("K" + std::to_string(i));
        ASSERT_TRUE(index.insertNew(keys.back(), static_cast<KeyIndex::RowNumber>(i), keyOf()));
        ASSERT_FALSE(index.insertNew(keys.back(), KeyIndex::RowNumber{7}, keyOf()));
    }
    for (int i = 0; i < 3000; ++i)
        ASSERT_EQ(find("K" + std::to_string(i)), static_cast<KeyIndex::RowNumber>(i));
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

TEST_F(Keys, of_other_letters_without_a_number_or_written_otherwise_are_found_too)
{
    const std::vector<std::string> all{
        "K7", "K07", "P7", "PK7", "K", "7", "K7a", "K-7", "K4294967295", "K4294967296", "K99999999999999999999",
        "K0", "K00", "Ñ7"};
    for (const std::string& key : all)
        add(key);

    for (std::size_t i = 0; i < all.size(); ++i)
        EXPECT_EQ(find(all[i]), i) << all[i];
    for (const char* key : {"K1", "K007", "P07", "k7", "K 7", "K7 ", "K4294967294", ""})
        EXPECT_EQ(find(key), KeyIndex::none) << key;
}

TEST_F(Keys, that_begin_with_one_far_away_are_found_each)
{
    add("K900000");
    for (int i = 0; i < 1000; ++i)
        add("K" + std::to_string(i * 7));

    EXPECT_EQ(find("K900000"), 0U);
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(find("K" + std::to_string(i * 7)), static_cast<KeyIndex::RowNumber>(i + 1));
    EXPECT_EQ(find("K8"), KeyIndex::none);
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

TEST_F(Keys, of_numbers_that_come_in_any_order_are_found_each)
{
    constexpr std::size_t count = 100'003; // a prime: each number comes once
    for (std::size_t i = 0; i < count; ++i)
        add("K" + std::to_string(i * 48'271 % count));

    for (std::size_t i = 0; i < count; ++i)
        ASSERT_EQ(find(keys[i]), i);
}

} // namespace
} // namespace dn::screen
