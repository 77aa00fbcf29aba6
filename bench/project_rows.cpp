// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/project_rows.h"

#include "projects/project_statement.h"

namespace dn::bench {
namespace {

std::string fill(std::int32_t agent)
{
    return "INSERT INTO Proyecto (Sys_PK, Descripcion, IEjecutivo, IMeta, IOrganizacion, IContacto, FInicio, "
           "UF_Status1, UF_Color, UF_monto, uf_ultimocontac, uf_ultimointento) SELECT seq, CONCAT('Ampliación de "
           "la "
           "licencia número ', seq), " +
           std::to_string(agent) +
           ", (SELECT MIN(Sys_PK) FROM Meta), (SELECT MIN(Sys_PK) FROM Organizacion), (SELECT MIN(Sys_PK) FROM "
           "Persona), NOW() - INTERVAL seq HOUR, 1 + seq % 4, seq % 5, seq * 12.5, NOW() - INTERVAL seq % 90 DAY, "
           "NOW() - INTERVAL seq % 30 DAY FROM seq_1_to_" +
           std::to_string(ProjectRows::projects);
}

// A project's activities lie far from each other in the order of the statement.
std::string fillActivities()
{
    return "INSERT INTO actividad (IProyecto, ITpActividad, Asunto, FInicio, Hecho) SELECT 1 + seq % " +
           std::to_string(ProjectRows::projects) +
           ", (SELECT MIN(Sys_PK) FROM mdtpactividad), CONCAT('Enseñar la versión nueva, cita ', seq), NOW() + "
           "INTERVAL seq MINUTE, 0 FROM seq_1_to_" +
           std::to_string(ProjectRows::activities);
}

} // namespace

ProjectRows::ProjectRows(BenchDatabase& database) : database_(database)
{
    data::Connection& cnn = database.connection();
    const auto count = [&](const char* table) {
        return cnn.execute(std::string("SELECT COUNT(*) FROM ") + table)->value(0).toWhole();
    };
    if (count("Proyecto") != static_cast<std::int64_t>(projects) ||
        count("actividad") != static_cast<std::int64_t>(activities)) {
        for (const std::string& statement :
             {std::string("DELETE FROM actividad"), std::string("DELETE FROM Proyecto"), fill(database.agent()),
              fillActivities()})
            cnn.execute(statement);
    }
    const std::size_t rows[]{activities, projects};
    const auto texts = statements();
    for (std::size_t pass = 0; pass < texts.size(); ++pass)
        cells_ += rows[pass] * cnn.execute(texts[pass])->names().size();
}

std::vector<std::string> ProjectRows::statements() const
{
    return {dn::projects::pendingActivitiesStatement(true, database_.agent(), dn::projects::anyStatus),
            dn::projects::projectsStatement(database_.agent(), dn::projects::anyStatus)};
}

} // namespace dn::bench
