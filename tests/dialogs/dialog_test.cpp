// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What all dialogs keep: they load ahead of the first sight, wait until they are hidden, and a load that fails
// keeps the window away.

#include "dialogs/dialog.h"
#include "screen/button.h"
#include "tests/support/fake_ports.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace dn::tests {
namespace {

class Question : public dialogs::Dialog {
public:
    explicit Question(screen::Ports screenPorts)
        : Dialog("dlgQuestion", "¿Qué?", screenPorts), cmdOk(&form, "cmdOk")
    {
        on(cmdOk.Click, *this, &Question::cmdOk_Click);
    }

    void cmdOk_Click()
    {
        accepted = true;
        Hide();
    }

    screen::Button cmdOk;
    bool accepted = false;
    bool loaded = false;
    bool fails = false;

protected:
    void Form_Load() override
    {
        if (fails) throw std::runtime_error("sin datos");
        loaded = true;
    }
};

TEST(DialogWindow, is_loaded_before_it_is_seen_and_answers_after_it_is_hidden)
{
    FakePorts ports;
    Question dialog(ports.ports());
    ports.events.expectModal("dlgQuestion", [&](screen::Form& form) {
        EXPECT_EQ(form.Caption(), "¿Qué?");
        EXPECT_TRUE(dialog.loaded);
        EXPECT_FALSE(dialog.accepted);
        dialog.cmdOk.press();
    });
    dialog.Show();
    EXPECT_TRUE(dialog.accepted);
}

TEST(DialogWindow, closed_by_its_frame_keeps_its_fields)
{
    FakePorts ports;
    Question dialog(ports.ports());
    ports.events.expectModal("dlgQuestion", [](screen::Form& form) { form.closeWindow(); });
    dialog.Show();
    EXPECT_FALSE(dialog.accepted);
}

TEST(DialogWindow, that_cannot_be_loaded_is_not_shown)
{
    FakePorts ports;
    Question dialog(ports.ports());
    dialog.fails = true;
    EXPECT_THROW(dialog.Show(), std::runtime_error); // a window would be one that nobody scripted
}

} // namespace
} // namespace dn::tests
