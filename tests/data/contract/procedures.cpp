// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Procedure calls: the control calls three of them, and a server sends a result more than the procedure has.
#include "tests/data/contract/contract.h"

namespace dn::tests::contract {
namespace {

class ContractProcedures : public Contract {
protected:
    void create(const std::string& name, const std::string& body)
    {
        run(speaks.procedure + name + speaks.procedureBegin + body + speaks.procedureEnd);
    }
    /// So many rows, as a statement of a procedure.
    std::string rowsUpTo(long long last) { return sequenceUpTo(last) + "; "; }
};

TEST_F(ContractProcedures, ACallWithoutRowsGivesNothing)
{
    createTemporary("origenes", "texto VARCHAR(50)");
    create("AddFeria", "INSERT INTO " + temporary("origenes") + " VALUES ('Feria ñ');");
    for (int i = 0; i < 2; ++i)
        EXPECT_FALSE(cnn().execute(speaks.call + "AddFeria;"));
    expectRows("SELECT texto FROM " + temporary("origenes"),
               Rows{{"texto"}, {{text("Feria ñ")}, {text("Feria ñ")}}});
}

TEST_F(ContractProcedures, ADefinitionMayHoldSemicolons)
{
    createTemporary("dos", "texto VARCHAR(50)");
    const std::string insert = "INSERT INTO " + temporary("dos") + " VALUES ('x;y'); ";
    create("Dos", insert + insert);
    EXPECT_FALSE(cnn().execute(speaks.call + "Dos"));
    expectRows("SELECT texto FROM " + temporary("dos"), Rows{{"texto"}, {{text("x;y")}, {text("x;y")}}});
}

TEST_F(ContractProcedures, ACallGivesItsFirstResultAndDrainsTheRest)
{
    create("Varias", "SELECT 'a' AS x; " + rowsUpTo(1000) + "SELECT 'c' AS z;");
    expectRows(speaks.call + "Varias", single("x", text("a")));
    expectUsable();
}

TEST_F(ContractProcedures, TheResultOfACallMayBeLongAndStayOpen)
{
    create("Larga", rowsUpTo(3000) + "SELECT 'otra' AS x;");
    const auto recordset = ask(speaks.call + "Larga", sequence(3000));
    ASSERT_TRUE(recordset);
    recordset->MoveNext();
    expectUsable();
    const Table rest = readAll(*recordset);
    EXPECT_EQ(rest.size(), 2999U);
    EXPECT_EQ(rest.back(), std::vector<Cell>{whole(3000)});
}

TEST_F(ContractProcedures, AHalfReadCallMayBeDropped)
{
    create("Larga", rowsUpTo(3000) + "SELECT 'otra' AS x;");
    ask(speaks.call + "Larga", sequence(3000));
    expectUsable();
}

TEST_F(ContractProcedures, AFailureBehindTheFirstResultIsThrown)
{
    create("Falla", "SELECT 'a' AS x; SELECT * FROM NoHayTal;");
    const data::Error error = askInVain(speaks.call + "Falla", speaks.missingTable);
    EXPECT_EQ(error.nativeCode(), speaks.missingTable.nativeCode());
    EXPECT_EQ(error.sqlState(), "42S02");
    expectUsable();
}

} // namespace
} // namespace dn::tests::contract
