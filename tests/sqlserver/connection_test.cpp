// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The connection itself: refused, lost, and what it must not let through.

#include "data/odbc/connection.h"
#include "tests/sqlserver/fixture.h"
#include "tests/support/sql_server_stand_in.h"

#include <chrono>

namespace dn::tests {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;

class SqlServerConnection : public OnStandIn {
protected:
    /// The refusal of a connection string.
    static std::string refusal(const std::string& connectionString)
    {
        try {
            const data::odbc::Connection connection(connectionString);
            return "(none)";
        } catch (const data::Error& error) {
            return error.what();
        }
    }
};

TEST_F(SqlServerConnection, a_wrong_password_is_told_in_the_servers_words)
{
    std::string text = sharedStandIn().connectionString();
    const std::string right(SqlServerStandIn::password);
    text.replace(text.find(right), right.size(), "otra");
    EXPECT_THAT(refusal(text), HasSubstr("Login failed for user 'prueba'"));
}

TEST_F(SqlServerConnection, an_unknown_database_is_told_in_the_servers_words)
{
    EXPECT_THAT(refusal(sharedStandIn().connectionString("nohay")), HasSubstr("Cannot open database \"nohay\""));
}

TEST_F(SqlServerConnection, a_killed_server_is_an_error_of_the_next_statement)
{
    SqlServerStandIn server;
    data::odbc::Connection connection(server.connectionString());
    EXPECT_TRUE(connection.execute("SELECT 1"));
    server.kill();
    EXPECT_THROW(connection.execute("SELECT 1"), data::Error);
    EXPECT_EQ(connection.State(), data::Connection::closed);
}

TEST_F(SqlServerConnection, a_frozen_server_is_given_up_after_the_time_out)
{
    SqlServerStandIn server;
    data::odbc::Connection connection(server.connectionString(), {5s, 1s});
    EXPECT_TRUE(connection.execute("SELECT 1"));
    server.freeze();
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THROW(connection.execute("SELECT 1"), data::Error);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);
}

// The server itself would run both.
TEST_F(SqlServerConnection, a_second_statement_in_a_text_is_refused_and_neither_runs)
{
    const auto connection = connect();
    connection->execute("CREATE TABLE #apiladas (id INT)");
    for (const char* text : {"INSERT INTO #apiladas VALUES (1); INSERT INTO #apiladas VALUES (2)",
                             "INSERT INTO #apiladas VALUES (1) INSERT INTO #apiladas VALUES (2)"}) {
        try {
            connection->execute(text);
            ADD_FAILURE() << "no error";
        } catch (const data::Error& error) {
            EXPECT_STREQ(error.what(), "El texto contiene más de una instrucción SQL");
        }
    }
    EXPECT_THAT(rowsOf(*connection, "SELECT COUNT(*) FROM #apiladas"), ElementsAre(Row{"0"}));
}

TEST_F(SqlServerConnection, an_update_of_no_row_is_no_failure)
{
    const auto connection = connect();
    connection->execute("CREATE TABLE #nadie (id INT)");
    EXPECT_FALSE(connection->execute("UPDATE #nadie SET id = 2 WHERE id = 1"));
    EXPECT_FALSE(connection->execute("DELETE FROM #nadie"));
}

TEST_F(SqlServerConnection, a_failed_statement_leaves_it_usable)
{
    const auto connection = connect();
    EXPECT_EQ(refusalOf(*connection, "SELECT * FROM NoHayTal"), 208);
    EXPECT_THAT(rowsOf(*connection, "SELECT 'sigue'"), ElementsAre(Row{"sigue"}));
}

} // namespace
} // namespace dn::tests
