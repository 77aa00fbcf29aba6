// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tables/records.h"

#include "tables/little_endian.h"

namespace dn::tables {

Records& Records::begin(std::uint16_t kind)
{
    kind_ = kind;
    body_.clear();
    return *this;
}

Records& Records::u8(std::uint32_t number)
{
    body_ += static_cast<char>(number & 0xFFU);
    return *this;
}

Records& Records::u16(std::uint32_t number)
{
    append16(body_, number);
    return *this;
}

Records& Records::u32(std::uint32_t number)
{
    append32(body_, number);
    return *this;
}

Records& Records::bytes(std::string_view text)
{
    body_ += text;
    return *this;
}

void Records::end()
{
    head_.clear();
    append16(head_, kind_);
    append16(head_, static_cast<std::uint32_t>(body_.size()));
    file_.write(head_);
    file_.write(body_);
}

} // namespace dn::tables
