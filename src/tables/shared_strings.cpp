// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tables/shared_strings.h"

#include "tables/storable_text.h"

#include <algorithm>

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
    convert(text);
    constexpr std::size_t head = 3; // it must not be torn from its first character
    if (records_.room() < head + (wide_ ? 4 : 1)) goOn();
    records_.u16(static_cast<std::uint32_t>(units_.size())).u8(wide_ ? 1 : 0);
    writeUnits();
    ++count_;
}

void SharedStrings::convert(std::string_view text)
{
    units_.clear();
    wide_ = false;
    while (!text.empty() && units_.size() < longestCell) {
        if (isPlain(text.front())) {
            units_ += static_cast<char16_t>(text.front());
            text.remove_prefix(1);
        } else {
            append(takeStorable(text));
        }
    }
}

void SharedStrings::append(char32_t character)
{
    if (character < 0x10000) {
        units_ += static_cast<char16_t>(character);
        wide_ = wide_ || character > 0xFF;
    } else if (units_.size() + 2 <= longestCell) {
        units_ += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10U));
        units_ += static_cast<char16_t>(0xDC00 + (character & 0x3FFU));
        wide_ = true;
    } else {
        units_.resize(longestCell - 1);
        units_ += u' '; // half a character would be none
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
        for (; next < behind; ++next)
            wide_ ? records_.u16(units_[next]) : records_.u8(units_[next]);
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
