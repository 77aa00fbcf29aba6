// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/error.h"
#include "data/recordset.h"
#include "tests/support/fake_recordset.h"

#include <gtest/gtest.h>

namespace dn::tests {
namespace {

FakeRecordset people()
{
    return FakeRecordset(Rows{{"Sys_PK", "Nombre", "nombre"},
                              {{whole(1), text("Ana"), text("otra")}, {whole(2), null, text("más")}}});
}

std::string errorOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const data::Error& error) {
        return error.sqlState() + " " + error.what();
    }
    return "no error";
}

TEST(RecordsetFields, AreReachedByPositionAndByName)
{
    const FakeRecordset recordset = people();
    EXPECT_EQ(recordset.Fields().Count(), 3U);
    EXPECT_EQ(recordset.Fields()(1).Name(), "Nombre");
    EXPECT_EQ(recordset.Fields()(1).Value().raw(), "Ana");
    EXPECT_EQ(recordset.Fields()("SYS_pk").Value().toInt32(), 1);
    EXPECT_EQ(recordset.Fields()("NOMBRE").Value().raw(), "Ana"); // the first of that name
    EXPECT_EQ(recordset.Fields().find("NOMBRE"), 1U);
    EXPECT_EQ(recordset.Fields().find("Apellido"), std::nullopt);
}

TEST(RecordsetFields, ThatAreMissingAreNamedInTheError)
{
    const FakeRecordset recordset = people();
    EXPECT_EQ(errorOf([&] { recordset.Fields()("Apellido"); }), "42S22 No existe la columna Apellido");
    EXPECT_EQ(errorOf([&] { recordset.Fields()(3); }), "07009 No existe la columna 3");
}

TEST(RecordsetFields, ShowThePresentRow)
{
    FakeRecordset recordset = people();
    const data::Field name = recordset.Fields()("Nombre");
    EXPECT_EQ(name.Value().raw(), "Ana");
    recordset.MoveNext();
    EXPECT_TRUE(name.Value().isNull());
    recordset.MoveNext();
    EXPECT_EQ(errorOf([&] { name.Value(); }), "24000 No hay ningún registro activo");
}

TEST(DataError, CarriesStateNumberAndText)
{
    const data::Error error("42S02", 1146, "Table 'x' doesn't exist");
    EXPECT_EQ(error.sqlState(), "42S02");
    EXPECT_EQ(error.nativeCode(), 1146);
    EXPECT_STREQ(error.what(), "Table 'x' doesn't exist");
}

} // namespace
} // namespace dn::tests
