// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A row packed into its block reads back as it was drafted, whatever its size.

#include "screen/row_block.h"

#include <gmock/gmock.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace dn::screen {

// Only for the comparisons below.
static bool operator==(const CellStyle& left, const CellStyle& right)
{
    return left.cell == right.cell && left.icon == right.icon && left.hasColour == right.hasColour &&
           left.colour == right.colour;
}

namespace {

using testing::ElementsAre;

RowDraft draftOf(std::string key, const std::vector<std::string>& cells, std::string toolTip = {})
{
    RowDraft draft;
    draft.key = std::move(key);
    for (const std::string& cell : cells)
        draft.add(cell);
    draft.toolTip = std::move(toolTip);
    return draft;
}

std::vector<std::string> cellsOf(const RowBlock& row)
{
    std::vector<std::string> cells;
    for (std::size_t i = 0; i < row.cellCount(); ++i)
        cells.emplace_back(row.cell(i));
    return cells;
}

void expectSame(const RowDraft& left, const RowDraft& right)
{
    EXPECT_EQ(left.key, right.key);
    EXPECT_EQ(left.cells, right.cells);
    EXPECT_EQ(left.ends, right.ends);
    EXPECT_EQ(left.toolTip, right.toolTip);
    EXPECT_EQ(left.styles, right.styles);
    EXPECT_EQ(left.foreColour, right.foreColour);
    EXPECT_EQ(left.smallIcon, right.smallIcon);
    EXPECT_EQ(left.bold, right.bold);
    EXPECT_EQ(left.checked, right.checked);
}

struct Shape {
    const char* name;
    std::string key;
    std::vector<std::string> cells;
    std::string toolTip;
};

// Printed by the name of the case and not by 70,000 letters.
void PrintTo(const Shape& shape, std::ostream* out) { *out << shape.name; }

class RowShapes : public testing::TestWithParam<Shape> {};

TEST_P(RowShapes, read_back_as_drafted)
{
    const RowDraft draft = draftOf(GetParam().key, GetParam().cells, GetParam().toolTip);
    RowArena arena;
    const RowBlock row(draft, arena);

    EXPECT_EQ(row.key(), GetParam().key);
    EXPECT_EQ(cellsOf(row), GetParam().cells);
    EXPECT_EQ(row.toolTip(), GetParam().toolTip);
    RowDraft back = draftOf("left", {"over", "from", "before"}, "tip");
    row.copyTo(back);
    expectSame(back, draft);
}

const std::string longText(70'000, 'x');
const std::string nearlyLong(65'535 - 6, 'y'); // with a key of 2, a cell of 3 and a tip of 1: the narrow maximum

INSTANTIATE_TEST_SUITE_P(All, RowShapes,
                         testing::Values(Shape{"nothing at all", "", {""}, ""}, //
                                         Shape{"a key alone", "K1", {""}, ""},
                                         Shape{"empty cells in between", "K1", {"", "a", "", "", "b", ""}, ""},
                                         Shape{"a tip alone", "", {""}, "tip"}, //
                                         Shape{"no cells", "K1", {}, "tip"},
                                         Shape{"many cells", "K1", std::vector<std::string>(300, "celda ñ"),
                                               "tip"},
                                         Shape{"bytes of nothing", "K1", {std::string("a\0b", 3)}, "t"},
                                         Shape{"the last narrow size", "K1", {"abc", nearlyLong}, "t"},
                                         Shape{"the first wide size", "K1", {"abcd", nearlyLong}, "t"},
                                         Shape{"a long cell", "K1", {"before", longText, "behind"}, "tip"},
                                         Shape{"a long key", longText, {"text"}, "tip"},
                                         Shape{"a long tip", "K1", {"text", "sub"}, longText}));

TEST(RowBlock, keeps_colour_icon_and_flags)
{
    RowDraft draft = draftOf("K1", {"text"});
    draft.foreColour = 0x800080;
    draft.smallIcon = 4;
    draft.bold = true;
    draft.checked = true;

    RowArena arena;
    const RowBlock row(draft, arena);

    EXPECT_EQ(row.foreColour(), 0x800080U);
    EXPECT_EQ(row.smallIcon(), 4);
    EXPECT_TRUE(row.bold());
    EXPECT_TRUE(row.checked());
    RowDraft back;
    row.copyTo(back);
    expectSame(back, draft);
}

TEST(RowBlock, changes_flags_and_icon_in_place)
{
    RowArena arena;
    RowBlock row(draftOf("K1", {"text", "sub"}, "tip"), arena);
    EXPECT_FALSE(row.checked());
    EXPECT_FALSE(row.bold());
    EXPECT_EQ(row.foreColour(), 0U);

    row.checked(true);
    row.smallIcon(3);

    EXPECT_TRUE(row.checked());
    EXPECT_EQ(row.smallIcon(), 3);
    EXPECT_THAT(cellsOf(row), ElementsAre("text", "sub"));
    EXPECT_EQ(row.toolTip(), "tip");
}

TEST(RowBlock, keeps_many_styles_each_with_its_cell)
{
    RowDraft draft = draftOf("K1", std::vector<std::string>(100, "c"), "tip");
    for (std::size_t cell = 0; cell < 100; cell += 2) {
        CellStyle& style = draft.style(cell);
        style.icon = static_cast<std::uint8_t>(cell);
        style.hasColour = true;
        style.colour = static_cast<Colour>(cell * 1000);
    }

    RowArena arena;
    const RowBlock row(draft, arena);

    for (std::size_t cell = 0; cell < 100; cell += 2) {
        const CellStyle* const style = row.style(cell);
        ASSERT_NE(style, nullptr) << cell;
        EXPECT_EQ(style->icon, cell);
        EXPECT_EQ(style->colour, cell * 1000);
        EXPECT_EQ(row.style(cell + 1), nullptr);
    }
    EXPECT_EQ(row.cell(99), "c");
    EXPECT_EQ(row.toolTip(), "tip");
    RowDraft back;
    row.copyTo(back);
    expectSame(back, draft);
}

TEST(RowBlock, is_written_over_its_own_place_where_it_fits)
{
    RowArena arena;
    RowBlock row(draftOf("K1", {"a long text", "sub"}, "tip"), arena);
    const RowBlock neighbour(draftOf("K2", {"next"}), arena);
    const std::size_t taken = arena.bytes();
    for (int i = 0; i < 10'000; ++i)
        row.rewrite(draftOf("K1", {"short", "sub"}, ""), arena);
    EXPECT_EQ(arena.bytes(), taken);
    EXPECT_EQ(row.cell(0), "short");
    EXPECT_EQ(row.toolTip(), "");
    EXPECT_EQ(neighbour.key(), "K2");
    EXPECT_EQ(neighbour.cell(0), "next");
}

TEST(RowBlock, is_written_elsewhere_where_it_grew)
{
    RowArena arena;
    RowBlock row(draftOf("K1", {"one"}), arena);
    const RowBlock neighbour(draftOf("K2", {"next"}), arena);
    const std::string large(5'000, 'x');
    row.rewrite(draftOf("K1", {large}), arena);
    EXPECT_EQ(row.cell(0), large);
    EXPECT_EQ(neighbour.cell(0), "next");
}

TEST(RowArena, keeps_what_it_gave_until_it_is_cleared)
{
    RowArena arena;
    std::vector<unsigned char*> places;
    for (std::size_t size = 1; size < 2'000; ++size) {
        places.push_back(static_cast<unsigned char*>(arena.allocate(size)));
        std::memset(places.back(), static_cast<int>(size % 256), size);
    }
    for (std::size_t size = 1; size < 2'000; ++size)
        for (std::size_t i = 0; i < size; ++i)
            ASSERT_EQ(places[size - 1][i], size % 256);
    EXPECT_GE(arena.bytes(), 1'999'000U);
    EXPECT_LT(arena.bytes(), 3'000'000U);
    arena.clear();
    EXPECT_EQ(arena.bytes(), 0U);
}

TEST(RowArena, gives_a_block_larger_than_its_pieces)
{
    RowArena arena;
    constexpr std::size_t large = 10'000'000;
    auto* place = static_cast<char*>(arena.allocate(large));
    std::memset(place, 'x', large);
    EXPECT_EQ(place[large - 1], 'x');
    EXPECT_GE(arena.bytes(), large);
}

TEST(RowDraft, makes_the_style_of_a_cell_once)
{
    RowDraft draft = draftOf("K1", {"a", "b"});

    draft.style(1).icon = 5;
    draft.style(1).colour = 7;

    EXPECT_THAT(draft.styles, ElementsAre(CellStyle{1, 5, false, 7}));
}

TEST(RowDraft, is_as_new_after_clear)
{
    RowDraft draft = draftOf("K1", {"a"}, "tip");
    draft.style(0).icon = 1;
    draft.foreColour = 1;
    draft.smallIcon = 1;
    draft.bold = true;
    draft.checked = true;

    draft.clear();

    expectSame(draft, RowDraft());
}

TEST(RowDraft, gives_each_cell_by_its_place)
{
    const RowDraft draft = draftOf("K1", {"uno", "", "tres"});

    EXPECT_EQ(draft.cell(0), "uno");
    EXPECT_EQ(draft.cell(1), "");
    EXPECT_EQ(draft.cell(2), "tres");
}

TEST(iconNumber, is_0_for_what_no_image_list_has)
{
    EXPECT_EQ(iconNumber(0), 0);
    EXPECT_EQ(iconNumber(6), 6);
    EXPECT_EQ(iconNumber(255), 255);
    EXPECT_EQ(iconNumber(256), 0);
    EXPECT_EQ(iconNumber(-1), 0);
}

TEST(RowDraft, replaces_one_cell_and_leaves_the_others)
{
    RowDraft draft = draftOf("K1", {"uno", "", "tres"}, "pista");
    const auto cells = [&draft] {
        std::vector<std::string> texts;
        for (std::size_t i = 0; i < draft.ends.size(); ++i)
            texts.emplace_back(draft.cell(i));
        return texts;
    };
    draft.replace(1, "dos y más");
    EXPECT_THAT(cells(), ElementsAre("uno", "dos y más", "tres"));
    draft.replace(0, "");
    EXPECT_THAT(cells(), ElementsAre("", "dos y más", "tres"));
    draft.replace(2, draft.cell(1)); // one of its own
    EXPECT_THAT(cells(), ElementsAre("", "dos y más", "dos y más"));
    EXPECT_EQ(draft.key, "K1");
    EXPECT_EQ(draft.toolTip, "pista");
}

} // namespace
} // namespace dn::screen
