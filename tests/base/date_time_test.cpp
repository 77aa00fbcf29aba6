// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/date_time.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace dn {
namespace {

DateTime moment(int year, int month, int day, int hour = 0, int minute = 0, int second = 0, int microsecond = 0)
{
    DateTime t;
    t.year = static_cast<std::int16_t>(year);
    t.month = static_cast<std::int8_t>(month);
    t.day = static_cast<std::int8_t>(day);
    t.hour = static_cast<std::int8_t>(hour);
    t.minute = static_cast<std::int8_t>(minute);
    t.second = static_cast<std::int8_t>(second);
    t.microsecond = microsecond;
    return t;
}

TEST(ParseIso, ReadsTheFormsOfTheDatabases)
{
    EXPECT_EQ(parseIso("2026-11-20"), moment(2026, 11, 20));
    EXPECT_EQ(parseIso("2026-11-20 09:08:07"), moment(2026, 11, 20, 9, 8, 7));
    EXPECT_EQ(parseIso("2026-11-20T09:08:07"), moment(2026, 11, 20, 9, 8, 7));
    EXPECT_EQ(parseIso("2026-11-20 09:08"), moment(2026, 11, 20, 9, 8));
    EXPECT_EQ(parseIso("2026-11-20 09:08:07.5"), moment(2026, 11, 20, 9, 8, 7, 500'000));
    EXPECT_EQ(parseIso("2026-11-20 09:08:07.000001"), moment(2026, 11, 20, 9, 8, 7, 1));
    EXPECT_EQ(parseIso("2026-11-20 09:08:07.1234567"), moment(2026, 11, 20, 9, 8, 7, 123'456));
    EXPECT_EQ(parseIso("0001-01-01"), moment(1, 1, 1));
    EXPECT_EQ(parseIso("9999-12-31 23:59:59"), moment(9999, 12, 31, 23, 59, 59));
    EXPECT_EQ(parseIso("23:59:58"), moment(0, 0, 0, 23, 59, 58));
    EXPECT_EQ(parseIso("00:00:00"), DateTime{});
}

TEST(ParseIso, KnowsTheLeapYears)
{
    for (const char* day : {"2024-02-29", "2000-02-29", "1600-02-29"})
        EXPECT_TRUE(parseIso(day)) << day;
    for (const char* day : {"2023-02-29", "1900-02-29", "2100-02-29", "2024-02-30"})
        EXPECT_FALSE(parseIso(day)) << day;
}

TEST(ParseIso, KnowsTheLengthOfEachMonth)
{
    static constexpr std::array days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month) {
        const std::string front = "2025-" + std::string(month < 10 ? "0" : "") + std::to_string(month) + "-";
        EXPECT_TRUE(parseIso(front + std::to_string(days.at(static_cast<std::size_t>(month - 1))))) << front;
        EXPECT_FALSE(parseIso(front + std::to_string(days.at(static_cast<std::size_t>(month - 1)) + 1))) << front;
    }
}

TEST(ParseIso, RefusesEverythingElse)
{
    for (const char* text : {"",
                             " ",
                             "hoy",
                             "2026",
                             "2026-1-2",
                             "2026-01",
                             "2026-01-",
                             "26-01-02",
                             "2026/01/02",
                             "2026-01-02 ",
                             " 2026-01-02",
                             "2026-00-10",
                             "2026-13-01",
                             "2026-01-00",
                             "2026-01-32",
                             "0000-00-00",
                             "0000-01-01",
                             "0000-00-00 00:00:00",
                             "2026-01-02 24:00:00",
                             "2026-01-02 10:60:00",
                             "2026-01-02 10:00:60",
                             "2026-01-02 10",
                             "2026-01-02 10:00:00.",
                             "2026-01-02 10:00:00.x",
                             "2026-01-02 10:00:00.5-",
                             "10:",
                             "2026-01-02 10:00:00 x",
                             "2026-01-02x10:00",
                             "838:59:59",
                             "-01:00:00",
                             "24:00:00",
                             "1:00:00",
                             "10:00:0",
                             "-2026-01-02",
                             "+026-01-02",
                             "12026-01-02"})
        EXPECT_FALSE(parseIso(text)) << text;
}

TEST(DateTimeParts, AreTakenApart)
{
    const DateTime t = moment(2026, 11, 20, 9, 8, 7, 5);
    EXPECT_EQ(t.date(), moment(2026, 11, 20));
    EXPECT_EQ(t.timeOfDay(), moment(0, 0, 0, 9, 8, 7, 5));
    EXPECT_TRUE(t.hasDate());
    EXPECT_FALSE(t.timeOfDay().hasDate());
    EXPECT_TRUE(t.date().isMidnight());
    EXPECT_FALSE(t.isMidnight());
    EXPECT_FALSE(moment(2026, 1, 1, 0, 0, 0, 1).isMidnight());
}

TEST(DateTimeOrder, IsThatOfTheCalendar)
{
    EXPECT_LT(moment(2025, 12, 31, 23, 59, 59), moment(2026, 1, 1));
    EXPECT_LT(moment(2026, 1, 31), moment(2026, 2, 1));
    EXPECT_LT(moment(2026, 1, 1, 9), moment(2026, 1, 1, 10));
    EXPECT_LT(moment(2026, 1, 1, 9, 0, 0, 1), moment(2026, 1, 1, 9, 0, 0, 2));
}

TEST(PlusSeconds, CarriesIntoEveryField)
{
    EXPECT_EQ(moment(2026, 12, 31, 23, 59, 59).plusSeconds(1), moment(2027, 1, 1));
    EXPECT_EQ(moment(2027, 1, 1).plusSeconds(-1), moment(2026, 12, 31, 23, 59, 59));
    EXPECT_EQ(moment(2024, 2, 28, 12).plusSeconds(86'400), moment(2024, 2, 29, 12));
    EXPECT_EQ(moment(2023, 2, 28, 12).plusSeconds(86'400), moment(2023, 3, 1, 12));
    EXPECT_EQ(moment(2026, 1, 1, 10, 0, 0, 7).plusSeconds(3661), moment(2026, 1, 1, 11, 1, 1, 7));
    EXPECT_EQ(moment(2026, 1, 1).plusSeconds(-86'400), moment(2025, 12, 31));
    EXPECT_EQ(moment(2026, 1, 1).plusSeconds(0), moment(2026, 1, 1));
}

TEST(PlusDays, GoesOverMonthsAndYearsBothWays)
{
    EXPECT_EQ(moment(2026, 1, 31).plusDays(1), moment(2026, 2, 1));
    EXPECT_EQ(moment(2026, 3, 1).plusDays(-1), moment(2026, 2, 28));
    EXPECT_EQ(moment(2024, 1, 1).plusDays(366), moment(2025, 1, 1));
    EXPECT_EQ(moment(1969, 12, 31, 8).plusDays(1), moment(1970, 1, 1, 8));
    EXPECT_EQ(moment(2000, 3, 1).plusDays(-36'525), moment(1900, 3, 1));
}

TEST(DaysBetween, CountsDatesAndNotHours)
{
    EXPECT_EQ(daysBetween(moment(2026, 1, 1, 23, 59), moment(2026, 1, 2, 0, 1)), 1);
    EXPECT_EQ(daysBetween(moment(2026, 1, 2), moment(2026, 1, 1, 23)), -1);
    EXPECT_EQ(daysBetween(moment(2024, 1, 1), moment(2025, 1, 1)), 366);
    EXPECT_EQ(daysBetween(moment(1970, 1, 1), moment(2000, 3, 1)), 11'017);
    EXPECT_EQ(daysBetween(moment(2026, 5, 5), moment(2026, 5, 5, 12)), 0);
    EXPECT_EQ(daysBetween(moment(1, 1, 1), moment(9999, 12, 31)), 3'652'058);
}

// The leap day of the year 0 is the last one of a cycle that begins below zero.
TEST(Calendar, GoesBackBeyondTheYear0)
{
    EXPECT_EQ(daysBetween(moment(0, 1, 1), moment(0, 3, 1)), 60);
    EXPECT_EQ(moment(0, 3, 1).plusDays(-1), moment(0, 2, 29));
    EXPECT_EQ(moment(0, 1, 1).plusDays(-1), moment(-1, 12, 31));
    EXPECT_EQ(daysBetween(moment(-400, 1, 1), moment(0, 1, 1)), 146'097);
}

// Every day of four centuries, each one behind the day ahead of it.
TEST(Calendar, HasEveryDayOnceInOrder)
{
    DateTime day = moment(1800, 1, 1);
    for (int i = 1; i <= 146'097; ++i) {
        const DateTime next = day.plusDays(1);
        ASSERT_LT(day, next);
        ASSERT_EQ(daysBetween(day, next), 1);
        day = next;
    }
    EXPECT_EQ(day, moment(2200, 1, 1));
}

} // namespace
} // namespace dn
