// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The question behind every call, and behind a double click: what each answer does, and when it comes back.

#include "tests/calling/call_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CallDecision : public CallTest {
protected:
    void SetUp() override
    {
        CallTest::SetUp();
        detail().txtText.Text("");
    }

    void doubleClicks(std::size_t row = 0)
    {
        lvw().clickRow(row);
        steps.clear();
        lvw().doubleClickRow(row);
        std::erase(steps, timeline);
    }

    static std::string status(int code, const std::string& reason)
    {
        return "UPDATE ut_icontact SET uf_Status = " + std::to_string(code) + ", uf_NotaStatus = '" + reason +
               "', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK = 12";
    }
};

TEST_F(CallDecision, another_call_is_scheduled_for_the_party_of_the_call)
{
    decides(1);
    ports.events.expectModal("dlgAgendarContacto", [&](screen::Form& form) {
        steps.emplace_back(scheduling);
        ports.dialogs.expectBox("¿Seguro desea programar el contacto para: 2026-mar-14 10:30:00?",
                                screen::Answer::yes);
        elementNamed<screen::Button>(form, "cmdOk").press();
    });
    doubleClicks();
    EXPECT_THAT(steps,
                ElementsAre(question, scheduling,
                            "UPDATE ut_icontact SET uf_proxcontac = CAST('2026-03-14 10:30:00' AS DATETIME) WHERE "
                            "Sys_PK=12",
                            load));
}

TEST_F(CallDecision, scheduling_that_is_given_up_ends_the_question_all_the_same)
{
    decides(1);
    ports.events.expectModal("dlgAgendarContacto", [](screen::Form& form) { form.closeWindow(); });
    doubleClicks();
    EXPECT_THAT(steps, ElementsAre(question, load));
}

TEST_F(CallDecision, a_project_makes_an_opportunity)
{
    decides(2);
    doubleClicks();
    EXPECT_THAT(steps, ElementsAre(question, status(3, ""), noteOf(">> Oportunidad: "), load, load));
    EXPECT_TRUE(elements().detail.Combo1.Enabled());
}

TEST_F(CallDecision, no_interest_and_discarding_ask_for_a_reason)
{
    decides(3);
    ports.dialogs.expectInput("Motivo del cambio de estado:", "no le interesa");
    doubleClicks();
    EXPECT_THAT(steps, ElementsAre(question, status(2, "no le interesa"), noteOf(">> Sin interés: no le interesa"),
                                   load, load));
    decides(4);
    ports.dialogs.expectInput("Motivo del cambio de estado:", "duplicado");
    doubleClicks();
    EXPECT_THAT(steps,
                ElementsAre(question, status(1, "duplicado"), noteOf(">> Descartado: duplicado"), load, load));
}

TEST_F(CallDecision, comes_back_until_a_decision_stands)
{
    decides(3);
    ports.dialogs.expectInput("Motivo del cambio de estado:", "");
    decides(3); // the same position again, where the combo stands already
    ports.dialogs.expectInput("Motivo del cambio de estado:", "");
    host.projects->newProject = 0;
    decides(2);
    ports.dialogs.expectBox("No se puede cambiar el status del contacto sin crear un proyecto de negocio");
    decides(4);
    ports.dialogs.expectInput("Motivo del cambio de estado:", "ya no existe");
    doubleClicks();
    EXPECT_THAT(steps, ElementsAre(question, question, question, question, status(1, "ya no existe"),
                                   noteOf(">> Descartado: ya no existe"), load, load));
}

TEST_F(CallDecision, starts_each_time_with_nothing_marked)
{
    decides(4);
    ports.dialogs.expectInput("Motivo del cambio de estado:", "");
    ports.events.expectModal("dlgQueH", [](screen::Form& form) {
        for (int option = 1; option <= 4; ++option)
            EXPECT_FALSE(elementNamed<screen::OptionButton>(form, "Option" + std::to_string(option)).Value());
        form.closeWindow();
    });
    doubleClicks();
    EXPECT_THAT(steps, ElementsAre(question, load));
}

TEST_F(CallDecision, a_change_that_the_server_refuses_is_told_and_asked_again)
{
    cnn.onContaining("UPDATE ut_icontact SET uf_Status").fails("sin permiso", "42000", 1142);
    decides(4);
    ports.dialogs.expectInput("Motivo del cambio de estado:", "x");
    ports.dialogs.expectBox("sin permiso");
    closesTheQuestion();
    doubleClicks();
    EXPECT_THAT(steps, ElementsAre(question, status(1, "x"), question, load));
}

TEST_F(CallDecision, an_old_change_of_status_does_not_stand_for_a_decision)
{
    decides(4);
    ports.dialogs.expectInput("Motivo del cambio de estado:", "x");
    doubleClicks(); // leaves its mark
    decides(3);
    ports.dialogs.expectInput("Motivo del cambio de estado:", "");
    closesTheQuestion();
    doubleClicks();
    EXPECT_THAT(steps, ElementsAre(question, question, load));
}

// The positions are bare numbers, right for the list of "Recibido".
TEST_F(CallDecision, under_another_status_the_answers_lead_elsewhere)
{
    elements().prospects.cbStatus.ListIndex(1); // offers "Recibido", "Sin interés", "Oportunidad"
    steps.clear();
    decides(4);
    ports.dialogs.expectInput("Motivo del cambio de estado:", "de vuelta");
    doubleClicks();
    EXPECT_THAT(steps,
                ElementsAre(question, status(0, "de vuelta"), noteOf(">> Recibido: de vuelta"), load, load));
}

TEST_F(CallDecision, an_answer_without_a_position_is_asked_again)
{
    detail().Combo1.Clear();
    detail().Combo1.AddItem("< Cambiar estado >");
    decides(2);
    closesTheQuestion();
    doubleClicks();
    EXPECT_THAT(steps, ElementsAre(question, question, load));
}

TEST_F(CallDecision, a_double_click_stores_the_key_and_no_call)
{
    control.Call_Tabla("Proyecto");
    closesTheQuestion();
    doubleClicks(1);
    EXPECT_EQ(control.Call_PK(), 13);
    EXPECT_EQ(control.Call_Tabla(), "Proyecto");
    EXPECT_EQ(control.Call_Tel(), "");
    EXPECT_EQ(state(), CallState::idle);
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "2");
}

TEST_F(CallDecision, a_double_click_does_nothing_during_a_call_and_without_a_row)
{
    control.Call_Progress(true);
    doubleClicks();
    EXPECT_THAT(steps, IsEmpty());
    control.Call_Progress(false);
    prospects({});
    openProspects();
    steps.clear();
    lvw().doubleClickEmpty();
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(CallDecision, a_row_without_a_key_keeps_the_key_in_hand)
{
    lvw().ListItems().Clear();
    lvw().ListItems().Add("Kx", "sin clave");
    control.Call_PK(5);
    closesTheQuestion();
    doubleClicks();
    EXPECT_EQ(control.Call_PK(), 5);
    EXPECT_THAT(steps, ElementsAre(question, load));
}

TEST_F(CallDecision, the_question_comes_on_a_directory_too)
{
    rings();
    elements().top.lblItem(desk::organizaciones).click();
    steps.clear();
    closesTheQuestion();
    control.Call_NoConnect(0);
    EXPECT_EQ(steps.front(), question);
}

} // namespace
} // namespace dn::tests
