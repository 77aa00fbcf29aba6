// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Two nodes of a cluster that change one row at a time, and a node that dies while many write on it.

#include "data/activity_log.h"
#include "data/error.h"
#include "host/database/patience.h"
#include "tests/faults/at_work.h"
#include "tests/faults/galera/cluster.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <set>
#include <thread>

namespace dn::tests {
namespace {

using namespace std::chrono_literals;

constexpr int deadlock = 1213;

/// The owner's connection to a node, which reads and writes behind whatever came from the others.
std::unique_ptr<data::Connection> behindTheOthers(std::size_t node, const std::string& database)
{
    auto connection = Cluster::ownerAt(node, database);
    connection->execute("SET wsrep_sync_wait = 7");
    return connection;
}

std::string colourAt(std::size_t node)
{
    return behindTheOthers(node, "ventas")
        ->execute("SELECT uf_color FROM ut_icontact WHERE Sys_PK = 1")
        ->value(0)
        .toText();
}

/// Somebody at another node who changes Luz's colour all the time.
class Painter {
public:
    explicit Painter(std::size_t node) : connection_(behindTheOthers(node, "ventas"))
    {
        thread_ = std::thread([this] {
            for (int colour = 0; !over_; colour = (colour + 1) % 5)
                paint(colour);
        });
    }
    ~Painter()
    {
        over_ = true;
        thread_.join();
    }
    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;

    /// The errors that he met with.
    std::set<int> codes()
    {
        const std::scoped_lock lock(mutex_);
        return codes_;
    }

private:
    void paint(int colour)
    {
        try {
            connection_->execute("UPDATE ut_icontact SET uf_color = " + std::to_string(colour) +
                                 " WHERE Sys_PK = 1");
        } catch (const data::Error& error) {
            const std::scoped_lock lock(mutex_);
            codes_.insert(error.nativeCode());
        }
    }

    std::unique_ptr<data::Connection> connection_;
    std::atomic<bool> over_ = false;
    std::mutex mutex_;
    std::set<int> codes_;
    std::thread thread_;
};

// A node tries a statement once more by itself (wsrep_retry_autocommit), which hides most of the conflicts.
TEST(ConflictsOnACluster, come_as_a_deadlock_that_the_operator_reads_and_are_over_then)
{
    Cluster::makeVentas();
    for (const std::size_t node : {0U, 1U, 2U})
        Cluster::ownerAt(node, "mysql")->execute("SET GLOBAL wsrep_retry_autocommit = 0");
    AtWork work(behindTheOthers(0, "ventas"));
    work.begins(7, false);
    work.opensTab(desk::prospectos);
    work.clicksRow(work.elements().prospects.lvw, "K1");
    work.cnn->sent.clear();
    std::set<int> codes;
    {
        Painter other(1);
        int presses = 0;
        EXPECT_TRUE(host::waitUntil(60s, [&] {
            work.presses(++presses % 2 == 0 ? "bColor(1)" : "bColor(3)");
            for (const Sent& sent : work.cnn->sent)
                if (!sent.acknowledged) codes.insert(sent.code);
            return !codes.empty();
        }));
        for (const int code : other.codes())
            EXPECT_EQ(code, deadlock) << "he is refused in the same way";
    }
    EXPECT_THAT(codes, testing::ElementsAre(deadlock));
    EXPECT_THAT(work.dialogs.boxes, testing::Each(testing::HasSubstr("Deadlock")));
    EXPECT_FALSE(work.dialogs.boxes.empty());
    EXPECT_EQ(work.whatIsWrong(false), "");
    EXPECT_EQ(work.cnn->State(), data::Connection::open) << "it is no reason to connect anew";

    work.dialogs.boxes.clear();
    work.presses("bColor(2)");
    EXPECT_THAT(work.dialogs.boxes, testing::IsEmpty());
    const std::string colour = colourAt(0);
    EXPECT_NE(colour, "0");
    EXPECT_EQ(colourAt(1), colour);
    EXPECT_EQ(colourAt(2), colour);
}

/// Writes notes at a node, one after the other, for as long as it answers.
class Writer {
public:
    Writer(char name, std::atomic<int>& acknowledged) : connection_(Cluster::ownerAt(0, "ventas"))
    {
        thread_ = std::thread([this, name, &acknowledged] {
            try {
                for (int number = 0;; ++number) {
                    const std::string note = std::string(1, name) + std::to_string(number);
                    connection_->execute(data::bitacora::prospectRow(note, "ana", "1"));
                    notes_.push_back(note);
                    ++acknowledged;
                }
            } catch (const data::Error&) {
                return; // the node is gone
            }
        });
    }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
    ~Writer()
    {
        if (thread_.joinable()) thread_.join();
    }

    /// Those that were acknowledged, once the node is gone.
    const std::vector<std::string>& notes()
    {
        thread_.join();
        return notes_;
    }

private:
    std::unique_ptr<data::Connection> connection_;
    std::vector<std::string> notes_;
    std::thread thread_;
};

TEST(WritesOnACluster, lose_nothing_acknowledged_when_their_node_dies_under_them)
{
    Cluster::makeVentas();
    std::atomic<int> acknowledged = 0;
    std::vector<std::unique_ptr<Writer>> writers;
    for (const char name : {'a', 'b', 'c', 'd'})
        writers.push_back(std::make_unique<Writer>(name, acknowledged));
    EXPECT_TRUE(host::waitUntil(60s, [&] { return acknowledged >= 400; }));
    Cluster::kill(0);
    std::vector<std::string> all;
    for (const auto& writer : writers)
        for (const std::string& note : writer->notes())
            all.push_back(note);
    EXPECT_GE(all.size(), 400U);
    for (const std::size_t survivor : {1U, 2U}) {
        std::vector<std::string> stored;
        const auto connection = behindTheOthers(survivor, "ventas"); // the rows come as they are read
        const auto rows = connection->execute("SELECT uf_Mensaje FROM xt_biticontact");
        for (; !rows->Eof(); rows->MoveNext())
            stored.push_back(rows->value(0).toText());
        EXPECT_THAT(stored, testing::IsSupersetOf(all)) << survivor;
        EXPECT_LE(stored.size(), all.size() + writers.size()) << "no more than one of each was on its way";
    }
}

} // namespace
} // namespace dn::tests
