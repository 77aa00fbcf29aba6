// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// When a soak says that the memory grows.

#include "bench/report/growth.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::bench {
namespace {

std::vector<Sample> everyTenSeconds(const std::vector<double>& values)
{
    std::vector<Sample> samples;
    for (const double value : values)
        samples.push_back({10.0 * static_cast<double>(samples.size()), value});
    return samples;
}

TEST(GrowthOfSamples, leaves_the_first_quarter_out)
{
    const Growth growth = growthOf(everyTenSeconds({10, 90, 100, 100, 100, 100, 100, 100}));
    EXPECT_EQ(growth.from, 20);
    EXPECT_NEAR(growth.level, 100, 1e-9);
    EXPECT_NEAR(growth.gain, 0, 1e-9);
    EXPECT_TRUE(growth.isFlat(0.02));
}

TEST(GrowthOfSamples, is_what_the_line_gains)
{
    const Growth growth = growthOf(everyTenSeconds({0, 0, 100, 101, 102, 103, 104, 105}));
    EXPECT_NEAR(growth.level, 100, 1e-9);
    EXPECT_NEAR(growth.gain, 5, 1e-9);
    EXPECT_FALSE(growth.isFlat(0.02));
    EXPECT_TRUE(growth.isFlat(0.06));
}

TEST(GrowthOfSamples, is_none_of_what_goes_up_and_down)
{
    std::vector<double> values;
    for (int i = 0; i < 400; ++i)
        values.push_back(100 + (i * 7919) % 11); // up to a tenth of it
    EXPECT_NEAR(growthOf(everyTenSeconds(values)).gain, 0, 0.2);
}

TEST(GrowthOfSamples, of_memory_that_is_given_back_is_flat)
{
    EXPECT_TRUE(growthOf(everyTenSeconds({0, 0, 105, 104, 103, 102, 101, 100})).isFlat(0));
}

TEST(GrowthOfSamples, of_few_samples)
{
    EXPECT_EQ(growthOf({}).gain, 0);
    const Growth one = growthOf({{5, 70}});
    EXPECT_EQ(one.from, 5);
    EXPECT_EQ(one.level, 70);
    EXPECT_EQ(one.gain, 0);
}

} // namespace
} // namespace dn::bench
