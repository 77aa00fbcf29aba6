// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Statements with parameters: what they become for each engine, and what a real server makes of hostile texts.

#include "base/runtime_error.h"
#include "host/database/own_connection.h"
#include "host/database/statement.h"
#include "tests/host/database/fixtures.h"

#include <gmock/gmock.h>

#include <array>
#include <type_traits>

namespace dn::host::tests {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

// A text that is put together when the program runs is no statement.
static_assert(!std::is_constructible_v<SqlText, std::string>);
static_assert(!std::is_constructible_v<SqlText, const char*>);
static_assert(!std::is_constructible_v<Statement, std::string>);

const std::array hostile{
    "O'Higgins"s,
    "''"s,
    "\\"s,
    "\\'"s,
    "'; DROP TABLE t; -- "s,
    "a\0b'c"s,
    "\x1a\r\n\t"s,
    "👍 ñ € 你好"s,
    "% _ [a] ? ?"s,
    "\" ` # /* */"s,
    "\xbf\x27 OR 1=1"s,
    "tail\\"s,
    ""s,
    std::string(70'000, '\''),
    "N'x' + NCHAR(0)"s,
};

std::string inserted(Engine engine, const std::string& text)
{
    return Statement("INSERT INTO t VALUES (?)").bind(text).text(engine);
}

TEST(StatementText, writes_a_moment_in_the_form_that_every_engine_reads_alike)
{
    for (const Engine engine : {Engine::mariadb, Engine::sqlServer})
        EXPECT_EQ(Statement("UPDATE t SET a = ?, b = ?")
                      .bind(DateTime{2026, 2, 3, 4, 5, 6})
                      .bind(std::optional<DateTime>())
                      .text(engine),
                  "UPDATE t SET a = '2026-02-03T04:05:06', b = NULL");
}

TEST(StatementText, takes_the_values_in_their_order)
{
    EXPECT_EQ(Statement("UPDATE t SET a = ?, b = ?, c = ?, d = ? WHERE k = ?")
                  .bind("x?")
                  .bind(-5)
                  .null()
                  .bind(Decimal("-1234.50"))
                  .bind(std::optional<std::string>())
                  .text(Engine::mariadb),
              "UPDATE t SET a = 'x?', b = -5, c = NULL, d = -1234.50 WHERE k = NULL");
}

TEST(StatementText, refuses_to_be_sent_with_too_few_or_too_many_values)
{
    EXPECT_THROW(Statement("SELECT ?, ?").bind(1).text(Engine::mariadb), std::logic_error);
    EXPECT_THROW(Statement("SELECT ?").bind(1).bind(2).text(Engine::mariadb), std::logic_error);
}

TEST(StatementText, quotes_for_each_engine)
{
    EXPECT_EQ(inserted(Engine::mariadb, "O'Higgins ñ"), "INSERT INTO t VALUES ('O''Higgins ñ')");
    EXPECT_EQ(inserted(Engine::mariadb, "a\\b"), "INSERT INTO t VALUES (_utf8mb4 X'615C62')");
    EXPECT_EQ(inserted(Engine::mariadb, "\0"s), "INSERT INTO t VALUES (_utf8mb4 X'00')");
    EXPECT_EQ(inserted(Engine::sqlServer, "O'Higgins \\"), "INSERT INTO t VALUES (N'O''Higgins \\')");
    EXPECT_EQ(inserted(Engine::sqlServer, "a\0'b"s), "INSERT INTO t VALUES (N'a' + NCHAR(0) + N'''b')");
}

TEST(StatementText, limits_the_rows_in_the_engines_words)
{
    EXPECT_EQ(Statement("SELECT a FROM t ORDER BY a").limit(5).text(Engine::mariadb),
              "SELECT a FROM t ORDER BY a LIMIT 5");
    EXPECT_EQ(Statement("SELECT a FROM t ORDER BY a").limit(5).text(Engine::sqlServer),
              "SELECT a FROM t ORDER BY a OFFSET 0 ROWS FETCH NEXT 5 ROWS ONLY");
}

TEST(StatementText, a_decimal_is_digits_and_nothing_else)
{
    EXPECT_EQ(Decimal("0.5").text(), "0.5");
    for (const char* text : {"", "-", ".5", "5.", "1,000", "1e5", "1 OR 1=1", "0x10", "--5", " 1"})
        EXPECT_THROW(Decimal{text}, RuntimeError) << text;
}

class Statements : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        server_ = freshDatabase(SharedServer::get(), "parametros");
        server_->execute("CREATE TABLE t (k INT AUTO_INCREMENT PRIMARY KEY, a MEDIUMBLOB, b MEDIUMTEXT)");
    }
    static void TearDownTestSuite() { server_.reset(); }
    void SetUp() override { server_->execute("TRUNCATE TABLE t"); }

    static OwnConnection in(const std::string& sqlMode)
    {
        return OwnConnection([sqlMode] {
            auto connection = connect(SharedServer::get().target("parametros"));
            connection->execute("SET SESSION sql_mode = CONCAT(@@sql_mode, '" + sqlMode + "')");
            return connection;
        });
    }

    inline static std::unique_ptr<data::Connection> server_;
};

