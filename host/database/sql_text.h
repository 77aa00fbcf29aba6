// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Values as literals of a statement, for the host's own bulk writing.
#pragma once

#include "base/date_time.h"

#include <string>
#include <string_view>

namespace dn::host {

enum class Engine { mariadb, sqlServer };

/// Appends the text in quotes, so that the engine reads back exactly its bytes. On MySQL and MariaDB the session
/// must read backslashes as escapes, which is how they start.
void appendText(std::string& statement, std::string_view text, Engine engine);

/// Appends a day in quotes, for a column of dates.
void appendDate(std::string& statement, const DateTime& day);

/// Appends a moment in quotes, in the form that every engine reads alike whatever its language.
void appendMoment(std::string& statement, const DateTime& moment);

} // namespace dn::host
