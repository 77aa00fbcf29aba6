// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/no_case_pattern.h"

#include "base/text.h"

#include <algorithm>
#include <array>
#include <vector>

namespace dn {
namespace {

constexpr unsigned char caseBit = 'a' ^ 'A'; // also that of the second byte of "á" and "Á"

constexpr char32_t lastOfTable = 0xFFFF; // of charactersThatFoldTo()

/// A byte of the folded pattern.
struct PatternByte {
    unsigned char byte = 0;
    unsigned char caseMask = 0;
    bool fixed = false; ///< its character has this many bytes in every case, alike but for the case's bit
};

std::vector<std::string> casesOf(char32_t folded)
{
    std::vector<std::string> cases;
    for (const char32_t c : charactersThatFoldTo(folded))
        appendCharacter(cases.emplace_back(), c);
    return cases;
}

// The bytes of one character, which is folded.
void appendBytes(std::vector<PatternByte>& bytes, char32_t folded)
{
    const std::vector<std::string> cases = casesOf(folded);
    const std::string& text = cases.front();
    const bool sameLength = std::all_of(cases.begin(), cases.end(),
                                        [&](const std::string& other) { return other.size() == text.size(); });
    std::vector<PatternByte> own(text.size());
    bool fixed = sameLength && folded <= lastOfTable; // the cases of those beyond are not known
    for (std::size_t i = 0; i < text.size() && fixed; ++i) {
        own[i].byte = static_cast<unsigned char>(text[i]);
        for (const std::string& other : cases) {
            const int differs = static_cast<unsigned char>(other[i]) ^ own[i].byte;
            if (differs != 0) own[i].caseMask = caseBit;
            fixed = fixed && (differs == 0 || differs == caseBit);
        }
        own[i].byte |= own[i].caseMask;
    }
    for (PatternByte& byte : own) {
        byte.fixed = fixed;
        bytes.push_back(byte);
    }
}

std::vector<PatternByte> bytesOf(std::string_view folded)
{
    std::vector<PatternByte> bytes;
    while (!folded.empty())
        appendBytes(bytes, takeCharacter(folded));
    return bytes;
}

// How rare a byte is in names, addresses, telephones and dates; from the commonest on, all others behind them.
std::size_t rarity(unsigned char byte)
{
    static constexpr std::string_view commonest = " 0ae12oinr35@./s4678l9:-dtcum\xC3pgbvf";
    return 1 + std::min(commonest.find(static_cast<char>(byte)), commonest.size());
}

// Pairs are tried within this many bytes; the beginning of a longer pattern is rare enough.
constexpr std::size_t longestLook = 64;

// The rarest pair among bytes that stay at their distance in every case.
std::optional<BytePair> rarestPair(const std::vector<PatternByte>& bytes)
{
    std::optional<BytePair> best;
    std::size_t most = 0;
    const std::size_t end = std::min(bytes.size(), longestLook);
    for (std::size_t i = 0; i < end; ++i) {
        for (std::size_t j = i; j < end && bytes[j].fixed; ++j) {
            const std::size_t rare = rarity(bytes[i].byte) * (j == i ? 1 : rarity(bytes[j].byte));
            if (best && (rare < most || (rare == most && j == i))) continue;
            most = rare;
            best = BytePair{bytes[i].byte, bytes[j].byte, bytes[i].caseMask, bytes[j].caseMask, j - i, i};
        }
    }
    return best;
}

// Whether `text` begins with `folded`, a text folded already.
bool startsWithFolded(std::string_view text, std::string_view folded)
{
    while (!folded.empty()) {
        if (text.empty() || foldCase(takeCharacter(text)) != takeCharacter(folded)) return false;
    }
    return true;
}

char foldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | caseBit) : c; }

// From the end: patterns that begin alike, as links do, differ there.
bool startsWithAscii(std::string_view text, std::string_view folded)
{
    if (text.size() < folded.size()) return false;
    return std::equal(folded.rbegin(), folded.rend(), text.substr(0, folded.size()).rbegin(),
                      [](char wanted, char c) { return wanted == foldAscii(c); });
}

