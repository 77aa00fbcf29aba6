// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/relations.h"

#include "host/screens/directory.h"

namespace dn::host {
namespace {

std::vector<Relation> readRelations(OwnConnection& database, Statement statement)
{
    std::vector<Relation> relations;
    const auto rows = database.run(statement.limit(relationLimit));
    for (; !rows->Eof(); rows->MoveNext()) {
        Relation relation{rows->value(0).toInt32(), {}};
        for (std::size_t column = 1; column < rows->names().size(); ++column)
            relation.cells.emplace_back(rows->value(column).raw());
        relations.push_back(std::move(relation));
    }
    return relations;
}

Relation withFullName(const Relation& person)
{
    const std::vector<std::string>& cells = person.cells;
    return {person.key, {fullName(cells.at(0), cells.at(1), cells.at(2)), cells.at(3), cells.at(4)}};
}

} // namespace

std::vector<Relation> relatedProjects(OwnConnection& database, bool organisation, std::int32_t key)
{
    Statement ofOrganisation("SELECT p.Sys_PK, p.FInicio, p.Descripcion, m.Descripcion, p.UF_Status1, p.UF_monto "
                             "FROM Proyecto p LEFT JOIN Meta m ON m.Sys_PK = p.IMeta WHERE p.IOrganizacion = ? "
                             "ORDER BY p.FInicio DESC, p.Sys_PK");
    Statement ofPerson("SELECT p.Sys_PK, p.FInicio, p.Descripcion, m.Descripcion, p.UF_Status1, p.UF_monto "
                       "FROM Proyecto p LEFT JOIN Meta m ON m.Sys_PK = p.IMeta WHERE p.IContacto = ? "
                       "ORDER BY p.FInicio DESC, p.Sys_PK");
    return readRelations(database, (organisation ? ofOrganisation : ofPerson).bind(key));
}

std::vector<Relation> relatedActivities(OwnConnection& database, bool organisation, std::int32_t key)
{
    Statement ofOrganisation("SELECT p.Sys_PK, a.FInicio, t.Nombre, a.Asunto, a.Hecho, p.Descripcion FROM "
                             "actividad a JOIN Proyecto p ON p.Sys_PK = a.IProyecto LEFT JOIN mdtpactividad t ON "
                             "t.Sys_PK = a.ITpActividad WHERE p.IOrganizacion = ? ORDER BY a.Hecho, a.FInicio, "
                             "a.Sys_PK");
    Statement ofPerson("SELECT p.Sys_PK, a.FInicio, t.Nombre, a.Asunto, a.Hecho, p.Descripcion FROM "
                       "actividad a JOIN Proyecto p ON p.Sys_PK = a.IProyecto LEFT JOIN mdtpactividad t ON "
                       "t.Sys_PK = a.ITpActividad WHERE p.IContacto = ? ORDER BY a.Hecho, a.FInicio, a.Sys_PK");
    return readRelations(database, (organisation ? ofOrganisation : ofPerson).bind(key));
}

std::vector<Relation> relatedParties(OwnConnection& database, bool organisation, std::int32_t key)
{
    if (!organisation) // a UNION leaves each key once
        return readRelations(
            database,
            Statement("SELECT o.Sys_PK, o.Nombre, COALESCE(o.Tel1, o.Tel2, o.Tel3), o.EMail FROM (SELECT "
                      "IOrganizacion AS clave FROM Proyecto WHERE IContacto = ? UNION SELECT "
                      "IOrganizacion FROM Persona WHERE Sys_PK = ?) claves JOIN Organizacion o ON "
                      "o.Sys_PK = claves.clave ORDER BY o.Nombre, o.Sys_PK")
                .bind(key)
                .bind(key));
    std::vector<Relation> persons = readRelations(
        database,
        Statement("SELECT p.Sys_PK, p.Nombre, p.Apellido1, p.Apellido2, COALESCE(p.Tel_Trabajo, p.Tel_Movil, "
                  "p.Tel_Casa), p.EMail FROM (SELECT IContacto AS clave FROM Proyecto WHERE IOrganizacion = ? "
                  "UNION SELECT Sys_PK FROM Persona WHERE IOrganizacion = ?) claves JOIN Persona p ON "
                  "p.Sys_PK = claves.clave ORDER BY p.Nombre, p.Apellido1, p.Sys_PK")
            .bind(key)
            .bind(key));
    for (Relation& person : persons)
        person = withFullName(person);
    return persons;
}

} // namespace dn::host
