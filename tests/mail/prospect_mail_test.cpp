// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A mail to a prospect: whom the host is asked to write to, and the line in the log afterwards.

#include "tests/mail/fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string identifier12 = "SELECT Sys_GUID FROM ut_icontact Where Sys_PK = 12";

class ProspectMail : public MailTest {
protected:
    void SetUp() override
    {
        MailTest::SetUp();
        openProspect12();
    }
};

TEST_F(ProspectMail, goes_to_the_address_in_the_list_and_leaves_a_note)
{
    elements().detail.txtText.Text("a medio escribir");
    elements().detail.txtBit.Text("lo anterior");
    send();
    EXPECT_THAT(asked(), ElementsAre("new CorreoHost", "Inicia /plantillas ana", "Enviar CT.ABCD <Maria@x.mx>"));
    EXPECT_EQ(host.mail->connection, &cnn);
    EXPECT_THAT(cnn.statements(), ElementsAre(identifier12, prospectNote(12)));
    EXPECT_EQ(elements().detail.txtText.Text(), "") << "what was typed is written over";
    EXPECT_EQ(elements().detail.txtBit.Text(), "ana [14/03/2026 09:30:00]\r\nSe envió un mensaje de correo "
                                               "electrónico\r\n\r\nlo anterior");
}

TEST_F(ProspectMail, can_be_asked_for_by_the_host_of_the_control)
{
    control.cmdSend_Click();
    EXPECT_THAT(cnn.statements(), ElementsAre(identifier12, prospectNote(12)));
}

TEST_F(ProspectMail, goes_out_without_an_address_too)
{
    lvw().clickRow(0);
    forget();
    send();
    EXPECT_THAT(lastAsked(), "Enviar CT.ABCD <>");
    EXPECT_EQ(cnn.statements().back(), prospectNote(11));
}

TEST_F(ProspectMail, that_was_not_sent_leaves_no_note)
{
    host.mail->sent = false;
    elements().detail.txtText.Text("a medio escribir");
    send();
    EXPECT_THAT(cnn.statements(), ElementsAre(identifier12));
    EXPECT_EQ(elements().detail.txtText.Text(), "a medio escribir");
}

TEST_F(ProspectMail, takes_the_templates_of_the_moment)
{
    control.TemplatePath("");
    send();
    EXPECT_EQ(asked().at(1), "Inicia  ana");
}

TEST_F(ProspectMail, gets_a_new_object_each_time_and_lets_it_go)
{
    const auto before = host.mail.use_count();
    send();
    send();
    EXPECT_EQ(host.mail.use_count(), before);
    EXPECT_EQ(std::count(asked().begin(), asked().end(), "new CorreoHost"), 2);
}

TEST_F(ProspectMail, without_a_selected_row_is_told)
{
    prospects({});
    openProspects();
    forget();
    ports.dialogs.expectBox(notFound);
    cnn.on("SELECT Sys_GUID FROM ut_icontact Where Sys_PK = 0").gives({"Sys_GUID"}, {});
    control.cmdSend_Click();
    EXPECT_THAT(cnn.statements(), ElementsAre("SELECT Sys_GUID FROM ut_icontact Where Sys_PK = 0"));
    EXPECT_THAT(asked(), IsEmpty());
    const screen::MessageBox& box = ports.dialogs.boxes().back();
    EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
    EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(box.title, "");
}

TEST_F(ProspectMail, of_a_record_that_is_gone_or_cannot_be_asked_for_is_told)
{
    cnn.on(identifier12).gives({"Sys_GUID"}, {});
    ports.dialogs.expectBox(notFound);
    send();
    cnn.on(identifier12).givesNothing();
    ports.dialogs.expectBox(notFound);
    send();
    failAt(1);
    ports.dialogs.expectBox(notFound);
    send();
    control.AdoCnn(nullptr);
    ports.dialogs.expectBox(notFound);
    send();
    EXPECT_THAT(asked(), IsEmpty());
}

TEST_F(ProspectMail, of_a_record_without_an_identifier_goes_on_with_what_there_is)
{
    cnn.on(identifier12).gives({"Sys_GUID"}, {{null}});
    send();
    EXPECT_EQ(lastAsked(), "Enviar CT. <Maria@x.mx>");
    cnn.on(identifier12).gives({"Sys_GUID"}, {{failing("roto")}});
    send();
    EXPECT_EQ(lastAsked(), "Enviar  <Maria@x.mx>");
    cnn.on(identifier12).gives({"otra"}, {{text("x")}});
    send();
    EXPECT_EQ(lastAsked(), "Enviar  <Maria@x.mx>");
}

TEST_F(ProspectMail, that_the_host_fails_at_goes_on_and_is_not_noted)
{
    struct Failing {
        const char* operation;
        std::vector<std::string> asked;
        bool noted;
    };
    const std::vector<std::string> all{"new CorreoHost", "Inicia /plantillas ana", "Enviar CT.ABCD <Maria@x.mx>"};
    for (const Failing& c : {Failing{"new CorreoHost", {all[0]}, false}, Failing{"Inicia", all, true},
                             Failing{"Enviar", all, false}}) {
        forget();
        host.log.failing = {c.operation};
        send();
        EXPECT_EQ(asked(), c.asked) << c.operation;
        EXPECT_EQ(cnn.statements().size(), c.noted ? 2U : 1U) << c.operation;
    }
}

TEST_F(ProspectMail, that_no_host_writes_is_not_noted)
{
    host.mail = nullptr;
    send();
    control.hostObjects(nullptr);
    send();
    EXPECT_THAT(cnn.statements(), ElementsAre(identifier12, identifier12));
}

TEST_F(ProspectMail, whose_note_fails_is_told_and_the_note_stays_in_the_box)
{
    failAt(2);
    ports.dialogs.expectBox("se perdió la conexión");
    send();
    EXPECT_EQ(elements().detail.txtText.Text(), "Se envió un mensaje de correo electrónico");
}

TEST_F(ProspectMail, of_a_row_without_the_column_goes_out_without_an_address)
{
    lvw().ListItems().Clear();
    lvw().ListItems().Add("K12", "sin columnas");
    send();
    EXPECT_EQ(lastAsked(), "Enviar CT.ABCD <>");
}

TEST_F(ProspectMail, of_a_row_whose_key_is_no_number_finds_no_record)
{
    lvw().ListItems().Clear();
    lvw().ListItems().Add("K99999999999", "demasiado grande");
    ports.dialogs.expectBox(notFound);
    cnn.on("SELECT Sys_GUID FROM ut_icontact Where Sys_PK = 0").gives({"Sys_GUID"}, {});
    send();
    EXPECT_THAT(cnn.statements(), ElementsAre("SELECT Sys_GUID FROM ut_icontact Where Sys_PK = 0"));
}

TEST_F(ProspectMail, on_a_directory_goes_to_the_prospect_selected_behind_it)
{
    for (const int tab : {desk::organizaciones, desk::contactos}) {
        elements().top.lblItem(tab).click();
        forget();
        control.cmdSend_Click();
        EXPECT_EQ(lastAsked(), "Enviar CT.ABCD <Maria@x.mx>");
    }
}

} // namespace
} // namespace dn::tests
