// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The four statements of the list, to the byte.

#include "prospects/prospect_statement.h"

#include <gtest/gtest.h>

namespace dn::prospects {
namespace {

TEST(ProspectStatement, of_an_agent_on_mysql)
{
    EXPECT_EQ(
        prospectStatement(true, 7, 0),
        "SELECT ut_icontact.*, datediff(NOW(),Sys_DTCreated)as e_dias, uf_ultimocontac as e_ultimocontacto, "
        "datediff(NOW(),uf_ultimocontac) as e_duc, uf_ultimointento as e_ultimointento, "
        "datediff(now(),uf_ultimointento) as e_dui FROM ut_icontact WHERE uf_IEjecutivo = 7 AND uf_Status = 0 "
        "ORDER By uf_proxcontac, uf_Fecha");
}

TEST(ProspectStatement, of_nobody_on_mysql)
{
    EXPECT_EQ(prospectStatement(true, 0, 2),
              "SELECT ut_icontact.*, datediff(NOW(),Sys_DTCreated)as e_dias, uf_ultimocontac as e_ultimocontacto, "
              "datediff(NOW(),uf_ultimocontac) as e_duc,uf_ultimointento as e_ultimointento,"
              "datediff(now(),uf_ultimointento) as e_dui FROM ut_icontact WHERE IFNULL(uf_IEjecutivo, 0) = 0 "
              "AND uf_Status = 2 ORDER By uf_proxcontac, uf_Fecha");
}

TEST(ProspectStatement, of_an_agent_on_sql_server)
{
    EXPECT_EQ(prospectStatement(false, 12, 3),
              "SELECT ut_icontact.*, datediff(D, Sys_DTCreated, GETDATE())as e_dias, "
              "uf_ultimocontac as e_ultimocontacto, datediff(D, uf_ultimocontac, GETDATE()) as e_duc, "
              "uf_ultimointento as e_ultimointento, datediff(D, uf_ultimointento, GETDATE()) as e_dui "
              "FROM ut_icontact WHERE uf_IEjecutivo = 12 AND uf_Status = 3 ORDER By uf_proxcontac, uf_Fecha");
}

TEST(ProspectStatement, of_nobody_on_sql_server)
{
    EXPECT_EQ(prospectStatement(false, 0, 1),
              "SELECT ut_icontact.*, datediff(D, Sys_DTCreated, GETDATE())as e_dias, "
              "uf_ultimocontac as e_ultimocontacto, datediff(D, uf_ultimocontac, GETDATE()) as e_duc,"
              "uf_ultimointento as e_ultimointento,datediff(D, uf_ultimointento, GETDATE()) as e_dui "
              "FROM ut_icontact WHERE ISNULL(uf_IEjecutivo, 0) = 0 AND uf_Status = 1 "
              "ORDER By uf_proxcontac, uf_Fecha");
}

} // namespace
} // namespace dn::prospects
