// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The server and the rows that all benchmarks share. They are kept between runs.
#pragma once

#include "bench/scale_rows.h"
#include "desk/tab_strip.h"
#include "host/database/database.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace dn::bench {

class BenchDatabase {
public:
    /// Makes the server and the rows in a folder, or takes those that a former run left there.
    /// @param largest the most rows of one agent. @param loadAgents agents for the load.
    BenchDatabase(const std::string& folder, std::size_t largest, std::size_t loadAgents);

    /// For the control. It waits longer for the server than a program would.
    data::Connection& connection() { return *connection_; }
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
    std::unique_ptr<data::Connection> connection_; // goes ahead of its server
    std::vector<Scale> scales_;
};

/// The five lists, by the names of their load routines.
struct List {
    desk::Tab tab{};
    const char* name = "";
};
const std::vector<List>& allLists();

/// Whose list that is at a number of rows.
std::int32_t ownerOf(desk::Tab tab, const Scale& scale);

/// The statements that the control sends for a list of an agent.
std::vector<std::string> statementsOf(desk::Tab tab, std::int32_t agent);

} // namespace dn::bench
