// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What libmariadb alone can promise: rows come in as the loop goes on, with the ones ahead of a failure, and no
// file of the operator goes out.
#include "data/error.h"
#include "tests/data/contract/server_backend.h"

#include <gtest/gtest.h>

namespace dn::tests::contract {
namespace {

TEST(MariadbStreaming, TheRowsAheadOfAFailureAreGiven)
{
    const auto connection = connectTo(onSocket(sharedServer()));
    const auto recordset = connection->execute(
        "SELECT a.seq, (SELECT b.seq FROM seq_1_to_2 AS b WHERE a.seq > 3000) FROM seq_1_to_5000 AS a");
    int read = 0;
    EXPECT_THROW(
        for (; !recordset->Eof(); recordset->MoveNext()) {
            ++read;
            ASSERT_EQ(recordset->value(0).toInt32(), read);
        },
        data::Error);
    EXPECT_EQ(read, 3000);
    EXPECT_TRUE(recordset->Eof());
}

// The failure comes in while another statement makes the recordset take its rows in; it is told in its place.
TEST(MariadbStreaming, AFailureThatAnotherStatementBringsInIsToldInItsPlace)
{
    const auto connection = connectTo(onSocket(sharedServer()));
    const auto recordset = connection->execute(
        "SELECT a.seq, (SELECT b.seq FROM seq_1_to_2 AS b WHERE a.seq > 3000) FROM seq_1_to_5000 AS a");
    EXPECT_EQ(connection->execute("SELECT 'x'")->value(0).raw(), "x");
    for (int i = 1; i < 3000; ++i)
        recordset->MoveNext();
    EXPECT_EQ(recordset->value(0).toInt32(), 3000);
    EXPECT_THROW(recordset->MoveNext(), data::Error);
    EXPECT_TRUE(recordset->Eof());
}

TEST(MariadbStreaming, AFailureAmongTheFirstRowsIsOneOfTheStatement)
{
    const auto connection = connectTo(onSocket(sharedServer()));
    EXPECT_THROW(connection->execute(
                     "SELECT a.seq, (SELECT b.seq FROM seq_1_to_2 AS b WHERE a.seq > 3) FROM seq_1_to_5000 AS a"),
                 data::Error);
    EXPECT_TRUE(connection->execute("SELECT 1"));
}

// Rows that are left on the wire are not in the memory of the client.
TEST(MariadbStreaming, ALongResultStaysWithTheServerUntilItIsRead)
{
    const auto connection = connectTo(onSocket(sharedServer()));
    const auto watcher = connectTo(onSocket(sharedServer()));
    const std::string id = connection->execute("SELECT CONNECTION_ID()")->value(0).toText();
    const std::string state = "SELECT COMMAND FROM information_schema.PROCESSLIST WHERE ID = " + id;
    const auto recordset = connection->execute("SELECT seq, REPEAT('x', 1000) FROM seq_1_to_100000");
    EXPECT_EQ(watcher->execute(state)->value(0).raw(), "Query");
    while (!recordset->Eof())
        recordset->MoveNext();
    EXPECT_TRUE(connection->execute("SELECT 1"));
}

// A server could ask for any file of the operator's machine.
TEST(MariadbFiles, GetsNoFilesOfTheOperators)
{
    const auto connection = connectTo(onSocket(sharedServer()));
    connection->execute("CREATE TEMPORARY TABLE lineas (linea TEXT)");
    EXPECT_THROW(connection->execute("LOAD DATA LOCAL INFILE '/etc/hostname' INTO TABLE lineas"), data::Error);
    EXPECT_EQ(connection->execute("SELECT COUNT(*) FROM lineas")->value(0).toInt32(), 0);
}

} // namespace
} // namespace dn::tests::contract
