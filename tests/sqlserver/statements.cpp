// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/sqlserver/statements.h"

#include "data/activity_log.h"
#include "dialogs/list_statements.h"
#include "dialogs/prospect_insert.h"
#include "directories/kind.h"
#include "directories/statement.h"
#include "projects/project_statement.h"
#include "prospects/prospect_statement.h"

#include <initializer_list>

namespace dn::tests {
namespace {

using dialogs::ListFilter;

class Statements {
public:
    void add(std::string text) { all.push_back(std::move(text)); }
    void add(std::initializer_list<const char*> texts)
    {
        for (const char* text : texts)
            add(std::string(text));
    }
    std::vector<std::string> all;
};

void addLists(Statements& to)
{
    for (const std::int32_t agent : {0, 7})
        for (int status = 0; status <= 3; ++status)
            to.add(prospects::prospectStatement(false, agent, status));
    for (const int status : {projects::anyStatus, 1, 2, 3, 4, 6}) {
        to.add(projects::pendingActivitiesStatement(false, 7, status));
        to.add(projects::projectsStatement(7, status));
    }
    for (const std::int32_t agent : {0, 7})
        for (const directories::Kind* kind : {&directories::persons, &directories::organisations})
            to.add(directories::directoryStatement(*kind, false, agent));
    to.add({"Select Sys_PK, Nombre From Agente Order By Nombre",
            "select * from qhoy where ejecutivo=7 order by cita, tipo, sys_pk",
            "select * from qatascados where ejecutivo=7 order by cita, tipo, sys_pk"});
}

void addLog(Statements& to)
{
    to.add(data::bitacora::prospectRow("pide precios ñ", "ana", "12"));
    to.add(data::bitacora::projectRow("visita", "ana", "7"));
    to.add(data::bitacora::prospectRows("12"));
    to.add(data::bitacora::projectRows("7"));
}

// What one record is asked for.
void addLookUps(Statements& to)
{
    to.add(
        {"SELECT ISNULL(uf_Nombre, 'Nombre') AS uf_Nombre, ISNULL(uf_telefono, 'Teléfono') AS uf_telefono, "
         "ISNULL(uf_EMail, 'EMail') AS uf_EMail, ISNULL(uf_ciudad, 'Tuxtla') AS uf_ciudad, ISNULL(UF_IEjecutivo, "
         "1) AS UF_IEjecutivo FROM UT_IContact WHERE Sys_PK = 12;",
         "SELECT Sys_PK FROM Ciudad WHERE Nombre LIKE '%Mérida%';",
         "Select Sys_PK, uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto FROM ut_icontact Where Sys_PK = "
         "12",
         "Select Sys_PK, uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto FROM ut_icontact Where Sys_PK=12",
         "SELECT Organizacion.Tel1, Organizacion.Tel2, Organizacion.Tel3, Organizacion.Fax, Organizacion.EMail, "
         "Organizacion.WebSite,Persona.Nombre AS PN_Nombre, Persona.Apellido1 AS PN_Apellido1, Persona.Apellido2 "
         "AS PN_Apellido2 , Persona.EMail, Persona.Tel_Trabajo, Persona.Tel_Movil, Persona.Tel_Casa FROM "
         "(Proyecto INNER JOIN Organizacion ON Proyecto.IOrganizacion=Organizacion.Sys_PK) INNER JOIN Persona ON "
         "Proyecto.IContacto=Persona.Sys_PK WHERE Proyecto.Sys_PK=7",
         "SELECT Organizacion.EMail as Email2, Persona.EMail as EMail1, Persona.EMail2 as EMail3, Persona.MSN as "
         "EMail4 FROM (Proyecto INNER JOIN Organizacion ON Proyecto.IOrganizacion=Organizacion.Sys_PK) INNER JOIN "
         "Persona ON Proyecto.IContacto=Persona.Sys_PK WHERE Proyecto.Sys_PK=7"});
    for (const char* table : {"ut_icontact", "Proyecto"})
        for (const char* where : {" Where Sys_PK = 12", " Where Sys_PK=12"})
            to.add(std::string("SELECT Sys_GUID FROM ") + table + where);
}

void addChanges(Statements& to)
{
    to.add({"UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus='reason', uf_FechaStatus = CURRENT_TIMESTAMP WHERE "
            "Sys_PK=12",
            "UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus='Actualizado por creación de proyecto', "
            "uf_FechaStatus = "
            "CURRENT_TIMESTAMP WHERE Sys_PK=12",
            "UPDATE ut_icontact SET uf_IEjecutivo = 9 WHERE Sys_PK=12",
            "UPDATE ut_icontact SET uf_color = 3 WHERE Sys_PK = 12",
            "UPDATE Proyecto SET UF_Color = 3 WHERE Sys_PK = 7",
            "UPDATE ut_icontact set uf_Nombre='María',uf_EMail='maria@example.com',uf_Telefono='961 111 "
            "1111',uf_Empresa='Acme',uf_Puesto='Compras' WHERE Sys_PK=12",
            "UPDATE ut_icontact SET uf_proxcontac = CAST('2026-03-14 10:30:00' AS DATETIME) WHERE Sys_PK=12"});
    for (const char* status : {"0", "1", "2", "3"})
        to.add(std::string("UPDATE ut_icontact SET uf_Status = ") + status +
               ", uf_NotaStatus = 'reason', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK = 12");
    for (const char* where :
         {"", " WHERE  uf_Color= 1 ", " WHERE  uf_Color<> 1 ", " WHERE uf_Status1 = 3", " WHERE IEjecutivo = 7 ",
          " WHERE  uf_Color= 1  AND uf_Status1 = 3 AND IEjecutivo = 7 "})
        to.add(std::string("UPDATE Proyecto SET IEjecutivo = 9 ") + where);
}

void addCalls(Statements& to)
{
    for (const std::string table : {"ut_icontact", "Proyecto"}) {
        const std::string update = "UPDATE " + table + " SET ";
        for (const char* code : {"1", "2", "3"})
            to.add(update + "uf_ultimointento=CURRENT_TIMESTAMP, uf_res_ultimointento=" + code +
                   " Where Sys_PK=12");
        for (const char* code : {"11", "12", "13", "14", "15", "16"})
            to.add(update + "uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento =  " + code +
                   " Where Sys_PK = 12");
        to.add(update + "uf_ultimointento = CURRENT_TIMESTAMP, uf_res_ultimointento = 50, uf_ultimocontac = "
                        "CURRENT_TIMESTAMP Where Sys_PK = 12");
    }
}

std::string newProspect(std::int32_t agent)
{
    std::string text = dialogs::prospectInsert(false);
    for (const char* column : {"uf_Nombre", "uf_EMail", "uf_Telefono", "uf_Empresa", "uf_Puesto", "uf_Pais",
                               "uf_Estado", "uf_Ciudad", "uf_Interes", "uf_Comentarios"})
        dialogs::SetParam(text, column, std::string("Ñandú O'Higgins\r\n"));
    dialogs::SetParam(text, "uf_iejecutivo", agent, agent == 0);
    for (const auto& [column, value] : {std::pair{"uf_status", 0}, {"uf_tipo", 1}, {"uf_color", 0}})
        dialogs::SetParam(text, column, value);
    dialogs::SetParam(text, "uf_redirect", std::string("URL_Directo"));
    return text;
}

void addNewProspect(Statements& to)
{
    to.add({"SELECT uf_Interes FROM ut_InteresContacto;", "SELECT uf_Origen FROM ut_OrigenContacto;",
            "SELECT uf_Referencia FROM ut_ReferenciaContacto;"});
    to.add(newProspect(7));
    to.add(newProspect(0));
    for (const char* procedure : {"AddReferenciaContacto", "AddOrigenContacto", "AddInteresContacto"})
        to.add(dialogs::learningCall(false, procedure, "Un amigo"));
}

void addExport(Statements& to)
{
    to.add(
        {"Select Sys_PK, Nombre From Ejecutivo ORDER BY Nombre",
         "Select Sys_pk, Descripcion FROM Meta WHERE Descripcion NOT LIKE '~%' AND Descripcion NOT LIKE 'Otro%' "
         "Order By Descripcion;"});
    for (const std::int32_t ejecutivo : {0, 7})
        for (const std::int32_t status : {0, 2})
            for (const bool except : {false, true}) {
                ListFilter filter;
                filter.ejecutivo = ejecutivo;
                filter.status = {status, except};
                to.add(dialogs::prospectListStatement(filter));
            }
}

/// The list of projects with each of its conditions; the server refuses it with any of them.
std::vector<ListFilter> projectFilters()
{
    ListFilter all;
    all.ejecutivo = 7;
    all.meta = {4, true};
    all.color = {0, false};
    all.estado = {3, false};
    all.exceptCerrados = all.exceptPerdidos = true;
    ListFilter colour;
    colour.color = {1, true};
    return {ListFilter{}, all, colour};
}

} // namespace

std::vector<std::string> validStatements()
{
    Statements statements;
    addLists(statements);
    addLog(statements);
    addLookUps(statements);
    addChanges(statements);
    addCalls(statements);
    addNewProspect(statements);
    addExport(statements);
    statements.add("SELECT GETDATE()");
    return statements.all;
}

std::vector<Refused> refusedStatements()
{
    constexpr int unknownFunction = 195;
    constexpr int argumentCount = 174;
    std::vector<Refused> refused{{"SELECT NOW()", unknownFunction}};
    for (const char* table : {"ut_icontact", "Proyecto"})
        refused.push_back({std::string("UPDATE ") + table +
                               " SET uf_contactado = 1, uf_primercontac = CURRENT_TIMESTAMP Where Sys_PK=12 and "
                               "isnull(uf_contactado)",
                           argumentCount});
    for (const ListFilter& filter : projectFilters())
        refused.push_back({dialogs::projectListStatement(filter, false), argumentCount});
    return refused;
}

} // namespace dn::tests
