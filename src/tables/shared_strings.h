// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The table of texts of a workbook, which its cells refer to by number. Texts are written as they come and not
// looked for among those written before: a list of people and addresses hardly repeats itself, and so nothing is
// kept.
#pragma once

#include "tables/records.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dn::tables {

class SharedStrings {
public:
    /// The most UTF-16 units that a cell holds; what is longer is cut off there, between two characters.
    static constexpr std::size_t longestCell = 32'767;

    /// Begins the table. @param records must write nothing else until the end.
    explicit SharedStrings(Records& records);

    /// Adds a text in UTF-8, which is not empty. Their numbers count from 0.
    void add(std::string_view text);
    std::uint32_t count() const { return count_; }
    /// Ends the table.
    void end() { records_.end(); }

private:
    void begin(std::size_t units, bool wide);
    bool narrow(std::string_view text, std::size_t plain);
    void addNarrow(std::string_view text);
    void convert(std::string_view text);
    void put(char32_t character, std::size_t& count);
    void writeUnits();
    void goOn();

    Records& records_;
    std::uint32_t count_ = 0;
    std::string narrow_;   // the present text in units of one byte
    std::u16string units_; // or in wider ones
    bool wide_ = false;    // some unit of it does not fit into a byte
};

} // namespace dn::tables
