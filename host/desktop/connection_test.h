// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Whether a database can be worked with, told to whoever has just typed where it lies.
#pragma once

#include "host/database/database_choice.h"

#include <QString>

#include <string>
#include <vector>

namespace dn::host {

/// The same database, waited for as long as an operator waits before his screen.
DatabaseChoice impatient(DatabaseChoice choice);

/// Connects, looks for the tables, and leaves everything as it was.
/// @param connect as `parseDatabaseChoice` reads it.
/// @return what was found, in the operator's words.
/// @throws HostError with what is wrong, within some ten seconds.
QString testConnection(const std::string& connect);

/// The same at each server of a database, at all of them at a time.
/// @param servers as `parseDatabaseChoice` reads each; at least one.
/// @return which of them answer, and what was found at each.
/// @throws HostError where none does, with what is wrong at each.
QString testServers(const std::vector<std::string>& servers);

} // namespace dn::host
