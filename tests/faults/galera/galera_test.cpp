// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Notes on a cluster of three nodes, of which one is killed while they are written and a second one behind it.

#include "host/database/host_error.h"
#include "host/database/patience.h"
#include "tests/faults/at_work.h"
#include "tests/faults/galera/cluster.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::tests {
namespace {

using namespace std::chrono_literals;

std::vector<std::string> notesOn(std::size_t node)
{
    std::vector<std::string> notes;
    const auto connection = Cluster::ownerAt(node, "ventas");
    const auto rows = connection->execute("SELECT uf_Mensaje FROM xt_biticontact ORDER BY uf_Mensaje");
    for (; rows && !rows->Eof(); rows->MoveNext())
        notes.push_back(rows->value(0).toText());
    return notes;
}

TEST(Galera, loses_nothing_acknowledged_when_a_node_dies_and_passes_over_one_that_was_left)
{
    Cluster::makeVentas();
    host::Database database = host::openDatabase(Cluster::servers(Cluster::owner, "ventas"));

    AtWork work(std::make_unique<Lent>(database.connection()));
    const auto begins = [&] {
        work.begins(7, false);
        work.opensTab(desk::prospectos);
        work.clicksRow(work.elements().prospects.lvw, "K1");
    };
    begins();
    std::vector<std::string> acknowledged;
    work.cnn->around = [&](std::size_t number, const std::string& statement, bool behind) {
        const std::size_t text = statement.find("CURRENT_TIMESTAMP, '");
        if (!behind || !work.cnn->sent[number].acknowledged || !statement.starts_with("INSERT INTO xt_")) return;
        const std::size_t from = text + 20;
        acknowledged.push_back(statement.substr(from, statement.find('\'', from) - from));
    };
    int lost = 0;
    const auto writes = [&](const std::string& note) {
        for (int attempt = 0; attempt < 20; ++attempt) {
            work.elements().detail.txtText.Text("");
            work.types("txtText", (note + "\n").c_str());
            if (!acknowledged.empty() && acknowledged.back() == note) return;
            if (database.connection().State() == data::Connection::open) continue; // refused: once more
            ++lost;
            ASSERT_TRUE(host::waitUntil(60s, [&] {
                try {
                    database.connection().renew(database.openConnection());
                    return true;
                } catch (const host::HostError&) {
                    return false;
                }
            }));
            begins();
        }
        FAIL() << note << " was never stored";
    };
    for (int i = 100; i < 120; ++i)
        writes("nota " + std::to_string(i));
    EXPECT_EQ(lost, 0);
    Cluster::kill(0);
    for (int i = 120; i < 140; ++i)
        writes("nota " + std::to_string(i));
    EXPECT_GE(lost, 1);
    EXPECT_THAT(database.description(), testing::HasSubstr("(servidor 2 de 3)"));
    ASSERT_EQ(acknowledged.size(), 40U);
    for (const std::size_t survivor : {1U, 2U})
        EXPECT_THAT(notesOn(survivor), testing::IsSupersetOf(acknowledged)) << survivor;

    // One that is left alone takes connections, and may not serve.
    Cluster::kill(1);
    std::string said;
    EXPECT_TRUE(host::waitUntil(60s, [&] {
        try {
            database.openConnection();
        } catch (const host::HostError& failure) {
            said = failure.what();
        }
        return said.find("fuera de la parte principal") != std::string::npos;
    })) << said;
}

} // namespace
} // namespace dn::tests
