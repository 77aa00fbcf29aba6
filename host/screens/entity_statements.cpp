// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/entity_statements.h"

#include "host/screens/entity_search.h"

namespace dn::host {
namespace {

constexpr const char* escape = "!";

Statement beginning(const SqlText& text, const std::string& pattern)
{
    Statement statement(text);
    statement.bind(pattern + "%").bind(escape).limit(searchLimit);
    return statement;
}

Statement holding(const SqlText& text, const std::string& pattern, std::int32_t first, std::int32_t last)
{
    Statement statement(text);
    statement.bind(first).bind(last).bind(" ").bind("%" + pattern + "%").bind(escape).limit(searchLimit);
    return statement;
}

} // namespace

std::string patternOf(std::string_view text)
{
    std::string pattern;
    for (const char c : text) {
        if (c == '%' || c == '_' || c == '[' || c == '!') pattern += '!';
        if (c == ' ') pattern += '%';
        pattern += c;
    }
    return pattern;
}

Statement personsFrom(const std::string& pattern)
{
    return beginning("SELECT Sys_PK, Nombre, Apellido1, Apellido2, COALESCE(Tel_Trabajo, Tel_Movil, Tel_Casa), "
                     "EMail FROM Persona WHERE Nombre LIKE ? ESCAPE ? ORDER BY Nombre, Apellido1",
                     pattern);
}

Statement personsOfSurname(const std::string& pattern)
{
    return beginning("SELECT Sys_PK, Nombre, Apellido1, Apellido2, COALESCE(Tel_Trabajo, Tel_Movil, Tel_Casa), "
                     "EMail FROM Persona WHERE Apellido1 LIKE ? ESCAPE ? ORDER BY Apellido1, Nombre",
                     pattern);
}

Statement personsInFull(const std::string& firstName, const std::string& pattern)
{
    Statement statement("SELECT Sys_PK, Nombre, Apellido1, Apellido2, COALESCE(Tel_Trabajo, Tel_Movil, Tel_Casa), "
                        "EMail FROM Persona WHERE Nombre LIKE ? ESCAPE ? AND CONCAT_WS(?, Nombre, Apellido1, "
                        "Apellido2) LIKE ? ESCAPE ? ORDER BY Nombre, Apellido1");
    statement.bind(firstName + "%").bind(escape).bind(" ").bind(pattern + "%").bind(escape).limit(searchLimit);
    return statement;
}

Statement organisationsFrom(const std::string& pattern)
{
    return beginning("SELECT Sys_PK, Nombre, NULL, NULL, COALESCE(Tel1, Tel2, Tel3), EMail FROM Organizacion "
                     "WHERE Nombre LIKE ? ESCAPE ? ORDER BY Nombre",
                     pattern);
}

Statement organisationsTradingAs(const std::string& pattern)
{
    return beginning("SELECT Sys_PK, Nombre, NULL, NULL, COALESCE(Tel1, Tel2, Tel3), EMail FROM Organizacion "
                     "WHERE NomComercial LIKE ? ESCAPE ? ORDER BY NomComercial",
                     pattern);
}

Statement personsWith(const std::string& pattern, std::int32_t first, std::int32_t last)
{
    return holding(
        "SELECT Sys_PK, Nombre, Apellido1, Apellido2, COALESCE(Tel_Trabajo, Tel_Movil, Tel_Casa), "
        "EMail FROM Persona WHERE Sys_PK BETWEEN ? AND ? AND CONCAT_WS(?, Nombre, Apellido1, Apellido2, "
        "Codigo, Tel_Trabajo, Tel_Movil, Tel_Casa, EMail, EMail2) LIKE ? ESCAPE ? ORDER BY Sys_PK",
        pattern, first, last);
}

Statement organisationsWith(const std::string& pattern, std::int32_t first, std::int32_t last)
{
    return holding(
        "SELECT Sys_PK, Nombre, NULL, NULL, COALESCE(Tel1, Tel2, Tel3), EMail FROM Organizacion WHERE "
        "Sys_PK BETWEEN ? AND ? AND CONCAT_WS(?, Nombre, NomComercial, Codigo, Tel1, Tel2, Tel3, EMail) "
        "LIKE ? ESCAPE ? ORDER BY Sys_PK",
        pattern, first, last);
}

Statement personKeys() { return Statement("SELECT MIN(Sys_PK), MAX(Sys_PK) FROM Persona"); }

Statement organisationKeys() { return Statement("SELECT MIN(Sys_PK), MAX(Sys_PK) FROM Organizacion"); }

} // namespace dn::host
