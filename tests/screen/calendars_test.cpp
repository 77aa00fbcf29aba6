// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/calendars.h"
#include "screen/panels.h"
#include "tests/support/listener.h"
#include "tests/support/out_of_reach.h"

#include <gtest/gtest.h>

namespace dn::screen {
namespace {

using tests::Listener;

constexpr DateTime moment{2024, 2, 29, 13, 45, 10, 0};
constexpr DateTime day{2024, 2, 29, 0, 0, 0, 0};
constexpr DateTime time{0, 0, 0, 13, 45, 10, 0};

template <class Kind>
void expectRefusedOutOfReach(Kind& calendar, Form& form, const DateTime& picked)
{
    const DateTime before = calendar.Value();
    tests::outOfReach({&calendar, &form}, [&] { calendar.pick(picked); });
    EXPECT_EQ(calendar.Value(), before);
    calendar.pick(picked);
    EXPECT_NE(calendar.Value(), before);
}

struct Calendars : testing::Test {
    Form form{"form"};
    MonthView cal{&form, "cal"};
    DTPicker dtHora{&form, "dtHora"};

    Calendars() { form.Visible(true); }
};

TEST_F(Calendars, a_month_keeps_the_day_without_its_time)
{
    cal.Value(moment);
    EXPECT_EQ(cal.Value(), day);

    cal.pick(moment.plusDays(1));
    EXPECT_EQ(cal.Value(), (DateTime{2024, 3, 1, 0, 0, 0, 0}));
}

TEST_F(Calendars, a_time_field_keeps_the_time_without_its_day)
{
    dtHora.Value(moment);
    EXPECT_EQ(dtHora.Value(), time);

    dtHora.pick({2024, 2, 29, 9, 5, 0, 0});
    EXPECT_EQ(dtHora.Value(), (DateTime{0, 0, 0, 9, 5, 0, 0}));
}

TEST_F(Calendars, tell_only_of_what_changes_their_own_half)
{
    cal.Value(moment);
    dtHora.Value(moment);
    const Listener dayChanged(cal.changed);
    const Listener timeChanged(dtHora.changed);

    cal.Value(moment.plusSeconds(1));
    dtHora.Value(moment.plusDays(1));
    EXPECT_EQ(dayChanged.count(), 0);
    EXPECT_EQ(timeChanged.count(), 0);

    cal.Value(moment.plusDays(1));
    dtHora.Value(moment.plusSeconds(1));
    EXPECT_EQ(dayChanged.count(), 1);
    EXPECT_EQ(timeChanged.count(), 1);
}

TEST_F(Calendars, picking_is_refused_out_of_reach)
{
    expectRefusedOutOfReach(cal, form, moment);
    expectRefusedOutOfReach(dtHora, form, moment);
}

} // namespace
} // namespace dn::screen
