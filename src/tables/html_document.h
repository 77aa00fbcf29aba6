// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A table as an HTML document.
#pragma once

#include "tables/table.h"

#include <string>

namespace dn::tables {

/// Writes one valid UTF-8 document with the table, its captions as a head; every cell is escaped. The document is
/// well-formed XML too. Row by row: it takes no memory to speak of.
/// @param path of the file, whatever its extension. What was there is replaced.
/// @throws RuntimeError when it cannot be written; what was there before is still there then, and nothing else.
void writeHtml(const std::string& path, const std::string& title, const Table& table);

} // namespace dn::tables
