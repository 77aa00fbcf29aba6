// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/error.h"
#include "data/failure_modes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>
#include <vector>

namespace dn::data {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

[[noreturn]] void fail(const std::string& text) { throw Error("HY000", 0, text); }

// The failures that were passed over while it lives.
class PassedOver {
public:
    PassedOver()
    {
        observePassedOver([this](const std::exception& failure) { texts.emplace_back(failure.what()); });
    }
    ~PassedOver() { observePassedOver({}); }
    PassedOver(const PassedOver&) = delete;
    PassedOver& operator=(const PassedOver&) = delete;

    std::vector<std::string> texts;
};

TEST(ResumeNext, RunsTheStatement)
{
    int runs = 0;
    const PassedOver passed;
    EXPECT_TRUE(resumeNext([&] { ++runs; }));
    EXPECT_EQ(runs, 1);
    EXPECT_THAT(passed.texts, IsEmpty());
}

TEST(ResumeNext, PassesOverAFailureAndGoesOn)
{
    const PassedOver passed;
    EXPECT_FALSE(resumeNext([] { fail("uno"); }));
    EXPECT_FALSE(resumeNext([] { throw std::logic_error("dos"); }));
    EXPECT_TRUE(resumeNext([] {}));
    EXPECT_THAT(passed.texts, ElementsAre("uno", "dos"));
}

TEST(ResumeNext, LeavesOutTheRestOfACalledProcedure)
{
    std::vector<std::string> steps;
    const auto procedure = [&] {
        steps.emplace_back("a");
        fail("x");
        steps.emplace_back("b");
    };
    resumeNext(procedure);
    steps.emplace_back("c");
    EXPECT_THAT(steps, ElementsAre("a", "c"));
}

TEST(ResumeNext, NeedsNoObserver)
{
    observePassedOver({});
    EXPECT_FALSE(resumeNext([] { fail("x"); }));
}

// What is no std::exception is not a failure of a statement: a cancelled thread, for one.
TEST(ResumeNext, LetsOtherThingsThrough)
{
    EXPECT_THROW(resumeNext([] { throw 5; }), int);
}

TEST(ResumeNext, IsObservedOnItsOwnThread)
{
    const PassedOver passed;
    std::thread([] { resumeNext([] { fail("otro hilo"); }); }).join();
    EXPECT_THAT(passed.texts, IsEmpty());
}

TEST(Trap, HandsTheTextOverAndEndsTheProcedure)
{
    std::vector<std::string> steps;
    trap(
        [&] {
            steps.emplace_back("a");
            fail("Table 'x' doesn't exist");
            steps.emplace_back("b");
        },
        [&](const std::string& text) { steps.push_back("informe: " + text); });
    EXPECT_THAT(steps, ElementsAre("a", "informe: Table 'x' doesn't exist"));
}

TEST(Trap, IsSilentWhenNothingFails)
{
    bool ran = false;
    trap([&] { ran = true; }, [](const std::string& text) { ADD_FAILURE() << text; });
    EXPECT_TRUE(ran);
}

TEST(Trap, SeesNothingThatAResumeNextPassedOver)
{
    trap([] { resumeNext([] { fail("x"); }); }, [](const std::string& text) { ADD_FAILURE() << text; });
}

TEST(Trap, InsideAResumeNextKeepsTheFailureFromIt)
{
    const PassedOver passed;
    std::string reported;
    EXPECT_TRUE(resumeNext([&] { trap([] { fail("x"); }, [&](const std::string& text) { reported = text; }); }));
    EXPECT_EQ(reported, "x");
    EXPECT_THAT(passed.texts, IsEmpty());
}

} // namespace
} // namespace dn::data
