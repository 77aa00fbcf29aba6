// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The server and the rows that all benchmarks share. They are kept between runs.
#pragma once

#include "bench/scale_rows.h"
#include "data/connection.h"
#include "desk/tab_strip.h"
#include "host/database/database.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace dn::bench {

/// A connection that knows what was sent over it.
class HeardConnection final : public data::Connection {
public:
    explicit HeardConnection(std::unique_ptr<data::Connection> real) : real_(std::move(real)) {}

    int State() const override { return real_->State(); }
    std::unique_ptr<data::Recordset> execute(std::string_view statement) override
    {
        sent_.emplace_back(statement);
        return real_->execute(statement);
    }

    void forget() { sent_.clear(); }
    /// Whether that was sent since all was forgotten.
    bool sent(const std::string& statement) const
    {
        return std::find(sent_.begin(), sent_.end(), statement) != sent_.end();
    }

private:
    std::unique_ptr<data::Connection> real_;
    std::vector<std::string> sent_;
};

class BenchDatabase {
public:
    /// Makes the server and the rows in a folder, or takes those that a former run left there.
    /// @param largest the most rows of one agent. @param loadAgents agents for the load.
    BenchDatabase(const std::string& folder, std::size_t largest, std::size_t loadAgents);

    /// For the control. It waits longer for the server than a program would.
    HeardConnection& connection() { return *connection_; }
    const std::vector<Scale>& scales() const { return scales_; }
    /// The agent with that many rows. @throws std::out_of_range
    const Scale& scale(std::size_t rows) const;
    /// Where the alternatives reach the same server.
    const host::MariadbTarget& target() const { return target_; }
    std::string version();
    /// Milliseconds of processor that the server has used.
    double serverCpu() const;

private:
    host::Database database_;
    host::MariadbTarget target_;
    std::unique_ptr<HeardConnection> connection_; // goes ahead of its server
    std::vector<Scale> scales_;
};

/// The five lists, by the names of their load routines.
struct List {
    desk::Tab tab{};
    const char* name = "";
    const char* textField = ""; ///< a column of its statements that tells the rows apart
    std::size_t textCell = 0;   ///< where the list shows it
};
const std::vector<List>& allLists();

/// Whose list that is at a number of rows.
std::int32_t ownerOf(desk::Tab tab, const Scale& scale);

/// The statements that the control sends for a list of an agent.
std::vector<std::string> statementsOf(desk::Tab tab, std::int32_t agent);

} // namespace dn::bench
