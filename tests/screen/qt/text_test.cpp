// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What of a very long text a widget is given to show.

#include "screen/qt/text.h"

#include <gtest/gtest.h>

namespace dn::tests {
namespace {

using screen::qt::beginningOf;
using screen::qt::readablePart;

std::string enyes(std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += "ñ";
    return text;
}

TEST(LongTexts, in_a_cell_are_shown_by_their_beginning)
{
    EXPECT_EQ(beginningOf(std::string(1'000, 'x')).size(), 1'000);
    EXPECT_EQ(beginningOf(std::string(1'001, 'x')).size(), 1'000);
    EXPECT_EQ(beginningOf("x" + enyes(600)).size(), 500) << "the last character would be half a one";
    EXPECT_FALSE(beginningOf("x" + enyes(600)).contains(QChar(QChar::ReplacementCharacter)));
    EXPECT_EQ(beginningOf(std::string(2'000, '\x80')).size(), 997) << "bytes that are no text";
}

TEST(LongTexts, in_a_box_lose_the_ends_of_lines_without_end)
{
    EXPECT_EQ(readablePart(""), "");
    const std::string longest(20'000, 'x');
    EXPECT_EQ(readablePart(longest), longest);
    EXPECT_EQ(readablePart(longest + "y"), longest + "…");
    EXPECT_EQ(readablePart(longest + "y\r\nfin\n"), longest + "…\r\nfin\n");
    EXPECT_EQ(readablePart(longest + "\r\nfin"), longest + "\r\nfin");
}

TEST(LongTexts, in_a_box_are_whole_up_to_four_million_bytes)
{
    std::string lines;
    while (lines.size() < 4'000'000)
        lines += "una línea\r\n";
    EXPECT_EQ(readablePart(lines), lines);
    EXPECT_EQ(readablePart(lines + "y otra\r\n"), lines + "…");
}

} // namespace
} // namespace dn::tests
