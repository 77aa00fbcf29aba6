// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/entry_removal.h"

#include "host/database/host_error.h"
#include "host/screens/boxes.h"
#include "host/screens/directory.h"

namespace dn::host {
namespace {

constexpr std::size_t shownProjects = 5;

/// What keeps an entry from being deleted.
struct Ties {
    std::int32_t projects = 0;
    std::int32_t activities = 0;
    std::int32_t persons = 0; ///< who work for the organisation
    std::vector<std::string> descriptions;
};

struct Removal {
    SqlText projects, activities, persons, descriptions, remove;
    const char* entry;  // "a la persona"
    const char* remedy; // what frees the entry
};

constexpr Removal personRemoval{
    "SELECT COUNT(*) FROM Proyecto WHERE IContacto = ?",
    "SELECT COUNT(*) FROM actividad a JOIN Proyecto p ON p.Sys_PK = a.IProyecto WHERE p.IContacto = ?",
    "SELECT COUNT(*) FROM Persona WHERE Sys_PK = ? AND 0 = 1",
    "SELECT Descripcion FROM Proyecto WHERE IContacto = ? ORDER BY FInicio DESC, Sys_PK",
    "DELETE FROM Persona WHERE Sys_PK = ?",
    "a la persona",
    "Ponga antes a otra persona en esos proyectos."};

constexpr Removal organisationRemoval{
    "SELECT COUNT(*) FROM Proyecto WHERE IOrganizacion = ?",
    "SELECT COUNT(*) FROM actividad a JOIN Proyecto p ON p.Sys_PK = a.IProyecto WHERE p.IOrganizacion = ?",
    "SELECT COUNT(*) FROM Persona WHERE IOrganizacion = ?",
    "SELECT Descripcion FROM Proyecto WHERE IOrganizacion = ? ORDER BY FInicio DESC, Sys_PK",
    "DELETE FROM Organizacion WHERE Sys_PK = ?",
    "a la organización",
    "Cambie antes la organización en esos registros."};

std::int32_t count(OwnConnection& database, const SqlText& text, std::int32_t key)
{
    return database.run(Statement(text).bind(key))->value(0).toInt32();
}

Ties readTies(OwnConnection& database, const Removal& removal, std::int32_t key)
{
    Ties ties{count(database, removal.projects, key), 0, count(database, removal.persons, key), {}};
    if (ties.projects == 0) return ties;
    ties.activities = count(database, removal.activities, key);
    const auto rows = database.run(Statement(removal.descriptions).bind(key).limit(shownProjects));
    for (; !rows->Eof(); rows->MoveNext())
        ties.descriptions.emplace_back(rows->value(0).raw());
    return ties;
}

QString many(std::int32_t number, const char* one, const char* several)
{
    return number == 1 ? QString("1 ") + one : QString::number(number) + " " + several;
}

QString reasons(const Ties& ties)
{
    QString text;
    if (ties.projects > 0) text += "\n• Tiene " + many(ties.projects, "proyecto", "proyectos");
    if (ties.activities > 0) text += " con " + many(ties.activities, "actividad", "actividades");
    if (ties.projects > 0) text += ":";
    for (const std::string& description : ties.descriptions)
        text += "\n    – " + QString::fromStdString(description).left(80);
    const auto more = ties.projects - static_cast<std::int32_t>(ties.descriptions.size());
    if (more > 0) text += "\n    – y " + many(more, "más", "más");
    if (ties.persons > 0)
        text += "\n• En ella " + QString(ties.persons == 1 ? "trabaja " : "trabajan ") +
                many(ties.persons, "persona del directorio", "personas del directorio");
    return text;
}

bool isTied(OwnConnection& database, const Removal& removal, std::int32_t key, const QString& name, QWidget* over)
{
    const Ties ties = readTies(database, removal, key);
    if (ties.projects == 0 && ties.persons == 0) return false;
    tell(over, QString("No se puede eliminar %1 «%2»:\n%3\n\n%4")
                   .arg(removal.entry, name, reasons(ties), removal.remedy));
    return true;
}

} // namespace

bool removeEntry(ScreenContext& context, PartyField::Kind kind, std::int32_t key, bool confirm, QWidget* over)
{
    const bool ofOrganisation = kind == PartyField::Kind::organisation;
    const Removal& removal = ofOrganisation ? organisationRemoval : personRemoval;
    OwnConnection& database = context.database;
    const auto entity = findEntity(database, ofOrganisation, key);
    if (!entity) {
        tell(over, "Este registro ya no existe. Otra persona pudo haberlo borrado.");
        return true;
    }
    const QString name = QString::fromStdString(entity->name);
    if (isTied(database, removal, key, name, over)) return false;
    const QString question = QString("¿Eliminar %1 «%2»?\n\nNo se puede deshacer.").arg(removal.entry, name);
    if (confirm && !ask(over, question, "&Eliminar", "&Conservar")) return false;
    Transaction transaction(database);
    if (isTied(database, removal, key, name, over)) return false; // while the operator thought about it
    database.run(Statement(removal.remove).bind(key));
    transaction.commit();
    return true;
}

} // namespace dn::host
