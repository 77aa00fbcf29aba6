// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/data/contract/contract.h"

namespace dn::tests::contract {

Dialect mariaDb()
{
    return {.sequence = [](long long last) { return "seq_1_to_" + std::to_string(last); },
            .temporaryTable = "CREATE TEMPORARY TABLE ",
            .temporaryPrefix = "",
            .procedure = "CREATE OR REPLACE PROCEDURE ",
            .procedureBegin = "() BEGIN ",
            .procedureEnd = " END",
            .call = "CALL ",
            .openName = "`",
            .closeName = "`",
            .missingTable = {"42S02", 1146, "Table 'pruebas.nohaytal' doesn't exist"},
            .syntax = {"42000", 1064, "You have an error in your SQL syntax"},
            .duplicateKey = {"23000", 1062, "Duplicate entry '1' for key 'PRIMARY'"},
            .stacked = {"42000", 1064, "You have an error in your SQL syntax"},
            .severalRows = {"21000", 1242, "Subquery returns more than 1 row"}};
}

Dialect sqlServer()
{
    return {.sequence =
                [](long long last) {
                    return "(SELECT value AS seq FROM GENERATE_SERIES(1, " + std::to_string(last) + ")) AS s";
                },
            .temporaryTable = "CREATE TABLE ",
            .temporaryPrefix = "#",
            .procedure = "CREATE OR ALTER PROCEDURE ",
            .procedureBegin = " AS ",
            .procedureEnd = "",
            .call = "EXEC ",
            .openName = "[",
            .closeName = "]",
            .missingTable = {"42S02", 208, "Invalid object name 'NoHayTal'."},
            .syntax = {"42000", 156, "Incorrect syntax near the keyword 'WHERE'."},
            .duplicateKey = {"23000", 2627, "Violation of PRIMARY KEY constraint"},
            .stacked = {"42000", 0, "El texto contiene más de una instrucción SQL"},
            .severalRows = {"21000", 512, "Subquery returned more than 1 value"}};
}

Table readAll(data::Recordset& recordset)
{
    Table table;
    for (; !recordset.Eof(); recordset.MoveNext()) {
        auto& row = table.emplace_back();
        for (std::size_t i = 0; i < recordset.names().size(); ++i) {
            const data::Value value = recordset.value(i);
            row.push_back({value.kind(), std::string(value.raw())});
        }
    }
    return table;
}

Rows single(std::string name, Cell cell)
{
    Rows rows;
    rows.names = {std::move(name)};
    rows.rows = {{std::move(cell)}};
    return rows;
}

Rows sequence(long long last)
{
    Rows rows;
    rows.names = {"seq"};
    for (long long i = 1; i <= last; ++i)
        rows.rows.push_back({whole(i)});
    return rows;
}

std::unique_ptr<data::Recordset> Contract::ask(const std::string& statement, const Rows& rows)
{
    backend_->teach(*cnn_, statement, rows);
    return cnn_->execute(statement);
}

data::Error Contract::askInVain(const std::string& statement, const data::Error& error)
{
    backend_->teach(*cnn_, statement, error);
    try {
        const auto recordset = cnn_->execute(statement);
        ADD_FAILURE() << "no error from: " << statement;
    } catch (const data::Error& thrown) {
        return thrown;
    }
    return {"", -1, ""};
}

void Contract::expectRows(const std::string& statement, const Rows& rows)
{
    const auto recordset = ask(statement, rows);
    ASSERT_TRUE(recordset) << statement;
    EXPECT_EQ(recordset->names(), rows.names) << statement;
    EXPECT_EQ(readAll(*recordset), rows.rows) << statement;
}

void Contract::expectUsable()
{
    EXPECT_EQ(cnn_->State(), data::Connection::open);
    expectRows("SELECT 'sigue' AS estado", single("estado", text("sigue")));
    expectRows("SELECT 2+3 AS suma", single("suma", whole(5)));
}

} // namespace dn::tests::contract
