// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/projects.h"

#include "host/screens/directory.h"

namespace dn::host {
std::vector<Goal> readGoals(OwnConnection& database)
{
    std::vector<Goal> goals;
    const auto rows = database.run(Statement("SELECT Sys_PK, Descripcion FROM Meta ORDER BY Descripcion"));
    for (; !rows->Eof(); rows->MoveNext())
        goals.push_back({rows->value(0).toInt32(), std::string(rows->value(1).raw())});
    return goals;
}

std::int32_t insertProject(OwnConnection& database, const NewProject& project)
{
    Transaction transaction(database);
    const std::int32_t key = database.insert(
        Statement(
            "INSERT INTO Proyecto (Sys_GUID, Sys_DTCreated, FInicio, Descripcion, IEjecutivo, IMeta, "
            "IOrganizacion, IContacto, UF_Status1, UF_monto) VALUES (?, CURRENT_TIMESTAMP, CURRENT_TIMESTAMP, "
            "?, ?, ?, ?, ?, ?, ?)")
            .bind(newGuid())
            .bind(project.description)
            .bind(project.agent)
            .bind(project.goal)
            .bind(keyOrNull(project.organisation))
            .bind(keyOrNull(project.person))
            .bind(project.temperature)
            .bind(project.amount));
    transaction.commit();
    return key;
}

} // namespace dn::host
