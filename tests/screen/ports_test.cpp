// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/ports.h"

#include <gmock/gmock.h>

namespace dn::screen {
namespace {

class MockDialogs : public Dialogs {
public:
    MOCK_METHOD(Answer, MsgBox, (const MessageBox& box), (override));
    MOCK_METHOD(std::string, InputBox, (const std::string& prompt), (override));
    MOCK_METHOD(std::optional<SaveChoice>, ShowSave, (const std::string& filter), (override));
};

TEST(Dialogs, say_shows_a_box_with_OK_and_neither_icon_nor_title)
{
    MockDialogs dialogs;
    const auto plain =
        testing::AllOf(testing::Field(&MessageBox::prompt, "Seleccione un contacto"),
                       testing::Field(&MessageBox::buttons, MessageBox::Buttons::ok),
                       testing::Field(&MessageBox::icon, MessageBox::Icon::none),
                       testing::Field(&MessageBox::defaultButton, 1), testing::Field(&MessageBox::title, ""));
    EXPECT_CALL(dialogs, MsgBox(plain)).WillOnce(testing::Return(Answer::ok));

    dialogs.say("Seleccione un contacto");
}

} // namespace
} // namespace dn::screen
