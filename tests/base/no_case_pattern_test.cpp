// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/no_case_pattern.h"
#include "base/text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace dn {
namespace {

bool beginsWithFolded(std::string_view text, std::string_view typed)
{
    for (; !typed.empty(); takeCharacter(text), takeCharacter(typed)) {
        std::string_view left = text;
        std::string_view right = typed;
        if (left.empty() || foldCase(takeCharacter(left)) != foldCase(takeCharacter(right))) return false;
    }
    return true;
}

bool holdsAtACharacter(std::string_view text, std::string_view typed)
{
    for (; !text.empty(); takeCharacter(text))
        if (beginsWithFolded(text, typed)) return true;
    return typed.empty();
}

TEST(ContainsNoCase, FindsPartsAnywhere)
{
    EXPECT_TRUE(containsNoCase("Muñoz Ávila", "MUÑOZ"));
    EXPECT_TRUE(containsNoCase("Muñoz Ávila", "áVI"));
    EXPECT_TRUE(containsNoCase("Muñoz Ávila", "la"));
    EXPECT_TRUE(containsNoCase("abcabd", "ABD"));
    EXPECT_TRUE(containsNoCase("a{B}~", "{b}"));
    EXPECT_TRUE(containsNoCase("ABCXYZ", "abcxyz"));
    EXPECT_FALSE(containsNoCase("@[", "`{")); // the neighbours of A and Z
    EXPECT_FALSE(containsNoCase("a{B}~", "}b"));
    EXPECT_FALSE(containsNoCase("Muñoz", "munoz"));
    EXPECT_FALSE(containsNoCase("abc", "abcd"));
    EXPECT_FALSE(containsNoCase("", "a"));
    EXPECT_TRUE(containsNoCase("abc", ""));
    EXPECT_TRUE(containsNoCase("", ""));
}

TEST(ContainsNoCase, ACharacterThatFoldsToAsciiIsFoundByIt)
{
    EXPECT_TRUE(containsNoCase("5 \u212A", "k")); // the Kelvin sign
    EXPECT_TRUE(containsNoCase("5 k", "\u212A"));
}

// Every text of up to five of these is held against
// every pattern of up to three.
TEST(ContainsNoCase, FindsWhatAPlainSearchInFoldedTextsFinds)
{
    const std::vector<std::string> signs{"a", "B", ".", "?", "ñ"};
    std::vector<std::string> texts{""};
    for (std::size_t from = 0, length = 1; length <= 5; ++length)
        for (const std::size_t to = texts.size(); from < to; ++from)
            for (const std::string& sign : signs)
                texts.push_back(texts[from] + sign);
    for (std::size_t i = 0; i < 1 + 5 + 25 + 125; ++i) {
        const NoCasePattern pattern(texts[i]);
        for (const std::string& text : texts)
            ASSERT_EQ(pattern.isIn(text), toLower(text).find(toLower(texts[i])) != std::string::npos)
                << texts[i] << " in " << text;
    }
}

// The Kelvin, Ohm and Angstrom signs among them.
TEST(ContainsNoCase, FindsEveryCharacterByEveryCaseOfIt)
{
    for (char32_t c = 1; c < 0x2130; ++c) {
        std::string text;
        appendCharacter(text, c);
        const std::string folded = toLower(text);
        const NoCasePattern pattern(text + "z");
        ASSERT_TRUE(pattern.isIn("ñ" + folded + "Z")) << std::hex << static_cast<unsigned>(c);
        ASSERT_TRUE(NoCasePattern(folded).isIn("1 ñ" + text)) << std::hex << static_cast<unsigned>(c);
        ASSERT_FALSE(pattern.isIn("ñ" + folded)) << std::hex << static_cast<unsigned>(c);
    }
}

TEST(ContainsNoCase, FindsInvalidBytesAloneAndNotInsideOfCharacters)
{
    EXPECT_TRUE(containsNoCase("a\xBA", "\xBA"));
    EXPECT_FALSE(containsNoCase("aú", "\xBA")); // its second byte
    EXPECT_FALSE(containsNoCase("aú", "\xC3")); // its first byte
    EXPECT_TRUE(containsNoCase("aú\xC3", "\xC3"));
}

TEST(ContainsNoCase, FindsSignsBehindEightAndMoreBytes)
{
    EXPECT_TRUE(containsNoCase("a?b?c?Curso_Gratis=1", "?curso_gratis"));
    EXPECT_FALSE(containsNoCase("a?b?c?Curso-Gratis=1", "?curso_gratis"));
    EXPECT_TRUE(containsNoCase("12345678901234567890\u212A", "0k"));
    EXPECT_TRUE(containsNoCase("1234567\u212A", "7k"));
    EXPECT_TRUE(containsNoCase("12\u212A"
                               "4567890123",
                               "2k4"));
}

// Long texts are looked at in blocks: every distance of the match from their ends, and every length of the text.
TEST(ContainsNoCase, FindsAtEveryPlaceOfALongText)
{
    const std::vector<std::string> patterns{"2026 77", "ñandú", "z", "kiwi", "A EA", "€", "i", "k"};
    for (const std::string& typed : patterns) {
        const NoCasePattern pattern(typed);
        for (std::size_t ahead = 0; ahead < 70; ++ahead) {
            for (std::size_t behind = 0; behind < 70; ++behind) {
                const std::string text = std::string(ahead, '2') + toLower(typed) + std::string(behind, '6');
                ASSERT_TRUE(pattern.isIn(text)) << typed << " in " << text;
                ASSERT_FALSE(pattern.isIn(text.substr(0, ahead + typed.size() - 1))) << typed << " in " << text;
            }
        }
    }
}

// Cases of another length stand ahead of, in and behind what is looked for first.
TEST(ContainsNoCase, FindsCasesOfOtherLengths)
{
    const std::string padding(40, '-');
    EXPECT_TRUE(containsNoCase(padding + "\u212A\u0130\u212Ax7" + padding, "kikX7"));
    EXPECT_TRUE(containsNoCase(padding + "x7\u212A\u0130" + padding, "X7ki"));
    EXPECT_TRUE(containsNoCase(padding + "x7\u212A\u0130x7z" + padding, "X7kiX7Z"));
    EXPECT_TRUE(containsNoCase("x7kix7k\u0130x7z", "x7k\u0130x7z"));
    EXPECT_FALSE(containsNoCase(padding + "x7\u212A\u0130x7y" + padding, "X7kiX7Z"));
    EXPECT_TRUE(containsNoCase(padding + "\u2C65\u023Az" + padding, "\u023A\u2C65Z")); // two bytes and three
}

// Signs that differ in the bit that tells the cases of letters apart are still other signs.
TEST(ContainsNoCase, DoesNotTakeSignsForLetters)
{
    const std::string padding(40, '-');
    EXPECT_FALSE(containsNoCase(padding + "@" + padding, "`"));
    EXPECT_FALSE(containsNoCase(padding + "a[" + padding, "A{"));
    EXPECT_FALSE(containsNoCase(padding + "\u00D7" + padding, "\u00F7")); // × and ÷
    EXPECT_FALSE(containsNoCase(padding + "z\u00D7" + padding, "Z\u00F7"));
    EXPECT_FALSE(containsNoCase(padding + std::string("\0", 1) + padding, " "));
    EXPECT_TRUE(containsNoCase(padding + std::string("\0", 1) + padding, std::string_view("\0", 1)));
    EXPECT_TRUE(containsNoCase(padding + "\U00010400" + padding, "\U00010428")); // a letter beyond the first plane
}

// What somebody may type and what a cell may hold, by a simple search that asks at every character.
TEST(ContainsNoCase, AgreesWithASearchCharacterByCharacter)
{
    const std::vector<std::string> signs{"a",    "A",      "k",      "\u212A",     "i",         "\u0130", "7",
                                         " ",    "ñ",      "Ñ",      "\u00D7",     "\u00F7",    "€",      "\xC3",
                                         "\xBA", "\u023A", "\u2C65", "\U00010400", "\U00010428"};
    std::mt19937 random(7);
    const auto draw = [&](std::size_t most) {
        std::string text;
        for (std::size_t left = random() % (most + 1); left > 0; --left)
            text += signs[random() % signs.size()];
        return text;
    };
    int found = 0;
    int missed = 0;
    for (int round = 0; round < 40'000; ++round) {
        const std::string typed = draw(4);
        const std::string text = draw(60);
        const bool holds = holdsAtACharacter(text, typed);
        ASSERT_EQ(containsNoCase(text, typed), holds) << typed << " in " << text;
        if (!typed.empty()) (holds ? found : missed) += 1;
    }
    EXPECT_GT(found, 4'000); // both answers come often
    EXPECT_GT(missed, 4'000);
}

} // namespace
} // namespace dn
