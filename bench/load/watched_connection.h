// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A connection that knows how long it was waited for: by the clock, and in processor time of the thread.
#pragma once

#include "data/connection.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace dn::bench {

/// Milliseconds on a clock of their own.
double wallNow();
/// Milliseconds of processor that this thread has used.
double threadCpuNow();

/// Milliseconds in which this thread was ready to run and had to wait for a processor.
/// @throws std::runtime_error where the system does not count it.
double threadQueuedNow();

/// What was spent inside a connection.
struct Spent {
    double wall = 0;
    double cpu = 0;
    std::size_t statements = 0;
    std::vector<std::string> failures; ///< what the server said
};

class WatchedConnection final : public data::Connection {
public:
    explicit WatchedConnection(std::unique_ptr<data::Connection> real) : real_(std::move(real)) {}

    int State() const override { return real_->State(); }
    std::unique_ptr<data::Recordset> execute(std::string_view statement) override;

    /// What was spent since it was last set.
    Spent spent;

private:
    std::unique_ptr<data::Connection> real_;
};

} // namespace dn::bench
