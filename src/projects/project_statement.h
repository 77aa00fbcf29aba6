// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The two statements that read the projects of an agent: those with pending activities, by their activities, and
// all of them, by themselves.
#pragma once

#include <cstdint>
#include <string>

namespace dn::projects {

/// For a statement that shows the projects of every status.
inline constexpr int anyStatus = 0;

/// Every pending activity of the agent's projects, the earliest first.
/// @param mySql takes the MySQL forms; otherwise the SQL Server forms.
/// @param status code of `UF_Status1`, or anyStatus.
std::string pendingActivitiesStatement(bool mySql, std::int32_t agente, int status);

/// The agent's projects without regard to their activities; the same text on every engine.
/// @param status code of `UF_Status1`, or anyStatus, which here leaves out those that are closed or lost.
std::string projectsStatement(std::int32_t agente, int status);

} // namespace dn::projects
