// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The kind and the exact raw text of each type of column, nulls included.
#include "tests/data/contract/contract.h"

namespace dn::tests::contract {
namespace {

struct TypeCase {
    const char* type;
    const char* literal;
    Cell cell;
};

class ContractKinds : public Contract {
protected:
    /// A column of each type, one row with the values and one with nulls.
    void expectTypes(const std::vector<TypeCase>& cases)
    {
        std::string columns, values, nulls;
        Rows rows;
        rows.rows.resize(2);
        for (std::size_t i = 0; i < cases.size(); ++i) {
            const std::string name = "c" + std::to_string(i);
            columns += (i == 0 ? "" : ", ") + name + " " + cases[i].type + " NULL";
            values += (i == 0 ? "" : ", ") + std::string(cases[i].literal);
            nulls += i == 0 ? "NULL" : ", NULL";
            rows.names.push_back(name);
            rows.rows[0].push_back(cases[i].cell);
            rows.rows[1].push_back(null);
        }
        run("CREATE TEMPORARY TABLE clases (" + columns + ")");
        run("INSERT INTO clases VALUES (" + values + "), (" + nulls + ")");
        expectRows("SELECT * FROM clases", rows);
    }
};

TEST_F(ContractKinds, WholeNumbers)
{
    expectTypes({{"TINYINT", "-128", whole(-128)},
                 {"BOOLEAN", "TRUE", whole(1)},
                 {"SMALLINT", "32767", whole(32767)},
                 {"MEDIUMINT", "-8388608", whole(-8388608)},
                 {"INT", "2147483647", whole(2147483647)},
                 {"INT UNSIGNED", "4294967295", whole(4294967295)},
                 {"BIGINT", "-9223372036854775807", whole(-9223372036854775807)},
                 {"YEAR", "2026", whole(2026)},
                 {"BIT(9)", "b'100000001'", whole(257)}});
}

TEST_F(ContractKinds, Bits) { expectTypes({{"BIT(1)", "b'1'", boolean(true)}, {"BIT", "b'0'", boolean(false)}}); }

TEST_F(ContractKinds, NumbersKeepEveryDigit)
{
    expectTypes({{"DECIMAL(30,10)", "12345678901234567890.0123456789", number("12345678901234567890.0123456789")},
                 {"DECIMAL(20,0)", "-98765432109876543210", number("-98765432109876543210")},
                 {"DECIMAL(12,2)", "0", number("0.00")},
                 {"DECIMAL(3,3)", "-0.005", number("-0.005")},
                 {"FLOAT", "1.5", number("1.5")},
                 {"DOUBLE", "0.1", number("0.1")},
                 {"DOUBLE", "1e300", number("1e300")}});
}

TEST_F(ContractKinds, Dates)
{
    expectTypes({{"DATE", "'2026-02-28'", date("2026-02-28")},
                 {"DATETIME", "'2026-01-02 03:04:05'", date("2026-01-02 03:04:05")},
                 {"DATETIME", "'2026-01-02'", date("2026-01-02 00:00:00")},
                 {"DATETIME(6)", "'2026-01-02 00:00:00'", date("2026-01-02 00:00:00")},
                 {"DATETIME(3)", "'2026-01-02 03:04:05.120'", date("2026-01-02 03:04:05.120")},
                 {"TIMESTAMP", "'2026-12-31 23:59:59'", date("2026-12-31 23:59:59")},
                 {"TIME", "'10:11:12'", date("10:11:12")},
                 {"DATE", "'9999-12-31'", date("9999-12-31")},
                 {"DATE", "'2024-02-29'", date("2024-02-29")}});
}

// A server may store dates that no calendar has.
TEST_F(ContractKinds, WhatIsNoDateIsNullOrText)
{
    run("SET sql_mode = ''");
    expectTypes({{"DATE", "'0000-00-00'", null},
                 {"DATETIME", "'0000-00-00 00:00:00'", null},
                 {"DATETIME(6)", "'0000-00-00 00:00:00'", null},
                 {"DATE", "'2026-00-10'", text("2026-00-10")},
                 {"DATE", "'2026-05-00'", text("2026-05-00")},
                 {"TIME", "'838:59:59'", text("838:59:59")},
                 {"TIME", "'-01:00:00'", text("-01:00:00")}});
}

TEST_F(ContractKinds, Texts)
{
    expectTypes({{"CHAR(5)", "'ab'", text("ab")},
                 {"VARCHAR(200)", "'123'", text("123")},
                 {"TINYTEXT", "'t'", text("t")},
                 {"TEXT", "'2026-01-01'", text("2026-01-01")},
                 {"LONGTEXT", "'l'", text("l")},
                 {"ENUM('a','b')", "'b'", text("b")},
                 {"SET('a','b')", "'a,b'", text("a,b")}});
}

TEST_F(ContractKinds, ResultsOfExpressions)
{
    Rows rows;
    rows.names = {"cuenta", "suma", "division", "dias", "hoy", "nombre", "cierto"};
    rows.rows = {
        {whole(1), number("3.75"), number("0.3333"), whole(31), date("2026-02-01"), text("a b"), whole(1)}};
    expectRows("SELECT COUNT(*) AS cuenta, SUM(3.75) AS suma, 1/3 AS division, "
               "DATEDIFF('2026-02-01','2026-01-01') AS dias, DATE('2026-02-01 10:00:00') AS hoy, "
               "CONCAT('a', ' ', 'b') AS nombre, 1=1 AS cierto",
               rows);
}

} // namespace
} // namespace dn::tests::contract
