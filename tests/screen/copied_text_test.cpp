// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What an operator copies from a list.

#include "screen/copied_text.h"
#include "tests/support/prospect_list.h"

#include <gtest/gtest.h>

namespace dn::screen {
namespace {

using tests::addRow;

struct CopiedText : testing::Test, tests::ListOnScreen {
    CopiedText()
    {
        list.ClearColumns();
        list.AddColumn("Nombre", 1000);
        list.AddColumn("Correos", 1000);
        addRow(list, "K1", {"b", "b@x"});
        addRow(list, "K2", {"a", "a@x"});
        addRow(list, "K3", {"c", "c@x"});
    }

    std::string copied(std::vector<CellRange> ranges) { return copiedText(list, std::move(ranges)); }
};

TEST_F(CopiedText, has_a_line_for_each_row_and_a_tab_between_cells)
{
    EXPECT_EQ(copied({{0, 1, 0, 1}}), "b\tb@x\na\ta@x");
    EXPECT_EQ(copied({{1, 1, 1, 1}}), "a@x");
    EXPECT_EQ(copied({{0, 2, 1, 1}}), "b@x\na@x\nc@x");
    EXPECT_EQ(copied({}), "");
}

TEST_F(CopiedText, has_the_rows_in_the_order_shown_and_nothing_twice)
{
    EXPECT_EQ(copied({{2, 2, 0, 1}, {0, 0, 0, 1}, {0, 0, 0, 0}}), "b\tb@x\nc\tc@x");
    EXPECT_EQ(copied({{0, 2, 0, 0}, {1, 1, 0, 0}}), "b\na\nc");
    list.Sorted(true);
    EXPECT_EQ(copied({{0, 2, 0, 0}}), "a\nb\nc");
}

TEST_F(CopiedText, leaves_scattered_cells_in_their_columns)
{
    EXPECT_EQ(copied({{0, 0, 0, 0}, {1, 1, 1, 1}}), "b\t\n\ta@x");
    EXPECT_EQ(copied({{0, 1, 1, 1}, {1, 2, 0, 0}}), "\tb@x\na\ta@x\nc\t");
}

TEST_F(CopiedText, has_what_is_there_of_a_range)
{
    EXPECT_EQ(copied({{2, 9, 1, 9}}), "c@x");
    EXPECT_EQ(copied({{7, 9, 0, 1}}), "");
    EXPECT_EQ(copied({{0, 0, 5, 6}}), "");
    list.ListItems().Clear();
    EXPECT_EQ(copied({{0, 0, 0, 1}}), "");
}

TEST_F(CopiedText, has_the_columns_as_they_were_moved_and_their_captions_where_asked_for)
{
    const auto form = [&](std::vector<CellRange> ranges, CopyForm wanted) {
        return copiedText(list, std::move(ranges), wanted);
    };
    EXPECT_EQ(form({{0, 1, 0, 1}}, {{1, 0}, false}), "b@x\tb\na@x\ta");
    EXPECT_EQ(form({{0, 0, 0, 1}}, {{1, 0}, true}), "Correos\tNombre\nb@x\tb");
    EXPECT_EQ(form({{0, 0, 1, 1}}, {{}, true}), "Correos\nb@x");
    EXPECT_EQ(form({{0, 0, 0, 1}}, {{1, 7, 0}, false}), "b@x\tb");
    EXPECT_EQ(form({{0, 0, 5, 6}}, {{}, true}), "");
}

TEST_F(CopiedText, holds_a_text_together_that_would_fall_apart)
{
    addRow(list, "K4", {"dos\nlíneas", "con \"comillas\""});
    addRow(list, "K5", {"un\ttabulador", "\"así\""});
    addRow(list, "K6", {"a\rb", ""});
    EXPECT_EQ(copied({{3, 5, 0, 1}}), "\"dos\nlíneas\"\tcon \"comillas\"\n"
                                      "\"un\ttabulador\"\t\"\"\"así\"\"\"\n\"a\rb\"\t");
}

} // namespace
} // namespace dn::screen
