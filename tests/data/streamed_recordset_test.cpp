// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The batches of the drivers' recordset, over a source of a test's own: one that counts, fails and answers another
// statement in between.
#include "data/streamed_recordset.h"

#include <gtest/gtest.h>

namespace dn::data {
namespace {

struct Script {
    int rows = 0;
    int failsAt = -1; ///< the row whose fetch throws, counted from 0
    int fetched = 0;
    int alive = 0; ///< sources that hold the wire
};

// Gives the numbers from 0, as text of `width` bytes.
class CountingSource final : public RowSource {
public:
    explicit CountingSource(Script& script, std::size_t width = 4) : script_(script), width_(width)
    {
        ++script.alive;
    }
    ~CountingSource() override { --script_.alive; }

    bool fetch(RowMemory& rows) override
    {
        if (script_.fetched == script_.failsAt) throw Error("HY000", 1317, "interrumpida");
        if (script_.fetched == script_.rows) return false;
        std::string text = std::to_string(script_.fetched++);
        text.resize(std::max(text.size(), width_), ' ');
        rows.append([&](std::size_t) { return std::string_view(text); });
        return true;
    }

private:
    Script& script_;
    std::size_t width_;
};

class Streaming : public ::testing::Test {
protected:
    std::unique_ptr<StreamedRecordset>
    open(std::size_t width = 4, StreamedRecordset::Reading reading = StreamedRecordset::Reading::batches)
    {
        const std::vector<Column> columns{{"n", Value::Kind::text}};
        return std::make_unique<StreamedRecordset>(columns, std::make_unique<CountingSource>(script, width), wire,
                                                   reading);
    }

    static int walk(StreamedRecordset& recordset)
    {
        int count = 0;
        for (; !recordset.Eof(); recordset.MoveNext())
            ++count;
        return count;
    }

    Script script;
    Wire wire;
};

TEST_F(Streaming, AShortResultLeavesTheWireAtOnce)
{
    script.rows = 255;
    const auto recordset = open();
    EXPECT_EQ(script.alive, 0);
    EXPECT_EQ(walk(*recordset), 255);
}

TEST_F(Streaming, ALongResultComesInBatches)
{
    script.rows = 1000;
    const auto recordset = open();
    EXPECT_EQ(script.fetched, 256);
    for (int i = 0; i < 255; ++i)
        recordset->MoveNext();
    EXPECT_EQ(script.fetched, 256);
    recordset->MoveNext();
    EXPECT_EQ(script.fetched, 512);
    EXPECT_EQ(walk(*recordset), 1000 - 256);
    EXPECT_EQ(script.alive, 0);
}

TEST_F(Streaming, WideRowsMakeSmallBatches)
{
    script.rows = 100;
    const auto recordset = open(10'000);
    EXPECT_EQ(script.fetched, 7); // the seventh goes beyond 64 KB
    EXPECT_EQ(walk(*recordset), 100);
}

TEST_F(Streaming, TheNextStatementTakesTheRestIn)
{
    script.rows = 1000;
    const auto recordset = open();
    recordset->MoveNext();
    const std::string_view held = recordset->value(0).raw();
    wire.clear();
    EXPECT_EQ(script.fetched, 1000);
    EXPECT_EQ(script.alive, 0);
    EXPECT_EQ(held, "1   ");
    EXPECT_EQ(walk(*recordset), 999);
    wire.clear(); // nobody reads any more
}

TEST_F(Streaming, AWholeReadingLeavesNothingOnTheWire)
{
    script.rows = 1000;
    const auto recordset = open(4, StreamedRecordset::Reading::whole);
    EXPECT_EQ(script.alive, 0);
    EXPECT_EQ(walk(*recordset), 1000);
}

TEST_F(Streaming, AFailureInTheFirstBatchIsOneOfTheStatement)
{
    script.rows = 1000;
    script.failsAt = 100;
    EXPECT_THROW(open(), Error);
    EXPECT_EQ(script.alive, 0);
    wire.clear(); // the recordset that never was does not read
}

TEST_F(Streaming, ALaterFailureComesBehindTheRowsAheadOfIt)
{
    script.rows = 1000;
    script.failsAt = 700;
    const auto recordset = open();
    for (int i = 0; i < 699; ++i)
        recordset->MoveNext();
    EXPECT_EQ(recordset->value(0).raw(), "699 ");
    EXPECT_THROW(recordset->MoveNext(), Error);
    EXPECT_TRUE(recordset->Eof());
    EXPECT_FALSE(recordset->Bof());
    EXPECT_EQ(script.alive, 0);
}

TEST_F(Streaming, AFailureWhileTheRestIsTakenInWaitsForItsRow)
{
    script.rows = 1000;
    script.failsAt = 700;
    const auto recordset = open();
    EXPECT_NO_THROW(wire.clear());
    for (int i = 0; i < 699; ++i)
        recordset->MoveNext();
    EXPECT_THROW(recordset->MoveNext(), Error);
}

TEST_F(Streaming, ADroppedRecordsetLeavesTheWire)
{
    script.rows = 1000;
    open().reset();
    EXPECT_EQ(script.alive, 0);
    wire.clear();
    EXPECT_EQ(script.fetched, 256);
}

TEST_F(Streaming, ACutWireEndsTheLoopBehindTheRowsThatAreHeld)
{
    script.rows = 1000;
    const auto recordset = open();
    wire.cut();
    EXPECT_EQ(script.alive, 0);
    for (int i = 0; i < 255; ++i)
        recordset->MoveNext();
    EXPECT_EQ(recordset->value(0).raw(), "255 ");
    EXPECT_THROW(recordset->MoveNext(), Error);
    EXPECT_TRUE(recordset->Eof());
}

TEST_F(Streaming, BehindTheLastRowAndTheLastColumnThereIsNothing)
{
    script.rows = 1;
    const auto recordset = open();
    EXPECT_EQ(recordset->value(0).raw(), "0   ");
    EXPECT_THROW(recordset->value(1), Error);
    recordset->MoveNext();
    EXPECT_TRUE(recordset->Eof());
    EXPECT_THROW(recordset->value(0), Error);
    EXPECT_THROW(recordset->MoveNext(), Error);
    EXPECT_FALSE(recordset->Bof());
}

} // namespace
} // namespace dn::data
