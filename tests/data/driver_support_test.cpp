// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/driver_support.h"

#include <gtest/gtest.h>

namespace dn::data {
namespace {

using Kind = Value::Kind;

struct DateCase {
    const char* raw;
    Kind kind;
    const char* expected;
};

class DeliveredDates : public ::testing::TestWithParam<DateCase> {};

TEST_P(DeliveredDates, HaveTheKindOfWhatTheyHold)
{
    const Value value = deliveredDate(GetParam().raw);
    EXPECT_EQ(value.kind(), GetParam().kind);
    EXPECT_EQ(value.raw(), GetParam().expected);
    EXPECT_EQ(value.kind() == Kind::dateTime, parseIso(value.raw()).has_value());
}

INSTANTIATE_TEST_SUITE_P(
    Cells, DeliveredDates,
    ::testing::Values(
        DateCase{"2026-01-02", Kind::dateTime, "2026-01-02"},
        DateCase{"2026-01-02 03:04:05", Kind::dateTime, "2026-01-02 03:04:05"},
        DateCase{"2026-01-20 00:00:00.000", Kind::dateTime, "2026-01-20 00:00:00"},
        DateCase{"2026-01-20 10:00:00.000000", Kind::dateTime, "2026-01-20 10:00:00"},
        DateCase{"2026-01-20 10:00:00.0000000", Kind::dateTime, "2026-01-20 10:00:00"},
        DateCase{"2026-01-20 10:00:00.120", Kind::dateTime, "2026-01-20 10:00:00.120"},
        DateCase{"10:00:00", Kind::dateTime, "10:00:00"}, DateCase{"10:00:00.000", Kind::dateTime, "10:00:00"},
        DateCase{"2026-12-31", Kind::dateTime, "2026-12-31"},
        DateCase{"2026-10-30 23:59:59", Kind::dateTime, "2026-10-30 23:59:59"},
        DateCase{"2024-02-29", Kind::dateTime, "2024-02-29"}, DateCase{"2026-02-29", Kind::text, "2026-02-29"},
        DateCase{"0999-05-05", Kind::dateTime, "0999-05-05"}, DateCase{"0000-00-00", Kind::null, ""},
        DateCase{"0000-00-00 00:00:00", Kind::null, ""}, DateCase{"0000-00-00 00:00:00.000000", Kind::null, ""},
        DateCase{"0000-05-05", Kind::text, "0000-05-05"}, DateCase{"2026-00-10", Kind::text, "2026-00-10"},
        DateCase{"2026-10-00", Kind::text, "2026-10-00"}, DateCase{"20260-1-14", Kind::text, "20260-1-14"},
        DateCase{"2026-00-00 10:00:00", Kind::text, "2026-00-00 10:00:00"},
        DateCase{"838:59:59", Kind::text, "838:59:59"}, DateCase{"-01:00:00", Kind::text, "-01:00:00"},
        DateCase{"-838:59:59", Kind::text, "-838:59:59"},
        DateCase{"838:59:59.000000", Kind::text, "838:59:59.000000"}, DateCase{"", Kind::text, ""}));

TEST(WithoutPrefixes, LeavesTheServersWords)
{
    EXPECT_EQ(withoutPrefixes("[ma-3.1.15][10.11.6-MariaDB]Table 'x' doesn't exist"), "Table 'x' doesn't exist");
    EXPECT_EQ(withoutPrefixes("[FreeTDS][SQL Server]Invalid object name 'x'."), "Invalid object name 'x'.");
    EXPECT_EQ(withoutPrefixes("[unixODBC][Driver Manager] Data source"), "Data source");
    EXPECT_EQ(withoutPrefixes("Plain [x]"), "Plain [x]");
    EXPECT_EQ(withoutPrefixes("[never closed"), "[never closed");
    EXPECT_EQ(withoutPrefixes(""), "");
}

TEST(DigitsOfBits, ReadTheHighestByteFirst)
{
    using namespace std::string_literals;
    EXPECT_EQ(digitsOfBits("\x01\x01"), "257");
    EXPECT_EQ(digitsOfBits("\x00"s), "0");
    EXPECT_EQ(digitsOfBits("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"), "18446744073709551615");
}

/// SQLSTATE, native code and text.
std::string allOf(const Error& error)
{
    return error.sqlState() + " " + std::to_string(error.nativeCode()) + " " + error.what();
}

TEST(DriversErrors, HaveTheirStateAndSpanishWords)
{
    EXPECT_EQ(allOf(connectionClosed()), "08003 0 La conexión con la base de datos está cerrada");
    EXPECT_EQ(allOf(noRow()), "24000 0 No hay ningún registro activo");
    try {
        requireText("");
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(allOf(error), "42000 0 La instrucción SQL está vacía");
    }
}

TEST(RequireText, TakesAnythingButBlanks)
{
    EXPECT_NO_THROW(requireText("x"));
    EXPECT_NO_THROW(requireText(" ;"));
    EXPECT_THROW(requireText(""), Error);
    EXPECT_THROW(requireText(" \r\n\t "), Error);
}

} // namespace
} // namespace dn::data
