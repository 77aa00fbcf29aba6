// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/entity_search.h"

#include "base/collation.h"
#include "base/text.h"
#include "host/screens/entity_statements.h"

#include <algorithm>
#include <iterator>

namespace dn::host {
namespace {

constexpr std::size_t lettersForAnywhere = 3;
constexpr auto room = static_cast<std::size_t>(searchLimit);
// A slice of so many keys takes some milliseconds. Keys with wide gaps must not make slices without end.
constexpr std::int64_t keysOfSlice = 4'000;
constexpr std::int64_t mostSlices = 64;

std::vector<Entity> readEntities(OwnConnection& database, const Statement& statement, bool organisation)
{
    std::vector<Entity> found;
    const auto rows = database.run(statement);
    for (; !rows->Eof(); rows->MoveNext()) {
        const auto cell = [&](std::size_t column) { return std::string(rows->value(column).raw()); };
        found.push_back(
            {organisation, rows->value(0).toInt32(), fullName(cell(1), cell(2), cell(3)), cell(4), cell(5)});
    }
    return found;
}

void sortByName(std::vector<Entity>& entities)
{
    std::ranges::stable_sort(entities, [](const Entity& left, const Entity& right) {
        return compareSpanish(left.name, right.name) < 0;
    });
}

bool same(const Entity& left, const Entity& right)
{
    return left.organisation == right.organisation && left.key == right.key;
}

bool holds(const std::vector<Entity>& entities, const Entity& one)
{
    return std::ranges::any_of(entities, [&](const Entity& other) { return same(other, one); });
}

void addNew(std::vector<Entity>& found, std::vector<Entity> more)
{
    for (Entity& one : more)
        if (found.size() < room && !holds(found, one)) found.push_back(std::move(one));
}

} // namespace

void EntitySearch::begin(const std::string& text)
{
    const std::string_view wanted = trimmed(text);
    pattern_ = patternOf(wanted);
    slices_.clear();
    found_.clear();
    elsewhere_.clear();
    addBeginnings(std::string(wanted));
    if (length(wanted) < lettersForAnywhere || found_.size() >= room) return;
    if (scope_.persons) cut(false);
    if (scope_.organisations) cut(true);
}

void EntitySearch::addBeginnings(const std::string& text)
{
    std::vector<Entity> names;
    std::vector<Entity> others;
    const auto add = [this](std::vector<Entity>& to, const Statement& statement, bool organisation) {
        std::ranges::move(readEntities(database_, statement, organisation), std::back_inserter(to));
    };
    if (scope_.organisations) add(names, organisationsFrom(pattern_), true);
    if (scope_.persons) add(names, personsFrom(pattern_), false);
    // "ana lópez": the first word leads to the index, the rest only counts its entries out.
    if (const std::size_t blank = text.find(' '); scope_.persons && blank != std::string::npos)
        add(names, personsInFull(patternOf(std::string_view(text).substr(0, blank)), pattern_), false);
    sortByName(names);
    addNew(found_, std::move(names));
    if (text.empty()) return;
    if (scope_.organisations) add(others, organisationsTradingAs(pattern_), true);
    if (scope_.persons) add(others, personsOfSurname(pattern_), false);
    sortByName(others);
    addNew(found_, std::move(others));
}

void EntitySearch::cut(bool organisations)
{
    const auto ends = database_.run(organisations ? organisationKeys() : personKeys());
    if (ends->Eof() || ends->value(0).isNull()) return;
    const std::int64_t first = ends->value(0).toInt32();
    const std::int64_t last = ends->value(1).toInt32();
    const std::int64_t width = std::max(keysOfSlice, (last - first) / mostSlices + 1);
    for (std::int64_t from = first; from <= last; from += width)
        slices_.push_back({organisations, static_cast<std::int32_t>(from),
                           static_cast<std::int32_t>(std::min(from + width - 1, last))});
}

bool EntitySearch::goOn()
{
    if (isDone()) return false;
    const Slice slice = slices_.back();
    slices_.pop_back();
    try {
        const Statement statement = slice.organisations ? organisationsWith(pattern_, slice.first, slice.last)
                                                        : personsWith(pattern_, slice.first, slice.last);
        std::ranges::copy_if(readEntities(database_, statement, slice.organisations),
                             std::back_inserter(elsewhere_),
                             [this](const Entity& one) { return !holds(found_, one); });
    } catch (...) {
        slices_.clear();
        throw;
    }
    if (found_.size() + elsewhere_.size() >= room) slices_.clear();
    if (isDone()) finish();
    return !isDone();
}

void EntitySearch::finish()
{
    sortByName(elsewhere_);
    addNew(found_, std::move(elsewhere_));
    elsewhere_.clear();
}

std::vector<Entity> searchEntities(OwnConnection& database, const std::string& text, SearchScope scope)
{
    EntitySearch search(database, scope);
    search.begin(text);
    while (search.goOn()) {
    }
    return search.found();
}

std::vector<Entity> entitiesNamed(const std::vector<Entity>& found, const std::string& name)
{
    std::vector<Entity> exact;
    std::ranges::copy_if(found, std::back_inserter(exact),
                         [&](const Entity& one) { return equalsNoCase(one.name, name); });
    return exact;
}

} // namespace dn::host
