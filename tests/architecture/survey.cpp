// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/architecture/survey.h"

#include <algorithm>
#include <fstream>
#include <regex>

namespace dn::tests {
namespace {

namespace fs = std::filesystem;

std::string folderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "" : path.substr(0, slash);
}

// src/ is the root of its tree: its folders go by their bare name.
std::string nameOnMap(const std::string& folder) { return folder.starts_with("src/") ? folder.substr(4) : folder; }

void readIncludes(const fs::path& path, const std::string& file, std::vector<Include>& found)
{
    static const std::regex directive(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    std::ifstream text(path);
    std::string line;
    for (int number = 1; std::getline(text, line); ++number) {
        std::smatch parts;
        if (std::regex_search(line, parts, directive))
            found.push_back({file, number, nameOnMap(folderOf(file)), parts[2], parts[1] == "\""});
    }
}

// The C++ standard library's headers, and only they, have neither a stop nor a slash nor a capital.
bool isStandard(const std::string& header)
{
    return std::all_of(header.begin(), header.end(), [](char c) { return (c >= 'a' && c <= 'z') || c == '_'; });
}

std::string placeOf(const Include& include) { return include.file + ":" + std::to_string(include.line) + ": "; }

class Survey {
public:
    explicit Survey(const Map& map) : map_(map) {}

    void take(const Include& include)
    {
        const auto room = map_.folders.find(include.folder);
        if (room == map_.folders.end()) {
            tell(placeOf(include) + "the folder " + include.folder + " is not on the map");
            return;
        }
        seen_.insert(include.folder);
        if (include.ours)
            takeOurs(room->second, include);
        else if (!isStandard(include.header))
            takeOutside(room->second, include);
    }

    std::vector<std::string> end()
    {
        for (const auto& [folder, room] : map_.folders)
            if (!seen_.contains(folder)) tell("the map has a folder " + folder + " that is not there");
        for (const auto& [room, allowed] : map_.rooms) {
            for (const std::string& other : allowed)
                requireUse(room, other, other);
            if (reaches(room, room)) tell("the map has a circle through " + room);
        }
        for (const OutsideHeaders& row : map_.outside)
            for (const std::string& room : row.rooms)
                requireUse(room, row.pattern, "<" + row.pattern + ">");
        return told_;
    }

private:
    void tell(std::string finding) { told_.push_back(std::move(finding)); }

    void requireUse(const std::string& room, const std::string& other, const std::string& shown)
    {
        if (used_.contains({room, other})) return;
        tell("the map allows " + room + " -> " + shown + ", which no include uses");
    }

    void takeOurs(const std::string& room, const Include& include)
    {
        const auto other = map_.folders.find(folderOf(include.header));
        if (other != map_.folders.end()) {
            used_.emplace(room, other->second);
            if (other->second == room || map_.rooms.at(room).contains(other->second)) return;
        }
        tell(placeOf(include) + room + " may not include \"" + include.header + "\"");
    }

    void takeOutside(const std::string& room, const Include& include)
    {
        const auto row = std::find_if(map_.outside.begin(), map_.outside.end(),
                                      [&](const auto& each) { return fits(include.header, each.pattern); });
        if (row != map_.outside.end()) {
            used_.emplace(room, row->pattern);
            if (row->rooms.contains(room)) return;
        }
        tell(placeOf(include) + room + " may not include <" + include.header + ">");
    }

    // Whether the edges of the map lead from one room to another, over at least one of them.
    bool reaches(const std::string& from, const std::string& to) const
    {
        std::set<std::string> known;
        std::vector<std::string> open{from};
        while (!open.empty()) {
            const auto room = map_.rooms.find(open.back());
            open.pop_back();
            if (room == map_.rooms.end()) continue;
            for (const std::string& next : room->second) {
                if (next == to) return true;
                if (known.insert(next).second) open.push_back(next);
            }
        }
        return false;
    }

    const Map& map_;
    std::set<std::string> seen_;
    std::set<std::pair<std::string, std::string>> used_;
    std::vector<std::string> told_;
};

} // namespace

std::vector<Include> includesOf(const fs::path& root)
{
    std::vector<Include> found;
    for (const char* tree : {"src", "host"}) {
        if (!fs::exists(root / tree)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / tree)) {
            const fs::path& path = entry.path();
            if (path.extension() == ".h" || path.extension() == ".cpp")
                readIncludes(path, path.lexically_relative(root).generic_string(), found);
        }
    }
    return found;
}

bool fits(const std::string& header, const std::string& pattern)
{
    const std::size_t star = pattern.find('*');
    if (star == std::string::npos) return header == pattern;
    const std::string head = pattern.substr(0, star);
    const std::string tail = pattern.substr(star + 1);
    return header.size() >= head.size() + tail.size() && header.starts_with(head) && header.ends_with(tail);
}

std::vector<std::string> findings(const Map& map, const std::vector<Include>& includes)
{
    Survey survey(map);
    for (const Include& include : includes)
        survey.take(include);
    return survey.end();
}

} // namespace dn::tests
