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
    /// To nothing.
    Subscription() = default;

    /// @param cut ends the listening; called once.
    explicit Subscription(std::function<void()> cut) : cut_(std::move(cut)) {}

    /// The other one listens to nothing any more.
    Subscription(Subscription&& other) noexcept : cut_(std::exchange(other.cut_, nullptr)) {}

    /// Ends its own listening and takes over the other's.
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

    /// Ends the listening now.
    void reset()
    {
        if (auto cut = std::exchange(cut_, nullptr)) cut();
    }

private:
    std::function<void()> cut_;
};

/// An event. @tparam Arguments what it tells its listeners.
template <class... Arguments>
class Signal {
public:
    /// A listener.
    using Slot = std::function<void(Arguments...)>;

    Signal() = default;
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;

    /// @param slot is called at each emission from now on. @return ends the listening when it goes.
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

    /// How many listen now.
    std::size_t listeners() const { return slots_->size(); }

private:
    std::shared_ptr<std::vector<std::shared_ptr<Slot>>> slots_ =
        std::make_shared<std::vector<std::shared_ptr<Slot>>>();
};

/// Subscriptions that end together; the last member of whoever listens, so that they are cut first.
using Subscriptions = std::vector<Subscription>;

} // namespace dn::screen
