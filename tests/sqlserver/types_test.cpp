// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Each type of SQL Server comes through the driver as what it is, to the last digit and letter.

#include "host/database/database_choice.h"
#include "tests/sqlserver/fixture.h"
#include "tests/support/sql_server_stand_in.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using Kind = data::Value::Kind;

struct TypeCase {
    const char* type;
    const char* literal;
    Kind kind;
    const char* raw;
};

class SqlServerTypes : public OnStandIn {
protected:
    /// A column of each type, one row with the values and one with nulls.
    void expectTypes(const std::vector<TypeCase>& cases)
    {
        std::string columns, values, nulls;
        for (std::size_t i = 0; i < cases.size(); ++i) {
            const std::string comma = i == 0 ? "" : ", ";
            columns += comma + "c" + std::to_string(i) + " " + cases[i].type + " NULL";
            values += comma + cases[i].literal;
            nulls += comma + "NULL";
        }
        connection->execute("CREATE TABLE #clases (" + columns + ")");
        connection->execute("INSERT INTO #clases VALUES (" + values + "), (" + nulls + ")");
        const auto rows = connection->execute("SELECT * FROM #clases");
        ASSERT_TRUE(rows);
        for (std::size_t i = 0; i < cases.size(); ++i) {
            EXPECT_EQ(rows->value(i).kind(), cases[i].kind) << cases[i].type;
            EXPECT_EQ(rows->value(i).raw(), cases[i].raw) << cases[i].type;
        }
        rows->MoveNext();
        for (std::size_t i = 0; i < cases.size(); ++i)
            EXPECT_TRUE(rows->value(i).isNull()) << cases[i].type;
        rows->MoveNext();
        EXPECT_TRUE(rows->Eof());
    }

    std::unique_ptr<data::Connection> connection = connect();
};

TEST_F(SqlServerTypes, numbers)
{
    expectTypes(
        {{"INT", "-2147483648", Kind::whole, "-2147483648"},
         {"SMALLINT", "32767", Kind::whole, "32767"},
         {"BIGINT", "-9223372036854775807", Kind::whole, "-9223372036854775807"},
         {"BIT", "1", Kind::boolean, "1"},
         {"BIT", "0", Kind::boolean, "0"},
         {"DECIMAL(30,10)", "12345678901234567890.0123456789", Kind::number, "12345678901234567890.0123456789"},
         {"DECIMAL(17,2)", "-1234.5", Kind::number, "-1234.50"},
         {"DECIMAL(20,0)", "-98765432109876543210", Kind::number, "-98765432109876543210"},
         {"FLOAT", "0.1", Kind::number, "0.10000000000000001"}, // as the driver writes it: 17 digits
         {"FLOAT", "1.5", Kind::number, "1.5"},
         {"FLOAT", "-2.5", Kind::number, "-2.5"},
         {"FLOAT", "'-1.5E300'", Kind::number, "-1.5000000000000001e+300"},
         {"FLOAT", "'2.5E-7'", Kind::number, "2.4999999999999999e-07"},
         {"REAL", "-0.5", Kind::number, "-0.5"},
         {"TINYINT", "7", Kind::whole, "7"},
         {"MONEY", "-922337203685477.5808", Kind::number, "-922337203685477.5808"},
         {"MONEY", "1234.5", Kind::number, "1234.5000"}});
}

TEST_F(SqlServerTypes, a_float_reads_as_a_number_however_the_driver_writes_it)
{
    const auto rows =
        connection->execute("SELECT CAST('-1.5E300' AS FLOAT), CAST('2.5E-7' AS FLOAT), CAST(0 AS FLOAT)");
    EXPECT_DOUBLE_EQ(rows->value(0).toNumber(), -1.5E300);
    EXPECT_DOUBLE_EQ(rows->value(1).toNumber(), 2.5E-7);
    EXPECT_DOUBLE_EQ(rows->value(2).toNumber(), 0);
}

TEST_F(SqlServerTypes, identifiers)
{
    expectTypes({{"UNIQUEIDENTIFIER", "'6F9619FF-8B86-D011-B42D-00C04FC964FF'", Kind::text,
                  "6F9619FF-8B86-D011-B42D-00C04FC964FF"}});
}

