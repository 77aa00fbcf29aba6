// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Whether a database can be worked with, told to whoever has just typed where it lies.
#pragma once

#include "host/database/database_choice.h"

#include <QString>

#include <string>

namespace dn::host {

/// The same database, waited for as long as an operator waits before his screen.
DatabaseChoice impatient(DatabaseChoice choice);

/// Connects, looks for the tables, and leaves everything as it was.
/// @param connect as `parseDatabaseChoice` reads it.
/// @return what was found, in the operator's words.
/// @throws HostError with what is wrong, within some ten seconds.
QString testConnection(const std::string& connect);

} // namespace dn::host
