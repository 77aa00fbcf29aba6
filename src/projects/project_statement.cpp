// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "projects/project_statement.h"

#include <string_view>

namespace dn::projects {
namespace {

// What differs between the engines. The forms of the three columns of days differ in their blanks and in the case
// of NOW as well; servers do not mind, and whoever compares logs of statements relies on them.
struct EngineForms {
    std::string_view contacto;
    std::string_view dias;
    std::string_view diasUltimoContacto;
    std::string_view diasUltimoIntento;
};

constexpr EngineForms mySqlForms{"CONCAT(IFNULL(Persona.Nombre, ''), ' ', IFNULL(Persona.Apellido1, ''), ' ', "
                                 "IFNULL(Persona.Apellido2, '')) AS "
                                 "contacto, ",
                                 "datediff(NOW(),Proyecto.Sys_DTCreated)as e_dias, ",
                                 "datediff(NOW(),Proyecto.uf_ultimocontac) as e_duc, ",
                                 "datediff(now(),Proyecto.uf_ultimointento) as e_dui "};

constexpr EngineForms sqlServerForms{
    "(ISNULL(Persona.Nombre, '') + ' ' + ISNULL(Persona.Apellido1, '') + ' ' + ISNULL(Persona.Apellido2, '')) AS "
    "contacto, ",
    "datediff(D, Proyecto.Sys_DTCreated, GETDATE())as e_dias, ",
    "datediff(D, Proyecto.uf_ultimocontac, GETDATE()) as e_duc, ",
    "datediff(D, Proyecto.uf_ultimointento, GETDATE()) as e_dui "};

constexpr std::string_view columnsOfTheActivity =
    "SELECT actividad.FInicio AS FInicio, Proyecto.UF_Color, Proyecto.UF_Status1, mdtpactividad.Nombre AS "
    "Actividad, "
    "actividad.Asunto AS Asunto, meta.Descripcion AS Meta, organizacion.Nombre AS Organizacion, "
    "proyecto.Descripcion AS Descripcion, proyecto.IEjecutivo AS IEjecutivo, proyecto.Sys_PK AS Sys_PK, "
    "Proyecto.UF_monto, Organizacion.Tel1, Organizacion.EMail as EMail2, Persona.EMail as EMail1, "
    "Persona.EMail2 as Email3, ";

constexpr std::string_view fromActivities =
    "FROM ((((mdtpactividad INNER JOIN actividad ON mdtpactividad.Sys_PK = actividad.ITpActividad) INNER JOIN "
    "proyecto ON actividad.IProyecto = proyecto.Sys_PK) INNER JOIN meta ON proyecto.IMeta = meta.Sys_PK) INNER "
    "JOIN "
    "organizacion ON organizacion.Sys_PK = proyecto.IOrganizacion) INNER JOIN Persona On Proyecto.IContacto = "
    "Persona.Sys_PK WHERE (actividad.Hecho = 0) AND proyecto.IEjecutivo = ";

constexpr std::string_view projectsOf =
    "SELECT meta.Descripcion AS Meta, Proyecto.UF_Status1, Proyecto.UF_Color, organizacion.Nombre AS "
    "Organizacion, "
    "proyecto.Descripcion AS Descripcion, proyecto.IEjecutivo AS IEjecutivo, proyecto.Sys_PK AS Sys_PK FROM "
    "((Proyecto INNER JOIN meta ON proyecto.IMeta = meta.Sys_PK) INNER JOIN organizacion ON organizacion.Sys_PK = "
    "proyecto.IOrganizacion) WHERE proyecto.IEjecutivo=";

constexpr std::string_view onlyStatus = " AND Proyecto.UF_Status1=";

} // namespace

std::string pendingActivitiesStatement(bool mySql, std::int32_t agente, int status)
{
    const EngineForms& forms = mySql ? mySqlForms : sqlServerForms;
    std::string text;
    text.append(columnsOfTheActivity).append(forms.contacto).append(forms.dias);
    text.append("Proyecto.uf_ultimocontac as e_ultimocontacto, ").append(forms.diasUltimoContacto);
    text.append("Proyecto.uf_ultimointento as e_ultimointento, ").append(forms.diasUltimoIntento);
    text.append(fromActivities).append(std::to_string(agente));
    if (status != anyStatus) text.append(onlyStatus).append(std::to_string(status));
    return text.append(" ORDER BY actividad.FInicio;");
}

std::string projectsStatement(std::int32_t agente, int status)
{
    std::string text;
    text.append(projectsOf).append(std::to_string(agente));
    if (status == anyStatus)
        text.append(" AND Proyecto.UF_Status1<5");
    else
        text.append(onlyStatus).append(std::to_string(status));
    return text.append(" ORDER BY Proyecto.FInicio");
}

} // namespace dn::projects
