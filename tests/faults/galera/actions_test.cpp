// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Each action of a working day on a cluster of three nodes. In the middle of a call's end, between two of its
// statements, the node that serves is killed; what the other nodes hold then and after each action is what was
// acknowledged, to the row. The operator does again what was broken off, and goes on.

#include "host/database/patience.h"
#include "host/reconnection.h"
#include "tests/faults/actions.h"
#include "tests/faults/books.h"
#include "tests/faults/galera/cluster.h"

#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::tests {
namespace {

using namespace std::chrono_literals;

constexpr const char* account = "vendedor";
constexpr const char* password = "clave-de-vendedor";

/// The owner's connection, which reads and writes behind whatever came from other nodes.
std::unique_ptr<data::Connection> lookingOn(std::size_t node, const std::string& database)
{
    auto connection = Cluster::ownerAt(node, database.empty() ? "mysql" : database);
    connection->execute("SET wsrep_sync_wait = 7");
    return connection;
}

class ActionsOnACluster : public testing::Test {
protected:
    static constexpr std::size_t witness = 2; // the node that outlives all
    static constexpr const char* brokenOff = "a call: contact and appointment";
    static constexpr std::size_t broughtToEnd = 2; // of its changes

    ActionsOnACluster()
    {
        books.beside().execute(std::string("CREATE USER ") + account + " IDENTIFIED BY '" + password + "'");
        books.beside().execute(std::string("GRANT ALL ON trabajo.* TO ") + account);
        EXPECT_TRUE(host::waitUntil(10s, [&] { // the account has come to the first node
            try {
                database.emplace(
                    host::openDatabase(Cluster::servers(std::string(account) + ":" + password, "trabajo")));
                return true;
            } catch (const std::exception&) {
                return false;
            }
        }));
    }

    /// @return whether the node was killed on the way.
    bool performs(const Action& action)
    {
        books.copySample("trabajo");
        stopTheClock();
        AtWork work(std::make_unique<Lent>(database->connection()));
        action.prepare(work);
        std::vector<std::string> acknowledged;
        const bool alive = !killed;
        work.cnn->around = [&](std::size_t number, const std::string& statement, bool behind) {
            if (!behind || !changes(statement) || !work.cnn->sent[number].acknowledged) return;
            acknowledged.push_back(statement);
            if (killed || action.name != brokenOff || acknowledged.size() < broughtToEnd) return;
            Cluster::kill(0);
            killed = true;
        };
        action.act(work);
        EXPECT_EQ(work.whatIsWrong(action.hourglassMayStay), "");
        const bool dies = alive && killed;
        for (const std::size_t node : {std::size_t{1}, witness})
            EXPECT_EQ(books.contents("trabajo", *lookingOn(node, "trabajo")), books.contentsAfter(acknowledged))
                << node;
        changed += acknowledged.size();
        if (dies) {
            EXPECT_EQ(acknowledged.size(), broughtToEnd);
        }
        return dies;
    }

    /// The program finds another node by itself.
    void findsAnother()
    {
        host::Reconnection reconnection(*database);
        bool isBack = false;
        const screen::Subscription watch = reconnection.back.connect([&] { isBack = true; });
        ASSERT_TRUE(QTest::qWaitFor([&] { return isBack; }, 60'000));
        EXPECT_THAT(database->description(), testing::HasSubstr("(servidor 2 de 3)"));
    }

    void stopTheClock()
    {
        database->connection().execute(std::string("SET timestamp = UNIX_TIMESTAMP('") + Books::moment + "')");
    }

    Books books{[](const std::string& name) { return lookingOn(witness, name); }};
    std::optional<host::Database> database;
    bool killed = false;
    std::size_t changed = 0;
};

TEST_F(ActionsOnACluster, leave_what_was_acknowledged_though_the_node_died_between_two_statements)
{
    for (const Action& action : allActions()) {
        SCOPED_TRACE(action.name);
        if (!performs(action)) continue;
        findsAnother();
        EXPECT_FALSE(performs(action)) << "again";
    }
    EXPECT_TRUE(killed);
    EXPECT_GE(changed, 40U) << "of the statements";
}

} // namespace
} // namespace dn::tests
