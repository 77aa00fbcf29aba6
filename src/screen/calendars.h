// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Where a date and a time of day are picked: a month on the screen, and a field for hours, minutes and
// seconds.
#pragma once

#include "base/date_time.h"
#include "base/export.h"
#include "screen/element.h"
#include "screen/visitor.h"

namespace dn::screen {

class DN_INTERNAL MonthView : public Element {
public:
    using Element::Element;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    const DateTime& Value() const { return value_; } ///< a date at midnight

    void Value(const DateTime& value) { set(value_, value.date()); }

    /// The operator picks a day.
    void pick(const DateTime& day)
    {
        if (usable()) Value(day);
    }

private:
    DateTime value_;
};

class DN_INTERNAL DTPicker : public Element {
public:
    using Element::Element;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    const DateTime& Value() const { return value_; } ///< a time of day without a date

    void Value(const DateTime& value) { set(value_, value.timeOfDay()); }

    /// The operator enters a time.
    void pick(const DateTime& time)
    {
        if (usable()) Value(time);
    }

private:
    DateTime value_;
};

} // namespace dn::screen
