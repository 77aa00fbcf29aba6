// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A table that is gone for a while. The stories share one database: it comes back however the story ends.
#pragma once

#include "data/connection.h"
#include "tests/stories/story_server.h"

#include <gtest/gtest.h>

#include <exception>
#include <string>
#include <utility>

namespace dn::tests {

class MissingTable {
public:
    /// @param connection outlives this.
    MissingTable(data::Connection& connection, std::string table)
        : connection_(connection), table_(std::move(table))
    {
        connection_.execute(storyServer().renaming(table_, "fuera_" + table_));
    }
    MissingTable(const MissingTable&) = delete;
    MissingTable& operator=(const MissingTable&) = delete;
    ~MissingTable()
    {
        try {
            connection_.execute(storyServer().renaming("fuera_" + table_, table_));
        } catch (const std::exception& failure) {
            ADD_FAILURE() << table_ << " did not come back: " << failure.what();
        }
    }

private:
    data::Connection& connection_;
    std::string table_;
};

} // namespace dn::tests
