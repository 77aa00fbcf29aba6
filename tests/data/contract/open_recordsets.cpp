// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Recordsets that are left open: while other statements run, half-read, and beyond their connection.
#include "tests/data/contract/contract.h"

namespace dn::tests::contract {
namespace {

Rows longRows()
{
    Rows rows = sequence(5000);
    rows.names.emplace_back("nombre");
    for (auto& row : rows.rows)
        row.push_back(text("fila " + row[0].text));
    return rows;
}

class ContractOpen : public Contract {
protected:
    std::string longSelect() { return "SELECT seq, CONCAT('fila ', seq) AS nombre FROM " + from(5000); }
};

TEST_F(Contract, AHalfReadRecordsetMayBeDropped)
{
    for (const long long count : {3LL, 5000LL}) {
        auto recordset = ask(sequenceUpTo(count), sequence(count));
        ASSERT_TRUE(recordset);
        recordset->MoveNext();
        recordset.reset();
        expectUsable();
    }
}

TEST_F(Contract, AStatementMayRunWhileAShortRecordsetIsOpen)
{
    const auto first = ask(sequenceUpTo(3), sequence(3));
    ASSERT_TRUE(first);
    first->MoveNext();
    expectUsable();
    EXPECT_EQ(readAll(*first), (Table{{whole(2)}, {whole(3)}}));
}

TEST_F(ContractOpen, AStatementMayRunWhileALongRecordsetIsOpen)
{
    const Rows rows = longRows();
    const auto first = ask(longSelect(), rows);
    ASSERT_TRUE(first);
    for (int i = 0; i < 1000; ++i)
        first->MoveNext();
    expectUsable();
    EXPECT_EQ(readAll(*first), Table(rows.rows.begin() + 1000, rows.rows.end()));
}

TEST_F(Contract, AnUpdateForEachRowOfALoop)
{
    createTemporary("vistas", "id INT");
    const auto first = ask(sequenceUpTo(600), sequence(600));
    ASSERT_TRUE(first);
    for (; !first->Eof(); first->MoveNext())
        run("INSERT INTO " + temporary("vistas") + " VALUES (" + first->value(0).toText() + ")");
    expectRows("SELECT COUNT(*) AS cuenta, MAX(id) AS mayor FROM " + temporary("vistas"),
               Rows{{"cuenta", "mayor"}, {{whole(600), whole(600)}}});
}

TEST_F(ContractOpen, SeveralLongRecordsetsMayBeReadInTurn)
{
    const Rows rows = longRows();
    const auto first = ask(longSelect(), rows);
    const auto second = ask(longSelect(), rows);
    const auto third = ask(longSelect(), rows);
    ASSERT_TRUE(first && second && third);
    for (const auto& row : rows.rows) {
        for (data::Recordset* const recordset : {first.get(), second.get(), third.get()}) {
            ASSERT_EQ(recordset->value(0).raw(), row[0].text);
            ASSERT_EQ(recordset->value(1).raw(), row[1].text);
            recordset->MoveNext();
        }
    }
    EXPECT_TRUE(first->Eof() && second->Eof() && third->Eof());
}

// A loader builds its statements from the row in hand.
TEST_F(ContractOpen, AValueStaysGoodWhileOtherStatementsRun)
{
    const auto first = ask(longSelect(), longRows());
    ASSERT_TRUE(first);
    for (int i = 0; i < 300; ++i)
        first->MoveNext();
    const data::Value value = first->Fields()("nombre").Value();
    expectUsable();
    EXPECT_EQ(value.raw(), "fila 301");
}

TEST_F(ContractOpen, AFailedStatementLeavesTheOpenRecordset)
{
    const Rows rows = longRows();
    const auto first = ask(longSelect(), rows);
    ASSERT_TRUE(first);
    askInVain("SELECT * FROM NoHayTal", speaks.missingTable);
    EXPECT_EQ(readAll(*first), rows.rows);
}

// What it holds may be read; behind that there is an error and no crash.
TEST_F(ContractOpen, ARecordsetMayOutliveItsConnection)
{
    const Rows rows = longRows();
    const auto recordset = ask(longSelect(), rows);
    ASSERT_TRUE(recordset);
    disconnect();
    std::size_t read = 0;
    try {
        for (; !recordset->Eof(); recordset->MoveNext(), ++read)
            ASSERT_EQ(recordset->value(1).raw(), rows.rows[read][1].text);
        EXPECT_EQ(read, rows.rows.size());
    } catch (const data::Error& error) {
        EXPECT_STREQ(error.what(), "La conexión con la base de datos está cerrada");
    }
    EXPECT_GE(read, 1U);
    EXPECT_TRUE(recordset->Eof());
}

TEST_F(Contract, AShortRecordsetOutlivesItsConnectionWhole)
{
    const auto recordset = ask(sequenceUpTo(5), sequence(5));
    ASSERT_TRUE(recordset);
    disconnect();
    EXPECT_EQ(readAll(*recordset), sequence(5).rows);
}

} // namespace
} // namespace dn::tests::contract
