// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The fake connection keeps its own promises: what it writes down, and what it answers.
#include "tests/support/fake_connection.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace dn::tests {
namespace {

using ::testing::ElementsAre;

TEST(FakeConnection, WritesDownEveryStatement)
{
    FakeConnection cnn;
    cnn.onContaining("mala").fails("no");
    EXPECT_FALSE(cnn.execute("UPDATE a"));
    EXPECT_THROW(cnn.execute("mala"), data::Error);
    EXPECT_THAT(cnn.statements(), ElementsAre("UPDATE a", "mala"));
    cnn.forgetStatements();
    cnn.execute("UPDATE b");
    EXPECT_THAT(cnn.statements(), ElementsAre("UPDATE b"));
}

TEST(FakeConnection, GivesFreshRowsForEachStatement)
{
    FakeConnection cnn;
    cnn.on("SELECT a").gives({"a", "b"}, {{whole(5), text("x")}, {null, boolean(true)}});
    for (int i = 0; i < 2; ++i) {
        const auto recordset = cnn.execute("SELECT a");
        ASSERT_TRUE(recordset);
        EXPECT_EQ(recordset->Fields()("A").Value().toInt32(), 5);
        recordset->MoveNext();
        EXPECT_TRUE(recordset->value(0).isNull());
        EXPECT_TRUE(recordset->value(1).toBoolean());
        recordset->MoveNext();
        EXPECT_TRUE(recordset->Eof());
    }
}

TEST(FakeConnection, HasACellForEachKind)
{
    FakeConnection cnn;
    cnn.on("q").gives({"w", "n", "t", "d", "b"},
                      {{whole(-3), number("1.50"), text("ñ"), date("2026-01-02 03:04:05"), boolean(false)}});
    const auto recordset = cnn.execute("q");
    EXPECT_EQ(recordset->value(0).toText(), "-3");
    EXPECT_EQ(recordset->value(1).toText(), "1.50");
    EXPECT_EQ(recordset->value(2).toText(), "ñ");
    EXPECT_EQ(recordset->value(3).toText(), "02/01/2026 03:04:05");
    EXPECT_EQ(recordset->value(4).toText(), "Falso");
}

TEST(FakeConnection, TheAnswerThatWasToldLastWins)
{
    FakeConnection cnn;
    cnn.onContaining("SELECT").gives({"a"}, {{whole(1)}});
    cnn.on("SELECT x").gives({"a"}, {{whole(2)}});
    EXPECT_EQ(cnn.execute("SELECT y")->value(0).toInt32(), 1);
    EXPECT_EQ(cnn.execute("SELECT x")->value(0).toInt32(), 2);
    cnn.onContaining("x").givesNothing();
    EXPECT_FALSE(cnn.execute("SELECT x"));
}

TEST(FakeConnection, AnExactTextFitsToTheByte)
{
    FakeConnection cnn;
    cnn.on("SELECT a").fails("no");
    EXPECT_NO_THROW(cnn.execute("SELECT a "));
    EXPECT_NO_THROW(cnn.execute("select a"));
    EXPECT_THROW(cnn.execute("SELECT a"), data::Error);
}

TEST(FakeConnection, AnAnswerMayServeOnce)
{
    FakeConnection cnn;
    cnn.on("q").gives({"a"}, {{whole(1)}});
    cnn.on("q").fails("una vez", "40001", 1213).once();
    try {
        cnn.execute("q");
        FAIL();
    } catch (const data::Error& error) {
        EXPECT_STREQ(error.what(), "una vez");
        EXPECT_EQ(error.sqlState(), "40001");
        EXPECT_EQ(error.nativeCode(), 1213);
    }
    EXPECT_TRUE(cnn.execute("q"));
}

TEST(FakeConnection, FailsAtACountFromNow)
{
    FakeConnection cnn;
    cnn.execute("a");
    cnn.failAt(2, "segunda");
    cnn.failAt(3);
    EXPECT_NO_THROW(cnn.execute("b"));
    EXPECT_THROW(cnn.execute("c"), data::Error);
    EXPECT_THROW(cnn.execute("d"), data::Error);
    EXPECT_NO_THROW(cnn.execute("e"));
}

TEST(FakeConnection, AClosedOneFailsEveryStatement)
{
    FakeConnection cnn;
    EXPECT_EQ(cnn.State(), data::Connection::open);
    cnn.setState(data::Connection::closed);
    EXPECT_EQ(cnn.State(), data::Connection::closed);
    EXPECT_THROW(cnn.execute("a"), data::Error);
    cnn.setState(data::Connection::open);
    EXPECT_NO_THROW(cnn.execute("a"));
}

TEST(FakeConnection, CellsAndMovesMayFail)
{
    FakeConnection cnn;
    Rows rows{{"a", "b"}, {{failing("ilegible"), text("x")}, {whole(1), null}, {whole(2), null}}};
    rows.moveFailsAt = 2;
    cnn.on("q").gives(rows);
    const auto recordset = cnn.execute("q");
    EXPECT_THROW(recordset->value(0), data::Error);
    EXPECT_EQ(recordset->value(1).raw(), "x");
    recordset->MoveNext();
    EXPECT_FALSE(recordset->Eof());
    EXPECT_THROW(recordset->MoveNext(), data::Error);
    EXPECT_TRUE(recordset->Eof());
}

TEST(FakeConnection, ShowsEachStatementAheadOfItsAnswer)
{
    FakeConnection cnn;
    std::vector<std::string> seen;
    cnn.beforeExecute([&](std::string_view statement) { seen.push_back("antes de " + std::string(statement)); });
    cnn.on("a").calling([&] { seen.emplace_back("respuesta"); }).fails("no");
    EXPECT_THROW(cnn.execute("a"), data::Error);
    EXPECT_THAT(seen, ElementsAre("antes de a", "respuesta"));
}

TEST(FakeConnection, AStrictOneFailsTheTestOnWhatNobodyTold)
{
    FakeConnection cnn;
    cnn.strict();
    cnn.on("a").givesNothing();
    cnn.execute("a");
    EXPECT_NONFATAL_FAILURE(cnn.execute("b"), "nobody told what to answer to: b");
}

// A driver's value is gone when the recordset moves on; the fake makes that seen.
TEST(FakeRecordset, AValueHeldTooLongIsSpoilt)
{
    FakeConnection cnn;
    cnn.on("q").gives({"a"}, {{text("uno")}, {text("dos")}});
    const auto recordset = cnn.execute("q");
    const data::Value held = recordset->value(0);
    recordset->MoveNext();
    EXPECT_EQ(held.raw(), "###");
    EXPECT_EQ(recordset->value(0).raw(), "dos");
}

TEST(FakeRecordset, RefusesRowsThatDoNotFitTheirNames)
{
    EXPECT_THROW(FakeRecordset(Rows{{"a", "b"}, {{whole(1)}}}), std::logic_error);
}

} // namespace
} // namespace dn::tests
