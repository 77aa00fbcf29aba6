// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tables/shared_strings.h"

#include "tables/storable_text.h"

#include <algorithm>
#include <array>

namespace dn::tables {
namespace {

constexpr std::uint16_t sharedStrings = 0x00FC;

bool isFirstHalf(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }

} // namespace

SharedStrings::SharedStrings(Records& records) : records_(records)
{
    records_.begin(sharedStrings).u32(0).u32(0); // how many cells and texts: filled in when that is known
}

void SharedStrings::add(std::string_view text)
{
    if (text.size() <= longestCell) {
        const std::size_t plain = plainBytes(text);
        if (plain == text.size() || narrow(text, plain)) {
            addNarrow(plain == text.size() ? text : narrow_);
            return;
        }
    }
    convert(text);
    begin(units_.size(), wide_);
    writeUnits();
}

void SharedStrings::begin(std::size_t units, bool wide)
{
    constexpr std::size_t head = 3; // it must not be torn from its first character
    if (records_.room() < head + (wide ? 4 : 1)) goOn();
    const std::array<char, head> bytes{static_cast<char>(units & 0xFFU), static_cast<char>(units >> 8U),
                                       static_cast<char>(wide ? 1 : 0)};
    records_.bytes({bytes.data(), bytes.size()});
    ++count_;
}

// Letters with accents are units of one byte, too.
bool SharedStrings::narrow(std::string_view text, std::size_t plain)
{
    narrow_.clear();
    for (;;) {
        narrow_ += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty()) return true;
        const char32_t character = takeStorable(text);
        if (character > 0xFF) return false;
        narrow_ += static_cast<char>(static_cast<unsigned char>(character));
        plain = plainBytes(text);
    }
}

// The bytes of a plain text are its units.
void SharedStrings::addNarrow(std::string_view text)
{
    begin(text.size(), false);
    for (;;) {
        const std::string_view part = text.substr(0, records_.room());
        records_.bytes(part);
        text.remove_prefix(part.size());
        if (text.empty()) return;
        goOn();
        records_.u8(0);
    }
}

// A text has at least as many bytes in UTF-8 as units in UTF-16.
void SharedStrings::convert(std::string_view text)
{
    units_.resize(std::min(text.size(), longestCell));
    wide_ = false;
    std::size_t count = 0;
    while (!text.empty() && count < longestCell) {
        const std::size_t plain = std::min(plainBytes(text), longestCell - count);
        std::copy_n(text.begin(), plain, units_.begin() + static_cast<std::ptrdiff_t>(count));
        text.remove_prefix(plain);
        count += plain;
        if (!text.empty() && count < longestCell) put(takeStorable(text), count);
    }
    units_.resize(count);
}

void SharedStrings::put(char32_t character, std::size_t& count)
{
    wide_ = wide_ || character > 0xFF;
    if (character < 0x10000) {
        units_[count++] = static_cast<char16_t>(character);
    } else if (count + 2 <= longestCell) {
        units_[count++] = static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10U));
        units_[count++] = static_cast<char16_t>(0xDC00 + (character & 0x3FFU));
    } else {
        units_[count++] = u' '; // half a character would be none
    }
}

// A text that goes on in a further record says there once more how wide its units are. Both halves of a character
// stay in one record: readers decode record by record.
void SharedStrings::writeUnits()
{
    const std::size_t width = wide_ ? 2 : 1;
    for (std::size_t next = 0; next < units_.size();) {
        std::size_t behind = std::min(units_.size(), next + records_.room() / width);
        if (behind > next && behind < units_.size() && isFirstHalf(units_[behind - 1])) --behind;
        records_.units(std::u16string_view(units_).substr(next, behind - next), wide_);
        next = behind;
        if (next == units_.size()) return;
        goOn();
        records_.u8(wide_ ? 1 : 0);
    }
}

void SharedStrings::goOn()
{
    records_.end();
    records_.begin(Records::continuation);
}

} // namespace dn::tables
