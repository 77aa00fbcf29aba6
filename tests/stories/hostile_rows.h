// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The tables of the database with other types than expected, and what of each type a list must show.
#pragma once

#include <string>
#include <vector>

namespace dn::tests {

struct HostileType {
    std::string type;
    std::string literal;          ///< an extreme value
    std::string shown;            ///< as a plain cell has it
    bool refusedByIfNull = false; ///< IFNULL(column, '') is an error of the server, and so is DATEDIFF
};

extern const std::vector<HostileType> hostileTypes;

/// The columns of the prospects with one type for all but those by which a list is filtered.
std::string prospectColumnsOf(const std::string& type, const std::string& keyType = "INT");
/// The statement for a prospect of agent 7 in status 0 with one value in all other columns.
std::string prospectRowOf(int key, const std::string& literal);

/// The same with a value in its name, its mail and its comments alone: for values of megabytes.
std::string longProspectRowOf(int key, const std::string& literal);

/// The columns of the projects without a key that is unique, and with any number of digits.
extern const char* const projectColumns;

/// The columns of a directory with one type for all but the key and the agent.
std::string personColumnsOf(const std::string& type);
std::string organisationColumnsOf(const std::string& type);

} // namespace dn::tests
