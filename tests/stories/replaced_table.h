// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Another table under the name of one, or of a view, for a while: as a host might have it that was not expected.
#pragma once

#include "tests/stories/missing_table.h"

#include <string>

namespace dn::tests {

class ReplacedTable {
public:
    /// @param connection outlives this.
    /// @param columns as CREATE TABLE has them between its parentheses.
    ReplacedTable(data::Connection& connection, const std::string& table, const std::string& columns)
        : connection_(connection), table_(table), original_(connection, table)
    {
        connection_.execute("CREATE TABLE " + table + " (" + columns + ") CHARSET utf8mb4");
    }
    ReplacedTable(const ReplacedTable&) = delete;
    ReplacedTable& operator=(const ReplacedTable&) = delete;
    ~ReplacedTable()
    {
        try {
            connection_.execute("DROP TABLE " + table_);
        } catch (const std::exception& failure) {
            ADD_FAILURE() << table_ << " cannot be dropped: " << failure.what();
        }
    }

private:
    data::Connection& connection_;
    std::string table_;
    MissingTable original_; // comes back when the other one is gone
};

} // namespace dn::tests
