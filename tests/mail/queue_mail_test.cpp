// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Mail from the queue of the day, from the dialogs, and the history of a record's mails.

#include "dialogs/dlg_que_h.h"
#include "tests/mail/fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QueueMail : public MailTest {
protected:
    void SetUp() override
    {
        MailTest::SetUp();
        due({queuedProspect(12), queuedProject(41), queued("Otra cosa", 40)});
        addresses(text("ana@x.mx"), null, null, null);
        openProspects();
        openProjects();
        openToday();
        forget();
    }
    void clickAndForget(const char* key)
    {
        click(key);
        forget();
    }
};

TEST_F(QueueMail, goes_to_the_record_behind_the_row)
{
    clickAndForget("K12");
    send();
    EXPECT_EQ(lastAsked(), "Enviar CT.ABCD <Maria@x.mx>");
    EXPECT_EQ(cnn.statements().back(), prospectNote(12));
    clickAndForget("P41");
    send();
    EXPECT_EQ(lastAsked(), "Enviar PY.ABCD <ana@x.mx>");
    EXPECT_EQ(cnn.statements().back(), projectNote(41));
}

TEST_F(QueueMail, selects_the_record_first_whatever_was_selected_there)
{
    click("P41");
    lvwProy().ListItems()("K40").Selected(true);
    forget();
    send();
    EXPECT_EQ(selectedKeyOf(lvwProy()), "K41");
    EXPECT_EQ(cnn.statements().back(), projectNote(41));
}

TEST_F(QueueMail, takes_every_other_text_for_a_project)
{
    clickAndForget("P40");
    send();
    EXPECT_EQ(lastAsked(), "Enviar PY.ABCD <ana@x.mx>");
    EXPECT_EQ(cnn.statements().back(), projectNote(40));
}

TEST_F(QueueMail, without_a_row_does_nothing)
{
    due({});
    openToday();
    forget();
    control.cmdSend_Click();
    EXPECT_THAT(cnn.statements(), IsEmpty());
    EXPECT_THAT(asked(), IsEmpty());
}

TEST_F(QueueMail, is_written_from_the_question_what_to_do_next)
{
    clickAndForget("K12");
    dialogs::dlgQueH question(ports.ports());
    question.Contenedor = &control;
    ports.events.expectModal("dlgQueH", [&](screen::Form& form) {
        question.cmdMail.press();
        EXPECT_TRUE(form.Visible());
        form.closeWindow();
    });
    question.Show();
    EXPECT_EQ(lastAsked(), "Enviar CT.ABCD <Maria@x.mx>");
}

TEST_F(QueueMail, has_its_history_shown)
{
    clickAndForget("K12");
    elements().today.Command7.press();
    EXPECT_THAT(asked(), ElementsAre("new CorreoHost", "Inicia /plantillas ana", "VerHistorial CT.ABCD"));
    EXPECT_THAT(cnn.statements(), ElementsAre("SELECT Sys_GUID FROM ut_icontact Where Sys_PK=12"));
    clickAndForget("P41");
    elements().today.Command7.press();
    EXPECT_EQ(lastAsked(), "VerHistorial PY.ABCD");
    EXPECT_THAT(cnn.statements(), ElementsAre("SELECT Sys_GUID FROM Proyecto Where Sys_PK=41"));
}

// ---- Historial, as the host calls it

class MailHistory : public MailTest {
protected:
    void history(std::int16_t kind, std::int32_t key) { control.Historial(kind, key); }
};

TEST_F(MailHistory, is_shown_by_kind_and_key_and_goes_to_no_log)
{
    history(0, 5);
    history(1, -2147483647);
    EXPECT_THAT(cnn.statements(), ElementsAre("SELECT Sys_GUID FROM ut_icontact Where Sys_PK=5",
                                              "SELECT Sys_GUID FROM Proyecto Where Sys_PK=-2147483647"));
    EXPECT_THAT(asked(), ElementsAre("new CorreoHost", "Inicia /plantillas ana", "VerHistorial CT.ABCD",
                                     "new CorreoHost", "Inicia /plantillas ana", "VerHistorial PY.ABCD"));
    EXPECT_EQ(host.mail->connection, &cnn);
}

TEST_F(MailHistory, of_any_other_kind_asks_nothing_and_is_told)
{
    for (const std::int16_t kind : {std::int16_t{-1}, std::int16_t{2}, std::int16_t{32767}}) {
        ports.dialogs.expectBox(notFound);
        history(kind, 5);
    }
    EXPECT_THAT(cnn.statements(), IsEmpty());
    EXPECT_THAT(asked(), IsEmpty());
}

TEST_F(MailHistory, of_a_record_that_is_not_found_is_told)
{
    cnn.onContaining("SELECT Sys_GUID").gives({"Sys_GUID"}, {});
    ports.dialogs.expectBox(notFound);
    history(0, 5);
    cnn.onContaining("SELECT Sys_GUID").givesNothing();
    ports.dialogs.expectBox(notFound);
    history(1, 5);
    failAt(1);
    ports.dialogs.expectBox(notFound);
    history(1, 5);
    EXPECT_THAT(asked(), IsEmpty());
    const screen::MessageBox& box = ports.dialogs.boxes().back();
    EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
    EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(box.title, "");
}

TEST_F(MailHistory, passes_over_what_the_host_fails_at)
{
    host.log.failing = {"Inicia"};
    history(0, 5);
    EXPECT_EQ(lastAsked(), "VerHistorial CT.ABCD");
    host.log.failing = {"VerHistorial"};
    history(0, 5);
    host.log.failing = {"new CorreoHost"};
    forget();
    history(0, 5);
    EXPECT_THAT(asked(), ElementsAre("new CorreoHost"));
}

} // namespace
} // namespace dn::tests
