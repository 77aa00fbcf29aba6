// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/format.h"

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <limits>
#include <string>

namespace dn {
namespace {

DateTime read(const char* iso) { return *parseIso(iso); }

TEST(FormatDate, WritesThePatternsOfTheControl)
{
    const DateTime t = read("2026-03-04 05:06:07");
    EXPECT_EQ(formatDate(t, "yyyy-mm-dd hh:nn:ss"), "2026-03-04 05:06:07");
    EXPECT_EQ(formatDate(t, "dd/mm/yyyy"), "04/03/2026");
    EXPECT_EQ(formatDate(t, "dd-mmm-yyyy hh:nn"), "04-mar-2026 05:06");
    EXPECT_EQ(formatDate(t, "[yyyy] ñ"), "[2026] ñ");
    EXPECT_EQ(formatDate(t, ""), "");
    EXPECT_EQ(formatDate(t, "d m y h"), "d m y h"); // no patterns of the control
    EXPECT_EQ(formatDate(read("0007-01-02"), "yyyy"), "0007");
}

TEST(FormatDate, NamesTheMonthsInSpanish)
{
    static constexpr std::array months{"ene", "feb", "mar", "abr", "may", "jun",
                                       "jul", "ago", "sep", "oct", "nov", "dic"};
    DateTime t = read("2026-01-01");
    for (int i = 0; i < 12; ++i) {
        t.month = static_cast<std::int8_t>(i + 1);
        EXPECT_EQ(formatDate(t, "mmm"), months.at(static_cast<std::size_t>(i)));
    }
}

TEST(FormatDate, HasNoNameForAMonthThatIsNone)
{
    EXPECT_EQ(formatDate(read("05:06:07"), "dd-mmm-yyyy"), "00--0000");
    DateTime t = read("2026-01-02");
    t.month = 13;
    EXPECT_EQ(formatDate(t, "dd-mmm-yyyy"), "02--2026");
}

TEST(DefaultText, LeavesOutWhatIsNotThere)
{
    EXPECT_EQ(defaultText(read("2026-03-04 05:06:07")), "04/03/2026 05:06:07");
    EXPECT_EQ(defaultText(read("2026-03-04 00:00:00")), "04/03/2026");
    EXPECT_EQ(defaultText(read("2026-03-04")), "04/03/2026");
    EXPECT_EQ(defaultText(read("05:06:07")), "05:06:07");
    EXPECT_EQ(defaultText(read("00:00:00")), "00:00:00");
    EXPECT_EQ(defaultText(read("2026-03-04 00:00:01")), "04/03/2026 00:00:01");
}

TEST(FormatThreeDigits, FillsUpWithZerosBehindTheSign)
{
    EXPECT_EQ(formatThreeDigits(0), "000");
    EXPECT_EQ(formatThreeDigits(7), "007");
    EXPECT_EQ(formatThreeDigits(42), "042");
    EXPECT_EQ(formatThreeDigits(999), "999");
    EXPECT_EQ(formatThreeDigits(12345), "12345");
    EXPECT_EQ(formatThreeDigits(-5), "-005");
    EXPECT_EQ(formatThreeDigits(-1234), "-1234");
    EXPECT_EQ(formatThreeDigits(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

struct TextCase {
    const char* text;
    const char* expected;
};

TEST(FormatAmount, WritesThousandsAndTwoDecimals)
{
    for (const TextCase& c : {TextCase{"0", ".00"},
                              {"0.00", ".00"},
                              {"0.5", ".50"},
                              {"7", "7.00"},
                              {"999", "999.00"},
                              {"1000", "1,000.00"},
                              {"1234567.5", "1,234,567.50"},
                              {"-1234567.5", "-1,234,567.50"},
                              {"123456789012345678901234567890.125", "123,456,789,012,345,678,901,234,567,890.13"},
                              {"+5", "5.00"},
                              {"007", "7.00"},
                              {".25", ".25"},
                              {"5.", "5.00"}})
        EXPECT_EQ(formatAmount(c.text), c.expected) << c.text;
}

TEST(FormatAmount, RoundsHalfAwayFromZero)
{
    for (const TextCase& c : {TextCase{"0.004", ".00"},
                              {"0.005", ".01"},
                              {"0.094", ".09"},
                              {"0.095", ".10"},
                              {"2.675", "2.68"},
                              {"0.995", "1.00"},
                              {"999.995", "1,000.00"},
                              {"999999.999", "1,000,000.00"},
                              {"-0.004", ".00"},
                              {"-0.005", "-.01"},
                              {"-999.995", "-1,000.00"}})
        EXPECT_EQ(formatAmount(c.text), c.expected) << c.text;
}

TEST(FormatAmount, ReadsExponents)
{
    EXPECT_EQ(formatAmount("1e3"), "1,000.00");
    EXPECT_EQ(formatAmount("1.5E+06"), "1,500,000.00");
    EXPECT_EQ(formatAmount("-2.5e-1"), "-.25");
    EXPECT_EQ(formatAmount("+1e2"), "100.00");
    EXPECT_EQ(formatAmount("1e-9"), ".00");
}

TEST(FormatAmount, LeavesWhatIsNoNumber)
{
    for (const char* text :
         {"",     "abc",   "-",     ".",   "1,000",  "1.2.3",    " 1",  "1 ",    "e",    "1e",
          "1e5x", "1e999", "0x1e2", "nan", "nan(e)", "infinite", "--1", "+-1e2", "1e2 ", " 1e2"})
        EXPECT_EQ(formatAmount(text), text);
}

TEST(FormatTelephone, FillsThePlacesFromTheRight)
{
    for (const TextCase& c : {TextCase{"5512345678", "55-12-34-56-78"},
                              {"12345", "--1-23-45"},
                              {"1", "----1"},
                              {"12", "----12"},
                              {"123", "---1-23"},
                              {"123456789", "1-23-45-67-89"},
                              {"525512345678", "5255-12-34-56-78"},
                              {"0", "----"},
                              {"0055", "----55"},
                              {"-12", "-----12"},
                              {"-0", "----"},
                              {"-0.4", "----"},
                              {"12.5", "----13"},
                              {"12.4", "----12"}})
        EXPECT_EQ(formatTelephone(c.text), c.expected) << c.text;
}

TEST(FormatTelephone, LeavesWhatIsNoNumber)
{
    for (const char* text : {"", "s/n", "55 1234 5678", "(55)12345678", "1234 ext. 5", "55-12-34-56-78", "ñ"})
        EXPECT_EQ(formatTelephone(text), text);
}

// A toolkit sets the locale of the process to the operator's, in which the decimal point may be a comma.
TEST(Formats, DoNotDependOnTheLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"es_ES.UTF-8", "es_MX.UTF-8", "de_DE.UTF-8"}) {
        std::setlocale(LC_ALL, name); // whichever is installed
        EXPECT_EQ(formatAmount("1.5e3"), "1,500.00");
        EXPECT_EQ(formatTelephone("1.2e1"), "----12");
    }
    std::setlocale(LC_ALL, before.c_str());
}

} // namespace
} // namespace dn
