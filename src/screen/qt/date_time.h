// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Dates and times on their way to and from the toolkit.
#pragma once

#include "base/date_time.h"

#include <QDate>
#include <QTime>

namespace dn::screen::qt {

inline DateTime toDateTime(const QDate& date)
{
    DateTime result;
    result.year = static_cast<std::int16_t>(date.year());
    result.month = static_cast<std::int8_t>(date.month());
    result.day = static_cast<std::int8_t>(date.day());
    return result;
}

inline DateTime toDateTime(const QTime& time)
{
    DateTime result;
    result.hour = static_cast<std::int8_t>(time.hour());
    result.minute = static_cast<std::int8_t>(time.minute());
    result.second = static_cast<std::int8_t>(time.second());
    return result;
}

/// Invalid for a moment without a date.
inline QDate toQDate(const DateTime& moment) { return {moment.year, moment.month, moment.day}; }

inline QTime toQTime(const DateTime& moment) { return {moment.hour, moment.minute, moment.second}; }

} // namespace dn::screen::qt
