// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A mail about a project: whose addresses, which of them, and the line in the log afterwards.

#include "screen/list_box.h"
#include "tests/mail/fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string identifier41 = "SELECT Sys_GUID FROM Proyecto Where Sys_PK = 41";

class ProjectMail : public MailTest {
protected:
    void SetUp() override
    {
        MailTest::SetUp();
        addresses(text("Ana@x.mx"), text("acme@x.mx"), null, null);
        openProject41();
    }

    /// What the dialog shows when it comes up, marked lines with a star; then the operator acts.
    void picks(std::vector<std::string> shown, const std::function<void(screen::Form&, screen::ListBox&)>& act)
    {
        ports.events.expectModal("dlgDirMail", [shown = std::move(shown), act](screen::Form& form) {
            auto& list = elementNamed<screen::ListBox>(form, "lstDir");
            std::vector<std::string> lines;
            for (int i = 0; i < list.ListCount(); ++i)
                lines.push_back((list.Selected(i) ? "*" : "") + list.List(i));
            EXPECT_EQ(lines, shown);
            act(form, list);
        });
    }
    static void accepts(screen::Form& form, screen::ListBox&)
    {
        elementNamed<screen::Button>(form, "cmdOk").press();
    }
};

TEST_F(ProjectMail, goes_to_the_addresses_that_the_operator_marks_and_leaves_a_note)
{
    addresses(text("Ana@x.mx"), text(" Acme@X.mx "), text("ana2@x.mx"), text("ana.msn"));
    picks({"*ana@x.mx", "acme@x.mx", "ana2@x.mx", "ana.msn"}, [](screen::Form& form, screen::ListBox& list) {
        list.toggle(3);
        list.toggle(1);
        accepts(form, list);
    });
    send();
    EXPECT_THAT(asked(), ElementsAre("new CorreoHost", "Inicia /plantillas ana",
                                     "Enviar PY.ABCD <ana@x.mx;acme@x.mx;ana.msn>"));
    EXPECT_THAT(cnn.statements(), ElementsAre(addressesOf(41), identifier41, projectNote(41)));
}

TEST_F(ProjectMail, with_one_address_asks_nothing)
{
    for (const std::vector<Cell>& one :
         {std::vector<Cell>{text("Ana@x.mx"), null, null, null},
          {null, null, null, text("ANA@x.mx")},
          {text("Ana@x.mx"), text(" ana@X.MX "), text("ANA@x.mx"), text("ana@x.mx")}}) {
        addresses(one[0], one[1], one[2], one[3]);
        forget();
        send();
        EXPECT_EQ(lastAsked(), "Enviar PY.ABCD <ana@x.mx>");
        EXPECT_EQ(cnn.statements().back(), projectNote(41));
    }
}

TEST_F(ProjectMail, given_up_at_the_addresses_sends_nothing_and_says_nothing)
{
    picks({"*ana@x.mx", "acme@x.mx"},
          [](screen::Form& form, screen::ListBox&) { elementNamed<screen::Button>(form, "cmdCancel").press(); });
    send();
    picks({"*ana@x.mx", "acme@x.mx"}, [](screen::Form& form, screen::ListBox&) { form.closeWindow(); });
    send();
    EXPECT_THAT(asked(), IsEmpty());
    EXPECT_THAT(cnn.statements(), ElementsAre(addressesOf(41), addressesOf(41)));
}

TEST_F(ProjectMail, without_any_address_is_told)
{
    addresses(null, null, null, null);
    ports.dialogs.expectBox("No hay direcciones de correo electrónico registradas");
    send();
    EXPECT_THAT(asked(), IsEmpty());
    const screen::MessageBox& box = ports.dialogs.boxes().back();
    EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
    EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(box.title, "");
}

TEST_F(ProjectMail, whose_only_address_is_blank_sends_nothing_and_says_nothing)
{
    addresses(text("  "), text(""), null, null);
    send();
    EXPECT_THAT(asked(), IsEmpty());
    EXPECT_THAT(cnn.statements(), ElementsAre(addressesOf(41)));
}

TEST_F(ProjectMail, of_a_project_without_contact_or_organisation_says_nothing)
{
    cnn.on(addressesOf(41)).gives({"Email2", "EMail1", "EMail3", "EMail4"}, {});
    send();
    cnn.on(addressesOf(41)).givesNothing();
    send();
    failAt(1);
    send();
    EXPECT_THAT(asked(), IsEmpty());
}

TEST_F(ProjectMail, without_a_project_is_told)
{
    projects({});
    openProjects();
    forget();
    ports.dialogs.expectBox("Seleccione un proyecto");
    control.cmdSend_Click();
    EXPECT_THAT(cnn.statements(), IsEmpty());
    const screen::MessageBox& box = ports.dialogs.boxes().back();
    EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
    EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(box.title, "");
}

TEST_F(ProjectMail, of_a_row_without_a_key_above_0_says_nothing)
{
    for (const char* key : {"K0", "K-5", "Kx", "K"}) {
        lvwProy().ListItems().Clear();
        lvwProy().ListItems().Add(key, "x");
        forget();
        send();
        EXPECT_THAT(cnn.statements(), IsEmpty()) << key;
    }
}

TEST_F(ProjectMail, takes_the_addresses_that_can_be_read)
{
    addresses(failing("roto"), text("acme@x.mx"), failing("roto"), null);
    send();
    EXPECT_EQ(lastAsked(), "Enviar PY.ABCD <acme@x.mx>");
}

TEST_F(ProjectMail, whose_record_is_gone_meanwhile_is_told)
{
    addresses(text("ana@x.mx"), null, null, null);
    cnn.on(identifier41).gives({"Sys_GUID"}, {});
    ports.dialogs.expectBox(notFound);
    send();
    failAt(2);
    ports.dialogs.expectBox(notFound);
    send();
    EXPECT_THAT(asked(), IsEmpty());
}

TEST_F(ProjectMail, that_was_not_sent_leaves_no_note)
{
    addresses(text("ana@x.mx"), null, null, null);
    host.mail->sent = false;
    send();
    host.mail->sent = true;
    host.log.failing = {"Enviar"};
    send();
    EXPECT_THAT(cnn.statements(), ElementsAre(addressesOf(41), identifier41, addressesOf(41), identifier41));
}

TEST_F(ProjectMail, whose_note_fails_is_told)
{
    addresses(text("ana@x.mx"), null, null, null);
    failAt(3);
    ports.dialogs.expectBox("se perdió la conexión");
    send();
    EXPECT_EQ(elements().detail.txtText.Text(), "Se envió un mensaje de correo electrónico");
}

} // namespace
} // namespace dn::tests