TEST_F(Statements, hostile_texts_come_back_to_the_byte_whatever_the_session_reads_into_a_backslash)
{
    for (const char* mode : {"", ",NO_BACKSLASH_ESCAPES", ",ANSI_QUOTES", ",NO_BACKSLASH_ESCAPES,ANSI_QUOTES"}) {
        OwnConnection database = in(mode);
        for (const std::string& text : hostile) {
            const std::int32_t key = database.insert(Statement("INSERT INTO t (a) VALUES (?)").bind(text));
            const auto row =
                database.run(Statement("SELECT a, ? FROM t WHERE k = ? AND a = ?").bind(1).bind(key).bind(text));
            ASSERT_FALSE(row->Eof()) << mode << ' ' << text.substr(0, 30);
            EXPECT_EQ(row->value(0).raw(), text) << mode;
        }
    }
}

TEST_F(Statements, texts_go_into_columns_of_text_alike)
{
    OwnConnection database = in("");
    for (const std::string& text : {"a\\b 👍"s, "plain ñ"s, "a\0b"s}) {
        const std::int32_t key = database.insert(Statement("INSERT INTO t (b) VALUES (?)").bind(text));
        EXPECT_EQ(database.run(Statement("SELECT b FROM t WHERE k = ?").bind(key))->value(0).raw(), text);
    }
}

TEST_F(Statements, a_transaction_stores_everything_or_nothing)
{
    OwnConnection database = in("");
    {
        Transaction transaction(database);
        database.insert(Statement("INSERT INTO t (b) VALUES (?)").bind("taken back"));
    }
    EXPECT_EQ(valueOf(*server_, "SELECT COUNT(*) FROM t"), "0");
    {
        Transaction transaction(database);
        database.insert(Statement("INSERT INTO t (b) VALUES (?)").bind("kept"));
        transaction.commit();
    }
    EXPECT_EQ(valueOf(*server_, "SELECT b FROM t"), "kept");
}

TEST_F(Statements, a_connection_lost_in_a_transaction_stores_nothing_and_comes_back_afterwards)
{
    OwnConnection database = in("");
    {
        Transaction transaction(database);
        database.insert(Statement("INSERT INTO t (b) VALUES (?)").bind("lost"));
        const std::string id(database.run(Statement("SELECT CONNECTION_ID()"))->value(0).raw());
        server_->execute("KILL " + id);
        for (int i = 0; i < 2; ++i)
            EXPECT_THROW(database.run(Statement("INSERT INTO t (b) VALUES (?)").bind("second")), data::Error);
    }
    EXPECT_EQ(valueOf(*server_, "SELECT COUNT(*) FROM t"), "0");
    EXPECT_NO_THROW(database.run(Statement("SELECT COUNT(*) FROM t")));
}

} // namespace
} // namespace dn::host::tests
