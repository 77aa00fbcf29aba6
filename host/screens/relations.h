// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What hangs together with a person or an organisation: its projects, their activities, and the other parties.
#pragma once

#include "host/database/own_connection.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dn::host {

/// As many of a kind as are read.
inline constexpr std::int32_t relationLimit = 500;

/// A row of one of the lists, with the key of what it opens.
struct Relation {
    std::int32_t key = 0;
    std::vector<std::string> cells;
};

// All of these: @param organisation whether the key is that of an organisation. @throws data::Error

/// Newest first. Cells: start, description, goal, temperature's code, amount.
std::vector<Relation> relatedProjects(OwnConnection& database, bool organisation, std::int32_t key);
/// Those to do first. The key is the project's. Cells: date, kind, subject, done, project.
std::vector<Relation> relatedActivities(OwnConnection& database, bool organisation, std::int32_t key);
/// The organisations of a person or the persons of an organisation: by their projects, and where the person works.
/// Cells: name, telephone, mail address.
std::vector<Relation> relatedParties(OwnConnection& database, bool organisation, std::int32_t key);

} // namespace dn::host
