// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A bar that shows how far something is.
#pragma once

#include "base/export.h"
#include "screen/element.h"
#include "screen/visitor.h"

namespace dn::screen {

class DN_INTERNAL ProgressBar : public Element {
public:
    using Element::Element;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    int Min() const { return min_; }

    int Max() const { return max_; }

    void Range(int min, int max)
    {
        set(min_, min);
        set(max_, max);
    }

    int Value() const { return value_; }

    /// @throws RuntimeError for a value outside the range.
    void Value(int value);

private:
    int min_ = 0;
    int max_ = 100;
    int value_ = 0;
};

} // namespace dn::screen
