// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator writes mails from each tab and from the questions that come up on the way.

#include "screen/list_box.h"
#include "tests/stories/day.h"
#include "tests/support/element_tree.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* sentNote = "Se envió un mensaje de correo electrónico";

class WritingMails : public Day {
protected:
    WritingMails()
    {
        maria = prospect("María", {{"uf_EMail", "'Maria@Acme.mx'"}, {"uf_proxcontac", "'2026-03-14 12:00:00'"}});
        silo = project("Silo");
        activity(silo, "2026-03-14 08:00:00");
        enters(ana);
    }

    /// What the host was asked to send or to show since the last look.
    std::vector<std::string> mails()
    {
        std::vector<std::string> found;
        for (const std::string& call : host.log.calls)
            if (call.rfind("Enviar", 0) == 0 || call.rfind("VerHistorial", 0) == 0) found.push_back(call);
        host.log.calls.clear();
        return found;
    }
    std::string guid(const std::string& table, std::int64_t key)
    {
        return inTheDatabase("SELECT Sys_GUID FROM " + table + " WHERE Sys_PK = " + std::to_string(key)).at(0);
    }
    std::string ofMaria() { return "CT." + guid("ut_icontact", maria); }
    std::string ofSilo() { return "PY." + guid("Proyecto", silo); }
    std::string noted(const std::string& party, std::int64_t key)
    {
        return party + " " + std::to_string(key) + " ana 2026-03-14 09:30:00 " + sentNote;
    }
    void addressesOfSilo(const std::string& organisation, const std::string& persons)
    {
        database("UPDATE Organizacion SET EMail = " + organisation);
        database("UPDATE Persona SET " + persons);
    }

    std::int64_t maria = 0, silo = 0;
};

TEST_F(WritingMails, to_a_prospect_leaves_a_line_in_the_log_and_in_the_timeline)
{
    clicksRow("María");
    control.elements().detail.txtText.edit("a medio escribir");
    presses("cmdSend");
    EXPECT_THAT(mails(), ElementsAre("Enviar " + ofMaria() + " <Maria@Acme.mx>"));
    EXPECT_THAT(log(), ElementsAre(noted("prospecto", maria)));
    EXPECT_THAT(sees("txtBit"), StartsWith("ana [14/03/2026 09:30:00]\r\n" + std::string(sentNote) + "\r\n"));
    EXPECT_EQ(sees("txtText"), "");
}

TEST_F(WritingMails, that_were_given_up_leave_nothing)
{
    host.mail->sent = false;
    clicksRow("María");
    control.elements().detail.txtText.edit("a medio escribir");
    presses("cmdSend");
    EXPECT_THAT(log(), IsEmpty());
    EXPECT_EQ(sees("txtText"), "a medio escribir");
}

TEST_F(WritingMails, about_a_project_go_to_the_addresses_marked)
{
    addressesOfSilo("'ventas@acme.mx'", "EMail = ' SILO@acme.mx', EMail2 = 'silo@ACME.mx ', MSN = 'silo.msn'");
    opensTab(desk::proyectos);
    ports.events.expectModal("dlgDirMail", [](screen::Form& form) {
        auto& list = elementNamed<screen::ListBox>(form, "lstDir");
        ASSERT_EQ(list.ListCount(), 3);
        EXPECT_EQ(list.List(0), "silo@acme.mx");
        EXPECT_TRUE(list.Selected(0));
        list.toggle(2);
        elementNamed<screen::Button>(form, "cmdOk").press();
    });
    presses("cmdSend");
    EXPECT_THAT(mails(), ElementsAre("Enviar " + ofSilo() + " <silo@acme.mx;silo.msn>"));
    EXPECT_THAT(log(), ElementsAre(noted("proyecto", silo)));
}

TEST_F(WritingMails, about_a_project_without_addresses_or_without_a_contact)
{
    opensTab(desk::proyectos);
    isTold("No hay direcciones de correo electrónico registradas");
    presses("cmdSend");
    database("UPDATE Proyecto SET IContacto = NULL");
    presses("cmdSend");
    EXPECT_THAT(mails(), IsEmpty());
    EXPECT_THAT(log(), IsEmpty());
}

TEST_F(WritingMails, from_the_queue_go_to_the_record_behind_the_row)
{
    addressesOfSilo("NULL", "EMail = 'silo@acme.mx'");
    opensTab(desk::proyectos);
    opensTab(desk::hoy);
    clicksQueue("María");
    presses("cmdSend");
    clicksQueue("Silo");
    presses("cmdSend");
    EXPECT_THAT(mails(),
                ElementsAre("Enviar " + ofMaria() + " <Maria@Acme.mx>", "Enviar " + ofSilo() + " <silo@acme.mx>"));
    EXPECT_THAT(log(), ElementsAre(noted("prospecto", maria), noted("proyecto", silo)));
    presses("Command7");
    clicksQueue("María");
    presses("Command7");
    EXPECT_THAT(mails(), ElementsAre("VerHistorial " + ofSilo(), "VerHistorial " + ofMaria()));
}

TEST_F(WritingMails, can_be_looked_at_while_the_contact_data_are_corrected)
{
    clicksRow("María");
    ports.events.expectModal("dlgCorregir", [](screen::Form& form) {
        elementNamed<screen::Button>(form, "cmdHistorial").press();
        EXPECT_TRUE(form.Visible());
        elementNamed<screen::Button>(form, "cmdCancel").press();
    });
    presses("cmdEditC");
    EXPECT_THAT(mails(), ElementsAre("VerHistorial " + ofMaria()));
}

TEST_F(WritingMails, come_before_the_answer_what_to_do_after_a_call)
{
    clicksRow("María");
    presses("cmdCall");
    presses("cmdContesta");
    presses("cmdCallCon(6)");
    control.elements().call.txtResCall.edit("Pide precios");
    ports.events.expectModal("dlgQueH", [](screen::Form& form) {
        elementNamed<screen::Button>(form, "cmdMail").press();
        EXPECT_TRUE(form.Visible());
        form.closeWindow();
    });
    presses("cmdOkCall");
    EXPECT_THAT(mails(), ElementsAre("Enviar " + ofMaria() + " <Maria@Acme.mx>"));
    EXPECT_THAT(log(), testing::Contains(HasSubstr(sentNote)));
}

TEST_F(WritingMails, to_a_record_that_somebody_deleted_meanwhile_are_told)
{
    clicksRow("María");
    database("DELETE FROM ut_icontact");
    isTold("No se puede ubicar información del destinatario");
    presses("cmdSend");
    EXPECT_THAT(mails(), IsEmpty());
}

} // namespace
} // namespace dn::tests
