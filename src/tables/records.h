// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The records that a binary workbook is made of: a kind, a length and so many bytes.
#pragma once

#include "tables/compound_file.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dn::tables {

class Records {
public:
    /// The most bytes that a record holds; what is longer goes on in a record of the kind `continuation`.
    static constexpr std::size_t largest = 8224;
    static constexpr std::uint16_t continuation = 0x003C;

    explicit Records(CompoundFile& file) : file_(file) {}

    /// Begins a record; its contents follow.
    Records& begin(std::uint16_t kind);
    Records& u8(std::uint32_t number);
    Records& u16(std::uint32_t number);
    Records& u32(std::uint32_t number);
    Records& bytes(std::string_view text);
    /// Writes the record begun.
    void end();

    /// Bytes that still fit into the record begun.
    std::size_t room() const { return largest - body_.size(); }
    /// Where the next record will stand, counted in bytes from the first one.
    std::uint32_t position() const { return static_cast<std::uint32_t>(file_.size()); }

private:
    CompoundFile& file_;
    std::uint16_t kind_ = 0;
    std::string body_;
    std::string head_;
};

} // namespace dn::tables
