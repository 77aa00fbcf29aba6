// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <locale>
#include <map>
#include <vector>

namespace dn {
namespace {

constexpr char32_t invalidByteBase = 0xDC00; // U+DC80 to U+DCFF: a byte that belongs to no valid sequence

struct Sequence {
    int length; // 0 for a byte that starts none
    char32_t lead;
    char32_t smallest; // the least character that needs this length
};

Sequence sequenceOf(unsigned char lead)
{
    if (lead < 0x80) return {1, lead, 0};
    if (lead >= 0xC2 && lead <= 0xDF) return {2, lead & 0x1FU, 0x80};
    if (lead >= 0xE0 && lead <= 0xEF) return {3, lead & 0x0FU, 0x800};
    if (lead >= 0xF0 && lead <= 0xF4) return {4, lead & 0x07U, 0x10000};
    return {0, lead, 0};
}

bool isSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

std::locale unicodeLocale()
{
    for (const char* name : {"C.UTF-8", "C.utf8", "en_US.UTF-8", ""}) {
        try {
            return std::locale(name);
        } catch (const std::runtime_error&) {
            continue; // not installed: the next one
        }
    }
    return std::locale::classic();
}

// Folding of the characters of the basic plane, looked up once: the lists fold millions of them.
class FoldTable {
public:
    FoldTable() : locale_(unicodeLocale()), facet_(std::use_facet<std::ctype<wchar_t>>(locale_))
    {
        for (char32_t c = 0; c < table_.size(); ++c) {
            table_[c] = static_cast<char16_t>(isSurrogate(c) ? c : static_cast<char32_t>(slow(c)));
            if (table_[c] != c) others_.emplace(table_[c], c);
        }
    }

    char32_t fold(char32_t c) const { return c < table_.size() ? table_[c] : slow(c); }

    std::vector<char32_t> othersOf(char32_t folded) const
    {
        std::vector<char32_t> others;
        const auto [first, behind] = others_.equal_range(folded);
        for (auto other = first; other != behind; ++other)
            others.push_back(other->second);
        return others;
    }

private:
    char32_t slow(char32_t c) const { return static_cast<char32_t>(facet_.tolower(static_cast<wchar_t>(c))); }

    std::locale locale_;
    const std::ctype<wchar_t>& facet_;
    std::vector<char16_t> table_ = std::vector<char16_t>(0x10000);
    std::multimap<char32_t, char32_t> others_; // what folds to a character, besides itself
};

const FoldTable& foldTable()
{
    static const FoldTable table;
    return table;
}

} // namespace

char32_t takeCharacter(std::string_view& text)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const Sequence sequence = sequenceOf(byte(0));
    char32_t character = sequence.lead;
    bool valid = sequence.length > 0 && static_cast<std::size_t>(sequence.length) <= text.size();
    for (int i = 1; valid && i < sequence.length; ++i) {
        const unsigned char next = byte(static_cast<std::size_t>(i));
        valid = (next & 0xC0U) == 0x80U;
        character = (character << 6U) | (next & 0x3FU);
    }
    valid = valid && character >= sequence.smallest && character <= 0x10FFFF && !isSurrogate(character);
    if (!valid) character = invalidByteBase + byte(0);
    text.remove_prefix(valid ? static_cast<std::size_t>(sequence.length) : 1);
    return character;
}

void appendCharacter(std::string& text, char32_t character)
{
    const auto put = [&](char32_t byte) { text.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
    if (character >= invalidByteBase + 0x80 && character <= invalidByteBase + 0xFF) {
        put(character - invalidByteBase);
    } else if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0U | (character >> 6U));
        put(0x80U | (character & 0x3FU));
    } else if (character < 0x10000) {
        put(0xE0U | (character >> 12U));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    } else {
        put(0xF0U | (character >> 18U));
        put(0x80U | ((character >> 12U) & 0x3FU));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    }
}

// Eight bytes at a time: texts that are searched are asked.
bool isAscii(std::string_view text)
{
    std::uint64_t all = 0;
    for (; text.size() >= sizeof(all); text.remove_prefix(sizeof(all))) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data(), sizeof(word));
        all |= word;
    }
    for (const char c : text)
        all |= static_cast<unsigned char>(c);
    return (all & 0x8080'8080'8080'8080U) == 0;
}

std::size_t length(std::string_view text)
{
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        takeCharacter(text);
    return count;
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return text.substr(text.size());
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string without(std::string_view text, std::string_view part)
{
    std::string result;
    std::size_t begin = 0;
    for (std::size_t found = text.find(part); found != std::string_view::npos; found = text.find(part, begin)) {
        result.append(text, begin, found - begin);
        begin = found + part.size();
    }
    return result.append(text, begin);
}

char32_t foldCase(char32_t character) { return foldTable().fold(character); }

std::vector<char32_t> charactersThatFoldTo(char32_t folded)
{
    std::vector<char32_t> characters{folded};
    for (const char32_t other : foldTable().othersOf(folded))
        characters.push_back(other);
    return characters;
}

std::string toLower(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    while (!text.empty())
        appendCharacter(result, foldCase(takeCharacter(text)));
    return result;
}

bool equalsNoCase(std::string_view left, std::string_view right)
{
    while (!left.empty() && !right.empty())
        if (foldCase(takeCharacter(left)) != foldCase(takeCharacter(right))) return false;
    return left.empty() && right.empty();
}

} // namespace dn
