// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Projects as the queue of the day takes them up: open ones, with or without a pending activity.
#pragma once

#include "data/connection.h"

#include <cstdint>
#include <string>

namespace dn::tests {

/// One goal and one kind of activity, which the projects below have; those that are there stay.
void fillCatalogues(data::Connection& database);

/// An open project with its organisation and contact, of one name; its key.
std::int64_t openProject(data::Connection& database, const std::string& name, std::int32_t agent);

/// A pending activity of a project.
/// @param due as an SQL expression.
void pendingActivity(data::Connection& database, std::int64_t project, const std::string& due);

} // namespace dn::tests
