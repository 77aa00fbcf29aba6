// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The statements of the mail lists, to the byte.

#include "dialogs/list_statements.h"

#include <gmock/gmock.h>

namespace dn::tests {
namespace {

using dialogs::ListFilter;
using dialogs::projectListStatement;
using dialogs::prospectListStatement;

const std::string prospectHead = "Select uf_Email, uf_Nombre, uf_Telefono, uf_Empresa FROM ut_icontact";
const std::string listedProjectColumns =
    "SELECT Proyecto.IEjecutivo, Proyecto.IMeta, Proyecto.IOrganizacion, Proyecto.uf_status1, Proyecto.uf_color, "
    "Proyecto.Icontacto, Organizacion.Tel1, Organizacion.Nombre as Empresa, Organizacion.Email as EmailOrg, "
    "Persona.eMail as EmailPersona, Persona.tel_trabajo as Tel2, ";
const std::string projectTables =
    "FROM (Proyecto INNER JOIN Organizacion ON Proyecto.IOrganizacion=Organizacion.Sys_PK) INNER JOIN Persona ON "
    "Proyecto.IContacto = Persona.Sys_PK";
const std::string projectHead = listedProjectColumns +
                                " CONCAT( IFNULL(Persona.Nombre, ''), ' ', IFNULL(Persona.Apellido1, ''), ' ', "
                                "IFNULL(Persona.Apellido2, '')) as "
                                "Nombre " +
                                projectTables;

/// The conditions of the project statement.
std::string conditions(const ListFilter& filter)
{
    const std::string statement = projectListStatement(filter, true);
    EXPECT_EQ(statement.substr(0, projectHead.size()), projectHead);
    return statement.substr(projectHead.size());
}

TEST(ListStatements, without_a_filter_have_no_conditions)
{
    EXPECT_EQ(prospectListStatement({}), prospectHead);
    EXPECT_EQ(projectListStatement({}, true), projectHead);
}

TEST(ListStatements, for_sql_server_keep_the_name_that_closes_one_parenthesis_too_many)
{
    EXPECT_EQ(projectListStatement({}, false),
              listedProjectColumns +
                  " (ISNULL(Persona.Nombre, '') + ' ' + ISNULL(Persona.Apellido1, '') + ' ' + "
                  "ISNULL(Persona.Apellido2), ''))  as Nombre " +
                  projectTables);
    EXPECT_EQ(prospectListStatement({}), prospectHead);
}

TEST(ListStatements, of_prospects_by_status_and_executive)
{
    EXPECT_EQ(prospectListStatement({.status = {1, false}}), prospectHead + " Where  uf_Status=1");
    EXPECT_EQ(prospectListStatement({.ejecutivo = 7, .status = {2, true}}),
              prospectHead + " WHERE uf_iEjecutivo=7 AND  uf_Status<>2");
    EXPECT_EQ(prospectListStatement({.ejecutivo = 7}), prospectHead + " WHERE uf_iEjecutivo=7");
    EXPECT_EQ(prospectListStatement({.status = {3, true}}), prospectHead + " Where  uf_Status<>3");
}

TEST(ListStatements, of_prospects_know_no_filter_of_projects)
{
    EXPECT_EQ(prospectListStatement({.meta = {4, false},
                                     .color = {0, false},
                                     .estado = {5, true},
                                     .exceptCerrados = true,
                                     .exceptPerdidos = true}),
              prospectHead);
}

TEST(ListStatements, of_projects_have_their_conditions_in_one_order)
{
    EXPECT_EQ(conditions({.ejecutivo = 7,
                          .status = {2, true}, // of prospects alone
                          .meta = {4, false},
                          .color = {1, false},
                          .estado = {3, false},
                          .exceptCerrados = true,
                          .exceptPerdidos = true}),
              " WHERE Proyecto.IEjecutivo=7 AND  Proyecto.IMeta=4 AND  Proyecto.uf_color=1 AND  "
              "Proyecto.uf_status1=3 AND  Proyecto.uf_status1<>5 AND  Proyecto.uf_status1<>6");
    EXPECT_EQ(conditions({.meta = {4, true}, .color = {2, true}, .estado = {6, true}}),
              " Where  Proyecto.IMeta<>4 AND  Proyecto.uf_color<>2 AND  Proyecto.uf_status1<>6");
}

TEST(ListStatements, of_projects_begin_with_whichever_condition_comes_first)
{
    EXPECT_EQ(conditions({.ejecutivo = 2'147'483'647}), " WHERE Proyecto.IEjecutivo=2147483647");
    EXPECT_EQ(conditions({.meta = {4, false}}), " Where  Proyecto.IMeta=4");
    EXPECT_EQ(conditions({.color = {4, false}}), " Where  Proyecto.uf_color=4");
    EXPECT_EQ(conditions({.estado = {1, false}}), " Where  Proyecto.uf_status1=1");
    EXPECT_EQ(conditions({.exceptCerrados = true}), " Where  Proyecto.uf_status1<>5");
    EXPECT_EQ(conditions({.exceptPerdidos = true}), " Where  Proyecto.uf_status1<>6");
}

TEST(ListStatements, take_black_for_a_colour_and_99_for_none)
{
    EXPECT_EQ(conditions({.color = {0, false}}), " Where  Proyecto.uf_color=0");
    EXPECT_EQ(conditions({.color = {99, true}}), "");
}

TEST(ListStatements, contradict_themselves_where_the_operator_does)
{
    EXPECT_EQ(conditions({.estado = {5, false}, .exceptCerrados = true}),
              " Where  Proyecto.uf_status1=5 AND  Proyecto.uf_status1<>5");
}

TEST(ListStatements, take_no_heed_of_an_exception_from_no_filter)
{
    EXPECT_EQ(conditions({.status = {0, true}, .meta = {0, true}, .color = {99, true}, .estado = {0, true}}), "");
    EXPECT_EQ(prospectListStatement({.ejecutivo = 0, .status = {0, true}}), prospectHead);
    EXPECT_EQ(prospectListStatement({.ejecutivo = -3, .status = {-1, true}}), prospectHead);
}

} // namespace
} // namespace dn::tests
