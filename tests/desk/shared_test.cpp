// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/runtime_error.h"
#include "desk/row_key.h"
#include "desk/shared.h"
#include "screen/panels.h"
#include "tests/support/prospect_list.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace dn::desk {
namespace {

using data::Value;
using Kind = data::Value::Kind;

struct TextCase {
    Value value;
    std::string text;
};

class NullATextoCases : public testing::TestWithParam<TextCase> {};

TEST_P(NullATextoCases, replaces_what_stood_there_by_the_text_form)
{
    std::string result = "what stood there before";

    NullATexto(GetParam().value, result);

    EXPECT_EQ(result, GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    All, NullATextoCases,
    testing::Values(TextCase{Value(), ""}, TextCase{Value(Kind::text, ""), ""},
                    TextCase{Value(Kind::text, " Ñandú "), " Ñandú "},
                    TextCase{Value(Kind::text, "2024-01-02"), "2024-01-02"},
                    TextCase{Value(Kind::whole, "-12345"), "-12345"},
                    TextCase{Value(Kind::number, "1234.50"), "1234.50"},
                    TextCase{Value(Kind::boolean, "1"), "Verdadero"}, TextCase{Value(Kind::boolean, "0"), "Falso"},
                    TextCase{Value(Kind::dateTime, "2024-03-01 09:05:00"), "01/03/2024 09:05:00"},
                    TextCase{Value(Kind::dateTime, "2024-03-01"), "01/03/2024"},
                    TextCase{Value(Kind::dateTime, "2024-03-01 00:00:00"), "01/03/2024"},
                    TextCase{Value(Kind::dateTime, "09:05:00"), "09:05:00"}));

TEST(ColorProyecto, follows_the_table_of_marks)
{
    EXPECT_EQ(ColorProyecto(0), 0x000000U);
    EXPECT_EQ(ColorProyecto(1), 0x0000FFU);
    EXPECT_EQ(ColorProyecto(2), 0x004000U);
    EXPECT_EQ(ColorProyecto(3), 0xFF0000U);
    EXPECT_EQ(ColorProyecto(4), 0x800080U);
}

TEST(ColorProyecto, is_0_for_every_other_code)
{
    for (const std::int64_t code : {std::int64_t{-1}, std::int64_t{5}, std::numeric_limits<std::int64_t>::max(),
                                    std::numeric_limits<std::int64_t>::min(), std::int64_t{0x100000001}})
        EXPECT_EQ(ColorProyecto(code), 0U) << code;
}

TEST(ColorProyecto, reads_the_field_of_a_row)
{
    EXPECT_EQ(ColorProyecto(Value()), 0U);
    EXPECT_EQ(ColorProyecto(Value(Kind::whole, "3")), 0xFF0000U);
    EXPECT_EQ(ColorProyecto(Value(Kind::text, "2")), 0x004000U);
    EXPECT_EQ(ColorProyecto(Value(Kind::whole, "9")), 0U);
}

struct Painting : testing::Test, tests::ListOnScreen {
    screen::ListItem item = tests::addRow(list, "K1", {"Contacto", "a", "b"});

    void expectLook(screen::Colour colour, bool bold)
    {
        EXPECT_EQ(item.ForeColor(), colour);
        EXPECT_EQ(item.Bold(), bold);
        for (int cell = 1; cell <= 2; ++cell) {
            EXPECT_EQ(item.ListSubItems()(cell).ForeColor(), colour);
            EXPECT_EQ(item.ListSubItems()(cell).Bold(), bold);
        }
    }
};

TEST_F(Painting, gives_the_row_and_its_cells_one_colour_and_bold_type)
{
    PaintProyItem(item, 0x004000);

    expectLook(0x004000, true);
}

TEST_F(Painting, with_0_takes_colour_and_bold_type_away)
{
    PaintProyItem(item, 0x0000FF);
    item.ListSubItems()(1).ForeColor(0xFF8080);

    PaintProyItem(item, 0);

    expectLook(0, false);
}

TEST_F(Painting, leaves_other_rows_alone)
{
    const screen::ListItem other = tests::addRow(list, "K2", {"Contacto"});

    PaintProyItem(item, 0x0000FF);

    EXPECT_EQ(other.ForeColor(), 0U);
    EXPECT_FALSE(other.Bold());
}

TEST(RowKey, is_what_stands_behind_the_first_letter)
{
    screen::UserControl control("control");
    screen::ListView list(&control, "list");
    EXPECT_EQ(keyDigits(list.ListItems().Add("K123", "")), "123");
    EXPECT_EQ(keyNumber(list.ListItems()("K123")), 123);
    const screen::ListItem without = list.ListItems().Add("", "");
    EXPECT_EQ(keyDigits(without), "");
    EXPECT_THROW(keyNumber(without), RuntimeError);
    EXPECT_EQ(selectedRow(list).Key(), "K123");
    list.ListItems().Clear();
    EXPECT_THROW(selectedRow(list), RuntimeError);
}

} // namespace
} // namespace dn::desk
