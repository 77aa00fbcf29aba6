// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The working day of the stories on a cluster of three nodes, of which the one that serves is killed in the middle
// of a call. The program's own reconnection finds the next node and takes the operator back, and the day ends with
// the statements and the rows that it has on a single server.

#include "host/database/patience.h"
#include "host/reconnection.h"
#include "host/work_place.h"
#include "tests/faults/galera/cluster.h"
#include "tests/stories/on_maria_db.h"
#include "tests/stories/working_day.h"

#include <QTest>

#include <optional>

namespace dn::tests {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;

// The control works with the account of the documents, on the first node that serves; the story looks on, and lays
// out its rows, at the last one.
class OnCluster final : public OnMariaDb {
public:
    std::unique_ptr<data::Connection> connect(const std::string& application) override
    {
        if (application == "control") return std::make_unique<Lent>(database().connection());
        return at(Cluster::size - 1);
    }
    void createSchema() override
    {
        OnMariaDb::createSchema();
        const auto reached = [this] {
            try {
                database();
                return database_->warnings().empty(); // the tables have come to this node
            } catch (const std::exception&) {
                return false; // the account has not
            }
        };
        EXPECT_TRUE(host::waitUntil(10s, reached));
    }
    host::Database& database()
    {
        if (!database_ || !database_->warnings().empty())
            database_.emplace(
                host::openDatabase(Cluster::servers("fuerza:secreta", std::string(MariaServer::database))));
        return *database_;
    }
    /// A connection of the owner's that reads and writes behind whatever came from other nodes.
    static std::unique_ptr<data::Connection> at(std::size_t number)
    {
        auto connection = Cluster::ownerAt(number, std::string(MariaServer::database));
        connection->execute("SET wsrep_sync_wait = 7");
        return connection;
    }

private:
    std::optional<host::Database> database_;
};

OnCluster& cluster()
{
    static OnCluster one;
    return one;
}

class TheDayOnACluster : public WorkingDay {
protected:
    TheDayOnACluster() : reconnection(cluster().database())
    {
        watches.push_back(reconnection.back.connect([this] { isBack = true; }));
        watches.push_back(
            control.callStarted().connect([this](const std::string&, std::int32_t, const std::string&) {
                if (hour == "10:00:00") losesTheNode();
            }));
    }

    /// The panel of the call stands; nothing of it is written yet.
    void losesTheNode()
    {
        Cluster::kill(0);
        ASSERT_TRUE(QTest::qWaitFor([&] { return isBack; }, 60'000));
        EXPECT_THAT(cluster().database().description(), HasSubstr("(servidor 2 de 3)"));
        itIsAt(hour); // for the new connection
    }

    /// As the program's window does when the call is over.
    void startsAnew()
    {
        const host::WorkPlace place = host::placeOf(control);
        control.hostObjects(&host);
        control.SetObjects(cnn.get(), ana, false, "ana");
        control.InitUICRM("pantallas", lands);
        control.RefreshData();
        EXPECT_TRUE(host::returnTo(control, place));
    }

    std::string hour;
    bool isBack = false;
    host::Reconnection reconnection;
    screen::Subscriptions watches;
};

TEST_F(TheDayOnACluster, ends_as_on_one_server_though_the_node_died_during_a_call)
{
    for (const auto& [at, work] : pieces()) {
        hour = at;
        itIsAt(hour);
        work();
        if (hour == "10:00:00") startsAnew();
    }
    EXPECT_TRUE(isBack);
    EXPECT_THAT(seesQueue(), IsEmpty());
    EXPECT_THAT(changesSent(), ElementsAreArray(changesToBeSent()));
    for (const std::size_t survivor : {1U, 2U}) {
        SCOPED_TRACE(survivor);
        beside = OnCluster::at(survivor);
        leftItsRows();
    }
}

} // namespace

StoryServer& storyServer() { return cluster(); }

} // namespace dn::tests
