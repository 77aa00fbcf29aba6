// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A repeating timer. It has no place on the screen; the view's event loop makes it tick.
#pragma once

#include "screen/element.h"
#include "screen/visitor.h"

namespace dn::screen {

class Timer : public Element {
public:
    using Element::Element;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    int Interval() const { return interval_; } ///< milliseconds; 0 never ticks

    void Interval(int milliseconds) { set(interval_, milliseconds); }

    /// The element that the ticks move, where they do nothing else. While that one does not show, the ticks may
    /// come late and several together, so that nobody wakes up for what nobody sees.
    const Element* Moves() const { return moves_; }

    /// @param element outlives the timer.
    void Moves(const Element& element) { set<const Element*>(moves_, &element); }

    /// The interval has passed.
    void tick()
    {
        if (Enabled() && interval_ > 0) TimerEvent.emit();
    }

    Signal<> TimerEvent;

private:
    int interval_ = 0;
    const Element* moves_ = nullptr;
};

} // namespace dn::screen
