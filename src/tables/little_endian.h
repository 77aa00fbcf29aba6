// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A text of bytes in the order of binary files: the least one first.
#pragma once

#include <cstdint>
#include <string>

namespace dn::tables {

inline void append16(std::string& bytes, std::uint32_t number)
{
    bytes += static_cast<char>(number & 0xFFU);
    bytes += static_cast<char>(number >> 8U & 0xFFU);
}

inline void append32(std::string& bytes, std::uint32_t number)
{
    append16(bytes, number);
    append16(bytes, number >> 16U);
}

} // namespace dn::tables
