// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/panels.h"
#include "screen/timer.h"
#include "tests/support/listener.h"

#include <gtest/gtest.h>

namespace dn::screen {
namespace {

using tests::Listener;

struct TimerInPanel : testing::Test {
    PicturePanel panel{nullptr, "panel"};
    Timer timer{&panel, "timer"};
    Listener ticks{timer.TimerEvent};
};

TEST_F(TimerInPanel, stands_still_without_an_interval)
{
    EXPECT_EQ(timer.Interval(), 0);
    timer.tick();
    EXPECT_EQ(ticks.count(), 0);
}

TEST_F(TimerInPanel, ticks_each_time_that_the_interval_has_passed)
{
    timer.Interval(25);
    timer.tick();
    timer.tick();

    EXPECT_EQ(timer.Interval(), 25);
    EXPECT_EQ(ticks.count(), 2);
}

TEST_F(TimerInPanel, stands_still_while_disabled)
{
    timer.Interval(25);
    timer.Enabled(false);
    timer.tick();
    EXPECT_EQ(ticks.count(), 0);

    timer.Enabled(true);
    timer.tick();
    EXPECT_EQ(ticks.count(), 1);
}

TEST_F(TimerInPanel, ticks_on_in_a_panel_that_is_hidden_or_disabled)
{
    timer.Interval(25);
    panel.Visible(false);
    panel.Enabled(false);

    timer.tick();

    EXPECT_EQ(ticks.count(), 1);
}

TEST_F(TimerInPanel, tells_of_another_interval_once)
{
    const Listener changed(timer.changed);

    timer.Interval(25);
    timer.Interval(25);

    EXPECT_EQ(changed.count(), 1);
}

} // namespace
} // namespace dn::screen
