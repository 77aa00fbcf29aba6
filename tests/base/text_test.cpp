// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dn {
namespace {

using namespace std::string_literals;

TEST(Length, CountsCharactersAndNotBytes)
{
    EXPECT_EQ(length(""), 0U);
    EXPECT_EQ(length("abc"), 3U);
    EXPECT_EQ(length("ñandú"), 5U);
    EXPECT_EQ(length("€😀"), 2U);
    EXPECT_EQ(length("a\0b"s), 3U);
}

// Each byte that belongs to no valid sequence counts as one character.
TEST(Length, CountsEachInvalidByte)
{
    EXPECT_EQ(length("\xFF\xFE"), 2U);
    EXPECT_EQ(length("\xC3"), 1U);             // cut off at the end
    EXPECT_EQ(length("\xE2\x82"), 2U);         // two of three bytes
    EXPECT_EQ(length("\xF0\x9F\x98"), 3U);     // three of four
    EXPECT_EQ(length("\x80\xBF"), 2U);         // continuations without a start
    EXPECT_EQ(length("\xC0\x80"), 2U);         // an overlong NUL
    EXPECT_EQ(length("\xE0\x80\xAF"), 3U);     // an overlong slash
    EXPECT_EQ(length("\xED\xA0\x80"), 3U);     // a surrogate
    EXPECT_EQ(length("\xF4\x90\x80\x80"), 4U); // beyond the last character
    EXPECT_EQ(length("\xF5\x80\x80\x80"), 4U);
    EXPECT_EQ(length("a\xC3z"), 3U); // the byte behind a broken start is read for itself
}

TEST(Trimmed, TakesBlanksOffBothEndsAndNothingElse)
{
    EXPECT_EQ(trimmed("  a b  "), "a b");
    EXPECT_EQ(trimmed("a"), "a");
    EXPECT_EQ(trimmed(""), "");
    EXPECT_EQ(trimmed("    "), "");
    EXPECT_EQ(trimmed(" \t x \n "), "\t x \n");
    EXPECT_EQ(trimmed("\u00A0x\u00A0"), "\u00A0x\u00A0"); // the blank that does not break
}

TEST(Without, TakesEveryPlaceOutOnceFromTheLeft)
{
    EXPECT_EQ(without("a'b''c'", "'"), "abc");
    EXPECT_EQ(without("a\r\nb\nc\r\n", crlf), "ab\nc");
    EXPECT_EQ(without("PPKK", "PK"), "PK"); // what comes together stays
    EXPECT_EQ(without("", "x"), "");
    EXPECT_EQ(without("x", "xy"), "x");
}

struct CharacterCase {
    const char* name;
    std::string bytes;
    char32_t character;
};

class Characters : public ::testing::TestWithParam<CharacterCase> {};

TEST_P(Characters, AreReadAndWrittenAlike)
{
    std::string_view rest = GetParam().bytes;
    EXPECT_EQ(takeCharacter(rest), GetParam().character);
    EXPECT_EQ(rest, "");
    std::string written;
    appendCharacter(written, GetParam().character);
    EXPECT_EQ(written, GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Edges, Characters,
                         ::testing::Values(CharacterCase{"Nul", "\0"s, 0},
                                           CharacterCase{"LastOfOne", "\x7F", 0x7F},
                                           CharacterCase{"FirstOfTwo", "\xC2\x80", 0x80},
                                           CharacterCase{"LastOfTwo", "\xDF\xBF", 0x7FF},
                                           CharacterCase{"FirstOfThree", "\xE0\xA0\x80", 0x800},
                                           CharacterCase{"AheadOfSurrogates", "\xED\x9F\xBF", 0xD7FF},
                                           CharacterCase{"BehindSurrogates", "\xEE\x80\x80", 0xE000},
                                           CharacterCase{"LastOfThree", "\xEF\xBF\xBF", 0xFFFF},
                                           CharacterCase{"FirstOfFour", "\xF0\x90\x80\x80", 0x10000},
                                           CharacterCase{"Last", "\xF4\x8F\xBF\xBF", 0x10FFFF},
                                           CharacterCase{"InvalidByte80", "\x80", 0xDC80},
                                           CharacterCase{"InvalidByteFf", "\xFF", 0xDCFF}),
                         [](const auto& test) { return test.param.name; });

TEST(ToLower, FoldsLettersOfEveryAlphabet)
{
    EXPECT_EQ(toLower("ÁÉÍÓÚÑÜ Ç"), "áéíóúñü ç");
    EXPECT_EQ(toLower("ΑΩ ЖЯ Ÿ"), "αω жя ÿ");
    EXPECT_EQ(toLower("ß 123 😀"), "ß 123 😀");
    EXPECT_EQ(toLower(""), "");
}

TEST(ToLower, LeavesInvalidBytes) { EXPECT_EQ(toLower("A\xFF\xC3Z"), "a\xFF\xC3z"); }

TEST(EqualsNoCase, FoldsCaseAndKeepsAccentsApart)
{
    EXPECT_TRUE(equalsNoCase("", ""));
    EXPECT_TRUE(equalsNoCase("Sys_PK", "SYS_pk"));
    EXPECT_TRUE(equalsNoCase("PEÑA ÁVILA", "peña ávila"));
    EXPECT_FALSE(equalsNoCase("Avila", "Ávila"));
    EXPECT_FALSE(equalsNoCase("pena", "peña"));
    EXPECT_FALSE(equalsNoCase("a", "ab"));
    EXPECT_FALSE(equalsNoCase("ab", "a"));
    EXPECT_FALSE(equalsNoCase("\xFF", "\xFE")); // invalid bytes stay distinct
    EXPECT_TRUE(equalsNoCase("\xFF", "\xFF"));
}

} // namespace
} // namespace dn
