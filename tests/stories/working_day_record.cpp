// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the day must have sent and written by its end.

#include "projects/project_statement.h"
#include "prospects/prospect_statement.h"
#include "tests/stories/working_day.h"
#include "tests/support/log_rows.h"

#include <array>
#include <utility>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

constexpr std::array answersWithoutContact{"No se encuentra", "Ocupado o \"en junta\"", "Número equivocado",
                                           "Me colgaron",     "No quiere saber nada",   "habla otro idioma"};

constexpr std::array resultsWithoutAnswer{"Línea ocupada", "No contestan", "Fuera de servicio"};
const std::string notReached = "No se pudo establecer llamada al: 961 ";
const std::string noContact = "Se estableció llamada al: 961 pero no se pudo contactar al prospecto. <";

/// A statement about one party, whose key stands for the "#" in it.
std::string of(const std::string& key, std::string statement)
{
    return statement.replace(statement.find('#'), 1, key);
}

std::string status(const std::string& code, const std::string& reason, const std::string& key)
{
    return "UPDATE ut_icontact SET uf_Status = " + code + ", uf_NotaStatus = '" + reason +
           "', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK = " + key;
}

std::string unanswered(const std::string& table, int code, const std::string& key)
{
    return "UPDATE " + table +
           " SET uf_ultimointento=CURRENT_TIMESTAMP, uf_res_ultimointento=" + std::to_string(code) +
           " Where Sys_PK=" + key;
}

std::string answered(int code, const std::string& key)
{
    return "UPDATE ut_icontact SET uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento =  " +
           std::to_string(code) + " Where Sys_PK = " + key;
}

} // namespace

std::vector<std::string> WorkingDay::changesToBeSent() const
{
    std::vector<std::string> all;
    const auto sends = [&all](std::string statement) { all.push_back(std::move(statement)); };

    sends(prospectNote("ya compró en otro lado", maria));
    sends(status("2", "compró", maria));
    sends(prospectNote(">> Sin interés: compró", maria));

    sends(of(nora, "UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus='Actualizado por creación de proyecto', "
                   "uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK=#"));
    sends(prospectNote(">> Descartado: ", nora));

    sends(of(luz, "UPDATE ut_icontact set uf_Nombre='Luz',uf_EMail='x@x.mx',uf_Telefono='961 555',"
                  "uf_Empresa='Acme',uf_Puesto='Compras' WHERE Sys_PK=#"));
    sends(status("3", "", luz));
    sends(prospectNote(">> Oportunidad: ", luz));

    int code = 0;
    for (const char* result : resultsWithoutAnswer) {
        sends(unanswered("ut_icontact", ++code, rita));
        sends(prospectNote(notReached + result, rita));
    }
    code = 10;
    for (const char* answer : answersWithoutContact) {
        sends(prospectNote(noContact + answer + ">", rita));
        sends(answered(++code, rita));
    }
    sends(prospectNote("Se estableció llamada al 961 Con éxito. Resumen: quiere una visita", rita));
    sends(of(rita, "UPDATE ut_icontact SET uf_contactado = 1, uf_primercontac = CURRENT_TIMESTAMP Where Sys_PK=# "
                   "and isnull(uf_contactado)"));
    sends(of(rita, "UPDATE ut_icontact SET uf_ultimointento = CURRENT_TIMESTAMP, uf_res_ultimointento = 50, "
                   "uf_ultimocontac = CURRENT_TIMESTAMP Where Sys_PK = #"));
    sends(of(rita, "UPDATE ut_icontact SET uf_proxcontac = CAST('2026-03-15 10:00:00' AS DATETIME) WHERE "
                   "Sys_PK=#"));

    sends(projectNote("planos recibidos", silo));
    sends(unanswered("Proyecto", 2, silo));
    sends(projectNote("No se pudo establecer llamada al: 961 111 No contestan", silo));

    sends(prospectNote(noContact + "Número equivocado>", pedro));
    sends(status("1", "teléfono equivocado", pedro));
    sends(prospectNote(">> Descartado: teléfono equivocado", pedro));
    sends(answered(13, pedro));
    return all;
}

