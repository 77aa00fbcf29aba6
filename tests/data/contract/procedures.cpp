// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Procedure calls: the control calls three of them, and a server sends a result more than the procedure has.
#include "tests/data/contract/contract.h"

namespace dn::tests::contract {
namespace {

class ContractProcedures : public Contract {
protected:
    void create(const std::string& head, const std::string& body)
    {
        run("CREATE OR REPLACE PROCEDURE " + head + " BEGIN " + body + " END");
    }
};

TEST_F(ContractProcedures, ACallWithoutRowsGivesNothing)
{
    run("CREATE TEMPORARY TABLE origenes (texto VARCHAR(50))");
    create("AddOrigen(valor VARCHAR(50))", "INSERT INTO origenes VALUES (valor);");
    EXPECT_FALSE(cnn().execute("CALL AddOrigen('Feria ñ');"));
    EXPECT_FALSE(cnn().execute("CALL AddOrigen('Radio');"));
    expectRows("SELECT texto FROM origenes ORDER BY texto", Rows{{"texto"}, {{text("Feria ñ")}, {text("Radio")}}});
}

TEST_F(ContractProcedures, ADefinitionMayHoldSemicolons)
{
    EXPECT_FALSE(cnn().execute("CREATE OR REPLACE PROCEDURE Dos() BEGIN SET @a = 1; SET @b = 'x;y'; END"));
    EXPECT_FALSE(cnn().execute("CALL Dos()"));
    expectRows("SELECT @b AS b", single("b", text("x;y")));
}

TEST_F(ContractProcedures, ACallGivesItsFirstResultAndDrainsTheRest)
{
    create("Varias()", "SELECT 'a' AS x; SELECT seq FROM seq_1_to_1000; SELECT 'c' AS z;");
    expectRows("CALL Varias()", single("x", text("a")));
    expectUsable();
}

TEST_F(ContractProcedures, TheResultOfACallMayBeLongAndStayOpen)
{
    create("Larga()", "SELECT seq FROM seq_1_to_3000; SELECT 'otra' AS x;");
    const auto recordset = ask("CALL Larga()", sequence(3000));
    ASSERT_TRUE(recordset);
    recordset->MoveNext();
    expectUsable();
    const Table rest = readAll(*recordset);
    EXPECT_EQ(rest.size(), 2999U);
    EXPECT_EQ(rest.back(), std::vector<Cell>{whole(3000)});
}

TEST_F(ContractProcedures, AHalfReadCallMayBeDropped)
{
    create("Larga()", "SELECT seq FROM seq_1_to_3000; SELECT 'otra' AS x;");
    ask("CALL Larga()", sequence(3000));
    expectUsable();
}

TEST_F(ContractProcedures, AFailureBehindTheFirstResultIsThrown)
{
    create("Falla()", "SELECT 'a' AS x; SELECT * FROM NoHayTal;");
    const data::Error error = askInVain("CALL Falla()", {"42S02", 1146, "Table 'pruebas.nohaytal' doesn't exist"});
    EXPECT_EQ(error.nativeCode(), 1146);
    EXPECT_EQ(error.sqlState(), "42S02");
    expectUsable();
}

} // namespace
} // namespace dn::tests::contract
