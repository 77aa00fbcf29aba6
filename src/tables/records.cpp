// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tables/records.h"

#include "tables/little_endian.h"

namespace dn::tables {

Records& Records::begin(std::uint16_t kind)
{
    record_.clear();
    append16(record_, kind);
    append16(record_, 0); // the length, once it is known
    return *this;
}

Records& Records::u8(std::uint32_t number)
{
    record_ += static_cast<char>(number & 0xFFU);
    return *this;
}

Records& Records::u16(std::uint32_t number)
{
    append16(record_, number);
    return *this;
}

Records& Records::u32(std::uint32_t number)
{
    append32(record_, number);
    return *this;
}

Records& Records::bytes(std::string_view text)
{
    record_ += text;
    return *this;
}

// A list has millions of units: they are set in place and not appended one by one.
Records& Records::units(std::u16string_view text, bool wide)
{
    std::size_t next = record_.size();
    record_.resize(next + text.size() * (wide ? 2 : 1));
    for (const char16_t unit : text) {
        record_[next++] = static_cast<char>(unit & 0xFFU);
        if (wide) record_[next++] = static_cast<char>(unit >> 8U);
    }
    return *this;
}

void Records::end()
{
    const std::size_t length = record_.size() - headBytes;
    record_[2] = static_cast<char>(length & 0xFFU);
    record_[3] = static_cast<char>(length >> 8U);
    file_.write(record_);
}

} // namespace dn::tables
