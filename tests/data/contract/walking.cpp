// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Walking over rows: the two ends, the fields by name and by position, statements without rows.
#include "tests/data/contract/contract.h"

namespace dn::tests::contract {
namespace {

TEST_F(Contract, NoRowIsBeginAndEndAtOnce)
{
    const auto recordset = ask("SELECT 1 AS a FROM (SELECT 1 AS uno) AS t WHERE 1 = 0", Rows{{"a"}, {}});
    ASSERT_TRUE(recordset);
    EXPECT_TRUE(recordset->Eof());
    EXPECT_TRUE(recordset->Bof());
    EXPECT_EQ(recordset->Fields().Count(), 1U);
    EXPECT_THROW(recordset->value(0), data::Error);
    EXPECT_THROW(recordset->MoveNext(), data::Error);
}

TEST_F(Contract, OneRow)
{
    const auto recordset = ask("SELECT 'x' AS a", single("a", text("x")));
    ASSERT_TRUE(recordset);
    EXPECT_FALSE(recordset->Eof());
    EXPECT_FALSE(recordset->Bof());
    EXPECT_EQ(recordset->value(0).raw(), "x");
    recordset->MoveNext();
    EXPECT_TRUE(recordset->Eof());
    EXPECT_FALSE(recordset->Bof());
}

class ContractRowCounts : public Contract, public ::testing::WithParamInterface<long long> {};

TEST_P(ContractRowCounts, EveryRowComesOnceInOrder)
{
    expectRows(sequenceUpTo(GetParam()), sequence(GetParam()));
    expectUsable();
}

// Around the rows that a driver reads ahead, and well beyond.
INSTANTIATE_TEST_SUITE_P(Counts, ContractRowCounts, ::testing::Values(1, 2, 255, 256, 257, 512, 513, 5000));

TEST_F(Contract, NothingIsReadBehindTheLastRow)
{
    const auto recordset = ask(sequenceUpTo(2), sequence(2));
    ASSERT_TRUE(recordset);
    recordset->MoveNext();
    recordset->MoveNext();
    ASSERT_TRUE(recordset->Eof());
    EXPECT_THROW(recordset->MoveNext(), data::Error);
    EXPECT_THROW(recordset->value(0), data::Error);
    EXPECT_THROW(recordset->Fields()("seq").Value(), data::Error);
    EXPECT_TRUE(recordset->Eof());
}

TEST_F(Contract, FieldsAreFoundWithoutRegardToCase)
{
    Rows rows;
    rows.names = {"Sys_PK", "Año"};
    rows.rows = {{whole(7), text("dos mil")}};
    const auto recordset =
        ask("SELECT 7 AS Sys_PK, 'dos mil' AS " + speaks.openName + "Año" + speaks.closeName, rows);
    ASSERT_TRUE(recordset);
    EXPECT_EQ(recordset->Fields()("sys_pk").Value().toInt32(), 7);
    EXPECT_EQ(recordset->Fields()("SYS_PK").Name(), "Sys_PK");
    EXPECT_EQ(recordset->Fields()("AÑO").Value().raw(), "dos mil");
    EXPECT_EQ(recordset->Fields().find("aÑO"), 1U);
    EXPECT_EQ(recordset->Fields().find("ano"), std::nullopt);
    EXPECT_THROW(recordset->Fields()("nada"), data::Error);
}

TEST_F(Contract, OfTwoColumnsOfOneNameTheFirstIsFound)
{
    Rows rows;
    rows.names = {"Sys_PK", "sys_pk", "x"};
    rows.rows = {{whole(1), whole(2), whole(3)}};
    const auto recordset = ask("SELECT 1 AS Sys_PK, 2 AS sys_pk, 3 AS x", rows);
    ASSERT_TRUE(recordset);
    EXPECT_EQ(recordset->Fields()("SYS_PK").Value().toInt32(), 1);
    EXPECT_EQ(recordset->Fields()(1).Value().toInt32(), 2);
}

TEST_F(Contract, AColumnThatIsNotThereIsAnError)
{
    const auto recordset = ask("SELECT 'x' AS a", single("a", text("x")));
    ASSERT_TRUE(recordset);
    EXPECT_THROW(recordset->Fields()(1), data::Error);
    EXPECT_THROW(recordset->value(1), data::Error);
}

TEST_F(Contract, StatementsWithoutRowsGiveNothing)
{
    const std::string table = temporary("cosas");
    EXPECT_FALSE(cnn().execute(speaks.temporaryTable + table + " (id INT PRIMARY KEY, nombre VARCHAR(20))"));
    EXPECT_FALSE(cnn().execute("INSERT INTO " + table + " VALUES (1, 'uno'), (2, 'dos')"));
    EXPECT_FALSE(cnn().execute("UPDATE " + table + " SET nombre = 'x' WHERE id = 2"));
    EXPECT_FALSE(cnn().execute("UPDATE " + table + " SET nombre = 'x' WHERE id = 99")); // no row is no failure
    EXPECT_FALSE(cnn().execute("DELETE FROM " + table + " WHERE id = 99"));
    Rows rows;
    rows.names = {"id", "nombre"};
    rows.rows = {{whole(1), text("uno")}, {whole(2), text("x")}};
    expectRows("SELECT id, nombre FROM " + table + " ORDER BY id", rows);
}

} // namespace
} // namespace dn::tests::contract
