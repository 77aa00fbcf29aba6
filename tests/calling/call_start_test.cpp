// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Whom the button calls, and where the keyboard goes meanwhile.

#include "tests/calling/call_fixture.h"

#include <algorithm>

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
    EXPECT_TRUE(call().cmdCallCon(6).hasFocus()) << "which stores nothing yet";
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

/// The keys of all buttons that the operator can reach.
void collectKeys(const screen::Container& container, std::vector<std::string>& keys)
{
    for (const screen::Element* child : container.children()) {
        if (const auto* button = dynamic_cast<const screen::Button*>(child);
            button != nullptr && button->usable() && !button->Shortcut().empty())
            keys.push_back(button->Shortcut());
        if (const auto* inner = dynamic_cast<const screen::Container*>(child)) collectKeys(*inner, keys);
    }
}

TEST_F(CallStart, gives_each_command_a_key_that_no_other_has_at_the_same_time)
{
    const auto keys = [this] {
        std::vector<std::string> result;
        collectKeys(elements().control, result);
        std::sort(result.begin(), result.end());
        return result;
    };
    using testing::IsSupersetOf;
    const auto alone = [](const std::vector<std::string>& sorted) {
        return std::adjacent_find(sorted.begin(), sorted.end()) == sorted.end();
    };
    EXPECT_THAT(keys(), IsSupersetOf({"F8", "F6", "F7", "F2", "F9"}));
    EXPECT_TRUE(alone(keys()));
    for (const int tab : {1, 2, 3, 4, 0}) {
        elements().top.lblItem(tab).click();
        elements().today.cmdEditHoy.Enabled(true); // as a queue with rows has it
        EXPECT_TRUE(alone(keys())) << tab;
        const auto now = keys();
        EXPECT_EQ(std::count(now.begin(), now.end(), "F2"), tab == 0 || tab == 2 ? 1 : 0) << tab;
    }
    const std::vector<std::string> ringing{"Ctrl+1", "Ctrl+2", "Ctrl+3", "Ctrl+4", "Esc"};
    rings();
    EXPECT_THAT(keys(), IsSupersetOf(ringing));
    EXPECT_TRUE(alone(keys()));
    EXPECT_EQ(call().cmdCancelCall.shortcutReach(), &call().picLlamada) << "not from a note";
    EXPECT_EQ(call().cmdContesta.shortcutReach(), nullptr);
    call().cmdContesta.press();
    EXPECT_THAT(keys(), IsSupersetOf({"Alt+1", "Alt+2", "Alt+3", "Alt+4", "Alt+5", "Alt+6", "Alt+7"}));
    EXPECT_TRUE(alone(keys()));
    for (const std::string& key : ringing)
        EXPECT_THAT(keys(), testing::Not(testing::Contains(key))) << "pressed twice it would answer for him";
    call().cmdCallCon(6).press();
    EXPECT_THAT(keys(), testing::Contains("F8"));
    EXPECT_TRUE(alone(keys()));
}

} // namespace
} // namespace dn::tests
