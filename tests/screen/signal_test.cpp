// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Who hears a signal, in which order, and what happens when listeners and signals come and go meanwhile.

#include "screen/signal.h"

#include <gmock/gmock.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace dn::screen {
namespace {

using testing::ElementsAre;

TEST(Signal, calls_its_listeners_in_the_order_in_which_they_came)
{
    Signal<int> signal;
    std::vector<std::string> heard;
    const auto first = signal.connect([&](int n) { heard.push_back("first " + std::to_string(n)); });
    const auto second = signal.connect([&](int n) { heard.push_back("second " + std::to_string(n)); });

    signal.emit(3);
    signal.emit(4);

    EXPECT_THAT(heard, ElementsAre("first 3", "second 3", "first 4", "second 4"));
}

TEST(Signal, hands_a_reference_through_all_listeners)
{
    Signal<int&> signal;
    const auto plusOne = signal.connect([](int& n) { n += 1; });
    const auto timesTen = signal.connect([](int& n) { n *= 10; });
    int value = 2;

    signal.emit(value);

    EXPECT_EQ(value, 30);
}

TEST(Signal, is_not_heard_any_more_once_the_subscription_ends)
{
    Signal<> signal;
    int heard = 0;
    auto subscription = std::make_optional(signal.connect([&] { ++heard; }));
    signal.emit();
    EXPECT_EQ(signal.listeners(), 1U);

    subscription.reset();
    signal.emit();

    EXPECT_EQ(heard, 1);
    EXPECT_EQ(signal.listeners(), 0U);
}

TEST(Signal, does_not_call_a_listener_that_came_during_the_emission)
{
    Signal<> signal;
    Subscriptions late;
    int lateHeard = 0;
    const auto early = signal.connect([&] { late.push_back(signal.connect([&] { ++lateHeard; })); });

    signal.emit();
    EXPECT_EQ(lateHeard, 0);
    EXPECT_EQ(signal.listeners(), 2U);

    signal.emit();
    EXPECT_EQ(lateHeard, 1);
}

TEST(Signal, does_not_call_a_listener_that_was_cut_during_the_emission)
{
    Signal<> signal;
    std::vector<std::string> heard;
    Subscription victim;
    const auto cutter = signal.connect([&] {
        heard.emplace_back("cutter");
        victim.reset();
    });
    victim = signal.connect([&] { heard.emplace_back("victim"); });
    const auto last = signal.connect([&] { heard.emplace_back("last"); });

    signal.emit();

    EXPECT_THAT(heard, ElementsAre("cutter", "last"));
}

TEST(Signal, lets_a_listener_cut_itself_and_go_on_with_what_it_holds)
{
    Signal<> signal;
    std::string heard;
    Subscription itself;
    itself = signal.connect([&heard, &itself, text = std::make_shared<std::string>("still here")] {
        itself.reset();
        heard += *text;
    });

    signal.emit();
    signal.emit();

    EXPECT_EQ(heard, "still here");
}

TEST(Signal, calls_the_listeners_that_are_left_when_it_dies_in_one)
{
    auto signal = std::make_unique<Signal<>>();
    std::vector<std::string> heard;
    const auto killer = signal->connect([&] {
        heard.emplace_back("killer");
        signal.reset();
    });
    const auto heir = signal->connect([&] { heard.emplace_back("heir"); });

    signal->emit();

    EXPECT_EQ(signal, nullptr);
    EXPECT_THAT(heard, ElementsAre("killer", "heir"));
}

TEST(Signal, raised_again_from_a_listener_reaches_all_of_them_each_time)
{
    Signal<int> signal;
    std::vector<std::string> heard;
    const auto nested = signal.connect([&](int depth) {
        heard.push_back("a" + std::to_string(depth));
        if (depth < 1) signal.emit(depth + 1);
    });
    const auto plain = signal.connect([&](int depth) { heard.push_back("b" + std::to_string(depth)); });

    signal.emit(0);

    EXPECT_THAT(heard, ElementsAre("a0", "a1", "b1", "b0"));
}

TEST(Signal, lets_a_failure_of_a_listener_reach_whoever_raised_it)
{
    Signal<> signal;
    int heard = 0;
    const auto failing = signal.connect([] { throw std::runtime_error("no"); });
    const auto behind = signal.connect([&] { ++heard; });

    EXPECT_THROW(signal.emit(), std::runtime_error);
    EXPECT_EQ(heard, 0);
}

TEST(Subscription, may_outlive_its_signal)
{
    std::optional<Signal<>> signal(std::in_place);
    int heard = 0;
    Subscription subscription = signal->connect([&] { ++heard; });
    signal->emit();
    signal.reset();

    subscription.reset();

    EXPECT_EQ(heard, 1);
}

TEST(Subscription, frees_what_its_listener_holds_when_it_ends)
{
    Signal<> signal;
    auto held = std::make_shared<int>(1);
    Subscription subscription = signal.connect([held] { ++*held; });
    EXPECT_GT(held.use_count(), 1);

    subscription.reset();

    EXPECT_EQ(held.use_count(), 1);
}

TEST(Subscription, keeps_listening_when_it_is_moved)
{
    Signal<> signal;
    int heard = 0;
    Subscription from = signal.connect([&] { ++heard; });
    const Subscription to(std::move(from));

    signal.emit();

    EXPECT_EQ(heard, 1);
}

TEST(Subscription, ends_when_another_is_moved_into_it)
{
    Signal<> old;
    Signal<> young;
    std::vector<std::string> heard;
    Subscription subscription = old.connect([&] { heard.emplace_back("old"); });
    subscription = young.connect([&] { heard.emplace_back("young"); });

    old.emit();
    young.emit();

    EXPECT_THAT(heard, ElementsAre("young"));
}

TEST(Subscription, moved_into_itself_goes_on)
{
    Signal<> signal;
    int heard = 0;
    Subscription subscription = signal.connect([&] { ++heard; });
    Subscription& alias = subscription;
    subscription = std::move(alias);

    signal.emit();

    EXPECT_EQ(heard, 1);
}

TEST(Subscriptions, end_together)
{
    Signal<> signal;
    Subscriptions wires;
    for (int i = 0; i < 3; ++i)
        wires.push_back(signal.connect([] {}));
    ASSERT_EQ(signal.listeners(), 3U);

    wires.clear();

    EXPECT_EQ(signal.listeners(), 0U);
}

} // namespace
} // namespace dn::screen
