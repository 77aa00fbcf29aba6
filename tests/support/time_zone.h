// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The time zone of the machine, for as long as a test needs it.
#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace dn::tests {

class InTimeZone {
public:
    /// @param rule as POSIX writes it, so that no table of zones need be installed.
    explicit InTimeZone(const char* rule)
    {
        if (const char* const was = std::getenv("TZ")) was_ = was;
        set(rule);
    }
    InTimeZone(const InTimeZone&) = delete;
    InTimeZone& operator=(const InTimeZone&) = delete;
    ~InTimeZone() { set(was_ ? was_->c_str() : nullptr); }

    /// Madrid: summer time from the last Sunday of March, 2:00, to the last one of October, 3:00.
    static constexpr const char* madrid = "CET-1CEST,M3.5.0,M10.5.0/3";
    /// New York: from the second Sunday of March to the first one of November.
    static constexpr const char* newYork = "EST5EDT,M3.2.0,M11.1.0";
    /// Lord Howe: half an hour, and summer at the turn of the year.
    static constexpr const char* lordHowe = "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0";

private:
    static void set(const char* rule)
    {
        if (rule != nullptr)
            ::setenv("TZ", rule, 1);
        else
            ::unsetenv("TZ");
        ::tzset();
    }

    std::optional<std::string> was_;
};

} // namespace dn::tests