std::vector<std::string> WorkingDay::readsToBeSent() const
{
    const bool mySql = !onSqlServer();
    const std::string orElse = mySql ? "IFNULL" : "ISNULL";
    std::vector<std::string> all{prospects::prospectStatement(mySql, ana, 0),
                                 projects::pendingActivitiesStatement(mySql, ana, 0),
                                 projects::projectsStatement(ana, 0)};
    const auto reads = [&all](std::string statement) { all.push_back(std::move(statement)); };

    reads("select * from qhoy where ejecutivo=7 order by cita, tipo, sys_pk");
    reads("select * from qatascados where ejecutivo=7 order by cita, tipo, sys_pk");
    reads(of(nora, "SELECT " + orElse + "(uf_Nombre, 'Nombre') AS uf_Nombre, " + orElse +
                       "(uf_telefono, 'Teléfono') AS uf_telefono, " + orElse +
                       "(uf_EMail, 'EMail') AS uf_EMail, " + orElse + "(uf_ciudad, 'Tuxtla') AS uf_ciudad, " +
                       orElse + "(UF_IEjecutivo, 1) AS UF_IEjecutivo FROM UT_IContact WHERE Sys_PK = #;"));
    reads("SELECT Sys_PK FROM Ciudad WHERE Nombre LIKE '%Tuxtla%';");
    reads(of(luz, "Select Sys_PK, uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto FROM ut_icontact Where "
                  "Sys_PK=#"));
    for (const std::string& key : {maria, luz, nora, rita, pedro, tere})
        reads(of(key, "SELECT * FROM xt_biticontact WHERE uf_Iicontact = # ORDER BY uf_Tiempo"));
    for (const std::string& key : {silo, molino}) {
        reads(of(key, "SELECT * FROM xt_biticontact WHERE uf_IProy = # ORDER BY uf_Tiempo"));
        reads(of(key, "SELECT Organizacion.Tel1, Organizacion.Tel2, Organizacion.Tel3, Organizacion.Fax, "
                      "Organizacion.EMail, Organizacion.WebSite,Persona.Nombre AS PN_Nombre, Persona.Apellido1 AS "
                      "PN_Apellido1, Persona.Apellido2 AS PN_Apellido2 , Persona.EMail, Persona.Tel_Trabajo, "
                      "Persona.Tel_Movil, Persona.Tel_Casa FROM (Proyecto INNER JOIN Organizacion ON "
                      "Proyecto.IOrganizacion=Organizacion.Sys_PK) INNER JOIN Persona ON "
                      "Proyecto.IContacto=Persona.Sys_PK WHERE Proyecto.Sys_PK=#"));
    }
    return all;
}

std::vector<std::string> WorkingDay::logToBeWritten() const
{
    const auto line = [](const std::string& key, const char* hour, const std::string& message) {
        return "prospecto " + key + " ana 2026-03-14 " + hour + " " + message;
    };
    std::vector<std::string> all{
        line(maria, "09:10:00", "ya compró en otro lado"), line(maria, "09:10:00", ">> Sin interés: compró"),
        line(nora, "09:15:00", ">> Descartado: "), line(luz, "09:20:00", ">> Oportunidad: ")};
    for (const char* result : resultsWithoutAnswer)
        all.push_back(line(rita, "09:30:00", notReached + result));
    for (const char* answer : answersWithoutContact)
        all.push_back(line(rita, "09:40:00", noContact + answer + ">"));
    all.push_back(line(rita, "10:00:00", "Se estableció llamada al 961 Con éxito. Resumen: quiere una visita"));
    all.push_back("proyecto " + silo + " ana 2026-03-14 10:10:00 planos recibidos");
    all.push_back("proyecto " + silo +
                  " ana 2026-03-14 10:10:00 No se pudo establecer llamada al: 961 111 No contestan");
    all.push_back(line(pedro, "10:30:00", noContact + "Número equivocado>"));
    all.push_back(line(pedro, "10:30:00", ">> Descartado: teléfono equivocado"));
    return all;
}

void WorkingDay::leftItsRows()
{
    // The form of the statement that stores the first contact is one that SQL Server refuses.
    const std::string firstContactOfRita = onSqlServer() ? "NULL|NULL" : "1|2026-03-14 10:00:00";
    EXPECT_THAT(
        inTheDatabase(
            "SELECT uf_Nombre, uf_Telefono, uf_Status, uf_NotaStatus, uf_FechaStatus, uf_proxcontac, "
            "uf_ultimointento, uf_res_ultimointento, uf_contactado, uf_primercontac, uf_ultimocontac FROM "
            "ut_icontact ORDER BY Sys_PK"),
        ElementsAre("María|961|2|compró|2026-03-14 09:10:00|2026-03-13 10:00:00|NULL|NULL|NULL|NULL|NULL",
                    "Luz|961 555|3||2026-03-14 09:20:00|2026-03-14 12:00:00|NULL|NULL|NULL|NULL|NULL",
                    "Nora|961|1|Actualizado por creación de proyecto|2026-03-14 09:15:00|2026-03-14 11:00:00|"
                    "NULL|NULL|NULL|NULL|NULL",
                    "Rita|961|0|NULL|NULL|2026-03-15 10:00:00|2026-03-14 10:00:00|50|" + firstContactOfRita +
                        "|2026-03-14 10:00:00",
                    "Pedro|961|1|teléfono equivocado|2026-03-14 10:30:00|NULL|2026-03-14 10:30:00|13|NULL|NULL|"
                    "NULL",
                    "Tere|961|0|NULL|NULL|2026-03-15 09:00:00|NULL|NULL|NULL|NULL|NULL"));
    EXPECT_THAT(log(), ElementsAreArray(logToBeWritten()));
    EXPECT_THAT(inTheDatabase("SELECT Sys_PK, UF_Status1, uf_ultimointento, uf_res_ultimointento FROM Proyecto "
                              "ORDER BY Sys_PK"),
                ElementsAre(silo + "|1|2026-03-14 10:10:00|2", molino + "|1|NULL|NULL"));
    EXPECT_THAT(inTheDatabase("SELECT IProyecto, FInicio, Hecho FROM actividad ORDER BY Sys_PK"),
                ElementsAre(silo + "|2026-03-14 08:00:00|1", silo + "|2026-03-20 10:00:00|0",
                            molino + "|2026-03-20 10:00:00|0"));
}

} // namespace dn::tests
