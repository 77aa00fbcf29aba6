// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/date_time.h"

#include <array>

namespace dn {
namespace {

// Days since 1970-01-01 in the proleptic Gregorian calendar (the algorithm of Howard Hinnant's date papers).
std::int64_t daysFromCivil(std::int64_t year, unsigned month, unsigned day)
{
    year -= month <= 2 ? 1 : 0;
    const std::int64_t era = (year >= 0 ? year : year - 399) / 400;
    const auto yearOfEra = static_cast<unsigned>(year - era * 400);
    const unsigned dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    const unsigned dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146'097 + static_cast<std::int64_t>(dayOfEra) - 719'468;
}

DateTime civilFromDays(std::int64_t days)
{
    days += 719'468;
    const std::int64_t era = (days >= 0 ? days : days - 146'096) / 146'097;
    const auto dayOfEra = static_cast<unsigned>(days - era * 146'097);
    const unsigned yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36'524 - dayOfEra / 146'096) / 365;
    const unsigned dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const unsigned shifted = (5 * dayOfYear + 2) / 153;
    DateTime result;
    result.day = static_cast<std::int8_t>(dayOfYear - (153 * shifted + 2) / 5 + 1);
    result.month = static_cast<std::int8_t>(shifted < 10 ? shifted + 3 : shifted - 9);
    result.year =
        static_cast<std::int16_t>(static_cast<std::int64_t>(yearOfEra) + era * 400 + (result.month <= 2 ? 1 : 0));
    return result;
}

int daysOfMonth(int year, int month)
{
    static constexpr std::array<int, 12> days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : days[static_cast<std::size_t>(month - 1)];
}

// Reads fixed-width digits from the front of a text; a failure leaves `failed` set for good.
class Digits {
public:
    explicit Digits(std::string_view text) : rest_(text) {}

    int take(std::size_t width)
    {
        if (failed_ || rest_.size() < width) return fail();
        int value = 0;
        for (std::size_t i = 0; i < width; ++i) {
            const char c = rest_[i];
            if (c < '0' || c > '9') return fail();
            value = value * 10 + (c - '0');
        }
        rest_.remove_prefix(width);
        return value;
    }

    bool skip(char c)
    {
        if (failed_ || rest_.empty() || rest_.front() != c) return false;
        rest_.remove_prefix(1);
        return true;
    }

    void require(char c)
    {
        if (!skip(c)) fail();
    }

    int fraction()
    {
        int value = 0;
        int width = 0;
        for (; !rest_.empty() && rest_.front() >= '0' && rest_.front() <= '9'; rest_.remove_prefix(1), ++width)
            if (width < 6) value = value * 10 + (rest_.front() - '0');
        if (width == 0) return fail();
        for (; width < 6; ++width)
            value *= 10;
        return value;
    }

    bool done() const { return !failed_ && rest_.empty(); }
    bool atEnd() const { return rest_.empty(); }

private:
    int fail()
    {
        failed_ = true;
        return 0;
    }

    std::string_view rest_;
    bool failed_ = false;
};

void takeTime(Digits& digits, DateTime& result)
{
    result.hour = static_cast<std::int8_t>(digits.take(2));
    digits.require(':');
    result.minute = static_cast<std::int8_t>(digits.take(2));
    if (!digits.skip(':')) return;
    result.second = static_cast<std::int8_t>(digits.take(2));
    if (digits.skip('.')) result.microsecond = digits.fraction();
}

bool validTime(const DateTime& t) { return t.hour < 24 && t.minute < 60 && t.second < 60; }

bool validDate(const DateTime& t)
{
    return t.year >= 1 && t.month >= 1 && t.month <= 12 && t.day >= 1 && t.day <= daysOfMonth(t.year, t.month);
}

std::optional<DateTime> parseTimeOnly(std::string_view text)
{
    Digits digits(text);
    DateTime result;
    takeTime(digits, result);
    if (!digits.done() || !validTime(result)) return std::nullopt;
    return result;
}

} // namespace

DateTime DateTime::date() const
{
    DateTime result = *this;
    result.hour = result.minute = result.second = 0;
    result.microsecond = 0;
    return result;
}

DateTime DateTime::timeOfDay() const
{
    DateTime result = *this;
    result.year = 0;
    result.month = result.day = 0;
    return result;
}

DateTime DateTime::plusSeconds(std::int64_t count) const
{
    std::int64_t seconds = hour * 3600 + minute * 60 + second + count;
    std::int64_t days = daysFromCivil(year, static_cast<unsigned>(month), static_cast<unsigned>(day));
    days += seconds >= 0 ? seconds / 86'400 : -((-seconds + 86'399) / 86'400);
    seconds = ((seconds % 86'400) + 86'400) % 86'400;
    DateTime result = civilFromDays(days);
    result.hour = static_cast<std::int8_t>(seconds / 3600);
    result.minute = static_cast<std::int8_t>(seconds / 60 % 60);
    result.second = static_cast<std::int8_t>(seconds % 60);
    result.microsecond = microsecond;
    return result;
}

std::optional<DateTime> parseIso(std::string_view text)
{
    if (text.size() > 2 && text[2] == ':') return parseTimeOnly(text);
    Digits digits(text);
    DateTime result;
    result.year = static_cast<std::int16_t>(digits.take(4));
    digits.require('-');
    result.month = static_cast<std::int8_t>(digits.take(2));
    digits.require('-');
    result.day = static_cast<std::int8_t>(digits.take(2));
    if (!digits.atEnd()) {
        if (!digits.skip('T')) digits.require(' ');
        takeTime(digits, result);
    }
    if (!digits.done() || !validDate(result) || !validTime(result)) return std::nullopt;
    return result;
}

std::int64_t daysBetween(const DateTime& from, const DateTime& to)
{
    return daysFromCivil(to.year, static_cast<unsigned>(to.month), static_cast<unsigned>(to.day)) -
           daysFromCivil(from.year, static_cast<unsigned>(from.month), static_cast<unsigned>(from.day));
}

} // namespace dn
