// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The rows that all benchmarks share: a private server with sample prospects, all of one agent and one status, and
// as many persons of the same agent.
#pragma once

#include "host/database/database.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace dn::bench {

class BenchDatabase {
public:
    /// Makes the server and the rows in a folder, or takes those that a former run left there.
    BenchDatabase(const std::string& folder, std::size_t rows);

    data::Connection& connection() { return database_.connection(); }
    /// The agent who owns every row.
    std::int32_t agent() const { return agent_; }
    std::size_t rows() const { return rows_; }
    /// Where the alternatives reach the same server.
    const host::MariadbTarget& target() const { return target_; }
    /// The statement that the control sends for the prospects.
    std::string statement() const;
    /// The statement that the control sends for the persons.
    std::string personStatement() const;

private:
    void makePersons();

    host::Database database_;
    host::MariadbTarget target_;
    std::int32_t agent_ = 0;
    std::size_t rows_;
};

} // namespace dn::bench
