// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/directory.h"

namespace dn::host {

std::optional<Entity> findEntity(OwnConnection& database, bool organisation, std::int32_t key)
{
    Statement persons("SELECT Nombre, Apellido1, Apellido2 FROM Persona WHERE Sys_PK = ?");
    Statement organisations("SELECT Nombre, NULL, NULL FROM Organizacion WHERE Sys_PK = ?");
    const auto row = database.run((organisation ? organisations : persons).bind(key));
    if (row->Eof()) return std::nullopt;
    const auto cell = [&](std::size_t column) { return std::string(row->value(column).raw()); };
    Entity entity;
    entity.organisation = organisation;
    entity.key = key;
    entity.name = fullName(cell(0), cell(1), cell(2));
    return entity;
}

std::int32_t organisationOf(OwnConnection& database, std::int32_t person)
{
    const auto row =
        database.run(Statement("SELECT COALESCE(IOrganizacion, 0) FROM Persona WHERE Sys_PK = ?").bind(person));
    return row->Eof() ? 0 : row->value(0).toInt32();
}

std::string fullName(const std::string& nombre, const std::string& apellido1, const std::string& apellido2)
{
    std::string name;
    for (const std::string* part : {&nombre, &apellido1, &apellido2}) {
        if (part->empty()) continue;
        if (!name.empty()) name += ' ';
        name += *part;
    }
    return name;
}

} // namespace dn::host
