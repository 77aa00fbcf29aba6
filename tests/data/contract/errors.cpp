// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Errors carry what the server said, bare, and leave the connection usable.
#include "tests/data/contract/contract.h"

namespace dn::tests::contract {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

/// The texts go on by the server's version.
void expectError(const data::Error& error, const data::Error& expected)
{
    EXPECT_EQ(error.sqlState(), expected.sqlState());
    EXPECT_EQ(error.nativeCode(), expected.nativeCode());
    EXPECT_THAT(error.what(), StartsWith(expected.what()));
}

TEST_F(Contract, AMissingTableIsToldInTheServersWords)
{
    expectError(askInVain("SELECT * FROM NoHayTal", speaks.missingTable), speaks.missingTable);
    expectUsable();
}

TEST_F(Contract, ASyntaxErrorIsToldWithoutPrefixes)
{
    expectError(askInVain("SELECT 1 FROM WHERE", speaks.syntax), speaks.syntax);
    expectUsable();
}

TEST_F(Contract, AnErrorOfAnUpdateIsThrown)
{
    createTemporary("unicos", "id INT PRIMARY KEY");
    const std::string insert = "INSERT INTO " + temporary("unicos") + " VALUES (1)";
    run(insert);
    expectError(askInVain(insert, speaks.duplicateKey), speaks.duplicateKey);
}

TEST_F(Contract, AccentsInTheServersWordsAreUtf8)
{
    const data::Error error = askInVain("SELECT * FROM " + speaks.openName + "año" + speaks.closeName,
                                        {"42S02", 1146, "Table 'pruebas.año' doesn't exist"});
    EXPECT_THAT(error.what(), HasSubstr("año"));
}

TEST_F(Contract, StackedStatementsAreRefusedAndNoneOfThemRuns)
{
    createTemporary("apiladas", "id INT");
    const std::string insert = "INSERT INTO " + temporary("apiladas") + " VALUES (1)";
    expectError(askInVain(insert + "; " + insert, speaks.stacked), speaks.stacked);
    expectError(askInVain("SELECT 1; " + insert, speaks.stacked), speaks.stacked);
    expectRows("SELECT COUNT(*) AS cuenta FROM " + temporary("apiladas"), single("cuenta", whole(0)));
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
    rows.moveError = speaks.severalRows;
    std::unique_ptr<data::Recordset> recordset;
    try {
        const std::string outer = "(SELECT seq AS n FROM " + from(5000) + ") AS a";
        recordset = ask("SELECT n, (SELECT seq FROM " + from(2) + " WHERE n > 3000) FROM " + outer, rows);
        while (!recordset->Eof())
            recordset->MoveNext();
        ADD_FAILURE() << "no error";
    } catch (const data::Error& error) {
        expectError(error, speaks.severalRows);
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