// A byte that begins no character may yet stand inside of one.
bool beginsInsideACharacter(std::string_view text)
{
    return !text.empty() && (static_cast<unsigned char>(text[0]) & 0xC0U) == 0x80U;
}

std::array<bool, 256> leadsOf(std::string_view folded)
{
    std::array<bool, 256> leads{};
    if (folded.empty()) return leads;
    for (const std::string& text : casesOf(takeCharacter(folded)))
        leads[static_cast<unsigned char>(text.front())] = true;
    return leads;
}

// As many places as are looked at together: a loop of a fixed length, which the compiler turns into a few
// comparisons of sixteen bytes each.
constexpr std::size_t atOnce = 32;

bool matches(const BytePair& pair, char first, char second)
{
    return (static_cast<unsigned char>(first) | pair.firstCase) == pair.first &&
           (static_cast<unsigned char>(second) | pair.secondCase) == pair.second;
}

bool anyMatches(const BytePair& pair, const char* place)
{
    const char* const other = place + pair.gap;
    unsigned char met = 0;
    for (std::size_t i = 0; i < atOnce; ++i) {
        const auto first =
            static_cast<unsigned char>((static_cast<unsigned char>(place[i]) | pair.firstCase) ^ pair.first);
        const auto second =
            static_cast<unsigned char>((static_cast<unsigned char>(other[i]) | pair.secondCase) ^ pair.second);
        met = static_cast<unsigned char>(met | (static_cast<unsigned char>(first | second) == 0 ? 1U : 0U));
    }
    return met != 0;
}

} // namespace

std::size_t BytePair::findIn(std::string_view text, std::size_t from) const
{
    if (text.size() <= gap) return std::string_view::npos;
    const std::size_t places = text.size() - gap;
    const char* const data = text.data();
    for (std::size_t i = from; i < places;) {
        const std::size_t left = places - i;
        if (left >= atOnce && !anyMatches(*this, data + i)) {
            i += atOnce;
            continue;
        }
        // The last block overlaps the one ahead of it: what it has too much can only ask for a closer look.
        if (left < atOnce && places >= atOnce && !anyMatches(*this, data + places - atOnce)) break;
        for (const std::size_t end = i + std::min(left, atOnce); i < end; ++i)
            if (matches(*this, data[i], data[i + gap])) return i;
    }
    return std::string_view::npos;
}

NoCasePattern::NoCasePattern(std::string_view pattern)
    : folded_(toLower(pattern)),
      ascii_(isAscii(folded_)),
      beginsInside_(beginsInsideACharacter(folded_)),
      starts_(leadsOf(folded_))
{
    const std::vector<PatternByte> bytes = bytesOf(folded_);
    mayDiffer_ = std::any_of(bytes.begin(), bytes.end(), [](const PatternByte& byte) { return !byte.fixed; });
    pair_ = rarestPair(bytes);
}

bool NoCasePattern::isIn(std::string_view text) const
{
    if (folded_.empty()) return true;
    if (!pair_) return isAnywhereIn(text);
    std::size_t place = pair_->findIn(text, 0);
    if (place == std::string_view::npos) return false;
    if (beginsInside_) return isAnywhereIn(text);
    const auto startsHere = ascii_ ? startsWithAscii : startsWithFolded;
    for (; place != std::string_view::npos; place = pair_->findIn(text, place + 1))
        if (place >= pair_->offset && startsHere(text.substr(place - pair_->offset), folded_)) return true;
    // A case of another length may stand ahead of the pair, which then is not where it was looked for.
    return mayDiffer_ && !isAscii(text) && isAnywhereIn(text);
}

bool NoCasePattern::isAnywhereIn(std::string_view text) const
{
    if (beginsInside_) {
        for (; !text.empty(); takeCharacter(text))
            if (startsWithFolded(text, folded_)) return true;
        return false;
    }
    for (; !text.empty(); text.remove_prefix(1))
        if (starts_[static_cast<unsigned char>(text.front())] && startsWithFolded(text, folded_)) return true;
    return false;
}

bool containsNoCase(std::string_view text, std::string_view part) { return NoCasePattern(part).isIn(text); }

} // namespace dn
