// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The events of the elements: synchronous calls of whoever listens, in the order in which they began to
// listen.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace dn::screen {

/// Listening to a signal. It ends when this object goes away, whichever of signal and listener dies first.
class Subscription {
public:
    Subscription() = default;

    explicit Subscription(std::function<void()> cut) : cut_(std::move(cut)) {}

    Subscription(Subscription&& other) noexcept : cut_(std::exchange(other.cut_, nullptr)) {}

    Subscription& operator=(Subscription&& other) noexcept
    {
        if (this != &other) {
            reset();
            cut_ = std::exchange(other.cut_, nullptr);
        }
        return *this;
    }

    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

    ~Subscription() { reset(); }

    void reset()
    {
        if (auto cut = std::exchange(cut_, nullptr)) cut();
    }

private:
    std::function<void()> cut_;
};

template <class... Arguments>
class Signal {
public:
    using Slot = std::function<void(Arguments...)>;

    Signal() = default;
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;

    [[nodiscard]] Subscription connect(Slot slot)
    {
        auto entry = std::make_shared<Slot>(std::move(slot));
        slots_->push_back(entry);
        return Subscription([slots = std::weak_ptr(slots_), entry] {
            *entry = nullptr; // not called again, even when an emission is under way
            if (const auto all = slots.lock()) std::erase(*all, entry);
        });
    }

    /// Calls every listener. Listeners may come and go meanwhile, and the signal itself may die in a
    /// listener.
    void emit(Arguments... arguments) const
    {
        const auto now = *slots_; // a copy: whoever comes during the emission is not called by it
        for (const auto& slot : now) {
            if (!*slot) continue;
            const Slot call = *slot; // a copy: a listener may cut itself while it runs
            call(arguments...);
        }
    }

    std::size_t listeners() const { return slots_->size(); }

private:
    std::shared_ptr<std::vector<std::shared_ptr<Slot>>> slots_ =
        std::make_shared<std::vector<std::shared_ptr<Slot>>>();
};

/// Subscriptions that end together; the last member of whoever listens, so that they are cut first.
using Subscriptions = std::vector<Subscription>;

} // namespace dn::screen
