// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "prospects/prospect_statement.h"

namespace dn::prospects {
namespace {

// Whole days from a date to now. The forms of the three columns differ in their blanks and in the case of NOW;
// servers do not mind, and whoever compares logs of statements relies on them.
std::string daysSince(bool mySql, const char* now, const char* column)
{
    return mySql ? std::string("datediff(") + now + "," + column + ")"
                 : std::string("datediff(D, ") + column + ", GETDATE())";
}

} // namespace

std::string prospectStatement(bool mySql, std::int32_t agente, int status)
{
    const bool unassigned = agente == 0;
    const std::string comma = unassigned ? "," : ", ";
    std::string text = "SELECT ut_icontact.*, ";
    text += daysSince(mySql, "NOW()", "Sys_DTCreated") + "as e_dias, ";
    text += "uf_ultimocontac as e_ultimocontacto, ";
    text += daysSince(mySql, "NOW()", "uf_ultimocontac") + " as e_duc" + comma;
    text += "uf_ultimointento as e_ultimointento" + comma;
    text += daysSince(mySql, "now()", "uf_ultimointento") + " as e_dui ";
    if (unassigned) {
        text += "FROM ut_icontact WHERE ";
        text += mySql ? "IFNULL" : "ISNULL";
        text += "(uf_IEjecutivo, 0) = 0";
    } else {
        text += "FROM ut_icontact WHERE uf_IEjecutivo = " + std::to_string(agente);
    }
    text += " AND uf_Status = " + std::to_string(status);
    text += " ORDER By uf_proxcontac, uf_Fecha";
    return text;
}

} // namespace dn::prospects
