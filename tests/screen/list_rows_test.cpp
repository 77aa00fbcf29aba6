// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The rows of a list: numbers, positions, keys and memory, below the handles of the list view.

#include "base/runtime_error.h"
#include "screen/list_rows.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace dn::screen {
namespace {

using testing::ElementsAre;

std::vector<std::string> textsInOrder(const ListRows& rows)
{
    std::vector<std::string> texts;
    for (std::size_t position = 0; position < rows.count(); ++position)
        texts.emplace_back(rows.cell(rows.rowAt(position), 0));
    return texts;
}

void expectPositionsMatchOrder(const ListRows& rows)
{
    for (std::size_t position = 0; position < rows.count(); ++position)
        EXPECT_EQ(rows.positionOf(rows.rowAt(position)), position);
}

TEST(ListRows, finds_ten_thousand_keys_while_the_last_row_is_still_open)
{
    ListRows rows;
    for (int i = 0; i < 10'000; ++i) {
        const auto row = rows.add("K" + std::to_string(i), "text", 0);
        ASSERT_EQ(rows.find("K" + std::to_string(i)), row);
    }

    for (int i = 0; i < 10'000; ++i)
        ASSERT_EQ(rows.find("K" + std::to_string(i)), static_cast<ListRows::RowNumber>(i));
    EXPECT_EQ(rows.find("K10000"), ListRows::none);
}

TEST(ListRows, gives_the_texts_of_cells_in_one_of_the_open_row_and_of_a_closed_one)
{
    ListRows rows;
    for (const char* key : {"K1", "K2"}) {
        const auto row = rows.add(key, "own", 0);
        for (const char* text : {"a", "", "bc"})
            rows.addCell(row, text);
    }

    for (const ListRows::RowNumber row : {0U, 1U}) {
        EXPECT_EQ(rows.cellsFrom(row, 0), "ownabc");
        EXPECT_EQ(rows.cellsFrom(row, 1), "abc");
        EXPECT_EQ(rows.cellsFrom(row, 3), "bc");
        EXPECT_EQ(rows.cellsFrom(row, 4), "");
    }
}

TEST(ListRows, refuses_a_repeated_key_of_the_open_row_and_of_a_closed_one)
{
    ListRows rows;
    rows.add("K1", "one", 0);
    EXPECT_THROW(rows.add("K1", "again", 0), RuntimeError);
    rows.add("K2", "two", 0);
    EXPECT_THROW(rows.add("K1", "again", 0), RuntimeError);

    EXPECT_EQ(rows.count(), 2U);
    EXPECT_THAT(textsInOrder(rows), ElementsAre("one", "two"));
}

TEST(ListRows, goes_on_with_the_open_row_after_a_refused_key)
{
    ListRows rows;
    const auto row = rows.add("K1", "one", 0);

    EXPECT_THROW(rows.add("K1", "again", 0), RuntimeError);
    rows.edit(row, [](RowDraft& draft) { draft.add("sub"); });
    rows.add("K2", "two", 0);

    EXPECT_EQ(rows.cellCount(row), 2U);
    EXPECT_EQ(rows.cell(row, 1), "sub");
}

TEST(ListRows, takes_key_and_text_out_of_its_own_open_row)
{
    ListRows rows;
    const auto row = rows.add("K1", "a text that is too long to lie inside its string object", 3);

    const auto copy = rows.add("", rows.cell(row, 0), rows.smallIcon(row));
    const auto copyOfCopy = rows.add("", rows.cell(copy, 0), rows.smallIcon(copy));
    const auto fromKey = rows.add("", rows.key(row), 0);

    EXPECT_EQ(rows.cell(copy, 0), rows.cell(row, 0));
    EXPECT_EQ(rows.cell(copyOfCopy, 0), rows.cell(row, 0));
    EXPECT_EQ(rows.cell(fromKey, 0), "K1");
}

TEST(ListRows, starts_each_row_without_what_the_one_before_had)
{
    ListRows rows;
    const auto first = rows.add("K1", "one", 2);
    rows.edit(first, [](RowDraft& draft) {
        draft.add("sub");
        draft.toolTip = "tip";
        draft.style(1).icon = 5;
        draft.foreColour = 0xFF;
        draft.bold = true;
        draft.checked = true;
    });

    const auto second = rows.add("", "", 0);

    EXPECT_EQ(rows.cellCount(second), 1U);
    EXPECT_EQ(rows.key(second), "");
    EXPECT_EQ(rows.toolTip(second), "");
    EXPECT_EQ(rows.reportIcon(second, 1), 0);
    EXPECT_EQ(rows.colour(second, 0), 0U);
    EXPECT_FALSE(rows.bold(second));
    EXPECT_FALSE(rows.checked(second));
    EXPECT_EQ(rows.smallIcon(second), 0);
}

// A row answers alike while it is open and once it lies in its block.
TEST(ListRows, an_open_row_and_a_closed_one_answer_alike)
{
    ListRows rows;
    const auto row = rows.add("K1", "one", 1);
    rows.edit(row, [](RowDraft& draft) {
        draft.add("sub");
        draft.toolTip = "tip";
        draft.style(1).icon = 5;
        draft.style(1).hasColour = true;
        draft.style(1).colour = 0xFF0000;
        draft.foreColour = 0xFF;
        draft.bold = true;
    });
    for (const bool closed : {false, true}) {
        SCOPED_TRACE(closed);
        if (closed) rows.add("K2", "two", 0);
        rows.checked(row, true);
        rows.smallIcon(row, 4);
        EXPECT_EQ(rows.key(row), "K1");
        EXPECT_EQ(rows.cellCount(row), 2U);
        EXPECT_EQ(rows.cell(row, 1), "sub");
        EXPECT_EQ(rows.cell(row, 2), "");
        EXPECT_EQ(rows.toolTip(row), "tip");
        EXPECT_EQ(rows.reportIcon(row, 1), 5);
        EXPECT_EQ(rows.reportIcon(row, 0), 0);
        EXPECT_EQ(rows.colour(row, 0), 0xFFU);
        EXPECT_EQ(rows.colour(row, 1), 0xFF0000U);
        EXPECT_TRUE(rows.bold(row));
        EXPECT_TRUE(rows.checked(row));
        EXPECT_EQ(rows.smallIcon(row), 4);
        rows.checked(row, false);
        EXPECT_FALSE(rows.checked(row));
        rows.smallIcon(row, 300);
        EXPECT_EQ(rows.smallIcon(row), 0);
    }
}

TEST(ListRows, a_row_that_comes_after_a_sort_stands_at_the_end)
{
    ListRows rows;
    for (const char* text : {"c", "a", "b"})
        rows.add("", text, 0);
    rows.sort(0, false);

    const auto late = rows.add("", "0", 0);

    EXPECT_THAT(textsInOrder(rows), ElementsAre("a", "b", "c", "0"));
    EXPECT_EQ(rows.positionOf(late), 3U);
    expectPositionsMatchOrder(rows);
}

TEST(ListRows, removing_moves_numbers_positions_and_keys_of_the_rest)
{
    ListRows rows;
    for (const char* text : {"d", "a", "c", "b"})
        rows.add(std::string("K") + text, text, 0);
    rows.sort(0, false);

    rows.remove(rows.find("Ka"));

    EXPECT_THAT(textsInOrder(rows), ElementsAre("b", "c", "d"));
    expectPositionsMatchOrder(rows);
    EXPECT_EQ(rows.find("Ka"), ListRows::none);
    EXPECT_EQ(rows.find("Kd"), 0U);
    EXPECT_EQ(rows.find("Kc"), 1U);
    EXPECT_EQ(rows.find("Kb"), 2U);
}

TEST(ListRows, the_last_row_can_be_removed_and_the_list_used_again)
{
    ListRows rows;
    rows.add("K1", "one", 0);
    rows.sort(0, false);

    rows.remove(0);
    EXPECT_EQ(rows.count(), 0U);
    EXPECT_EQ(rows.find("K1"), ListRows::none);

    rows.add("K1", "again", 0);
    EXPECT_THAT(textsInOrder(rows), ElementsAre("again"));
}

TEST(ListRows, clear_gives_the_memory_back)
{
    ListRows rows;
    for (int i = 0; i < 1000; ++i)
        rows.add("K" + std::to_string(i), "text", 0);
    rows.sort(0, true);
    ASSERT_GT(rows.overhead(), 0U);

    rows.clear();

    EXPECT_EQ(rows.count(), 0U);
    EXPECT_EQ(rows.overhead(), 0U);
    EXPECT_EQ(rows.find("K1"), ListRows::none);
}

void addProspect(ListRows& rows, int key)
{
    const auto row = rows.add("K" + std::to_string(key), "Contacto", 1);
    rows.edit(row, [](RowDraft& draft) {
        for (const char* text :
             {"Sistema de ventas", "2024-03-01 10:30:00", "María Fernanda Núñez", "mfnunez@example.com",
              "961 123 4567", "Distribuidora del Sureste", "Gerente", "Tuxtla", "Chiapas", "México", "2024-02-01",
              "029", "2024-02-20", "9", "2024-02-25", "4"})
            draft.add(text);
        draft.toolTip = "Pide una demostración\r\nhttp://example.com/";
        draft.style(2).icon = 5;
    });
}

TEST(ListRows, a_hundred_thousand_prospects_cost_less_than_80_bytes_each_beside_their_text)
{
    constexpr std::size_t count = 100'000;
    ListRows rows;
    for (std::size_t i = 0; i < count; ++i)
        addProspect(rows, static_cast<int>(i));

    ASSERT_EQ(rows.cellCount(0), 17U);
    EXPECT_LT(rows.overhead(), count * 80);
    EXPECT_GT(rows.overhead(), count * 50); // the blocks are counted too
}

} // namespace
} // namespace dn::screen
