// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A moment on the calendar, without a time zone: what the database stores, what the clock port gives and
// what the calendars of the dialogs hold.
#pragma once

#include "base/export.h"

#include <compare>
#include <cstdint>
#include <optional>
#include <string_view>

namespace dn {

/// A day of the calendar, a time of day, or both.
struct DN_EXPORT DateTime {
    std::int16_t year = 0;        ///< 0 in a time of day without a date
    std::int8_t month = 0;        ///< 1 to 12; 0 in a time of day without a date
    std::int8_t day = 0;          ///< 1 to 31; 0 in a time of day without a date
    std::int8_t hour = 0;         ///< 0 to 23
    std::int8_t minute = 0;       ///< 0 to 59
    std::int8_t second = 0;       ///< 0 to 59
    std::int32_t microsecond = 0; ///< 0 to 999,999

    /// Earlier is less.
    auto operator<=>(const DateTime&) const = default; // NOLINT(modernize-use-nullptr): a false alarm

    bool hasDate() const { return month != 0; } ///< or only a time of day
    /// A date that came without a time is midnight, too.
    bool isMidnight() const { return hour == 0 && minute == 0 && second == 0 && microsecond == 0; }
    DateTime date() const;      ///< the same day at midnight
    DateTime timeOfDay() const; ///< the same time without a date

    DateTime plusSeconds(std::int64_t count) const; ///< earlier for a negative count
    /// The same time on another day.
    DateTime plusDays(std::int64_t count) const { return plusSeconds(count * 86'400); }
};

/// Reads "yyyy-mm-dd", "yyyy-mm-dd hh:nn[:ss[.ffffff]]" (a "T" for the blank is taken too) and "hh:nn:ss", the
/// forms in which the databases deliver dates. Nothing for any other text and for a day that no calendar has.
DN_EXPORT std::optional<DateTime> parseIso(std::string_view text);

/// Whole days from one date to another, times left aside; negative when `to` is earlier.
DN_EXPORT std::int64_t daysBetween(const DateTime& from, const DateTime& to);

} // namespace dn
