// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The dialog of the mail addresses: gathering them without repeats, and marking them.

#include "dialogs/dlg_dir_mail.h"
#include "tests/support/fake_ports.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AddressPicker : public testing::Test {
protected:
    std::vector<std::string> lines() const
    {
        std::vector<std::string> result;
        for (int i = 0; i < dialog.lstDir.ListCount(); ++i)
            result.push_back((dialog.lstDir.Selected(i) ? "*" : "") + dialog.lstDir.List(i));
        return result;
    }
    void add(std::initializer_list<const char*> addresses)
    {
        for (const char* address : addresses)
            dialog.AddItem(address);
    }
    void show(const std::function<void(screen::Form&)>& act)
    {
        ports.events.expectModal("dlgDirMail", act);
        dialog.Show();
    }

    FakePorts ports;
    dialogs::dlgDirMail dialog{ports.ports()};
};

TEST_F(AddressPicker, begins_empty_with_its_texts_and_keys)
{
    show([&](screen::Form& form) {
        EXPECT_EQ(form.Caption(), "Seleccionar destinatarios");
        EXPECT_EQ(dialog.cmdOk.Caption(), "&Aceptar");
        EXPECT_EQ(dialog.cmdCancel.Caption(), "Cancelar");
        EXPECT_TRUE(dialog.cmdOk.Default());
        EXPECT_TRUE(dialog.cmdCancel.Cancel());
        EXPECT_TRUE(dialog.lstDir.checkBoxes());
        EXPECT_THAT(lines(), IsEmpty());
        form.closeWindow();
    });
    EXPECT_EQ(dialog.Direcciones, "");
}

TEST_F(AddressPicker, keeps_an_address_once_trimmed_and_in_small_letters)
{
    add({"Ana@Acme.MX", "ana@acme.mx", "  ANA@ACME.MX ", "luz@acme.mx", "ÑANDÚ@acme.mx", "ñandú@acme.mx"});
    EXPECT_THAT(lines(), ElementsAre("ana@acme.mx", "luz@acme.mx", "ñandú@acme.mx"));
    add({"\tana@acme.mx"}); // a tab is no blank
    EXPECT_EQ(dialog.lstDir.ListCount(), 4);
}

TEST_F(AddressPicker, does_not_refuse_an_empty_address)
{
    add({"   ", ""});
    EXPECT_THAT(lines(), ElementsAre(""));
}

TEST_F(AddressPicker, keeps_the_marks_when_an_address_comes_again)
{
    add({"a@x", "b@x"});
    dialog.lstDir.Selected(1, true);
    add({"B@X"});
    EXPECT_THAT(lines(), ElementsAre("a@x", "*b@x"));
}

TEST_F(AddressPicker, joins_the_marked_lines_in_the_order_of_the_list)
{
    add({"c@x", "a@x", "d@x", "b@x"});
    show([&](screen::Form& form) {
        for (const int line : {3, 0, 1})
            dialog.lstDir.toggle(line);
        dialog.cmdOk.press();
        EXPECT_FALSE(form.Visible());
    });
    EXPECT_EQ(dialog.Direcciones, "c@x;a@x;b@x");
}

TEST_F(AddressPicker, gives_one_marked_line_alone)
{
    add({"c@x", "a@x"});
    show([&](screen::Form&) {
        dialog.lstDir.toggle(0);
        dialog.lstDir.toggle(1);
        dialog.lstDir.toggle(0);
        dialog.cmdOk.press();
    });
    EXPECT_EQ(dialog.Direcciones, "a@x");
}

TEST_F(AddressPicker, without_a_mark_says_so_each_time_and_stays_until_there_is_one)
{
    add({"a@x", "b@x"});
    show([&](screen::Form& form) {
        dialog.lstDir.pick(1); // the selected line is not a marked one
        for (int i = 0; i < 2; ++i) {
            ports.dialogs.expectBox("Debe marcar al menos una dirección");
            dialog.cmdOk.press();
            EXPECT_TRUE(form.Visible());
            EXPECT_EQ(dialog.Direcciones, "");
            const screen::MessageBox& box = ports.dialogs.boxes().back();
            EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
            EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
            EXPECT_EQ(box.title, "");
        }
        dialog.lstDir.toggle(0);
        dialog.cmdOk.press();
    });
    EXPECT_EQ(dialog.Direcciones, "a@x");
}

TEST_F(AddressPicker, takes_a_marked_empty_line_for_no_mark)
{
    add({"", "a@x"});
    show([&](screen::Form& form) {
        dialog.lstDir.toggle(0);
        ports.dialogs.expectBox("Debe marcar al menos una dirección");
        dialog.cmdOk.press();
        EXPECT_TRUE(form.Visible());
        dialog.lstDir.toggle(1);
        dialog.cmdOk.press();
    });
    EXPECT_EQ(dialog.Direcciones, "a@x") << "nothing stands ahead of it, so no semicolon does";
}

TEST_F(AddressPicker, cancelled_gives_nothing_whatever_is_marked)
{
    add({"a@x"});
    dialog.Direcciones = "z@x";
    show([&](screen::Form&) {
        dialog.lstDir.toggle(0);
        dialog.cmdCancel.press();
    });
    EXPECT_EQ(dialog.Direcciones, "");
}

TEST_F(AddressPicker, closed_by_its_frame_leaves_the_result_as_it_is)
{
    add({"a@x"});
    show([&](screen::Form& form) {
        dialog.lstDir.toggle(0);
        form.closeWindow();
    });
    EXPECT_EQ(dialog.Direcciones, "");
}

} // namespace
} // namespace dn::tests
