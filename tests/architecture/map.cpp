// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/architecture/map.h"

#include <sstream>
#include <stdexcept>

namespace dn::tests {
namespace {

std::vector<std::string> namesIn(const std::string& cell)
{
    std::vector<std::string> names;
    std::istringstream parts(cell);
    std::string outside;
    std::string name;
    while (std::getline(parts, outside, '`') && std::getline(parts, name, '`'))
        names.push_back(name);
    return names;
}

struct Row {
    std::vector<std::string> names;
    std::set<std::string> rooms;
};

Row readRow(const std::string& line)
{
    const std::size_t lastCell = line.rfind('|', line.rfind('|') - 1);
    const std::vector<std::string> names = namesIn(line.substr(0, line.find('|', 1)));
    const std::vector<std::string> rooms = namesIn(line.substr(lastCell));
    if (names.empty()) throw std::runtime_error("a row of the map without a name: " + line);
    return {names, {rooms.begin(), rooms.end()}};
}

// The rows of the first table under a heading, without its head and the line below that.
std::vector<Row> tableUnder(const std::string& heading, const std::string& document)
{
    std::istringstream lines(document);
    std::string line;
    while (std::getline(lines, line) && line != "## " + heading) {
    }
    std::vector<Row> rows;
    int inTable = 0;
    while (std::getline(lines, line) && !line.starts_with("## ")) {
        if (line.starts_with("|") && ++inTable > 2) rows.push_back(readRow(line));
        if (!line.starts_with("|") && inTable > 0) break;
    }
    if (rows.empty()) throw std::runtime_error("no table under the heading \"" + heading + "\"");
    return rows;
}

} // namespace

Map readMap(const std::string& document)
{
    Map map;
    for (const Row& row : tableUnder("Allowed edges", document)) {
        map.rooms[row.names.front()] = row.rooms;
        for (const std::string& folder : row.names)
            if (!map.folders.emplace(folder, row.names.front()).second)
                throw std::runtime_error("the map has the folder " + folder + " twice");
    }
    for (const Row& row : tableUnder("Headers from outside", document))
        for (const std::string& name : row.names)
            map.outside.push_back({name.substr(1, name.size() - 2), row.rooms}); // off with the <>
    return map;
}

} // namespace dn::tests
