// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/collation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace dn {
namespace {

std::vector<std::string> sorted(std::vector<std::string> texts)
{
    std::stable_sort(texts.begin(), texts.end(),
                     [](const auto& a, const auto& b) { return compareSpanish(a, b) < 0; });
    return texts;
}

TEST(SpanishOrder, StandsAsInADictionary)
{
    const std::vector<std::string> expected{"",      "_x",    "1",     "10",   "2",     "ábaco", "arma",
                                            "Ávila", "az",    "canto", "caña", "cañón", "cap",   "nube",
                                            "nz",    "ñandú", "Ñu",    "oso",  "Zorro", "Ω"};
    std::vector<std::string> shuffled(expected.rbegin(), expected.rend());
    EXPECT_EQ(sorted(shuffled), expected);
}

TEST(SpanishOrder, CaseTellsNoDifference)
{
    EXPECT_EQ(compareSpanish("PEÑA Ávila", "peña áVILA"), 0);
    EXPECT_EQ(compareSpanish("", ""), 0);
    EXPECT_THAT(sorted({"b", "A", "a", "B"}), ::testing::ElementsAre("A", "a", "b", "B")); // as they stood
}

TEST(SpanishOrder, AccentsDecideBetweenEqualLettersOnly)
{
    EXPECT_LT(compareSpanish("mas", "más"), 0);
    EXPECT_GT(compareSpanish("más", "mas"), 0);
    EXPECT_LT(compareSpanish("más", "masa"), 0); // length comes ahead of accents
    EXPECT_LT(compareSpanish("más", "mat"), 0);  // and so do letters behind it
    EXPECT_LT(compareSpanish("vergüenza", "verja"), 0);
    EXPECT_NE(compareSpanish("á", "à"), 0);
}

TEST(SpanishOrder, NothingBehindATextIsRead)
{
    const std::string_view longer = "mast";
    EXPECT_LT(compareSpanish(longer.substr(0, 2), "mas"), 0);
    EXPECT_GT(compareSpanish("mas", longer.substr(0, 2)), 0);
    EXPECT_EQ(compareSpanish(longer.substr(0, 3), "mas"), 0);
}

TEST(SpanishOrder, EnyeIsALetterOfItsOwn)
{
    EXPECT_GT(compareSpanish("ña", "nz"), 0);
    EXPECT_LT(compareSpanish("ñz", "oa"), 0);
    EXPECT_EQ(compareSpanish("Ñ", "ñ"), 0);
}

TEST(SpanishOrder, SignsComeAheadOfDigitsAndDigitsAheadOfLetters)
{
    EXPECT_LT(compareSpanish("~", "0"), 0);
    EXPECT_LT(compareSpanish("9", "a"), 0);
    EXPECT_LT(compareSpanish(" ", "0"), 0);
    EXPECT_LT(compareSpanish("\x7F", "0"), 0);
    EXPECT_LT(compareSpanish("z", "я"), 0);
}

TEST(SpanishOrder, AShorterTextComesFirst)
{
    EXPECT_LT(compareSpanish("", "a"), 0);
    EXPECT_GT(compareSpanish("ab", "a"), 0);
    EXPECT_LT(compareSpanish("", "\x01"), 0);
}

TEST(SpanishOrder, TellsInvalidBytesAndEmojiApart)
{
    EXPECT_NE(compareSpanish("\xFE", "\xFF"), 0);
    EXPECT_NE(compareSpanish("😀", "😁"), 0);
}

int sign(int number) { return (number > 0) - (number < 0); }

/// How two keys stand to each other, byte by byte.
int compareKeys(const std::string& left, const std::string& right)
{
    std::string l;
    std::string r;
    appendCollationKey(l, left);
    appendCollationKey(r, right);
    return sign(l.compare(r));
}

TEST(CollationKey, HasTheSignOfTheComparison)
{
    const std::vector<std::string> texts{
        "",  "a",    "á",  "ab", "áb",   "abcd", "abcde", "ABCDZ", "ñ",     "n",     "o",     "1",    "12",   " ",
        "~", "\x7F", "😀",  "😁",  "\xFF", "\xFE", "más",   "mas",   "masa",  "mása",  "masá",  "z",    "я",    "яя",
        "Ω", "ā",    "aā", "日", "日本", "caña", "cana",  "cañón", "Ángel", "angel", "ángel", "\x01", "a\x01"};
    for (const std::string& left : texts)
        for (const std::string& right : texts)
            EXPECT_EQ(compareKeys(left, right), sign(compareSpanish(left, right))) << left << " and " << right;
}

TEST(CollationKey, OfAPlainTextIsNoLongerThanTheTextAndItsEnd)
{
    std::string key = "there already ";
    appendCollationKey(key, "ABC xyz 123");
    EXPECT_EQ(key.size(), std::string("there already ABC xyz 123").size() + 1);
    EXPECT_EQ(key.substr(0, 14), "there already ");
}

// Ahead and behind each other in one order whichever three are taken: else a sort may not end.
TEST(SpanishOrder, IsTransitive)
{
    const std::vector<std::string> texts{"",  "a",       "á", "A", "ab",   "áb",   "àb", "ac",
                                         "ñ", "n\u0303", "n", "0", "\xC3", "\xFF", "😀"};
    for (const auto& a : texts)
        for (const auto& b : texts)
            for (const auto& c : texts)
                EXPECT_TRUE(compareSpanish(a, b) > 0 || compareSpanish(b, c) > 0 || compareSpanish(a, c) <= 0)
                    << a << ", " << b << ", " << c;
}

} // namespace
} // namespace dn
