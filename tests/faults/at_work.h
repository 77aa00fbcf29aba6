// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// An operator who does not know that anything will go wrong: he answers whatever he is asked, the first time as he
// means to, and gives a window up when it comes back or stays open.
#pragma once

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/faults/watched_connection.h"
#include "tests/support/fake_host.h"
#include "tests/support/fake_ports.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace dn::tests {

class EasyDialogs final : public screen::Dialogs {
public:
    screen::Answer MsgBox(const screen::MessageBox& box) override
    {
        boxes.push_back(box.prompt);
        return box.buttons == screen::MessageBox::Buttons::yesNo ? screen::Answer::yes : screen::Answer::ok;
    }
    std::string InputBox(const std::string& /*prompt*/) override { return "motivo"; }
    std::optional<screen::SaveChoice> ShowSave(const std::string& /*filter*/) override { return std::nullopt; }

    std::vector<std::string> boxes;
};

class EasyWindows final : public screen::EventLoop {
public:
    using Act = std::function<void(screen::Form&)>;

    void DoEvents() override {}
    void ShowModal(screen::Form& form) override;

    std::map<std::string, Act> acts; ///< by the window's name
    int open = 0;
    std::optional<std::string> left; ///< what a gesture in a window threw

private:
    std::map<std::string, int> seen_;
};

class AtWork {
public:
    explicit AtWork(std::unique_ptr<data::Connection> connection);

    /// Starts the control on the connection, as a host does.
    void begins(std::int32_t agent, bool admin);
    void opensTab(int tab) { elements().top.lblItem(tab).click(); }
    void clicksRow(screen::ListView& list, const char* key);
    void checks(const char* key);
    void presses(const char* button);
    void types(const char* textBox, const char* text);
    void picks(const char* combo, const char* entry);
    /// In the window of that name, when it comes for the first time.
    void will(const char* window, EasyWindows::Act act) { windows.acts[window] = std::move(act); }

    desk::Elements& elements() { return control.elements(); }
    /// What of the screen no operator should meet; empty for nothing.
    std::string whatIsWrong(bool hourglassMayStay);

    EasyDialogs dialogs;
    FakePointer pointer;
    EasyWindows windows;
    FakeClock clock;
    FakeHost host;
    HostObject lands;
    std::unique_ptr<WatchedConnection> cnn;
    ctrDnContacts control{{dialogs, pointer, windows, clock}};
};

} // namespace dn::tests
