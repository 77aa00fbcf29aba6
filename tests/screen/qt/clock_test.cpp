// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The machine's clock.

#include "screen/qt/ports.h"
#include "tests/support/time_zone.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>

namespace dn::tests {
namespace {

DateTime localTime()
{
    // time() may lag behind this clock by a tick, and thus by a second
    const auto now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm local{};
    ::localtime_r(&now, &local);
    return {static_cast<std::int16_t>(local.tm_year + 1900), static_cast<std::int8_t>(local.tm_mon + 1),
            static_cast<std::int8_t>(local.tm_mday),         static_cast<std::int8_t>(local.tm_hour),
            static_cast<std::int8_t>(local.tm_min),          static_cast<std::int8_t>(local.tm_sec)};
}

TEST(QtClock, tells_the_time_of_the_zone_in_which_the_machine_stands)
{
    const screen::qt::QtClock clock;
    for (const char* zone : {InTimeZone::madrid, InTimeZone::newYork, InTimeZone::lordHowe, "UTC0"}) {
        const InTimeZone living(zone);
        const DateTime before = localTime();
        const DateTime now = clock.Now();
        EXPECT_LE(before, now) << zone;
        EXPECT_LT(now, localTime().plusSeconds(1)) << zone;
    }
}

} // namespace
} // namespace dn::tests
