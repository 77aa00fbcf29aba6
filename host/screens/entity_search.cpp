// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/entity_search.h"

#include "base/collation.h"
#include "base/text.h"

#include <algorithm>
#include <iterator>

namespace dn::host {
namespace {

constexpr std::size_t lettersForAnywhere = 3;
constexpr const char* escape = "!";

/// The text as it stands, for LIKE. A bracket opens a set of letters on SQL Server.
std::string escaped(const std::string& text)
{
    std::string pattern;
    for (const char c : text) {
        if (c == '%' || c == '_' || c == '[' || c == '!') pattern += '!';
        pattern += c;
    }
    return pattern;
}

std::vector<Entity> read(OwnConnection& database, const Statement& statement, bool organisation)
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

std::vector<Entity> personsFrom(OwnConnection& database, const std::string& pattern)
{
    return read(
        database,
        Statement("SELECT Sys_PK, Nombre, Apellido1, Apellido2, COALESCE(Tel_Trabajo, Tel_Movil, Tel_Casa), "
                  "EMail FROM Persona WHERE Nombre LIKE ? ESCAPE ? ORDER BY Nombre, Apellido1")
            .bind(pattern + "%")
            .bind(escape)
            .limit(searchLimit),
        false);
}

std::vector<Entity> organisationsFrom(OwnConnection& database, const std::string& pattern)
{
    return read(database,
                Statement("SELECT Sys_PK, Nombre, NULL, NULL, COALESCE(Tel1, Tel2, Tel3), EMail FROM Organizacion "
                          "WHERE Nombre LIKE ? ESCAPE ? ORDER BY Nombre")
                    .bind(pattern + "%")
                    .bind(escape)
                    .limit(searchLimit),
                true);
}

std::vector<Entity> personsWith(OwnConnection& database, const std::string& pattern)
{
    return read(
        database,
        Statement("SELECT Sys_PK, Nombre, Apellido1, Apellido2, COALESCE(Tel_Trabajo, Tel_Movil, Tel_Casa), "
                  "EMail FROM Persona WHERE CONCAT_WS(?, Nombre, Apellido1, Apellido2, Tel_Trabajo, "
                  "Tel_Movil, EMail) LIKE ? ESCAPE ? ORDER BY Nombre, Apellido1")
            .bind(" ")
            .bind("%" + pattern + "%")
            .bind(escape)
            .limit(searchLimit),
        false);
}

std::vector<Entity> organisationsWith(OwnConnection& database, const std::string& pattern)
{
    return read(database,
                Statement("SELECT Sys_PK, Nombre, NULL, NULL, COALESCE(Tel1, Tel2, Tel3), EMail FROM Organizacion "
                          "WHERE CONCAT_WS(?, Nombre, NomComercial, Tel1, Tel2, EMail) LIKE ? ESCAPE ? ORDER BY "
                          "Nombre")
                    .bind(" ")
                    .bind("%" + pattern + "%")
                    .bind(escape)
                    .limit(searchLimit),
                true);
}

using Search = std::vector<Entity> (*)(OwnConnection&, const std::string&);

std::vector<Entity> both(OwnConnection& database, const std::string& pattern, SearchScope scope, Search persons,
                         Search organisations)
{
    std::vector<Entity> found;
    if (scope.organisations) found = organisations(database, pattern);
    if (scope.persons) std::ranges::move(persons(database, pattern), std::back_inserter(found));
    std::ranges::stable_sort(
        found, [](const Entity& left, const Entity& right) { return compareSpanish(left.name, right.name) < 0; });
    return found;
}

bool same(const Entity& left, const Entity& right)
{
    return left.organisation == right.organisation && left.key == right.key;
}

void addNew(std::vector<Entity>& found, std::vector<Entity> more)
{
    const auto known = static_cast<std::ptrdiff_t>(found.size());
    for (Entity& one : more)
        if (std::none_of(found.begin(), found.begin() + known, [&](const Entity& f) { return same(f, one); }))
            found.push_back(std::move(one));
}

} // namespace

std::vector<Entity> searchEntities(OwnConnection& database, const std::string& text, SearchScope scope)
{
    const std::string wanted(trimmed(text));
    const std::string pattern = escaped(wanted);
    std::vector<Entity> found = both(database, pattern, scope, personsFrom, organisationsFrom);
    if (length(wanted) >= lettersForAnywhere && found.size() < static_cast<std::size_t>(searchLimit))
        addNew(found, both(database, pattern, scope, personsWith, organisationsWith));
    if (found.size() > static_cast<std::size_t>(searchLimit)) found.resize(searchLimit);
    return found;
}

std::vector<Entity> entitiesNamed(const std::vector<Entity>& found, const std::string& name)
{
    std::vector<Entity> exact;
    std::ranges::copy_if(found, std::back_inserter(exact),
                         [&](const Entity& one) { return equalsNoCase(one.name, name); });
    return exact;
}

} // namespace dn::host
