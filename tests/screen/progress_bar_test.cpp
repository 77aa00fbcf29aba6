// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/runtime_error.h"
#include "screen/progress_bar.h"
#include "tests/support/listener.h"

#include <gtest/gtest.h>

namespace dn::screen {
namespace {

using tests::Listener;

TEST(ProgressBar, goes_from_0_to_100_at_first)
{
    const ProgressBar bar(nullptr, "PG");

    EXPECT_EQ(bar.Min(), 0);
    EXPECT_EQ(bar.Max(), 100);
    EXPECT_EQ(bar.Value(), 0);
}

TEST(ProgressBar, takes_each_value_of_its_range_the_ends_included)
{
    ProgressBar bar(nullptr, "PG");
    bar.Range(10, 20);
    const Listener changed(bar.changed);

    for (const int value : {10, 15, 20, 20}) {
        bar.Value(value);
        EXPECT_EQ(bar.Value(), value);
    }

    EXPECT_EQ(bar.Min(), 10);
    EXPECT_EQ(bar.Max(), 20);
    EXPECT_EQ(changed.count(), 3);
}

TEST(ProgressBar, refuses_a_value_outside_and_keeps_its_own)
{
    ProgressBar bar(nullptr, "PG");
    bar.Value(100);

    EXPECT_THROW(bar.Value(101), RuntimeError);
    EXPECT_THROW(bar.Value(-1), RuntimeError);

    EXPECT_EQ(bar.Value(), 100);
}

} // namespace
} // namespace dn::screen
