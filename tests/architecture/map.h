// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The map of the house as docs/architecture.md draws it: which room may include which, and which headers from
// outside the project a room may use.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

namespace dn::tests {

/// A row of the table of headers from outside: `<mysql*.h>` and the rooms that may include such a header.
struct OutsideHeaders {
    std::string pattern; ///< without the angle brackets; a `*` stands for any characters
    std::set<std::string> rooms;
};

struct Map {
    /// The room that each folder belongs to: most folders are a room of their own.
    std::map<std::string, std::string> folders;
    /// Each room with the rooms that it may include.
    std::map<std::string, std::set<std::string>> rooms;
    /// The first row whose pattern fits a header decides.
    std::vector<OutsideHeaders> outside;
};

/// Reads the tables under the headings "Allowed edges" and "Headers from outside": in each row the first cell is
/// what the row is about, and the last cell lists rooms; names stand between backticks. A room that fills several
/// folders has them all in its first cell, its name ahead.
/// @throws std::runtime_error for a table that is missing or a row without a name.
Map readMap(const std::string& document);

} // namespace dn::tests
