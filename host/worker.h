// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Who works with the program: asked of the operator, or taken from the command line.
#pragma once

#include "data/connection.h"
#include "host/program_options.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace dn::host {

struct Agent {
    std::int32_t key = 0;
    QString name;
};

/// Who sits before the screen.
struct Worker {
    std::int32_t agent = 0; ///< 0: an administrator without a key of his own
    bool admin = false;
    QString user; ///< what the activity log shows
};

/// The agents of the database, by name.
/// @throws data::Error
std::vector<Agent> readAgents(data::Connection& connection);

/// Who the command line says works. Where it names nobody, as for a picture, the first agent does.
/// @throws HostError for a key that is no agent's.
Worker workerFrom(const ProgramOptions& options, const std::vector<Agent>& agents);

/// Asks in a window. @param last who worked before, if that is known. @return nothing when the operator gives up.
std::optional<Worker> askWhoWorks(const std::vector<Agent>& agents, std::optional<std::int32_t> last);

} // namespace dn::host