TEST_F(SqlServerTypes, dates_and_times)
{
    expectTypes(
        {{"DATETIME", "'2026-01-02T03:04:05'", Kind::dateTime, "2026-01-02 03:04:05"},
         {"DATETIME", "'2026-01-02'", Kind::dateTime, "2026-01-02 00:00:00"},
         {"DATETIME", "'2026-01-02T03:04:05.997'", Kind::dateTime, "2026-01-02 03:04:05.997"},
         {"DATETIME", "'2026-01-02T03:04:05.005'", Kind::dateTime, "2026-01-02 03:04:05.007"},
         {"DATETIME", "'2026-01-02T03:04:05.001'", Kind::dateTime, "2026-01-02 03:04:05"},
         {"DATETIME2(6)", "'2026-01-02T03:04:05.123456'", Kind::dateTime, "2026-01-02 03:04:05.123456"},
         {"DATETIME2(0)", "'9999-12-31T23:59:59'", Kind::dateTime, "9999-12-31 23:59:59"},
         {"DATETIME", "'1753-01-01T00:00:00'", Kind::dateTime, "1753-01-01 00:00:00"}, // its first one
         {"DATETIME", "'1899-12-31T23:59:59.997'", Kind::dateTime, "1899-12-31 23:59:59.997"},
         {"DATETIME2(0)", "'0001-01-01T00:00:00'", Kind::dateTime, "0001-01-01 00:00:00"},
         {"SMALLDATETIME", "'2026-01-02T03:04:29'", Kind::dateTime, "2026-01-02 03:04:00"},
         {"SMALLDATETIME", "'2026-01-02T23:59:31'", Kind::dateTime, "2026-01-03 00:00:00"},
         {"TIME(0)", "'03:04:05'", Kind::dateTime, "03:04:05"},
         {"DATETIME2", "'2026-01-02T03:04:05.1234567'", Kind::dateTime, "2026-01-02 03:04:05.1234567"},
         {"TIME", "'03:04:05.1234567'", Kind::dateTime, "03:04:05.1234567"},
         {"DATETIMEOFFSET", "'2026-01-02T03:04:05.5-06:00'", Kind::dateTime, "2026-01-02 03:04:05.5000000"},
         {"DATE", "'1890-05-06'", Kind::dateTime, "1890-05-06"},
         {"DATE", "'2024-02-29'", Kind::dateTime, "2024-02-29"}});
}

TEST_F(SqlServerTypes, texts)
{
    expectTypes({{"NVARCHAR(40)", "N'Muñoz Ávila 😀 ثلاثة'", Kind::text, "Muñoz Ávila 😀 ثلاثة"},
                 {"NVARCHAR(40)", "N''", Kind::text, ""},
                 {"NVARCHAR(40)", "N' a '", Kind::text, " a "},
                 {"NVARCHAR(MAX)", "N'uno\r\ndos\ttres it''s'", Kind::text, "uno\r\ndos\ttres it's"},
                 {"NVARCHAR(MAX)", "N''", Kind::text, ""},
                 {"NCHAR(5)", "N'abcde'", Kind::text, "abcde"},
                 {"VARCHAR(20)", "'123 ñ'", Kind::text, "123 ñ"},
                 {"VARCHAR(MAX)", "'sin límite'", Kind::text, "sin límite"},
                 {"NVARCHAR(80)", "N'¿qué? :x ?1 {d ''2026-01-01''} {fn now()} %s \\ $1'", Kind::text,
                  "¿qué? :x ?1 {d '2026-01-01'} {fn now()} %s \\ $1"}});
}

TEST_F(SqlServerTypes, bytes_stay_bytes)
{
    const auto rows = connection->execute("SELECT CAST('aZ1' AS VARBINARY(8)), CAST('' AS VARBINARY(8))");
    EXPECT_EQ(rows->value(0).raw(), "aZ1");
    EXPECT_EQ(rows->value(1).raw(), "");
}

