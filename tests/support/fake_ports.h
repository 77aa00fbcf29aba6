// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The ports of a screen for tests: a clock that is set, questions that are scripted, a pointer that is remembered.
//
//     FakePorts ports;
//     ports.clock.now = {2026, 3, 14, 9, 30, 0};
//     ports.dialogs.expectInput("Motivo:", "no contesta");
//     ports.dialogs.expectBox("¿Seguro?", screen::Answer::yes);
//     ctrDnContacts control(ports.ports());
//
// A question that nobody scripted fails the test, and so does an answer that nobody asked for.
#pragma once

#include "screen/ports.h"

#include <deque>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace dn::tests {

class FakeDialogs : public screen::Dialogs {
public:
    ~FakeDialogs() override;

    /// The next question will be a message box of this prompt, without an icon and a title of its own, and with
    /// the buttons that the answer is one of.
    void expectBox(std::string prompt, screen::Answer answer = screen::Answer::ok);
    /// The next question will be a message box, whose text and style are looked at afterwards.
    void expectAnyBox(screen::Answer answer = screen::Answer::ok);
    /// The next question will be an input box of this prompt.
    void expectInput(std::string prompt, std::string answer);
    /// The next question will be a save dialog.
    void expectSave(std::optional<screen::SaveChoice> answer);
    /// Whether every scripted answer was asked for.
    bool done() const { return script_.empty(); }

    /// Every message box that was shown, in order.
    const std::vector<screen::MessageBox>& boxes() const { return boxes_; }
    /// The filter of every save dialog that was shown, in order.
    const std::vector<std::string>& filters() const { return filters_; }

    std::function<void()> onBox; ///< what is looked at while a message box shows

    screen::Answer MsgBox(const screen::MessageBox& box) override;
    std::string InputBox(const std::string& prompt) override;
    std::optional<screen::SaveChoice> ShowSave(const std::string& filter) override;

private:
    struct BoxStep {
        std::optional<std::string> prompt;
        screen::Answer answer;
    };
    struct InputStep {
        std::string prompt;
        std::string answer;
    };
    struct SaveStep {
        std::optional<screen::SaveChoice> answer;
    };

    template <class Step>
    std::optional<Step> next(const std::string& question);

    std::deque<std::variant<BoxStep, InputStep, SaveStep>> script_;
    std::vector<screen::MessageBox> boxes_;
    std::vector<std::string> filters_;
};

class FakePointer : public screen::Pointer {
public:
    int MousePointer() const override { return shape_; }
    void MousePointer(int shape) override
    {
        shape_ = shape;
        shapes.push_back(shape);
    }

    std::vector<int> shapes; ///< every shape that was set, in order

private:
    int shape_ = standard;
};

class FakeEventLoop : public screen::EventLoop {
public:
    ~FakeEventLoop() override;

    /// The next window will be the one of this name; `act` is what the operator does in it. It must end hidden.
    void expectModal(std::string name, std::function<void(screen::Form&)> act);

    void DoEvents() override;
    void ShowModal(screen::Form& form) override;

    int yields = 0;
    std::function<void()> onYield;              ///< what the operator does during a yield
    std::function<void(screen::Form&)> onModal; ///< what the operator does in a window that was not expected

private:
    struct Window {
        std::string name;
        std::function<void(screen::Form&)> act;
    };

    std::deque<Window> windows_;
};

class FakeClock : public screen::Clock {
public:
    DateTime Now() const override { return now; }

    DateTime now{2026, 3, 14, 9, 30, 0};
};

struct FakePorts {
    FakeDialogs dialogs;
    FakePointer pointer;
    FakeEventLoop events;
    FakeClock clock;

    screen::Ports ports() { return {dialogs, pointer, events, clock}; }
};

} // namespace dn::tests
