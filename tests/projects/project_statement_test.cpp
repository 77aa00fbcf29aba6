// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The statements of the project list, to the byte.

#include "projects/project_statement.h"

#include <gtest/gtest.h>

namespace dn::projects {
namespace {

constexpr const char* pendingOnMySql =
    "SELECT actividad.FInicio AS FInicio, Proyecto.UF_Color, Proyecto.UF_Status1, mdtpactividad.Nombre "
    "AS Actividad, actividad.Asunto AS Asunto, meta.Descripcion AS Meta, organizacion.Nombre AS "
    "Organizacion, proyecto.Descripcion AS Descripcion, proyecto.IEjecutivo AS IEjecutivo, "
    "proyecto.Sys_PK AS Sys_PK, Proyecto.UF_monto, Organizacion.Tel1, Organizacion.EMail as EMail2, "
    "Persona.EMail as EMail1, Persona.EMail2 as Email3, CONCAT(IFNULL(Persona.Nombre, ''), ' ', "
    "IFNULL(Persona.Apellido1, ''), ' ', IFNULL(Persona.Apellido2, '')) AS contacto, "
    "datediff(NOW(),Proyecto.Sys_DTCreated)as e_dias, Proyecto.uf_ultimocontac as e_ultimocontacto, "
    "datediff(NOW(),Proyecto.uf_ultimocontac) as e_duc, Proyecto.uf_ultimointento as e_ultimointento, "
    "datediff(now(),Proyecto.uf_ultimointento) as e_dui FROM ((((mdtpactividad INNER JOIN actividad ON "
    "mdtpactividad.Sys_PK = actividad.ITpActividad) INNER JOIN proyecto ON actividad.IProyecto = "
    "proyecto.Sys_PK) INNER JOIN meta ON proyecto.IMeta = meta.Sys_PK) INNER JOIN organizacion ON "
    "organizacion.Sys_PK = proyecto.IOrganizacion) INNER JOIN Persona On Proyecto.IContacto = "
    "Persona.Sys_PK WHERE (actividad.Hecho = 0) AND proyecto.IEjecutivo = 7";

constexpr const char* pendingOnSqlServer =
    "SELECT actividad.FInicio AS FInicio, Proyecto.UF_Color, Proyecto.UF_Status1, mdtpactividad.Nombre "
    "AS Actividad, actividad.Asunto AS Asunto, meta.Descripcion AS Meta, organizacion.Nombre AS "
    "Organizacion, proyecto.Descripcion AS Descripcion, proyecto.IEjecutivo AS IEjecutivo, "
    "proyecto.Sys_PK AS Sys_PK, Proyecto.UF_monto, Organizacion.Tel1, Organizacion.EMail as EMail2, "
    "Persona.EMail as EMail1, Persona.EMail2 as Email3, (ISNULL(Persona.Nombre, '') + ' ' + "
    "ISNULL(Persona.Apellido1, '') + ' ' + ISNULL(Persona.Apellido2, '')) AS contacto, datediff(D, "
    "Proyecto.Sys_DTCreated, GETDATE())as e_dias, Proyecto.uf_ultimocontac as e_ultimocontacto, "
    "datediff(D, Proyecto.uf_ultimocontac, GETDATE()) as e_duc, Proyecto.uf_ultimointento as "
    "e_ultimointento, datediff(D, Proyecto.uf_ultimointento, GETDATE()) as e_dui FROM ((((mdtpactividad "
    "INNER JOIN actividad ON mdtpactividad.Sys_PK = actividad.ITpActividad) INNER JOIN proyecto ON "
    "actividad.IProyecto = proyecto.Sys_PK) INNER JOIN meta ON proyecto.IMeta = meta.Sys_PK) INNER JOIN "
    "organizacion ON organizacion.Sys_PK = proyecto.IOrganizacion) INNER JOIN Persona On "
    "Proyecto.IContacto = Persona.Sys_PK WHERE (actividad.Hecho = 0) AND proyecto.IEjecutivo = 7";

constexpr const char* projectsOfSeven =
    "SELECT meta.Descripcion AS Meta, Proyecto.UF_Status1, Proyecto.UF_Color, organizacion.Nombre AS "
    "Organizacion, proyecto.Descripcion AS Descripcion, proyecto.IEjecutivo AS IEjecutivo, "
    "proyecto.Sys_PK AS Sys_PK FROM ((Proyecto INNER JOIN meta ON proyecto.IMeta = meta.Sys_PK) INNER "
    "JOIN organizacion ON organizacion.Sys_PK = proyecto.IOrganizacion) WHERE proyecto.IEjecutivo=7";

const std::string byDate = " ORDER BY actividad.FInicio;";

TEST(ProjectStatement, of_the_pending_activities_on_mysql)
{
    EXPECT_EQ(pendingActivitiesStatement(true, 7, anyStatus), pendingOnMySql + byDate);
    EXPECT_EQ(pendingActivitiesStatement(true, 7, 6), pendingOnMySql + (" AND Proyecto.UF_Status1=6" + byDate));
}

TEST(ProjectStatement, of_the_pending_activities_on_sql_server)
{
    EXPECT_EQ(pendingActivitiesStatement(false, 7, anyStatus), pendingOnSqlServer + byDate);
    EXPECT_EQ(pendingActivitiesStatement(false, 7, 3),
              pendingOnSqlServer + (" AND Proyecto.UF_Status1=3" + byDate));
}

TEST(ProjectStatement, of_the_projects_leaves_out_the_closed_ones_where_no_status_is_asked_for)
{
    EXPECT_EQ(projectsStatement(7, anyStatus),
              std::string(projectsOfSeven) + " AND Proyecto.UF_Status1<5 ORDER BY Proyecto.FInicio");
    EXPECT_EQ(projectsStatement(7, 6),
              std::string(projectsOfSeven) + " AND Proyecto.UF_Status1=6 ORDER BY Proyecto.FInicio");
}

} // namespace
} // namespace dn::projects
