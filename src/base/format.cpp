// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace dn {
namespace {

constexpr std::array<std::string_view, 12> months{"ene", "feb", "mar", "abr", "may", "jun",
                                                  "jul", "ago", "sep", "oct", "nov", "dic"};

// The last two digits.
void appendPair(std::string& text, int number)
{
    const std::array<char, 2> digits{static_cast<char>('0' + number / 10 % 10),
                                     static_cast<char>('0' + number % 10)};
    text.append(digits.data(), digits.size());
}

// @param width 2 or 4.
void appendPadded(std::string& text, int number, int width)
{
    if (width > 2) appendPair(text, number / 100);
    appendPair(text, number);
}

// The run of one letter at the front of a pattern.
std::string_view frontRun(std::string_view pattern)
{
    std::size_t width = 1;
    while (width < pattern.size() && pattern[width] == pattern.front())
        ++width;
    return pattern.substr(0, width);
}

void appendToken(std::string& text, const DateTime& t, std::string_view token)
{
    if (token == "yyyy")
        appendPadded(text, t.year, 4);
    else if (token == "mmm")
        text += t.month >= 1 && t.month <= 12 ? months[static_cast<std::size_t>(t.month - 1)] : "";
    else if (token == "mm")
        appendPadded(text, t.month, 2);
    else if (token == "dd")
        appendPadded(text, t.day, 2);
    else if (token == "hh")
        appendPadded(text, t.hour, 2);
    else if (token == "nn")
        appendPadded(text, t.minute, 2);
    else if (token == "ss")
        appendPadded(text, t.second, 2);
    else
        text += token;
}

// A decimal number taken apart: no sign and no leading zeros in `whole`.
struct Decimal {
    bool negative = false;
    std::string whole;
    std::string fraction;
};

bool allDigits(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

std::optional<Decimal> plainDecimal(std::string_view text)
{
    Decimal result;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        result.negative = text.front() == '-';
        text.remove_prefix(1);
    }
    const std::size_t point = text.find('.');
    const std::string_view whole = text.substr(0, point);
    const std::string_view fraction =
        point == std::string_view::npos ? std::string_view() : text.substr(point + 1);
    if (!allDigits(whole) || !allDigits(fraction) || whole.size() + fraction.size() == 0) return std::nullopt;
    const std::size_t significant = whole.find_first_not_of('0');
    if (significant != std::string_view::npos) result.whole = whole.substr(significant);
    result.fraction = fraction;
    return result;
}

// A number with an exponent, written out. Not by way of strtod and printf, which follow the process's locale.
std::optional<Decimal> exponential(std::string_view text)
{
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1); // from_chars takes no plus
    double number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc() || end != text.data() + text.size() || !std::isfinite(number)) return std::nullopt;
    std::array<char, 400> plain{};
    const auto written =
        std::to_chars(plain.data(), plain.data() + plain.size(), number, std::chars_format::fixed, 6);
    return plainDecimal({plain.data(), static_cast<std::size_t>(written.ptr - plain.data())});
}

std::optional<Decimal> readDecimal(std::string_view text)
{
    return text.find_first_of("eE") == std::string_view::npos ? plainDecimal(text) : exponential(text);
}

// Adds one to a number written in digits.
void increment(std::string& digits)
{
    for (std::size_t i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.insert(digits.begin(), '1');
}

void roundToCents(Decimal& number)
{
    const bool up = number.fraction.size() > 2 && number.fraction[2] >= '5';
    number.fraction.resize(2, '0');
    if (!up) return;
    std::string cents = number.whole + number.fraction;
    increment(cents);
    number.fraction = cents.substr(cents.size() - 2);
    number.whole = cents.substr(0, cents.size() - 2);
}

} // namespace

std::string formatDate(const DateTime& moment, std::string_view pattern)
{
    std::string text;
    appendDate(text, moment, pattern);
    return text;
}

void appendDate(std::string& text, const DateTime& moment, std::string_view pattern)
{
    while (!pattern.empty()) {
        const std::string_view token = frontRun(pattern);
        appendToken(text, moment, token);
        pattern.remove_prefix(token.size());
    }
}

std::string defaultText(const DateTime& moment)
{
    std::string text;
    appendDefaultText(text, moment);
    return text;
}

// "dd/mm/yyyy hh:nn:ss" without a pattern to be read and in one piece: every date of every list comes through
// here.
void appendDefaultText(std::string& text, const DateTime& moment)
{
    std::array<char, 19> written{};
    std::size_t end = 0;
    const auto put = [&](int number, char behind) {
        written[end++] = static_cast<char>('0' + number / 10 % 10);
        written[end++] = static_cast<char>('0' + number % 10);
        if (behind != '\0') written[end++] = behind;
    };
    if (moment.hasDate()) {
        const bool dayAlone = moment.isMidnight();
        put(moment.day, '/');
        put(moment.month, '/');
        put(moment.year / 100, '\0');
        put(moment.year, dayAlone ? '\0' : ' ');
        if (dayAlone) {
            text.append(written.data(), end);
            return;
        }
    }
    put(moment.hour, ':');
    put(moment.minute, ':');
    put(moment.second, '\0');
    text.append(written.data(), end);
}

std::string formatThreeDigits(std::int64_t number)
{
    const bool negative = number < 0;
    std::string digits = std::to_string(number);
    if (negative) digits.erase(0, 1);
    if (digits.size() < 3) digits.insert(0, 3 - digits.size(), '0');
    if (negative) digits.insert(digits.begin(), '-');
    return digits;
}

std::string formatAmount(std::string_view decimal)
{
    std::optional<Decimal> number = readDecimal(decimal);
    if (!number) return std::string(decimal);
    roundToCents(*number);
    std::string text = number->whole;
    for (std::size_t i = text.size(); i > 3; i -= 3)
        text.insert(i - 3, 1, ',');
    const bool zero = text.empty() && number->fraction == "00";
    if (number->negative && !zero) text.insert(text.begin(), '-');
    text += '.';
    return text += number->fraction;
}

std::string formatTelephone(std::string_view text)
{
    const std::optional<Decimal> number = readDecimal(text);
    if (!number) return std::string(text);
    std::string digits = number->whole;
    if (!number->fraction.empty() && number->fraction.front() >= '5') increment(digits);
    const bool negative = number->negative && !digits.empty();
    // Ten digits make five pairs; those beyond stand ahead of the first one.
    const std::size_t beyond = digits.size() > 10 ? digits.size() - 10 : 0;
    std::string picture = negative ? "-" : "";
    picture.append(digits, 0, beyond);
    const std::string places = std::string(10 - (digits.size() - beyond), ' ').append(digits, beyond);
    for (std::size_t pair = 0; pair < 5; ++pair) {
        if (pair > 0) picture += '-';
        for (const char digit : places.substr(2 * pair, 2))
            if (digit != ' ') picture += digit;
    }
    return picture;
}

} // namespace dn
