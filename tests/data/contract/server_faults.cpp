// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What becomes of a connection whose server is killed, freezes or was never there: an error within seconds, and a
// State that tells it. The fake has no part in this: it has no server to lose.
#include "data/error.h"
#include "tests/data/contract/server_backend.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace dn::tests::contract {
namespace {

using namespace std::chrono_literals;
using ::testing::AnyOf;
using ::testing::Not;
using ::testing::StartsWith;
using Clock = std::chrono::steady_clock;

// Bare words of a server or a client library, without a driver's prefix.
void expectBareText(const data::Error& error)
{
    EXPECT_STRNE(error.what(), "");
    EXPECT_THAT(error.what(), Not(StartsWith("[")));
    EXPECT_EQ(error.sqlState().size(), 5U);
}

// The error of an action that must fail, and soon.
data::Error failureWithin(std::chrono::seconds limit, const std::function<void()>& action)
{
    const auto start = Clock::now();
    try {
        action();
        ADD_FAILURE() << "no error";
    } catch (const data::Error& error) {
        EXPECT_LT(Clock::now() - start, limit);
        expectBareText(error);
        return error;
    }
    return {"", 0, ""};
}

void expectClosed(data::Connection& connection)
{
    EXPECT_EQ(connection.State(), data::Connection::closed);
    failureWithin(1s, [&] { connection.execute("SELECT 1"); });
    EXPECT_EQ(connection.State(), data::Connection::closed);
}

TEST(ServerFaults, AKilledServerIsAnErrorOfTheNextStatement)
{
    MariaServer server;
    const auto connection = connectTo(onSocket(server));
    EXPECT_EQ(connection->State(), data::Connection::open);
    EXPECT_TRUE(connection->execute("SELECT 1"));
    server.kill();
    failureWithin(5s, [&] { connection->execute("SELECT 1"); });
    expectClosed(*connection);
}

// Nothing connects again by itself: a temporary table or a variable would be lost without a word.
TEST(ServerFaults, ALostConnectionStaysClosedWhenTheServerIsBack)
{
    MariaServer server;
    const auto connection = connectTo(onSocket(server));
    server.restart();
    failureWithin(5s, [&] { connection->execute("SELECT 1"); });
    expectClosed(*connection);
    EXPECT_TRUE(connectTo(onSocket(server))->execute("SELECT 1"));
}

TEST(ServerFaults, AKilledServerEndsTheLoopOverItsRows)
{
    MariaServer server;
    const auto connection = connectTo(onSocket(server));
    const auto recordset = connection->execute("SELECT seq, REPEAT('x', 200) FROM seq_1_to_200000");
    server.kill();
    std::size_t read = 0;
    try {
        for (; !recordset->Eof(); recordset->MoveNext())
            ++read;
        EXPECT_EQ(read, 200'000U); // the driver held them all
    } catch (const data::Error& error) {
        expectBareText(error);
        EXPECT_EQ(connection->State(), data::Connection::closed);
    }
    EXPECT_GE(read, 1U);
    EXPECT_TRUE(recordset->Eof());
    failureWithin(5s, [&] { connection->execute("SELECT 1"); });
    expectClosed(*connection);
}

TEST(ServerFaults, AConnectionThatAnAdministratorCutIsClosed)
{
    MariaServer& server = sharedServer();
    const auto connection = connectTo(onSocket(server));
    const std::string id = connection->execute("SELECT CONNECTION_ID()")->value(0).toText();
    connectTo(onSocket(server))->execute("KILL CONNECTION " + id);
    failureWithin(5s, [&] { connection->execute("SELECT 1"); });
    expectClosed(*connection);
}

TEST(ServerFaults, AStatementThatAnAdministratorCutLeavesTheConnection)
{
    const auto connection = connectTo(onSocket(sharedServer()));
    const data::Error error = failureWithin(5s, [&] { connection->execute("KILL QUERY CONNECTION_ID()"); });
    EXPECT_EQ(error.nativeCode(), 1317);
    EXPECT_EQ(connection->State(), data::Connection::open);
    EXPECT_TRUE(connection->execute("SELECT 1"));
}

TEST(ServerFaults, AFrozenServerIsGivenUpAfterTheReadTimeOut)
{
    MariaServer server;
    Target target = onSocket(server);
    target.readTimeOut = 1s;
    const auto connection = connectTo(target);
    EXPECT_TRUE(connection->execute("SELECT 1"));
    server.freeze();
    failureWithin(4s, [&] { connection->execute("SELECT 1"); });
    expectClosed(*connection);
}

TEST(ServerFaults, AFrozenServerDoesNotHoldUpTheEndOfARecordset)
{
    MariaServer server;
    Target target = onSocket(server);
    target.readTimeOut = 1s;
    auto connection = connectTo(target);
    auto recordset = connection->execute("SELECT seq, REPEAT('x', 200) FROM seq_1_to_200000");
    server.freeze();
    const auto start = Clock::now();
    recordset.reset();
    connection.reset();
    EXPECT_LT(Clock::now() - start, 4s);
}

TEST(ServerFaults, AFrozenServerIsGivenUpWhileConnecting)
{
    MariaServer server;
    server.freeze();
    Target target = onSocket(server);
    target.connectTimeOut = 1s;
    target.readTimeOut = 1s;
    failureWithin(4s, [&] { connectTo(target); });
}

TEST(ServerFaults, AClosedPortIsToldAtOnce)
{
    Target target;
    target.port = freePort();
    const data::Error error = failureWithin(5s, [&] { connectTo(target); });
    EXPECT_THAT(error.nativeCode(), AnyOf(2002, 2003));
}

TEST(ServerFaults, AMissingSocketIsToldAtOnce)
{
    Target target;
    target.socket = (sharedServer().folder() / "no-hay").string();
    EXPECT_EQ(failureWithin(5s, [&] { connectTo(target); }).nativeCode(), 2002);
}

TEST(ServerFaults, AWrongPasswordIsToldInTheServersWords)
{
    Target target = onSocket(sharedServer());
    target.password = "otra";
    const data::Error error = failureWithin(5s, [&] { connectTo(target); });
    EXPECT_EQ(error.nativeCode(), 1045);
    EXPECT_EQ(error.sqlState(), "28000");
    EXPECT_THAT(error.what(), StartsWith("Access denied for user 'prueba'"));
}

TEST(ServerFaults, AnUnknownDatabaseIsToldInTheServersWords)
{
    Target target = onSocket(sharedServer());
    target.database = "nohay";
    const data::Error error = failureWithin(5s, [&] { connectTo(target); });
    EXPECT_EQ(error.nativeCode(), 1049);
    EXPECT_STREQ(error.what(), "Unknown database 'nohay'");
}

TEST(Server, IsReachedByTcp)
{
    Target target;
    target.port = sharedServer().port();
    const auto connection = connectTo(target);
    EXPECT_EQ(connection->execute("SELECT @@port")->value(0).toInt32(), static_cast<int>(target.port));
}

// The statements of the control mix the letter case of one table's name.
TEST(Server, TakesTableNamesInAnyCase)
{
    const auto connection = connectTo(onSocket(sharedServer()));
    connection->execute("CREATE OR REPLACE TABLE UT_IContact (Sys_PK INT)");
    connection->execute("INSERT INTO ut_icontact VALUES (7)");
    EXPECT_EQ(connection->execute("SELECT sys_pk FROM Ut_iContact")->value(0).toInt32(), 7);
}

} // namespace
} // namespace dn::tests::contract
