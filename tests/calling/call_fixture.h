// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A control with two prospects, the first one selected, and everything that a call does written down in its order:
// the statements, and the windows that come up between them.
#pragma once

#include "tests/support/control_fixture.h"
#include "tests/support/element_tree.h"
#include "tests/today/fixture.h"

#include <string>
#include <vector>

namespace dn::tests {

/// What the operator sees of a call.
enum class CallState : std::uint8_t { idle, ringing, onTheLine, summary, torn };

std::ostream& operator<<(std::ostream& out, CallState state);

class CallTest : public ControlTest {
protected:
    static constexpr const char* load = "(loads the prospects)";
    static constexpr const char* timeline = "(loads the timeline)";
    static constexpr const char* question = "(asks what to do)";
    static constexpr const char* scheduling = "(asks when)";

    CallTest();
    void SetUp() override;

    desk::CallElements& call() { return elements().call; }
    desk::DetailElements& detail() { return elements().detail; }

    /// Where the call stands; `torn` when what shows, what is locked and what the control says do not agree.
    CallState state();
    bool locked(bool yes);

    /// Calls the selected prospect by the button.
    void rings();
    void isOnTheLine();
    void isInSummary();

    /// The question what happens next will come: it is answered, 1 to 4, or closed.
    void decides(int option);
    void closesTheQuestion();

    /// The line that a note of the prospect 12 writes.
    static std::string noteOf(const std::string& text);

    std::vector<std::string> steps; ///< since the last start
};

/// A control with the prospects 12 and 13 and the projects 12 and 88, the prospect 13 and both projects in the
/// queue of the day. The prospects have the numbers 111 and 222, the projects 961; the queue shows others.
class CallAnyoneTest : public TodayTest {
protected:
    void SetUp() override;

    desk::CallElements& call() { return elements().call; }
    desk::Button& cmdCall() { return elements().detail.cmdCall; }

    /// The question what happens next will come and is closed.
    void closesTheQuestion();
    /// The statements sent that change something.
    std::vector<std::string> changes() const;
    void expectIdle();
};

} // namespace dn::tests
