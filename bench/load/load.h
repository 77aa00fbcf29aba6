// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Many agents at work at once on one server: each has the real control without its widgets, a connection and a
// thread of its own, and does what an agent does in the course of a day, only with less time to think.
#pragma once

#include "host/database/database_choice.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace dn::bench {

/// What an agent does. The order is that of `actionNames`.
enum class Action : std::uint8_t {
    refresh,   ///< a click on the tab of the prospects, which loads the list
    click,     ///< on a row, which fills detail and timeline
    note,      ///< typed and registered
    call,      ///< reaches the prospect: summary, and the next call is agreed on
    noAnswer,  ///< a call that nobody takes
    schedule,  ///< of the next call, from the question what happens next
    status,    ///< with a reason: the prospect goes to another status
    queue,     ///< of the day, and a click on its first row
    projects,  ///< the list of the projects
    directory, ///< the list of the persons
    companies, ///< the list of the organisations
    search,    ///< in all cells of the prospects, for a text that its last row has
    sort,      ///< by a click on a header
    bulk,      ///< five checked prospects discarded at once; supervisors alone, who are every tenth agent
};

constexpr std::array<const char*, 14> actionNames{"refresh of the prospects",
                                                  "click on a row",
                                                  "note",
                                                  "call with summary and next call",
                                                  "call that nobody takes",
                                                  "next call scheduled",
                                                  "status change",
                                                  "queue of the day",
                                                  "list of the projects",
                                                  "list of the persons",
                                                  "list of the organisations",
                                                  "search in the prospects",
                                                  "sort by a column",
                                                  "discard of five checked rows"};

struct LoadOptions {
    host::MariadbTarget server;
    std::vector<std::int32_t> agents; ///< a thread for each, and each once
    std::chrono::milliseconds duration = std::chrono::seconds(20);
    std::chrono::milliseconds thinking = std::chrono::seconds(4); ///< on average, between two actions
    std::uint64_t seed = 1;
    /// Of each agent's steps only the last so many are kept, so that what is measured does not fill the memory; 0
    /// keeps all.
    std::size_t stepsKept = 0;
};

/// One action of one agent, in milliseconds.
struct Step {
    Action action{};
    double wall = 0;
    double server = 0; ///< waiting for the server: all time in the connection that was not ours
    double cpu = 0;    ///< of the agent's thread: driver and control
    double queued = 0; ///< ready to run, and waiting for a processor
    double driver = 0; ///< of it, in the driver
};

struct LoadResult {
    std::vector<Step> steps;
    std::size_t actions = 0;        ///< steps taken, kept or not
    std::vector<std::string> wrong; ///< answers that were not as they should, and failed statements
    std::size_t statements = 0;
    double seconds = 0;           ///< from the first action to the last
    double startMilliseconds = 0; ///< the slowest start of a control, all agents at once
};

/// What our own code adds to an action beside the server: waiting for a processor included.
inline double ownShare(const Step& step) { return step.wall - step.server; }

/// Runs the load; returns when every agent has come to the end of his last action.
/// @throws std::runtime_error when an agent cannot be connected or has no prospects.
LoadResult runLoad(const LoadOptions& options);

/// The actions with count, p50 and p99 of the whole, of the server's and of our own share, as a table of a
/// document.
std::string loadAsMarkdown(const LoadResult& result);

} // namespace dn::bench
