// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/collation.h"

#include "base/text.h"

#include <array>
#include <utility>

namespace dn {
namespace {

// What a character counts in the order: its letter first, its accent only between texts of the same letters.
struct Weight {
    std::uint16_t letter;
    std::uint16_t accent;
};

constexpr std::uint16_t firstDigit = 0x81; // the signs of ASCII take 0x01 to 0x80
constexpr std::uint16_t firstLetter = 0x90;
constexpr std::uint16_t firstBeyond = 0x100; // every other script, in the order of Unicode

// a to z with room for the ñ: a is 0, n is 13, ñ is 14, o is 15.
constexpr std::uint16_t letterWeight(char letter)
{
    const int place = letter - 'a';
    return static_cast<std::uint16_t>(firstLetter + place + (letter > 'n' ? 1 : 0));
}

constexpr std::uint16_t weightOfEnye = firstLetter + 14;

constexpr std::array<std::pair<char32_t, char>, 54> accented{{
    {U'à', 'a'}, {U'á', 'a'}, {U'â', 'a'}, {U'ã', 'a'}, {U'ä', 'a'}, {U'å', 'a'}, {U'ā', 'a'}, {U'ă', 'a'},
    {U'ą', 'a'}, {U'ç', 'c'}, {U'ć', 'c'}, {U'č', 'c'}, {U'ď', 'd'}, {U'đ', 'd'}, {U'è', 'e'}, {U'é', 'e'},
    {U'ê', 'e'}, {U'ë', 'e'}, {U'ē', 'e'}, {U'ę', 'e'}, {U'ě', 'e'}, {U'ğ', 'g'}, {U'ì', 'i'}, {U'í', 'i'},
    {U'î', 'i'}, {U'ï', 'i'}, {U'ī', 'i'}, {U'ł', 'l'}, {U'ń', 'n'}, {U'ň', 'n'}, {U'ò', 'o'}, {U'ó', 'o'},
    {U'ô', 'o'}, {U'õ', 'o'}, {U'ö', 'o'}, {U'ø', 'o'}, {U'ő', 'o'}, {U'ř', 'r'}, {U'ś', 's'}, {U'ş', 's'},
    {U'š', 's'}, {U'ţ', 't'}, {U'ť', 't'}, {U'ù', 'u'}, {U'ú', 'u'}, {U'û', 'u'}, {U'ü', 'u'}, {U'ū', 'u'},
    {U'ű', 'u'}, {U'ý', 'y'}, {U'ÿ', 'y'}, {U'ź', 'z'}, {U'ż', 'z'}, {U'ž', 'z'},
}};

class WeightTable {
public:
    WeightTable()
    {
        for (char32_t c = 0; c < latin_.size(); ++c)
            latin_[c] = ofFolded(foldCase(c));
    }

    Weight of(char32_t c) const { return c < latin_.size() ? latin_[c] : ofFolded(foldCase(c)); }

private:
    static Weight ofFolded(char32_t c)
    {
        if (c >= U'a' && c <= U'z') return {letterWeight(static_cast<char>(c)), 0};
        if (c >= U'0' && c <= U'9') return {static_cast<std::uint16_t>(firstDigit + (c - U'0')), 0};
        if (c < 0x80) return {static_cast<std::uint16_t>(c + 1), 0};
        if (c == U'ñ') return {weightOfEnye, 0};
        for (const auto& [character, letter] : accented)
            if (character == c) return {letterWeight(letter), static_cast<std::uint16_t>(c)};
        const char32_t beyond = firstBeyond + c;
        return {static_cast<std::uint16_t>(beyond < 0xFFFF ? beyond : 0xFFFF),
                static_cast<std::uint16_t>(c & 0xFFFFU)};
    }

    std::array<Weight, 0x180> latin_{};
};

const WeightTable& weights()
{
    static const WeightTable table;
    return table;
}

// Most characters are of ASCII and need no decoding.
Weight takeWeight(const WeightTable& table, std::string_view& text)
{
    const auto first = static_cast<unsigned char>(text.front());
    if (first >= 0x80) return table.of(takeCharacter(text));
    text.remove_prefix(1);
    return table.of(first);
}

} // namespace

int compareSpanish(std::string_view left, std::string_view right)
{
    const WeightTable& table = weights();
    int accents = 0;
    while (!left.empty() && !right.empty()) {
        const Weight l = takeWeight(table, left);
        const Weight r = takeWeight(table, right);
        if (l.letter != r.letter) return l.letter < r.letter ? -1 : 1;
        if (accents == 0 && l.accent != r.accent) accents = l.accent < r.accent ? -1 : 1;
    }
    if (left.empty() != right.empty()) return left.empty() ? -1 : 1;
    return accents;
}

// The letters, of one byte or, where they need more, of three; an end; then the accents as far as the last one.
void appendCollationKey(std::string& keys, std::string_view text)
{
    constexpr char beyond = '\xFF'; // behind every letter of one byte
    constexpr char end = '\0';      // ahead of every letter
    const auto low = [](std::uint32_t number) { return static_cast<char>(number & 0xFFU); };
    const WeightTable& table = weights();
    const std::size_t begin = keys.size();
    keys.resize(begin + 3 * text.size()); // the most; set in place, for letters come by the million
    char* place = keys.data() + begin;
    std::size_t uptoAccent = 0; // bytes of the text up to its last accent
    for (std::string_view rest = text; !rest.empty();) {
        const Weight weight = takeWeight(table, rest);
        if (weight.letter >= firstBeyond) {
            *place++ = beyond;
            *place++ = low(weight.letter >> 8U);
        }
        *place++ = low(weight.letter);
        if (weight.accent != 0) uptoAccent = text.size() - rest.size();
    }
    keys.resize(static_cast<std::size_t>(place - keys.data()));
    keys += end;
    for (std::string_view rest = text.substr(0, uptoAccent); !rest.empty();) {
        const Weight weight = takeWeight(table, rest);
        keys.append({low(weight.accent >> 8U), low(weight.accent)});
    }
}

} // namespace dn
