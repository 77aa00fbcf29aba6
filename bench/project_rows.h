// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The projects of one agent and their pending activities, five each, in the same database.
#pragma once

#include "bench/bench_database.h"

#include <cstddef>
#include <string>
#include <vector>

namespace dn::bench {

class ProjectRows {
public:
    static constexpr std::size_t projects = 20'000;
    static constexpr std::size_t activities = 100'000;

    /// Makes the rows, or takes those that a former run left there.
    explicit ProjectRows(BenchDatabase& database);

    /// The two statements that the control sends for these rows.
    std::vector<std::string> statements() const;
    /// The cells that they give together.
    std::size_t cells() const { return cells_; }

private:
    BenchDatabase& database_;
    std::size_t cells_ = 0;
};

} // namespace dn::bench
