// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The statements of the directories, to the blank.

#include "directories/statement.h"

#include <gtest/gtest.h>

namespace dn::directories {
namespace {

constexpr bool mySql = true;
constexpr bool other = false;

const std::string personsMySql =
    "SELECT Sys_PK, IFNULL(Codigo, '') AS Codigo, IFNULL(Nombre, '') AS Nombre, IFNULL(Apellido1, '') AS "
    "Apellido1, "
    "IFNULL(Apellido2, '') AS Apellido2, IFNULL(EMail, '') AS EMail, IFNULL(EMail2, '') AS EMail2, "
    "IFNULL(Tel_Casa, '') AS Tel_Casa, IFNULL(Tel_Trabajo, '') AS Tel_Trabajo, IFNULL(Tel_Movil, '') AS "
    "Tel_Movil, "
    "IFNULL(Domicilio, '') AS Domicilio, IFNULL(Colonia, '') AS Colonia, IFNULL(CodPostal, '') AS CodPostal  "
    "FROM Persona ";
const std::string personsOther =
    "SELECT Sys_PK, ISNULL(Codigo, '') AS Codigo, ISNULL(Nombre, '') AS Nombre, ISNULL(Apellido1, '') AS "
    "Apellido1, "
    "ISNULL(Apellido2, '') AS Apellido2, ISNULL(EMail, '') AS EMail, ISNULL(EMail2, '') AS EMail2, "
    "ISNULL(Tel_Casa, '') AS Tel_Casa, ISNULL(Tel_Trabajo, '') AS Tel_Trabajo, ISNULL(Tel_Movil, '') AS "
    "Tel_Movil, "
    "ISNULL(Domicilio, '') AS Domicilio, ISNULL(Colonia, '') AS Colonia, ISNULL(CodPostal, '') AS CodPostal  "
    "FROM Persona ";
const std::string organisationsMySql =
    "SELECT Sys_PK, IFNULL(Codigo, '') AS Codigo, IFNULL(Nombre, '') AS Nombre, IFNULL(NomComercial, '') AS "
    "NombreComercial, IFNULL(Tel1, '') AS Tel1, IFNULL(Tel2, '') AS Tel2, IFNULL(Tel3, '') AS Tel3, IFNULL(Fax, "
    "'') "
    "AS Fax, IFNULL(EMail, '') AS EMail, IFNULL(WebSite, '') AS WebSite, IFNULL(Domicilio, '') AS Domicilio, "
    "IFNULL(Colonia, '') AS Colonia, IFNULL(CodPostal, '') AS CodPostal, IFNULL(Nacionalidad, '') AS Nacionalidad "
    " "
    "FROM Organizacion ";
const std::string organisationsOther =
    "SELECT Sys_PK, ISNULL(Codigo, '') AS Codigo, ISNULL(Nombre, '') AS Nombre, ISNULL(NomComercial, '') AS "
    "NombreComercial, ISNULL(Tel1, '') AS Tel1, ISNULL(Tel2, '') AS Tel2, ISNULL(Tel3, '') AS Tel3, ISNULL(Fax, "
    "'') "
    "AS Fax, ISNULL(EMail, '') AS EMail, ISNULL(WebSite, '') AS WebSite, ISNULL(Domicilio, '') AS Domicilio, "
    "ISNULL(Colonia, '') AS Colonia, ISNULL(CodPostal, '') AS CodPostal, ISNULL(Nacionalidad, '') AS Nacionalidad "
    " "
    "FROM Organizacion ";

TEST(DirectoryStatement, of_an_agents_persons)
{
    const std::string rest = " WHERE IEjecutivo = 7 ORDER BY Nombre, Apellido1, Apellido2;";
    EXPECT_EQ(directoryStatement(persons, mySql, 7), personsMySql + rest);
    EXPECT_EQ(directoryStatement(persons, other, 7), personsOther + rest);
}

TEST(DirectoryStatement, of_everybodys_persons)
{
    const std::string rest = " ORDER BY Nombre, Apellido1, Apellido2;";
    for (const int agent : {0, -1}) {
        EXPECT_EQ(directoryStatement(persons, mySql, agent), personsMySql + rest);
        EXPECT_EQ(directoryStatement(persons, other, agent), personsOther + rest);
    }
}

TEST(DirectoryStatement, of_an_agents_organisations)
{
    const std::string rest = " WHERE IEjecutivo = 2147483647 ORDER BY Nombre, NombreComercial;";
    EXPECT_EQ(directoryStatement(organisations, mySql, 2'147'483'647), organisationsMySql + rest);
    EXPECT_EQ(directoryStatement(organisations, other, 2'147'483'647), organisationsOther + rest);
}

TEST(DirectoryStatement, of_everybodys_organisations)
{
    const std::string rest = " ORDER BY Nombre, NombreComercial;";
    EXPECT_EQ(directoryStatement(organisations, mySql, 0), organisationsMySql + rest);
    EXPECT_EQ(directoryStatement(organisations, other, 0), organisationsOther + rest);
}

} // namespace
} // namespace dn::directories