TEST_F(SqlServerTypes, every_length_around_the_buffers_comes_whole)
{
    connection->execute("CREATE TABLE #bordes (id INT, nota NVARCHAR(MAX))");
    const std::vector<int> lengths{1,    1023, 1024,   1025,   4095,   4096,  4097,
                                   8000, 8191, 16'383, 16'384, 16'385, 65'536};
    for (const int length : lengths)
        connection->execute("INSERT INTO #bordes VALUES (" + std::to_string(length) + ", N'" +
                            std::string(static_cast<std::size_t>(length) - 1, 'x') + "ñ')");
    const auto rows = connection->execute("SELECT id, nota FROM #bordes ORDER BY id");
    for (const int length : lengths) {
        EXPECT_EQ(rows->value(0).toInt32(), length);
        EXPECT_EQ(rows->value(1).raw(), std::string(static_cast<std::size_t>(length) - 1, 'x') + "ñ") << length;
        rows->MoveNext();
    }
}

TEST_F(SqlServerTypes, a_long_text_is_not_cut_off)
{
    std::string large;
    while (large.size() < 300'000)
        large += "ñ€😀x"; // characters of two, three, four bytes and one
    connection->execute("CREATE TABLE #largos (a NVARCHAR(MAX), b NVARCHAR(10))");
    connection->execute("INSERT INTO #largos VALUES (N'" + large + "', 'uno'), (NULL, 'dos'), (N'', 'tres')");
    const auto rows = connection->execute("SELECT a, b FROM #largos");
    EXPECT_EQ(rows->value(0).raw(), large);
    EXPECT_EQ(rows->value(1).raw(), "uno");
    rows->MoveNext();
    EXPECT_TRUE(rows->value(0).isNull());
    rows->MoveNext();
    EXPECT_EQ(rows->value(0).raw(), "");
    EXPECT_EQ(rows->value(1).raw(), "tres");
}

// Without an N a literal goes by the code page of the database: what that lacks is a question mark.
TEST_F(SqlServerTypes, a_plain_literal_keeps_what_the_code_page_of_the_database_has)
{
    connection->execute("CREATE DATABASE occidental COLLATE Modern_Spanish_CI_AS");
    const auto western = host::connect(host::OdbcTarget{sharedStandIn().connectionString("occidental")});
    EXPECT_THAT(rowsOf(*western, "SELECT 'Muñoz Ávila €', 'ثلاثة', N'ثلاثة'"),
                ElementsAre(Row{"Muñoz Ávila €", "?????", "ثلاثة"}));
    EXPECT_THAT(rowsOf(*connection, "SELECT 'ثلاثة 😀'"), ElementsAre(Row{"ثلاثة 😀"})) << "this one is in UTF-8";
}

TEST_F(SqlServerTypes, letters_are_compared_without_regard_to_case_and_accents_apart)
{
    connection->execute("CREATE TABLE #nombres (n NVARCHAR(20))");
    connection->execute("INSERT INTO #nombres VALUES (N'Ñandú'), (N'Nandu')");
    EXPECT_THAT(rowsOf(*connection, "SELECT n FROM #nombres WHERE n = 'ÑANDÚ'"), ElementsAre(Row{"Ñandú"}));
    EXPECT_THAT(rowsOf(*connection, "SELECT n FROM #nombres WHERE n LIKE '%nandu%'"), ElementsAre(Row{"Nandu"}));
}

TEST_F(SqlServerTypes, expressions_have_the_kinds_that_the_lists_expect)
{
    const auto rows = connection->execute("SELECT COUNT(*) AS cuenta, datediff(D, CAST('2026-01-01' AS DATE), "
                                          "CAST('2026-02-01' AS DATE)) AS dias, ISNULL(NULL, 'x') + ' ' + N'y' AS "
                                          "nombre, CURRENT_TIMESTAMP AS ahora");
    EXPECT_THAT(rows->names(), ElementsAre("cuenta", "dias", "nombre", "ahora"));
    EXPECT_EQ(rows->value(0).kind(), Kind::whole);
    EXPECT_EQ(rows->value(1).raw(), "31");
    EXPECT_EQ(rows->value(2).raw(), "x y");
    EXPECT_EQ(rows->value(3).kind(), Kind::dateTime);
}

} // namespace
} // namespace dn::tests
