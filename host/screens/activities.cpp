// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/activities.h"

#include "host/screens/field.h"

namespace dn::host {
namespace {

const RecordKind& activityKind()
{
    static const RecordKind kind{
        {ColumnType::moment, ColumnType::number, ColumnType::text, ColumnType::number, ColumnType::number},
        "SELECT FInicio, ITpActividad, Asunto, Hecho, IProyecto FROM actividad WHERE Sys_PK = ?",
        "UPDATE actividad SET Asunto = Asunto WHERE Sys_PK = ?",
        "INSERT INTO actividad (FInicio, ITpActividad, Asunto, Hecho, IProyecto, Sys_DTCreated) VALUES "
        "(?, ?, ?, ?, ?, CURRENT_TIMESTAMP)",
        "UPDATE actividad SET FInicio = ?, ITpActividad = ?, Asunto = ?, Hecho = ?, IProyecto = ? WHERE "
        "Sys_PK = ?",
        false};
    return kind;
}

std::string named(const Activity& activity) { return "«" + activity.base[activity_column::subject] + "»"; }

std::string describe(const Values& row)
{
    return momentText(row[activity_column::when]).toStdString() + ", " + row[activity_column::subject] +
           (row[activity_column::done] == "0" ? ", pendiente" : ", hecha");
}

[[noreturn]] void refuse(Activity& activity, const std::vector<Clash>& clashes)
{
    const std::string name = named(activity);
    Values theirs = activity.base;
    for (const Clash& clash : clashes)
        theirs[clash.column] = clash.theirs;
    activity.base = theirs;
    throw HostError("Otra persona cambió la actividad " + name + " mientras usted la tenía abierta. Ahora dice: " +
                    describe(theirs) + ". Acepte otra vez para guardar lo de usted.");
}

void update(OwnConnection& database, Activity& activity)
{
    std::vector<Clash> clashes;
    try {
        clashes = updateRecord(database, activityKind(), activity.key, activity.base, activity.now);
    } catch (const RowGone&) {
        activity.key = 0;
        throw HostError("La actividad " + named(activity) +
                        " ya no existe: otra persona la borró. Acepte otra vez para agregarla de nuevo.");
    }
    if (!clashes.empty()) refuse(activity, clashes);
}

} // namespace

std::vector<Activity> readActivities(OwnConnection& database, std::int32_t project)
{
    std::vector<Activity> activities;
    const auto rows =
        database.run(Statement("SELECT Sys_PK, FInicio, ITpActividad, Asunto, Hecho, IProyecto FROM actividad "
                               "WHERE IProyecto = ? ORDER BY Hecho, FInicio, Sys_PK")
                         .bind(project));
    for (; !rows->Eof(); rows->MoveNext()) {
        const Values values = valuesOf(*rows, activityKind(), 1);
        activities.push_back({rows->value(0).toInt32(), values, values});
    }
    return activities;
}

void storeActivities(OwnConnection& database, std::vector<Activity>& activities)
{
    for (Activity& activity : activities) {
        if (!activity.changed()) continue;
        if (activity.key == 0)
            insertRecord(database, activityKind(), activity.now);
        else
            update(database, activity);
    }
}

} // namespace dn::host
