// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Rows for measuring, made by the server itself out of the sample data: agents with so many prospects, projects,
// queued parties, persons and organisations each, and the agents of the load.
#pragma once

#include "data/connection.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace dn::bench {

constexpr std::int32_t firstScaleAgent = 1001;
constexpr std::int32_t firstLoadAgent = 2001;

/// An agent who owns that many prospects, all of them in the queue of the day, persons and organisations, and
/// another who owns as many projects: with both, the server would spend its time on finding out that no project is
/// due.
struct Scale {
    std::int32_t agent = 0;
    std::size_t rows = 0;

    std::int32_t projectAgent() const { return agent + 100; }
};

/// The agents with 1,000 rows, ten times as many, and so on up to `largest`.
std::vector<Scale> scalesUpTo(std::size_t largest);

/// Makes the rows of that agent, unless a former run left all of them. Every prospect is in the queue of the day,
/// and every project has a pending activity, each tenth of them three.
void makeScaleRows(data::Connection& connection, const Scale& scale);

/// Makes agents from `firstLoadAgent` on with 500 prospects, 40 projects, 200 persons and 100 organisations each,
/// unless they are there. Nothing is changed in the rows of others.
void makeLoadRows(data::Connection& connection, std::size_t agents);

} // namespace dn::bench
