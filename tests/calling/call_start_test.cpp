// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Whom the button calls, and where the keyboard goes meanwhile.

#include "tests/calling/call_fixture.h"

namespace dn::tests {
namespace {

using testing::IsEmpty;

class CallStart : public CallTest {};

TEST_F(CallStart, without_a_prospect_is_refused)
{
    prospects({});
    openProspects();
    ports.dialogs.expectBox("Seleccione un contacto");
    detail().cmdCall.press();
    EXPECT_EQ(state(), CallState::idle);
    const screen::MessageBox& box = ports.dialogs.boxes().back();
    EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
    EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(box.title, "");
}

TEST_F(CallStart, takes_the_telephone_as_the_list_shows_it)
{
    struct Shown {
        const char* text;
        const char* label;
    };
    for (const Shown& shown :
         {Shown{"55 1234 5678 o en casa", "55 1234 5678 o en casa"}, Shown{"12345", "--1-23-45"}, Shown{"", ""},
          Shown{"525512345678", "5255-12-34-56-78"}}) {
        prospects({prospect(12, {{"uf_Telefono", text(shown.text)}})});
        openProspects();
        detail().cmdCall.press();
        EXPECT_EQ(control.Call_Tel(), shown.text);
        EXPECT_EQ(call().lbltel.Caption(), shown.label);
        closesTheQuestion();
        call().cmdCancelCall.press();
    }
}

TEST_F(CallStart, of_a_row_without_a_key_or_a_telephone_fails_and_tells_the_host)
{
    lvw().ListItems().Clear();
    lvw().ListItems().Add("Kx", "sin clave");
    EXPECT_THROW(detail().cmdCall.press(), RuntimeError);
    lvw().ListItems().Clear();
    lvw().ListItems().Add("K14", "sin columnas");
    EXPECT_THROW(detail().cmdCall.press(), RuntimeError);
    EXPECT_EQ(state(), CallState::idle);
}

TEST_F(CallStart, on_a_directory_calls_the_prospect_selected_behind_it)
{
    elements().top.lblItem(desk::contactos).click();
    elements().detail.picRight.Visible(true);
    detail().cmdCall.press();
    EXPECT_EQ(control.Call_Tabla(), "ut_icontact");
    EXPECT_EQ(control.Call_PK(), 12);
    closesTheQuestion();
    call().cmdCancelCall.press();
}

TEST_F(CallStart, takes_the_keyboard_along_and_brings_it_back)
{
    lvw().SetFocus();
    detail().cmdCall.press();
    EXPECT_TRUE(call().cmdContesta.hasFocus());
    call().cmdContesta.press();
    EXPECT_TRUE(call().cmdCallCon(0).hasFocus());
    call().cmdCallCon(6).press();
    EXPECT_TRUE(call().txtResCall.hasFocus());
    ports.events.expectModal("dlgQueH", [&](screen::Form& form) {
        EXPECT_TRUE(lvw().hasFocus()) << "so that the keyboard is there when the question has gone";
        form.closeWindow();
    });
    call().cmdOkCall.press();
    EXPECT_TRUE(lvw().hasFocus());
}

TEST_F(CallStart, by_the_host_leaves_who_writes_a_note_at_his_note)
{
    detail().txtText.SetFocus();
    control.IniciarLlamada("ut_icontact", 12, "1");
    EXPECT_TRUE(detail().txtText.hasFocus());
    closesTheQuestion();
    control.Call_NoConnect(0);
    EXPECT_TRUE(detail().txtText.hasFocus());
    lvw().SetFocus();
    control.IniciarLlamada("ut_icontact", 12, "1");
    EXPECT_TRUE(call().cmdContesta.hasFocus()) << "the list is locked";
}

TEST_F(CallStart, gives_each_command_a_key_that_no_other_has_at_the_same_time)
{
    const auto keys = [](std::initializer_list<const screen::Button*> buttons) {
        std::vector<std::string> result;
        for (const screen::Button* button : buttons)
            result.push_back(button->Shortcut());
        return result;
    };
    const auto always =
        keys({&detail().cmdCall, &detail().cmdNote, &detail().cmdSend, &detail().cmdEditC, &detail().cmdIntro});
    EXPECT_THAT(always, testing::ElementsAre("F8", "F6", "F7", "F2", "F9"));
    EXPECT_THAT(keys({&call().cmdContesta, &call().cmdOcupado, &call().cmdNoContestan, &call().cmdFueraServ,
                      &call().cmdCancelCall}),
                testing::ElementsAre("Ctrl+1", "Ctrl+2", "Ctrl+3", "Ctrl+4", "Esc"));
    for (int i = 0; i < call().cmdCallCon.Count(); ++i)
        EXPECT_EQ(call().cmdCallCon(i).Shortcut(), "Ctrl+" + std::to_string(i + 1));
    EXPECT_EQ(call().cmdOkCall.Shortcut(), detail().cmdCall.Shortcut()) << "which is locked during a call";
}

} // namespace
} // namespace dn::tests
