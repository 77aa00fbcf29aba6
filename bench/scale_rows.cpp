// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/scale_rows.h"

namespace dn::bench {
namespace {

/// Rows to be made, numbered `s.seq`: expressions and a table of the server.
struct Source {
    std::string agent;
    std::string rows; ///< the table of the numbers
    std::string nextContact;
};

// What the agents are called says which rows they have: whoever changes the making of rows changes the name, and
// rows that a former run left are made anew.
constexpr const char* scaleMark = "Medida ";
constexpr const char* loadMark = "Carga 2, ";

std::int64_t numberOf(data::Connection& connection, const std::string& statement)
{
    return connection.execute(statement)->value(0).toWhole();
}

// The sample data's keys begin at 1 and have no gaps; there are at least that many of each.
constexpr int sampleProspects = 2000;
constexpr int sampleEntries = 50;

std::string copyOf(const char* table, int sample, const std::string& rows)
{
    return " FROM " + rows + " AS s INNER JOIN " + table + " AS b ON b.Sys_PK = 1 + s.seq % " +
           std::to_string(sample);
}

std::string prospectsFrom(const Source& source)
{
    return "INSERT INTO ut_icontact (uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto, uf_Pais, uf_Estado, "
           "uf_Ciudad, uf_Interes, uf_Comentarios, uf_Fecha, uf_IEjecutivo, uf_Status, uf_Tipo, uf_color, "
           "uf_Redirect, "
           "uf_proxcontac, uf_ultimocontac, uf_ultimointento, uf_contactado, uf_correoverif) SELECT "
           "CONCAT(b.uf_Nombre, "
           "' ', s.seq), CONCAT(s.seq, '.', b.uf_EMail), b.uf_Telefono, b.uf_Empresa, b.uf_Puesto, b.uf_Pais, "
           "b.uf_Estado, b.uf_Ciudad, b.uf_Interes, b.uf_Comentarios, CURRENT_DATE - INTERVAL s.seq % 400 DAY, " +
           source.agent + ", 0, b.uf_Tipo, s.seq % 5, b.uf_Redirect, " + source.nextContact +
           ", NOW() - INTERVAL s.seq % 90 DAY, NOW() - INTERVAL s.seq % 30 DAY, s.seq % 2, b.uf_correoverif" +
           copyOf("ut_icontact", sampleProspects, source.rows);
}

std::string personsFrom(const Source& source)
{
    return "INSERT INTO Persona (Codigo, Nombre, Apellido1, Apellido2, EMail, EMail2, Tel_Casa, Tel_Trabajo, "
           "Tel_Movil, "
           "Domicilio, Colonia, CodPostal, ICiudad, Puesto, IEjecutivo) SELECT CONCAT('P-', s.seq), b.Nombre, "
           "b.Apellido1, CONCAT(IFNULL(b.Apellido2, ''), ' ', s.seq), CONCAT(s.seq, '.', b.EMail), b.EMail2, "
           "b.Tel_Casa, "
           "b.Tel_Trabajo, b.Tel_Movil, b.Domicilio, b.Colonia, b.CodPostal, b.ICiudad, b.Puesto, " +
           source.agent + copyOf("Persona", sampleEntries, source.rows);
}

std::string organisationsFrom(const Source& source)
{
    return "INSERT INTO Organizacion (Codigo, Nombre, NomComercial, Tel1, Tel2, Fax, EMail, WebSite, Domicilio, "
           "Colonia, "
           "CodPostal, ICiudad, Nacionalidad, IEjecutivo) SELECT CONCAT('O-', s.seq), CONCAT(b.Nombre, ' ', "
           "s.seq), "
           "b.NomComercial, b.Tel1, b.Tel2, b.Fax, b.EMail, b.WebSite, b.Domicilio, b.Colonia, b.CodPostal, "
           "b.ICiudad, "
           "b.Nacionalidad, " +
           source.agent + copyOf("Organizacion", sampleEntries, source.rows);
}

std::string projectsFrom(const Source& source)
{
    return "INSERT INTO Proyecto (Descripcion, IEjecutivo, IMeta, IOrganizacion, IContacto, FInicio, UF_Status1, "
           "UF_Color, UF_monto, uf_ultimocontac, uf_ultimointento) SELECT CONCAT('Ampliación de la licencia "
           "número ', "
           "s.seq), " +
           source.agent +
           ", (SELECT MIN(Sys_PK) FROM Meta), 1 + s.seq % 50, 1 + s.seq % 50, NOW() - INTERVAL s.seq HOUR, 1 + "
           "s.seq % "
           "4, s.seq % 5, s.seq * 12.5, NOW() - INTERVAL s.seq % 90 DAY, NOW() - INTERVAL s.seq % 30 DAY FROM " +
           source.rows + " AS s";
}

// A project's activities lie far from each other in the order of the statement. They are all ahead, so that the
// queue of the day holds prospects alone.
std::string activitiesOf(const std::string& projects)
{
    return "INSERT INTO actividad (IProyecto, ITpActividad, Asunto, FInicio, Hecho) SELECT p.Sys_PK, (SELECT "
           "MIN(Sys_PK) FROM mdtpactividad), CONCAT('Enseñar la versión nueva, cita ', t.seq), NOW() + INTERVAL 2 "
           "+ "
           "(p.Sys_PK * 7919 + t.seq * 104729) % 400 DAY, 0 FROM Proyecto AS p INNER JOIN seq_1_to_3 AS t ON "
           "t.seq = 1 "
           "OR p.Sys_PK % 10 = 0 WHERE " +
           projects;
}

void clear(data::Connection& connection, const std::string& agents)
{
    connection.execute("DELETE a FROM actividad AS a INNER JOIN Proyecto AS p ON p.Sys_PK = a.IProyecto WHERE "
                       "p.IEjecutivo " +
                       agents);
    connection.execute("DELETE FROM ut_icontact WHERE uf_IEjecutivo " + agents);
    for (const char* table : {"Proyecto", "Persona", "Organizacion"})
        connection.execute(std::string("DELETE FROM ") + table + " WHERE IEjecutivo " + agents);
    connection.execute("DELETE FROM Agente WHERE Sys_PK " + agents);
}

} // namespace

std::vector<Scale> scalesUpTo(std::size_t largest)
{
    std::vector<Scale> scales;
    for (std::size_t rows = 1000; rows <= largest; rows *= 10)
        scales.push_back({firstScaleAgent + static_cast<std::int32_t>(scales.size()), rows});
    return scales;
}

// The agents themselves are written last: they stand for the completeness of their rows.
void makeScaleRows(data::Connection& connection, const Scale& scale)
{
    const std::string agent = std::to_string(scale.agent);
    const std::string projectAgent = std::to_string(scale.projectAgent());
    const std::string mark = scaleMark + std::to_string(scale.rows);
    if (numberOf(connection,
                 "SELECT COUNT(*) FROM Agente WHERE Sys_PK = " + agent + " AND Nombre = '" + mark + "'") > 0)
        return;
    clear(connection, "IN (" + agent + ", " + projectAgent + ")");
    Source source{agent, "seq_1_to_" + std::to_string(scale.rows),
                  "IF(s.seq % 2 = 0, NULL, NOW() - INTERVAL (s.seq * 7919) % 500000 MINUTE)"};
    connection.execute(prospectsFrom(source));
    connection.execute(personsFrom(source));
    connection.execute(organisationsFrom(source));
    source.agent = projectAgent;
    connection.execute(projectsFrom(source));
    connection.execute(activitiesOf("p.IEjecutivo = " + projectAgent));
    connection.execute("INSERT INTO Agente (Sys_PK, Nombre) VALUES (" + projectAgent + ", '" + mark +
                       " proyectos'), (" + agent + ", '" + mark + "')");
    for (const char* table : {"ut_icontact", "Persona", "Organizacion", "Proyecto", "actividad"})
        connection.execute(std::string("ANALYZE TABLE ") + table);
}

void makeLoadRows(data::Connection& connection, std::size_t agents)
{
    constexpr std::size_t prospects = 500;
    constexpr std::size_t projects = 40;
    constexpr std::size_t persons = 200;
    constexpr std::size_t organisations = 100;
    const std::string last = std::to_string(firstLoadAgent + static_cast<std::int32_t>(agents) - 1);
    const std::string all = "BETWEEN " + std::to_string(firstLoadAgent) + " AND " + last;
    connection.execute("DELETE FROM xt_biticontact WHERE uf_Usuario LIKE 'carga %'"); // of former runs
    if (numberOf(connection, "SELECT COUNT(*) FROM Agente WHERE Sys_PK " + all + " AND Nombre LIKE '" + loadMark +
                                 "%'") == static_cast<std::int64_t>(agents))
        return;
    clear(connection, all);
    const std::string agent = std::to_string(firstLoadAgent) + " + s.seq % " + std::to_string(agents);
    const auto source = [&](std::size_t each) {
        return Source{
            agent, "seq_1_to_" + std::to_string(each * agents),
            "CASE FLOOR(s.seq / " + std::to_string(agents) +
                ") % 10 WHEN 0 THEN NULL WHEN 1 THEN NOW() - INTERVAL s.seq % 5000 MINUTE ELSE NOW() + INTERVAL "
                "2 + s.seq % 60 DAY END"};
    };
    connection.execute(prospectsFrom(source(prospects)));
    connection.execute(personsFrom(source(persons)));
    connection.execute(organisationsFrom(source(organisations)));
    connection.execute(projectsFrom(source(projects)));
    connection.execute(activitiesOf("p.IEjecutivo " + all));
    connection.execute("INSERT INTO Agente (Sys_PK, Nombre) SELECT " + std::to_string(firstLoadAgent - 1) +
                       " + seq, CONCAT('" + loadMark + "', seq) FROM seq_1_to_" + std::to_string(agents));
}

} // namespace dn::bench
