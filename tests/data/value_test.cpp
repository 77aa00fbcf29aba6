// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/runtime_error.h"
#include "data/value.h"

#include <gtest/gtest.h>

#include <string>

namespace dn::data {
namespace {

using Kind = Value::Kind;

// The text of the error that a conversion must end in.
template <class Conversion>
std::string errorOf(Conversion conversion)
{
    try {
        conversion();
    } catch (const RuntimeError& error) {
        return error.what();
    }
    return "no error";
}

Value whole(std::string_view raw) { return {Kind::whole, raw}; }

Value number(std::string_view raw) { return {Kind::number, raw}; }

Value text(std::string_view raw) { return {Kind::text, raw}; }

Value date(std::string_view raw) { return {Kind::dateTime, raw}; }

Value boolean(std::string_view raw) { return {Kind::boolean, raw}; }

TEST(ValueNull, HasNoText)
{
    const Value null;
    EXPECT_TRUE(null.isNull());
    EXPECT_EQ(null.kind(), Kind::null);
    EXPECT_EQ(null.raw(), "");
    EXPECT_FALSE(text("").isNull());
}

TEST(ValueNull, IsRefusedByEveryConversion)
{
    const Value null;
    const std::string refused = "Uso no válido de Null";
    EXPECT_EQ(errorOf([&] { null.toText(); }), refused);
    EXPECT_EQ(errorOf([&] { null.toWhole(); }), refused);
    EXPECT_EQ(errorOf([&] { null.toInt32(); }), refused);
    EXPECT_EQ(errorOf([&] { null.toInt16(); }), refused);
    EXPECT_EQ(errorOf([&] { null.toNumber(); }), refused);
    EXPECT_EQ(errorOf([&] { null.toBoolean(); }), refused);
    EXPECT_EQ(errorOf([&] { null.toDateTime(); }), refused);
}

TEST(ValueToText, LeavesTextsAndNumbersAsTheyStand)
{
    EXPECT_EQ(text(" ñ ").toText(), " ñ ");
    EXPECT_EQ(text("").toText(), "");
    EXPECT_EQ(whole("-1234567").toText(), "-1234567");
    EXPECT_EQ(number("12345678901234567890.10").toText(), "12345678901234567890.10");
    EXPECT_EQ(number("1e300").toText(), "1e300");
}

TEST(ValueToText, WritesBooleansAndDatesInSpanishForms)
{
    EXPECT_EQ(boolean("1").toText(), "Verdadero");
    EXPECT_EQ(boolean("0").toText(), "Falso");
    EXPECT_EQ(date("2026-03-04 05:06:07").toText(), "04/03/2026 05:06:07");
    EXPECT_EQ(date("2026-03-04 05:06:07.25").toText(), "04/03/2026 05:06:07");
    EXPECT_EQ(date("2026-03-04 00:00:00").toText(), "04/03/2026");
    EXPECT_EQ(date("2026-03-04").toText(), "04/03/2026");
    EXPECT_EQ(date("05:06:07").toText(), "05:06:07");
}

TEST(ValueToWhole, ReadsWholeNumbersExactly)
{
    EXPECT_EQ(whole("9223372036854775807").toWhole(), 9223372036854775807LL);
    EXPECT_EQ(whole("-9223372036854775808").toWhole(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(whole("9007199254740993").toWhole(), 9007199254740993LL); // no double holds it
    EXPECT_EQ(whole("007").toWhole(), 7);
    EXPECT_EQ(text("42").toWhole(), 42);
    EXPECT_EQ(boolean("1").toWhole(), 1);
}

TEST(ValueToWhole, RoundsHalfToEven)
{
    EXPECT_EQ(number("2.5").toWhole(), 2);
    EXPECT_EQ(number("3.5").toWhole(), 4);
    EXPECT_EQ(number("-2.5").toWhole(), -2);
    EXPECT_EQ(number("2.51").toWhole(), 3);
    EXPECT_EQ(number("0.4").toWhole(), 0);
    EXPECT_EQ(number("1e3").toWhole(), 1000);
}

TEST(ValueToWhole, RefusesWhatDoesNotFit)
{
    EXPECT_EQ(errorOf([] { whole("9223372036854775808").toWhole(); }), "Desbordamiento");
    EXPECT_EQ(errorOf([] { whole("-9223372036854775809").toWhole(); }), "Desbordamiento");
    EXPECT_EQ(errorOf([] { whole("18446744073709551615").toWhole(); }), "Desbordamiento");
    EXPECT_EQ(errorOf([] { number("1e19").toWhole(); }), "Desbordamiento");
    EXPECT_EQ(errorOf([] { number("-1e300").toWhole(); }), "Desbordamiento");
    EXPECT_EQ(number("-9223372036854775808.0").toWhole(), std::numeric_limits<std::int64_t>::min());
}

TEST(ValueToInt32, IsExactAtItsEnds)
{
    EXPECT_EQ(whole("2147483647").toInt32(), 2147483647);
    EXPECT_EQ(whole("-2147483648").toInt32(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(errorOf([] { whole("2147483648").toInt32(); }), "Desbordamiento");
    EXPECT_EQ(errorOf([] { whole("-2147483649").toInt32(); }), "Desbordamiento");
    EXPECT_EQ(number("2147483647.4").toInt32(), 2147483647);
    EXPECT_EQ(errorOf([] { number("2147483647.6").toInt32(); }), "Desbordamiento");
}

TEST(ValueToInt16, IsExactAtItsEnds)
{
    EXPECT_EQ(whole("32767").toInt16(), 32767);
    EXPECT_EQ(whole("-32768").toInt16(), -32768);
    EXPECT_EQ(errorOf([] { whole("32768").toInt16(); }), "Desbordamiento");
    EXPECT_EQ(errorOf([] { whole("-32769").toInt16(); }), "Desbordamiento");
}

TEST(ValueToNumber, ReadsTextsThatAreNumbers)
{
    EXPECT_DOUBLE_EQ(number("1.50").toNumber(), 1.5);
    EXPECT_DOUBLE_EQ(text("-0.25").toNumber(), -0.25);
    EXPECT_DOUBLE_EQ(whole("3").toNumber(), 3);
    EXPECT_DOUBLE_EQ(number("1e300").toNumber(), 1e300);
    EXPECT_EQ(errorOf([] { number("1e999").toNumber(); }), "Desbordamiento");
}

class NoNumbers : public ::testing::TestWithParam<const char*> {};

TEST_P(NoNumbers, DoNotCoincideInType)
{
    const Value value = text(GetParam());
    const std::string mismatch = "No coinciden los tipos";
    EXPECT_EQ(errorOf([&] { value.toNumber(); }), mismatch);
    EXPECT_EQ(errorOf([&] { value.toWhole(); }), mismatch);
    EXPECT_EQ(errorOf([&] { value.toInt32(); }), mismatch);
    EXPECT_EQ(errorOf([&] { value.toBoolean(); }), mismatch);
}

INSTANTIATE_TEST_SUITE_P(Texts, NoNumbers,
                         ::testing::Values("", " ", "abc", "1x", "x1", "1,5", "0x10", "--1", "1 2", "nan", "inf",
                                           "-inf", "infinity", "ñ"));

TEST(ValueToNumber, RefusesDates)
{
    EXPECT_EQ(errorOf([] { date("2026-01-02").toNumber(); }), "No coinciden los tipos");
    EXPECT_EQ(errorOf([] { date("2026-01-02").toWhole(); }), "No coinciden los tipos");
}

TEST(ValueToBoolean, IsTrueForEveryNumberButZero)
{
    EXPECT_TRUE(boolean("1").toBoolean());
    EXPECT_FALSE(boolean("0").toBoolean());
    EXPECT_TRUE(whole("-1").toBoolean());
    EXPECT_TRUE(number("0.01").toBoolean());
    EXPECT_FALSE(number("0.00").toBoolean());
    EXPECT_TRUE(text("2").toBoolean());
    for (const std::string_view flag : {"0", "1"}) { // what looks like a flag and is none
        EXPECT_THROW(Value(Value::Kind::dateTime, flag).toBoolean(), RuntimeError);
        EXPECT_THROW(Value(Value::Kind::null, flag).toBoolean(), RuntimeError);
    }
}

TEST(ValueToDateTime, ReadsDatesAndTextsThatAreDates)
{
    EXPECT_EQ(date("2026-03-04 05:06:07").toDateTime(), parseIso("2026-03-04 05:06:07"));
    EXPECT_EQ(text("2026-03-04").toDateTime(), parseIso("2026-03-04"));
    EXPECT_EQ(errorOf([] { text("ayer").toDateTime(); }), "No coinciden los tipos");
    EXPECT_EQ(errorOf([] { text("2026-02-30").toDateTime(); }), "No coinciden los tipos");
    EXPECT_EQ(errorOf([] { whole("5").toDateTime(); }), "No coinciden los tipos");
}

} // namespace
} // namespace dn::data
