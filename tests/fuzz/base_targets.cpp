// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Texts, dates, numbers and the order of texts.

#include "base/collation.h"
#include "base/date_time.h"
#include "base/format.h"
#include "base/no_case_pattern.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "data/value.h"
#include "tests/fuzz/input.h"
#include "tests/fuzz/targets.h"

#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace dn::fuzz {
namespace {

bool isFigure(char c) { return c >= '0' && c <= '9'; }

std::string figuresOf(std::string_view text)
{
    std::string figures;
    std::copy_if(text.begin(), text.end(), std::back_inserter(figures), isFigure);
    return figures;
}

/// What a conversion gives; nothing where it refuses.
template <class Result>
std::optional<Result> unlessRefused(const data::Value& value, Result (data::Value::*convert)() const)
{
    try {
        return (value.*convert)();
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

template <class Narrow>
void requireFits(const data::Value& value, Narrow (data::Value::*convert)() const)
{
    const auto wide = unlessRefused(value, &data::Value::toWhole);
    const auto narrow = unlessRefused(value, convert);
    const bool fits =
        wide && *wide >= std::numeric_limits<Narrow>::min() && *wide <= std::numeric_limits<Narrow>::max();
    require(narrow.has_value() == fits,
            "a narrow number is refused where the wide one does not fit, and only then");
    require(!narrow || *narrow == *wide, "a narrow number is the wide one");
}

/// Whole units and fraction of a text that is a plain decimal of few figures; nothing for any other.
struct SmallDecimal {
    bool negative;
    std::int64_t thousandths;
};

std::optional<SmallDecimal> smallDecimal(std::string_view text)
{
    const bool negative = text.starts_with('-');
    if (negative) text.remove_prefix(1);
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::string_view whole = text.substr(0, point);
    const std::string_view fraction = text.substr(std::min(point + 1, text.size()));
    if (whole.empty() || whole.size() > 15 || figuresOf(text).size() != whole.size() + fraction.size()) return {};
    if (whole.size() + fraction.size() + (point < text.size() ? 1 : 0) != text.size()) return {};
    return SmallDecimal{negative, std::stoll(std::string(whole) + (std::string(fraction) + "000").substr(0, 3))};
}

void requirePicture(const std::string& amount)
{
    std::string_view rest = amount;
    if (rest.starts_with('-')) rest.remove_prefix(1);
    require(rest.size() >= 3 && rest[rest.size() - 3] == '.', "an amount has two decimals");
    const std::string_view whole = rest.substr(0, rest.size() - 3);
    require(!whole.starts_with('0') && !whole.starts_with(','), "an amount begins with no zero");
    for (std::size_t fromPoint = 1; fromPoint <= whole.size(); ++fromPoint)
        require((whole[whole.size() - fromPoint] == ',') == (fromPoint % 4 == 0), "commas divide thousands");
}

int sign(int number) { return number < 0 ? -1 : number > 0 ? 1 : 0; }

} // namespace

void dates(Input& input)
{
    const std::int64_t days = input.number() % 100'000;
    const std::string text = input.rest();
    const auto moment = parseIso(text);
    if (!moment) return;
    require(text.find_first_not_of("0123456789-: T.") == std::string::npos, "a date is made of figures and signs");
    const bool dated = moment->hasDate();
    const std::string pattern = dated ? "yyyy-mm-dd hh:nn:ss" : "hh:nn:ss";
    DateTime whole = *moment;
    whole.microsecond = 0;
    require(parseIso(formatDate(whole, pattern)) == whole, "a date that was read is read back from its text");
    require(moment->date().isMidnight() && !moment->timeOfDay().hasDate(), "a date and a time are its parts");
    if (!dated) return;
    const DateTime later = moment->plusDays(days);
    require(later.year < 1 || later.year > 9999 || parseIso(formatDate(later, "yyyy-mm-dd")).has_value(),
            "a later day is a day of the calendar");
    require(daysBetween(*moment, later) == days, "so many days later is so many days later");
    require(later.plusDays(-days) == *moment, "the way back leads back");
}

void formats(Input& input)
{
    const std::int64_t number = input.number();
    const std::string three = formatThreeDigits(number);
    require(std::stoll(three) == number && figuresOf(three).size() >= 3, "a count reads back, of three figures");
    const DateTime moment{2026, 3, 14, 9, 30, 5};
    const std::string pattern = input.text();
    const std::string text = input.rest();
    require(formatDate(moment, pattern + "|" + text) ==
                formatDate(moment, pattern) + "|" + formatDate(moment, text),
            "a pattern is written piece by piece");
    if (pattern.find_first_of("ymdhns") == std::string::npos)
        require(formatDate(moment, pattern) == pattern, "other characters stand for themselves");
    const std::string amount = formatAmount(text);
    if (amount != text) requirePicture(amount);
    if (const auto small = smallDecimal(text)) {
        const std::int64_t cents = (small->thousandths + 5) / 10;
        require(std::stoll(figuresOf(amount)) == cents, "an amount is rounded half away from zero");
        require(amount.starts_with('-') == (small->negative && cents != 0), "an amount keeps its sign");
    }
    const std::string telephone = formatTelephone(text);
    require(telephone == text || std::count(telephone.begin(), telephone.end(), '-') >= 4, "hyphens always show");
    if (!text.empty() && figuresOf(text) == text)
        require(figuresOf(telephone) == text.substr(std::min(text.find_first_not_of('0'), text.size())),
                "a telephone keeps its figures");
}

void values(Input& input)
{
    using data::Value;
    constexpr std::array kinds{Value::Kind::null,   Value::Kind::boolean, Value::Kind::whole,
                               Value::Kind::number, Value::Kind::text,    Value::Kind::dateTime};
    const Value::Kind kind = kinds.at(input.choice(kinds.size()));
    const std::string raw = input.rest();
    const Value value(kind, raw);
    const auto text = unlessRefused(value, &Value::toText);
    const auto whole = unlessRefused(value, &Value::toWhole);
    const auto number = unlessRefused(value, &Value::toNumber);
    const auto moment = unlessRefused(value, &Value::toDateTime);
    const bool plain = kind == Value::Kind::text || kind == Value::Kind::whole || kind == Value::Kind::number;
    if (plain) require(text == raw, "texts and numbers stand as they are");
    if (kind == Value::Kind::dateTime)
        require(text.has_value() == moment.has_value(), "what is a date has a text");
    if (kind == Value::Kind::null) require(!text && !whole && !number && !moment, "a null is nothing");
    if (whole && number && std::abs(*number) < 0x1p52)
        require(std::abs(static_cast<double>(*whole) - *number) <= 0.5, "a whole number is the nearest one");
    require(!number || std::isfinite(*number), "a number is one");
    require(unlessRefused(value, &Value::toBoolean) == (number ? std::optional(*number != 0) : std::nullopt),
            "any number but 0 is true");
    requireFits(value, &Value::toInt32);
    requireFits(value, &Value::toInt16);
}

void texts(Input& input)
{
    const std::string part = input.text();
    const std::string text = input.rest();
    std::string again;
    std::size_t count = 0;
    for (std::string_view left = text; !left.empty(); ++count)
        appendCharacter(again, takeCharacter(left));
    require(again == text, "a text is put together again from its characters");
    require(length(text) == count, "a length counts characters");
    const std::string_view core = trimmed(text);
    require(!core.starts_with(' ') && !core.ends_with(' '), "a trimmed text has no blanks at its ends");
    require(text.find(core) != std::string::npos, "a trimmed text is a piece of the text");
    const std::string lower = toLower(text);
    require(toLower(lower) == lower, "a folded text is folded");
    require(equalsNoCase(text, lower) && equalsNoCase(lower, text), "a text equals its folded form");
    require(containsNoCase(part + " " + text, text) && containsNoCase(text, ""),
            "a text holds its end and the empty one");
    require(!containsNoCase(text, part) || length(toLower(part)) <= length(text), "no text holds a longer one");
    if (lower.find(toLower(part)) == std::string::npos)
        require(!containsNoCase(text, part), "a text holds what its folded form holds");
    if (part.empty()) return;
    const std::string rest = without(text, part);
    require((text.size() - rest.size()) % part.size() == 0, "whole parts are taken out");
    require((rest == text) == (text.find(part) == std::string::npos), "no part is left in its place");
}

void order(Input& input)
{
    const std::string first = input.text();
    const std::string second = input.text();
    const std::string third = input.rest();
    const auto key = [](const std::string& text) {
        std::string bytes;
        appendCollationKey(bytes, text);
        return bytes;
    };
    const int before = compareSpanish(first, second);
    require(sign(before) == -sign(compareSpanish(second, first)), "an order has two directions");
    require(compareSpanish(first, first) == 0 && compareSpanish(first, toLower(first)) == 0,
            "case does not matter");
    require(sign(key(first).compare(key(second))) == sign(before), "keys have the order of their texts");
    if (before <= 0 && compareSpanish(second, third) <= 0)
        require(compareSpanish(first, third) <= 0, "an order leads from the first to the third");
    if (!first.empty()) require(compareSpanish("", first) < 0, "an empty text comes first");
}

} // namespace dn::fuzz
