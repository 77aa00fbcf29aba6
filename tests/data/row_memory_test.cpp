// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/row_memory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dn::data {
namespace {

using Row = std::vector<const char*>; // nullptr is a null

void append(RowMemory& memory, const Row& row)
{
    memory.append(
        [&](std::size_t i) { return row[i] == nullptr ? std::string_view() : std::string_view(row[i]); });
}

TEST(RowMemory, GivesBackWhatItTook)
{
    RowMemory memory(4);
    append(memory, {"uno", nullptr, "", "cuatro"});
    append(memory, {nullptr, nullptr, nullptr, nullptr});
    append(memory, {"", "", "", ""});
    EXPECT_EQ(memory.waiting(), 3U);
    ASSERT_TRUE(memory.next());
    EXPECT_EQ(memory.cell(0), "uno");
    EXPECT_EQ(memory.cell(1).data(), nullptr);
    EXPECT_EQ(memory.cell(2), "");
    EXPECT_NE(memory.cell(2).data(), nullptr);
    EXPECT_EQ(memory.cell(3), "cuatro");
    ASSERT_TRUE(memory.next());
    EXPECT_EQ(memory.cell(3).data(), nullptr);
    ASSERT_TRUE(memory.next());
    EXPECT_NE(memory.cell(3).data(), nullptr);
    EXPECT_FALSE(memory.next());
    EXPECT_FALSE(memory.next());
    EXPECT_EQ(memory.waiting(), 0U);
    EXPECT_EQ(memory.bytes(), 0U);
}

TEST(RowMemory, IsEmptyAtFirst)
{
    RowMemory memory(1);
    EXPECT_FALSE(memory.next());
    append(memory, {"x"});
    EXPECT_TRUE(memory.next());
    EXPECT_EQ(memory.cell(0), "x");
}

// Rows of all sizes, in and out in turns of all lengths, over many blocks.
TEST(RowMemory, KeepsTheOrderOverManyBlocks)
{
    RowMemory memory(2);
    std::size_t in = 0;
    std::size_t out = 0;
    const auto textOf = [](std::size_t i) { return std::string(i * 37 % 5000, static_cast<char>('a' + i % 26)); };
    for (std::size_t turn = 1; turn < 60; ++turn) {
        for (std::size_t i = 0; i < turn; ++i, ++in) {
            const std::string number = std::to_string(in);
            const std::string text = textOf(in);
            memory.append([&](std::size_t column) { return std::string_view(column == 0 ? number : text); });
        }
        for (std::size_t i = 0; i < turn && (turn % 3 != 0 || i < turn / 2); ++i, ++out) {
            ASSERT_TRUE(memory.next());
            ASSERT_EQ(memory.cell(0), std::to_string(out));
            ASSERT_EQ(memory.cell(1), textOf(out));
        }
    }
    EXPECT_EQ(memory.waiting(), in - out);
}

TEST(RowMemory, ThePresentRowStaysWhileOthersComeIn)
{
    RowMemory memory(1);
    append(memory, {"la fila presente"});
    ASSERT_TRUE(memory.next());
    const std::string_view cell = memory.cell(0);
    const std::string big(200'000, 'x');
    for (int i = 0; i < 20; ++i)
        memory.append([&](std::size_t) { return std::string_view(big); });
    EXPECT_EQ(cell, "la fila presente");
    EXPECT_EQ(memory.cell(0), "la fila presente");
    ASSERT_TRUE(memory.next());
    EXPECT_EQ(memory.cell(0), big);
}

TEST(RowMemory, CountsTheBytesThatItHolds)
{
    RowMemory memory(1);
    append(memory, {"1234"});
    const std::size_t one = memory.bytes();
    EXPECT_EQ(one, 12U); // where it starts, where it ends, four bytes of text
    append(memory, {"1234"});
    EXPECT_EQ(memory.bytes(), 2 * one);
}

} // namespace
} // namespace dn::data
