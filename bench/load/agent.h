// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One agent at work: the control below its widgets, and somebody who answers whatever it asks.
#pragma once

#include "bench/load/load.h"
#include "bench/load/watched_connection.h"
#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "shell/ctr_dn_contacts.h"

#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace dn::bench {

/// Gives a reason to every question and agrees to the rest.
class AnsweringDialogs : public screen::Dialogs {
public:
    screen::Answer MsgBox(const screen::MessageBox& box) override
    {
        return box.buttons == screen::MessageBox::Buttons::yesNo ? screen::Answer::yes : screen::Answer::ok;
    }
    std::string InputBox(const std::string&) override { return "motivo de la carga"; }
    std::optional<screen::SaveChoice> ShowSave(const std::string&) override { return std::nullopt; }
};

class PointerOnly : public screen::Pointer {
public:
    int MousePointer() const override { return shape_; }
    void MousePointer(int shape) override { shape_ = shape; }

private:
    int shape_ = standard;
};

/// Answers the two windows that a call and a double click bring.
class AnsweringLoop : public screen::EventLoop {
public:
    void DoEvents() override {}
    void ShowModal(screen::Form& form) override;

    bool schedules = true; ///< agrees on a next call; else the question is closed
};

class MachineClock : public screen::Clock {
public:
    DateTime Now() const override;
};

class Agent {
public:
    /// Connects and starts the control, up to the list of the prospects.
    Agent(const LoadOptions& options, std::size_t number);

    /// Does something, and looks whether it became what it should.
    void act();

    const std::vector<Step>& steps() const { return steps_; }
    /// Steps taken, kept or not.
    std::size_t actions() const { return actions_; }
    const std::vector<std::string>& wrong() const { return wrong_; }
    std::size_t statements() const { return statements_; }
    /// Notes that were registered, each a line in the activity log.
    std::size_t notes() const { return notes_; }
    double startMilliseconds() const { return start_; }
    /// A moment to think, in the manner of this agent.
    std::chrono::milliseconds thought();

    /// What all users of a load have ahead of their numbers in the activity log.
    static constexpr const char* userPrefix = "carga ";

private:
    Step timed(Action action, const std::function<void()>& work);
    void keep(const Step& step);
    void record(Action action, const std::function<void()>& work, const std::function<bool()>& right);
    Action choose();
    std::string clickSomeRow();
    void changeStatus();
    void callOnce(bool reaches);
    void scheduleNext();
    void workTheQueue();
    void openTab(int tab);
    void openList(Action action, desk::Tab tab, screen::ListView& list);
    int expectedRows(desk::Tab tab);
    void searchLast();
    void sortBySome();
    void discardSome();
    screen::ListView& lvw() { return control_.elements().prospects.lvw; }
    bool timelineHolds(const std::string& text);
    bool detailShows(const std::string& key);
    int dueRows();

    std::mt19937_64 random_;
    std::chrono::milliseconds thinking_;
    AnsweringDialogs dialogs_;
    PointerOnly pointer_;
    AnsweringLoop events_;
    MachineClock clock_;
    WatchedConnection connection_;
    std::int32_t agent_;
    bool supervises_;
    std::map<desk::Tab, int> rowsOfTab_; ///< of the lists whose length nobody changes
    int prospects_ = 0;                  ///< likewise
    ctrDnContacts control_{screen::Ports{dialogs_, pointer_, events_, clock_}};

    std::size_t kept_;
    std::size_t actions_ = 0;
    std::vector<Step> steps_;
    std::vector<std::string> wrong_;
    std::size_t statements_ = 0;
    std::size_t notes_ = 0;
    double start_ = 0;
};

} // namespace dn::bench
