// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The rows of the activity log, to the byte.

#include "data/activity_log.h"

#include <gtest/gtest.h>

namespace dn::data::bitacora {
namespace {

TEST(ActivityLog, row_of_a_prospect)
{
    EXPECT_EQ(prospectRow(">> Descartado: ya compró", "ana", "12"),
              "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
              "(CURRENT_TIMESTAMP, '>> Descartado: ya compró','ana',12)");
}

TEST(ActivityLog, row_of_a_transfer)
{
    EXPECT_EQ(prospectRow("Contacto transferido", "ana", "12"),
              "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
              "(CURRENT_TIMESTAMP, 'Contacto transferido','ana',12)");
}

TEST(ActivityLog, row_of_a_project_stands_for_no_prospect)
{
    EXPECT_EQ(projectRow("visita", "ana", "7"),
              "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, uf_IProy) VALUES "
              "(CURRENT_TIMESTAMP, 'visita','ana',0,7)");
}

TEST(ActivityLog, joins_its_texts_as_they_are)
{
    EXPECT_EQ(prospectRow("d'Arc", "o'neil", "1"),
              "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
              "(CURRENT_TIMESTAMP, 'd'Arc','o'neil',1)");
}

TEST(ActivityLog, rows_of_a_party)
{
    EXPECT_EQ(prospectRows("12"), "SELECT * FROM xt_biticontact WHERE uf_Iicontact = 12 ORDER BY uf_Tiempo");
    EXPECT_EQ(projectRows("7"), "SELECT * FROM xt_biticontact WHERE uf_IProy = 7 ORDER BY uf_Tiempo");
}

} // namespace
} // namespace dn::data::bitacora
