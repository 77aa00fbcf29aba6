// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A repeating timer. It has no place on the screen; the view's event loop makes it tick.
#pragma once

#include "base/export.h"
#include "screen/element.h"
#include "screen/visitor.h"

namespace dn::screen {

class DN_INTERNAL Timer : public Element {
public:
    using Element::Element;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    int Interval() const { return interval_; } ///< milliseconds; 0 never ticks

    void Interval(int milliseconds) { set(interval_, milliseconds); }

    /// The element that the ticks move, where they do nothing else. While that one does not show, the ticks may
    /// stay away and come together when it shows again, so that nobody wakes up for what nobody sees.
    Element* Moves() const { return moves_; }

    /// How many ticks bring that element back to where it was.
    int Round() const { return round_; }

    /// @param element outlives the timer. @param round at least 1.
    void Moves(Element& element, int round)
    {
        round_ = round;
        set<Element*>(moves_, &element);
    }

    /// The interval has passed.
    void tick()
    {
        if (Enabled() && interval_ > 0) TimerEvent.emit();
    }

    Signal<> TimerEvent;

private:
    int interval_ = 0;
    int round_ = 1;
    Element* moves_ = nullptr;
};

} // namespace dn::screen
