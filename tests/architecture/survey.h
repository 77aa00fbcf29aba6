// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The survey: walks through the sources, reads every #include, and compares what it finds with the map.
#pragma once

#include "tests/architecture/map.h"

#include <filesystem>
#include <string>
#include <vector>

namespace dn::tests {

/// One #include line.
struct Include {
    std::string file; ///< from the tree's root, "src/shell/tabs.cpp"
    int line = 0;
    std::string folder; ///< of the file, as the map names it: "shell", "host/database"
    std::string header; ///< what is included, without quotes or brackets
    bool ours = false;  ///< in quotes
};

/// All of them in src/ and host/.
std::vector<Include> includesOf(const std::filesystem::path& root);

/// Whether a header fits a pattern of the map.
bool fits(const std::string& header, const std::string& pattern);

/// What is wrong, each with file and line, or with the row of the map; empty when map and sources agree:
/// - a room that the map does not know, or knows and is not there
/// - an include of a room, or of a header from outside, that the map does not allow
/// - an edge of the map that no include uses
/// - rooms that include each other in a circle
std::vector<std::string> findings(const Map& map, const std::vector<Include>& includes);

} // namespace dn::tests
