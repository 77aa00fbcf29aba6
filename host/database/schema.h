// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The tables, views and procedures of the database contract and those of the host, and making them.
#pragma once

#include "data/connection.h"
#include "host/database/sql_text.h"

#include <string>
#include <string_view>
#include <vector>

namespace dn::host {

/// The version of the scripts in schema/, one folder for each engine; the table dn_esquema holds the one that a
/// database was made with.
inline constexpr int schemaVersion = 1;

/// The statements of a script: each ends with a semicolon at the end of a line. Comments of whole lines are left
/// out.
std::vector<std::string> statementsOf(std::string_view script);

/// The engine behind a connection, by what only MySQL and MariaDB answer.
Engine engineOf(data::Connection& connection);

/// The version that a database was made with; 0 when it was not made by this program, or not to the end.
int schemaVersionOf(data::Connection& connection);

/// The tables and views of the contract that a statement cannot reach.
std::vector<std::string> missingObjects(data::Connection& connection);

/// Makes everything. Nothing is marked as made yet: see `markSchema`.
/// @throws HostError when something of it is there already, or there are no scripts for the engine.
void createSchema(data::Connection& connection, Engine engine);

/// Says in the database that it is complete. What was interrupted ahead of this is no database of ours.
void markSchema(data::Connection& connection);

} // namespace dn::host
