// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/control_statements.h"

#include "data/activity_log.h"
#include "dialogs/list_statements.h"
#include "dialogs/prospect_insert.h"
#include "directories/kind.h"
#include "directories/statement.h"
#include "projects/project_statement.h"
#include "prospects/prospect_statement.h"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <utility>

namespace dn::tests {
namespace {

using dialogs::ListFilter;

class Statements {
public:
    explicit Statements(Dialect dialect) : mySql(dialect == Dialect::mySql) {}
    void add(std::string text) { all.push_back(std::move(text)); }
    void add(std::initializer_list<const char*> texts)
    {
        for (const char* text : texts)
            add(std::string(text));
    }

    const bool mySql;
    std::vector<std::string> all;
};

void addLists(Statements& to)
{
    for (const std::int32_t agent : {0, 7})
        for (int status = 0; status <= 3; ++status)
            to.add(prospects::prospectStatement(to.mySql, agent, status));
    for (const std::int32_t agent : {0, 7}) {
        for (const int status : {projects::anyStatus, 1, 2, 3, 4, 5, 6}) {
            to.add(projects::pendingActivitiesStatement(to.mySql, agent, status));
            to.add(projects::projectsStatement(agent, status));
        }
        for (const directories::Kind* kind : {&directories::persons, &directories::organisations})
            to.add(directories::directoryStatement(*kind, to.mySql, agent));
        for (const char* queue : {"qhoy", "qatascados"})
            to.add(std::string("select * from ") + queue + " where ejecutivo=" + std::to_string(agent) +
                   " order by cita, tipo, sys_pk");
    }
    to.add({"Select Sys_PK, Nombre From Agente Order By Nombre"});
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
    const std::string isNull = to.mySql ? "IFNULL" : "ISNULL";
    to.add("SELECT " + isNull + "(uf_Nombre, 'Nombre') AS uf_Nombre, " + isNull +
           "(uf_telefono, 'Teléfono') AS uf_telefono, " + isNull + "(uf_EMail, 'EMail') AS uf_EMail, " + isNull +
           "(uf_ciudad, 'Tuxtla') AS uf_ciudad, " + isNull +
           "(UF_IEjecutivo, 1) AS UF_IEjecutivo FROM UT_IContact WHERE Sys_PK = 12;");
    to.add(
        {"SELECT Sys_PK FROM Ciudad WHERE Nombre LIKE '%Mérida%';",
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

// The group of projects that changes hands: by colour, by state, by agent, or all of them.
void addGroupChanges(Statements& to)
{
    for (const std::string colour : {"", " uf_Color= 1 ", " uf_Color<> 1 "})
        for (const std::string state : {"", "uf_Status1 = 3"})
            for (const std::string agent : {"", "IEjecutivo = 7 "}) {
                std::string where;
                for (const std::string& condition : {colour, state, agent})
                    if (!condition.empty()) where += (where.empty() ? " WHERE " : " AND ") + condition;
                to.add("UPDATE Proyecto SET IEjecutivo = 9 " + where);
            }
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
    addGroupChanges(to);
}

void addCalls(Statements& to)
{
    for (const std::string table : {"ut_icontact", "Proyecto"}) {
        const std::string update = "UPDATE " + table + " SET ";
        for (const char* code : {"1", "2", "3"})
            to.add(update + "uf_ultimointento=CURRENT_TIMESTAMP, uf_res_ultimointento=" + code +
                   " Where Sys_PK=12");
        for (const char* code : {" 11", " 12", " 13", " 14", " 15", " 16", "-1"}) // the last by a call of the host
            to.add(update + "uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento = " + code +
                   " Where Sys_PK = 12");
        to.add(update + "uf_ultimointento = CURRENT_TIMESTAMP, uf_res_ultimointento = 50, uf_ultimocontac = "
                        "CURRENT_TIMESTAMP Where Sys_PK = 12");
    }
}

std::string newProspect(bool mySql, std::int32_t agent)
{
    std::string text = dialogs::prospectInsert(mySql);
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
    to.add(newProspect(to.mySql, 7));
    to.add(newProspect(to.mySql, 0));
    for (const char* procedure : {"AddReferenciaContacto", "AddOrigenContacto", "AddInteresContacto"})
        to.add(dialogs::learningCall(to.mySql, procedure, "Un amigo"));
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

/// The list of projects with each combination of its conditions; the server refuses it with any of them.
std::vector<ListFilter> projectFilters()
{
    std::vector<ListFilter> all{ListFilter{}};
    const auto multiply = [&all](std::initializer_list<std::function<void(ListFilter&)>> choices) {
        std::vector<ListFilter> more = all; // without any of them
        for (const auto& choose : choices)
            for (ListFilter filter : all) {
                choose(filter);
                more.push_back(filter);
            }
        all = std::move(more);
    };
    multiply({[](ListFilter& filter) { filter.ejecutivo = 7; }});
    multiply({[](ListFilter& filter) {
                  filter.meta = {4, false};
              },
              [](ListFilter& filter) {
                  filter.meta = {4, true};
              }});
    multiply({[](ListFilter& filter) {
                  filter.color = {0, false};
              },
              [](ListFilter& filter) {
                  filter.color = {0, true};
              }});
    multiply({[](ListFilter& filter) {
                  filter.estado = {3, false};
              },
              [](ListFilter& filter) {
                  filter.estado = {3, true};
              }});
    multiply({[](ListFilter& filter) { filter.exceptCerrados = true; }});
    multiply({[](ListFilter& filter) { filter.exceptPerdidos = true; }});
    return all;
}

/// An apostrophe, or two of them, where a text goes in as it was typed; and a marker of the new prospect in the
/// value of another one, which takes its value in quotes into those of the text.
std::vector<std::string> brokenByWhatWasTyped()
{
    std::vector<std::string> all;
    for (const std::string name : {"d'Arc", "O'Hara's"}) {
        all.push_back("UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus='" + name +
                      "', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK=12");
        all.push_back("UPDATE ut_icontact SET uf_Status = 2, uf_NotaStatus = '" + name +
                      "', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK = 12");
        all.push_back("SELECT Sys_PK FROM Ciudad WHERE Nombre LIKE '%" + name + "%';");
        all.push_back("UPDATE ut_icontact set uf_Nombre='" + name +
                      "',uf_EMail='',uf_Telefono='',uf_Empresa='',uf_Puesto='' WHERE Sys_PK=12");
        for (const char* procedure : {"AddReferenciaContacto", "AddOrigenContacto", "AddInteresContacto"})
            all.push_back(dialogs::learningCall(false, procedure, name));
        all.push_back(data::bitacora::prospectRow(">> Descartado: " + name, "ana", "12"));
        all.push_back(data::bitacora::prospectRow("nota", name, "12"));
        all.push_back(data::bitacora::projectRow("nota", name, "7"));
    }
    std::string marked = dialogs::prospectInsert(false);
    dialogs::SetParam(marked, "uf_Nombre", std::string("soy @uf_EMail"));
    dialogs::SetParam(marked, "uf_EMail", std::string("maria@example.com"));
    all.push_back(marked);
    return all;
}

/// The ends of a call that the host asks for without ever having begun one.
std::vector<std::string> ofNoParty()
{
    return {"UPDATE  SET uf_ultimointento=CURRENT_TIMESTAMP, uf_res_ultimointento=1 Where Sys_PK=0",
            "UPDATE  SET uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento =  11 Where Sys_PK = 0",
            "UPDATE  SET uf_contactado = 1, uf_primercontac = CURRENT_TIMESTAMP Where Sys_PK=0 and "
            "isnull(uf_contactado)",
            "UPDATE  SET uf_ultimointento = CURRENT_TIMESTAMP, uf_res_ultimointento = 50, uf_ultimocontac = "
            "CURRENT_TIMESTAMP Where Sys_PK = 0"};
}

/// The guard against a second first contact, which asks `isnull` of one argument.
std::vector<std::string> guardedUpdates()
{
    std::vector<std::string> all;
    for (const char* table : {"ut_icontact", "Proyecto"})
        all.push_back(std::string("UPDATE ") + table +
                      " SET uf_contactado = 1, uf_primercontac = CURRENT_TIMESTAMP Where Sys_PK=12 and "
                      "isnull(uf_contactado)");
    return all;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isOfName(char c) { return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }

/// The length of the text in quotes, the number or the name that a statement begins with; 1 for any other sign.
std::size_t wordSize(std::string_view statement)
{
    const auto from = [&](std::size_t at) { return statement.substr(std::min(at, statement.size())); };
    std::size_t size = 1;
    if (statement.front() == '\'') {
        while (size < statement.size() && (statement[size] != '\'' || from(size + 1).starts_with('\'')))
            size += statement[size] == '\'' ? 2 : 1;
        return size + 1;
    }
    while (isOfName(statement.front()) && size < statement.size() && isOfName(statement[size]))
        ++size;
    return size;
}

/// Of a text only what the statement itself brings: the signs of a pattern, the form of a date.
std::string shapeOfText(std::string_view quoted, std::string_view ahead)
{
    if (ahead.ends_with("LIKE ")) {
        const bool any = quoted.size() > 2;
        return std::string(any && quoted[1] == '%' ? "%" : "") + "?" +
               (any && quoted[quoted.size() - 2] == '%' ? "%" : "");
    }
    if (!ahead.ends_with("CAST(")) return "?";
    std::string form(quoted);
    std::replace_if(form.begin(), form.end(), isDigit, '0');
    return form;
}

} // namespace

std::vector<std::string> validStatements(Dialect dialect)
{
    Statements statements(dialect);
    addLists(statements);
    addLog(statements);
    addLookUps(statements);
    addChanges(statements);
    addCalls(statements);
    addNewProspect(statements);
    addExport(statements);
    if (statements.mySql) {
        for (const std::string& text : guardedUpdates())
            statements.add(text);
        for (const ListFilter& filter : projectFilters())
            statements.add(dialogs::projectListStatement(filter, true));
    }
    statements.add(statements.mySql ? "SELECT NOW()" : "SELECT GETDATE()");
    return statements.all;
}

std::vector<Refused> refusedStatements()
{
    constexpr int unknownFunction = 195;
    constexpr int argumentCount = 174;
    constexpr int syntax = 102;
    constexpr int syntaxNearKeyword = 156;
    std::vector<Refused> refused{{"SELECT NOW()", unknownFunction}};
    for (std::string& statement : guardedUpdates())
        refused.push_back({std::move(statement), argumentCount});
    for (const ListFilter& filter : projectFilters())
        refused.push_back({dialogs::projectListStatement(filter, false), argumentCount});
    for (std::string& statement : brokenByWhatWasTyped())
        refused.push_back({std::move(statement), syntax});
    for (std::string& statement : ofNoParty())
        refused.push_back({std::move(statement), syntaxNearKeyword});
    return refused;
}

std::string shapeOf(std::string_view statement)
{
    std::string shape;
    while (!statement.empty()) {
        const std::size_t size = wordSize(statement);
        if (statement.front() == '\'') {
            shape += shapeOfText(statement.substr(0, size), shape);
        } else if (isDigit(statement.front())) {
            if (shape.ends_with('-')) shape.pop_back();
            shape += '?';
        } else {
            shape += statement.substr(0, size);
        }
        statement.remove_prefix(std::min(size, statement.size()));
    }
    return shape;
}

} // namespace dn::tests
