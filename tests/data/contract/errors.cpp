// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Errors carry what the server said, bare, and leave the connection usable.
#include "tests/data/contract/contract.h"

namespace dn::tests::contract {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

const data::Error syntaxError("42000", 1064, "You have an error in your SQL syntax; check the manual near 'x'");

TEST_F(Contract, AMissingTableIsToldInTheServersWords)
{
    const data::Error error =
        askInVain("SELECT * FROM NoHayTal", {"42S02", 1146, "Table 'pruebas.nohaytal' doesn't exist"});
    EXPECT_EQ(error.sqlState(), "42S02");
    EXPECT_EQ(error.nativeCode(), 1146);
    EXPECT_STREQ(error.what(), "Table 'pruebas.nohaytal' doesn't exist");
    expectUsable();
}

TEST_F(Contract, ASyntaxErrorIsToldWithoutPrefixes)
{
    const data::Error error = askInVain("SELEC 1", syntaxError);
    EXPECT_EQ(error.sqlState(), "42000");
    EXPECT_EQ(error.nativeCode(), 1064);
    EXPECT_THAT(error.what(), StartsWith("You have an error in your SQL syntax"));
    expectUsable();
}

TEST_F(Contract, AnErrorOfAnUpdateIsThrown)
{
    run("CREATE TEMPORARY TABLE unicos (id INT PRIMARY KEY)");
    run("INSERT INTO unicos VALUES (1)");
    const data::Error error =
        askInVain("INSERT INTO unicos VALUES (1)", {"23000", 1062, "Duplicate entry '1' for key 'PRIMARY'"});
    EXPECT_EQ(error.sqlState(), "23000");
    EXPECT_EQ(error.nativeCode(), 1062);
    EXPECT_STREQ(error.what(), "Duplicate entry '1' for key 'PRIMARY'");
}

TEST_F(Contract, AccentsInTheServersWordsAreUtf8)
{
    const data::Error error =
        askInVain("SELECT * FROM `año`", {"42S02", 1146, "Table 'pruebas.año' doesn't exist"});
    EXPECT_THAT(error.what(), HasSubstr("año"));
}

TEST_F(Contract, StackedStatementsAreRefusedAndNoneOfThemRuns)
{
    run("CREATE TEMPORARY TABLE apiladas (id INT)");
    EXPECT_EQ(
        askInVain("INSERT INTO apiladas VALUES (1); INSERT INTO apiladas VALUES (2)", syntaxError).nativeCode(),
        1064);
    EXPECT_EQ(askInVain("SELECT 1; INSERT INTO apiladas VALUES (3)", syntaxError).nativeCode(), 1064);
    expectRows("SELECT COUNT(*) AS cuenta FROM apiladas", single("cuenta", whole(0)));
}

TEST_F(Contract, ASemicolonAtTheEndIsNoSecondStatement) { expectRows("SELECT 'x' AS a;", single("a", text("x"))); }

TEST_F(Contract, AnEmptyStatementIsAnErrorInSpanish)
{
    for (const char* statement : {"", "   ", "\r\n\t"}) {
        try {
            cnn().execute(statement);
            ADD_FAILURE() << "no error";
        } catch (const data::Error& error) {
            EXPECT_STREQ(error.what(), "La instrucción SQL está vacía");
        }
    }
    expectUsable();
}

// A driver that holds the whole result in memory meets the failure at once, one that reads as the loop goes on in
// the middle of it.
TEST_F(Contract, AFailureAmongTheRowsEndsTheLoop)
{
    Rows rows = sequence(5000);
    rows.moveFailsAt = 3000;
    rows.moveError = data::Error("21000", 1242, "Subquery returns more than 1 row");
    std::unique_ptr<data::Recordset> recordset;
    try {
        recordset = ask(
            "SELECT a.seq, (SELECT b.seq FROM seq_1_to_2 AS b WHERE a.seq > 3000) FROM seq_1_to_5000 AS a", rows);
        while (!recordset->Eof())
            recordset->MoveNext();
        ADD_FAILURE() << "no error";
    } catch (const data::Error& error) {
        EXPECT_EQ(error.nativeCode(), 1242);
        EXPECT_EQ(error.sqlState(), "21000");
        EXPECT_STREQ(error.what(), "Subquery returns more than 1 row");
    }
    if (recordset) {
        EXPECT_TRUE(recordset->Eof());
        EXPECT_FALSE(recordset->Bof());
        EXPECT_THROW(recordset->MoveNext(), data::Error);
    }
    expectUsable();
}

} // namespace
} // namespace dn::tests::contract
