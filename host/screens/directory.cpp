// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/directory.h"

#include "host/database/host_error.h"

#include <QUuid>

namespace dn::host {
namespace {

std::string textOf(const data::Recordset& row, std::size_t column) { return std::string(row.value(column).raw()); }

std::int32_t keyOf(const data::Recordset& row, std::size_t column)
{
    const data::Value value = row.value(column);
    return value.isNull() ? 0 : value.toInt32();
}

void requireRow(const data::Recordset& rows)
{
    if (rows.Eof()) throw HostError("Este registro ya no existe. Otra persona pudo haberlo borrado.");
}

void bindShown(Statement& statement, const Person& person)
{
    for (const std::string* text :
         {&person.nombre, &person.apellido1, &person.apellido2, &person.puesto, &person.email, &person.telTrabajo,
          &person.telMovil, &person.domicilio, &person.colonia, &person.codPostal})
        statement.bind(textOrNull(*text));
    statement.bind(keyOrNull(person.organizacion));
}

void bindShown(Statement& statement, const Organisation& organisation)
{
    for (const std::string* text : {&organisation.nombre, &organisation.nomComercial, &organisation.tel1,
                                    &organisation.tel2, &organisation.email, &organisation.webSite,
                                    &organisation.domicilio, &organisation.colonia, &organisation.codPostal})
        statement.bind(textOrNull(*text));
}

/// Runs an INSERT whose last parameters are agent and identifier.
std::int32_t insertWhole(OwnConnection& database, Statement& statement, std::int32_t agent)
{
    Transaction transaction(database);
    const std::int32_t key = database.insert(statement.bind(agent).bind(newGuid()));
    transaction.commit();
    return key;
}

void updateWhole(OwnConnection& database, Statement& statement, const Statement& probe, std::int32_t key)
{
    Transaction transaction(database);
    requireRow(*database.run(probe)); // a count of changed rows would be 0 for a row that stays as it is, too
    database.run(statement.bind(key));
    transaction.commit();
}

} // namespace

Person readPerson(OwnConnection& database, std::int32_t key)
{
    const auto row = database.run(
        Statement("SELECT Nombre, Apellido1, Apellido2, Puesto, EMail, Tel_Trabajo, Tel_Movil, Domicilio, "
                  "Colonia, CodPostal, IOrganizacion FROM Persona WHERE Sys_PK = ?")
            .bind(key));
    requireRow(*row);
    Person person;
    std::size_t column = 0;
    for (std::string* text :
         {&person.nombre, &person.apellido1, &person.apellido2, &person.puesto, &person.email, &person.telTrabajo,
          &person.telMovil, &person.domicilio, &person.colonia, &person.codPostal})
        *text = textOf(*row, column++);
    person.organizacion = keyOf(*row, column);
    return person;
}

Organisation readOrganisation(OwnConnection& database, std::int32_t key)
{
    const auto row = database.run(
        Statement("SELECT Nombre, NomComercial, Tel1, Tel2, EMail, WebSite, Domicilio, Colonia, CodPostal FROM "
                  "Organizacion WHERE Sys_PK = ?")
            .bind(key));
    requireRow(*row);
    Organisation organisation;
    std::size_t column = 0;
    for (std::string* text : {&organisation.nombre, &organisation.nomComercial, &organisation.tel1,
                              &organisation.tel2, &organisation.email, &organisation.webSite,
                              &organisation.domicilio, &organisation.colonia, &organisation.codPostal})
        *text = textOf(*row, column++);
    return organisation;
}

std::int32_t insertPerson(OwnConnection& database, const Person& person, std::int32_t agent)
{
    Statement statement(
        "INSERT INTO Persona (Nombre, Apellido1, Apellido2, Puesto, EMail, Tel_Trabajo, Tel_Movil, "
        "Domicilio, Colonia, CodPostal, IOrganizacion, IEjecutivo, Sys_GUID, Sys_DTCreated) VALUES "
        "(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, CURRENT_TIMESTAMP)");
    bindShown(statement, person);
    return insertWhole(database, statement, agent);
}

std::int32_t insertOrganisation(OwnConnection& database, const Organisation& organisation, std::int32_t agent)
{
    Statement statement("INSERT INTO Organizacion (Nombre, NomComercial, Tel1, Tel2, EMail, WebSite, Domicilio, "
                        "Colonia, CodPostal, IEjecutivo, Sys_GUID, Sys_DTCreated) VALUES "
                        "(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, CURRENT_TIMESTAMP)");
    bindShown(statement, organisation);
    return insertWhole(database, statement, agent);
}

void updatePerson(OwnConnection& database, std::int32_t key, const Person& person)
{
    Statement statement("UPDATE Persona SET Nombre = ?, Apellido1 = ?, Apellido2 = ?, Puesto = ?, EMail = ?, "
                        "Tel_Trabajo = ?, Tel_Movil = ?, Domicilio = ?, Colonia = ?, CodPostal = ?, "
                        "IOrganizacion = ? WHERE Sys_PK = ?");
    bindShown(statement, person);
    updateWhole(database, statement, Statement("SELECT Sys_PK FROM Persona WHERE Sys_PK = ?").bind(key), key);
}

void updateOrganisation(OwnConnection& database, std::int32_t key, const Organisation& organisation)
{
    Statement statement("UPDATE Organizacion SET Nombre = ?, NomComercial = ?, Tel1 = ?, Tel2 = ?, EMail = ?, "
                        "WebSite = ?, Domicilio = ?, Colonia = ?, CodPostal = ? WHERE Sys_PK = ?");
    bindShown(statement, organisation);
    updateWhole(database, statement, Statement("SELECT Sys_PK FROM Organizacion WHERE Sys_PK = ?").bind(key), key);
}

std::optional<Entity> findEntity(OwnConnection& database, bool organisation, std::int32_t key)
{
    Statement persons("SELECT Nombre, Apellido1, Apellido2 FROM Persona WHERE Sys_PK = ?");
    Statement organisations("SELECT Nombre, NULL, NULL FROM Organizacion WHERE Sys_PK = ?");
    const auto row = database.run((organisation ? organisations : persons).bind(key));
    if (row->Eof()) return std::nullopt;
    Entity entity;
    entity.organisation = organisation;
    entity.key = key;
    entity.name = fullName(textOf(*row, 0), textOf(*row, 1), textOf(*row, 2));
    return entity;
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

std::string newGuid() { return QUuid::createUuid().toString(QUuid::Id128).toStdString(); }

} // namespace dn::host
