// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/fake_ports.h"

#include "screen/panels.h"

#include <gtest/gtest.h>

namespace dn::tests {

FakeDialogs::~FakeDialogs()
{
    if (!done()) ADD_FAILURE() << script_.size() << " scripted answers that nobody asked for";
}

void FakeDialogs::expectBox(std::string prompt, screen::Answer answer)
{
    script_.emplace_back(BoxStep{std::move(prompt), answer});
}

void FakeDialogs::expectAnyBox(screen::Answer answer) { script_.emplace_back(BoxStep{std::nullopt, answer}); }

void FakeDialogs::expectInput(std::string prompt, std::string answer)
{
    script_.emplace_back(InputStep{std::move(prompt), std::move(answer)});
}

void FakeDialogs::expectSave(std::optional<screen::SaveChoice> answer)
{
    script_.emplace_back(SaveStep{std::move(answer)});
}

template <class Step>
std::optional<Step> FakeDialogs::next(const std::string& question)
{
    if (script_.empty() || !std::holds_alternative<Step>(script_.front())) {
        ADD_FAILURE() << "a question that nobody scripted: " << question;
        return std::nullopt;
    }
    Step step = std::get<Step>(script_.front());
    script_.pop_front();
    return step;
}

screen::Answer FakeDialogs::MsgBox(const screen::MessageBox& box)
{
    boxes_.push_back(box);
    if (onBox) onBox();
    const auto step = next<BoxStep>(box.prompt);
    if (!step) return screen::Answer::no;
    if (step->prompt.has_value()) {
        EXPECT_EQ(box.prompt, *step->prompt);
        EXPECT_EQ(box.title, "") << box.prompt;
        EXPECT_EQ(box.icon, screen::MessageBox::Icon::none) << box.prompt;
        EXPECT_EQ(box.buttons, step->answer == screen::Answer::ok ? screen::MessageBox::Buttons::ok
                                                                  : screen::MessageBox::Buttons::yesNo)
            << box.prompt;
    }
    return step->answer;
}

std::string FakeDialogs::InputBox(const std::string& prompt)
{
    const auto step = next<InputStep>(prompt);
    if (!step) return {};
    EXPECT_EQ(prompt, step->prompt);
    return step->answer;
}

std::optional<screen::SaveChoice> FakeDialogs::ShowSave(const std::string& filter)
{
    filters_.push_back(filter);
    const auto step = next<SaveStep>(filter);
    return step ? step->answer : std::nullopt;
}

void FakeEventLoop::DoEvents()
{
    ++yields;
    if (onYield) onYield();
}

FakeEventLoop::~FakeEventLoop()
{
    for (const Window& window : windows_)
        ADD_FAILURE() << "a window that never came: " << window.name;
}

void FakeEventLoop::expectModal(std::string name, std::function<void(screen::Form&)> act)
{
    windows_.push_back({std::move(name), std::move(act)});
}

void FakeEventLoop::ShowModal(screen::Form& form)
{
    std::function<void(screen::Form&)> act = onModal;
    if (!windows_.empty()) {
        EXPECT_EQ(form.name(), windows_.front().name);
        act = std::move(windows_.front().act);
        windows_.pop_front();
    }
    if (!act) {
        ADD_FAILURE() << "a window that nobody scripted: " << form.name();
        return;
    }
    form.Visible(true);
    act(form);
    EXPECT_FALSE(form.Visible()) << form.name() << " is still open";
    form.Visible(false);
}

} // namespace dn::tests
