// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// SQL Server runs whatever stands in a text, one statement after the other, with semicolons or without. MySQL and
// MariaDB refuse a second one by themselves; here it is done ahead of the server.
#pragma once

#include <string_view>

namespace dn::data::odbc {

/// Whether a text in Transact-SQL holds a statement behind its first one: anything behind a semicolon, or a bare
/// one. A definition (CREATE, ALTER) may hold what it likes. Behind what has the words of others inside (IF,
/// WHILE, DECLARE, MERGE, GRANT, DENY, REVOKE) a bare one is not seen; no statement of the control begins so.
bool isStacked(std::string_view text);

/// @throws Error for a text with more than one statement; nothing of it was sent then.
void requireOneStatement(std::string_view text);

} // namespace dn::data::odbc
