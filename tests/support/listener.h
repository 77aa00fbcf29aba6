// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Counts how often a signal was raised, for as long as it lives.
#pragma once

#include "screen/signal.h"

namespace dn::tests {

class Listener {
public:
    template <class... Arguments>
    explicit Listener(screen::Signal<Arguments...>& signal)
        : subscription_(signal.connect([this](Arguments...) { ++count_; }))
    {
    }

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    int count() const { return count_; }

private:
    int count_ = 0;
    screen::Subscription subscription_;
};

} // namespace dn::tests
