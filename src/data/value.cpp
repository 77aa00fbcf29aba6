// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/value.h"

#include "base/format.h"
#include "base/runtime_error.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace dn::data {
namespace {

double parseNumber(std::string_view text)
{
    double number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure == std::errc::result_out_of_range) throw RuntimeError::overflow();
    const bool whole = failure == std::errc() && end == text.data() + text.size();
    if (!whole || !std::isfinite(number)) throw RuntimeError::typeMismatch(); // "nan" and "inf" are texts here
    return number;
}

// Half to even, as the platform's conversions round; the current rounding mode of the process is that one.
std::int64_t rounded(double number)
{
    const double whole = std::nearbyint(number);
    if (whole < -0x1p63 || whole >= 0x1p63) throw RuntimeError::overflow();
    return static_cast<std::int64_t>(whole);
}

template <class Narrow>
Narrow narrowed(std::int64_t number)
{
    if (number < std::numeric_limits<Narrow>::min() || number > std::numeric_limits<Narrow>::max())
        throw RuntimeError::overflow();
    return static_cast<Narrow>(number);
}

} // namespace

std::string Value::toText() const
{
    switch (kind_) {
    case Kind::null:
        throw RuntimeError::invalidUseOfNull();
    case Kind::boolean:
        return toBoolean() ? "Verdadero" : "Falso";
    case Kind::dateTime:
        return defaultText(toDateTime());
    case Kind::whole:
    case Kind::number:
    case Kind::text:
        break;
    }
    return std::string(raw_);
}

std::int64_t Value::toWhole() const
{
    if (isNull()) throw RuntimeError::invalidUseOfNull();
    std::int64_t number = 0;
    const char* const end = raw_.data() + raw_.size();
    const auto [stop, failure] = std::from_chars(raw_.data(), end, number);
    if (stop == end && failure == std::errc()) return number;
    if (stop == end && failure == std::errc::result_out_of_range) throw RuntimeError::overflow();
    return rounded(toNumber());
}

std::int32_t Value::toInt32() const { return narrowed<std::int32_t>(toWhole()); }

std::int16_t Value::toInt16() const { return narrowed<std::int16_t>(toWhole()); }

double Value::toNumber() const
{
    if (isNull()) throw RuntimeError::invalidUseOfNull();
    if (kind_ == Kind::dateTime) throw RuntimeError::typeMismatch();
    return parseNumber(raw_);
}

bool Value::toBoolean() const
{
    const bool isFlag = kind_ == Kind::boolean || kind_ == Kind::whole;
    if (isFlag && (raw_ == "0" || raw_ == "1")) return raw_ == "1"; // as nearly every one comes
    return toNumber() != 0;
}

DateTime Value::toDateTime() const
{
    if (isNull()) throw RuntimeError::invalidUseOfNull();
    if (const auto moment = parseIso(raw_)) return *moment;
    throw RuntimeError::typeMismatch();
}

} // namespace dn::data
