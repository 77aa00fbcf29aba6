// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The statement that reads the prospects of an agent in a status.
#pragma once

#include <cstdint>
#include <string>

namespace dn::prospects {

/// @param mySql takes the MySQL forms; otherwise the SQL Server forms.
/// @param agente the agent's key; 0 for the prospects of nobody.
/// @param status code of `uf_Status`.
std::string prospectStatement(bool mySql, std::int32_t agente, int status);

} // namespace dn::prospects
