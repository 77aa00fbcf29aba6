// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A new project's row, and the goals that it can have.
#pragma once

#include "host/database/own_connection.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace dn::host {

struct Goal {
    std::int32_t key = 0;
    std::string description;
};

struct NewProject {
    std::int32_t goal = 0;
    std::int32_t organisation = 0; ///< 0 for none
    std::int32_t person = 0;       ///< 0 for none
    std::string description;
    std::optional<Decimal> amount; ///< nothing while it is not known
    std::int32_t temperature = 1;  ///< 1 cold to 4 hot, as UF_Status1 counts
    std::int32_t agent = 0;        ///< 0 for nobody
};

/// In alphabetical order. @throws data::Error
std::vector<Goal> readGoals(OwnConnection& database);

/// Stores it with a global identifier of its own; it starts at the server's present moment.
/// @return its key. @throws data::Error; nothing is stored then.
std::int32_t insertProject(OwnConnection& database, const NewProject& project);

} // namespace dn::host
