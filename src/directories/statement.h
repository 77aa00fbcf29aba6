// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The statement that reads a directory.
#pragma once

#include "directories/kind.h"

#include <cstdint>
#include <string>

namespace dn::directories {

/// @param mySql takes the null function of MySQL; otherwise that of SQL Server.
/// @param agente the agent's key; 0 or less for the entries of everybody.
std::string directoryStatement(const Kind& kind, bool mySql, std::int32_t agente);

} // namespace dn::directories
