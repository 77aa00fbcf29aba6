// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Texts as the files of other programs may hold them.

#include "tables/storable_text.h"

#include "base/text.h"

#include <gtest/gtest.h>

namespace dn::tests {
namespace {

std::string stored(std::string_view text)
{
    std::string out;
    while (!text.empty())
        appendCharacter(out, tables::takeStorable(text));
    return out;
}

TEST(StorableText, keeps_every_character_that_is_one)
{
    for (const char* text : {"José Ñúñez", "日本", "😀 y más", "a\tb\nc", "~!\"'<>&", "\xC2\xA0\xC2\xAD"})
        EXPECT_EQ(stored(text), text);
}

TEST(StorableText, has_one_line_feed_for_every_line_end)
{
    EXPECT_EQ(stored("a\r\nb\rc\nd\r\n"), "a\nb\nc\nd\n");
    EXPECT_EQ(stored("\r\r\n\n\r"), "\n\n\n\n");
}

TEST(StorableText, has_a_mark_for_whatever_is_no_character)
{
    for (const std::string& text :
         {std::string(1, '\0'), std::string("\x01"), std::string("\x7F"), std::string("\xC2\x85"),
          std::string("\xFF"), std::string("\xC3"), std::string("\xEF\xBF\xBF"), std::string("\xEF\xB7\x90")})
        EXPECT_EQ(stored("a" + text + "b"), "a\xEF\xBF\xBD"
                                            "b");
}

TEST(StorableText, is_plain_up_to_the_first_byte_that_is_not)
{
    for (std::size_t length = 0; length < 20; ++length) {
        const std::string plain(length, '~');
        EXPECT_EQ(tables::plainBytes(plain), length);
        for (std::size_t place = 0; place < length; ++place)
            for (int byte = 0; byte < 256; ++byte) {
                std::string text = plain;
                text[place] = static_cast<char>(byte);
                const bool isPlain = byte >= 0x20 && byte < 0x7F;
                EXPECT_EQ(tables::plainBytes(text), isPlain ? length : place) << byte << " at " << place;
            }
    }
}

} // namespace
} // namespace dn::tests
