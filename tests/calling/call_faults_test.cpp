// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What goes wrong during a call: a step that fails is passed over, the next ones run, and the screen comes back.

#include "tests/calling/call_fixture.h"

#include <algorithm>

namespace dn::tests {
namespace {

using testing::Contains;
using testing::ElementsAreArray;
using testing::IsEmpty;

class CallFaults : public CallTest {
protected:
    using Ending = std::function<void()>;

    std::vector<Ending> endings()
    {
        return {[this] {
                    rings();
                    steps.clear();
                    closesTheQuestion();
                    call().cmdOcupado.press();
                },
                [this] {
                    isOnTheLine();
                    steps.clear();
                    closesTheQuestion();
                    call().cmdCallCon(3).press();
                },
                [this] {
                    isInSummary();
                    steps.clear();
                    closesTheQuestion();
                    call().cmdOkCall.press();
                }};
    }

    static bool isNote(const std::string& step) { return step.rfind("INSERT INTO xt_biticontact", 0) == 0; }
};

TEST_F(CallFaults, each_statement_that_fails_leaves_the_others_their_turn)
{
    for (const Ending& ending : endings()) {
        ending();
        const std::vector<std::string> whole = steps;
        std::size_t statements = 0;
        for (const std::string& step : whole)
            statements += step != question ? 1U : 0U;
        for (std::size_t n = 1; n <= statements; ++n) {
            openProspects();
            std::size_t at = 0;
            for (std::size_t left = n; left != 0; ++at)
                if (whole[at] != question) --left;
            const std::string& failing = whole[at - 1];
            if (isNote(failing)) ports.dialogs.expectBox("se perdió la conexión"); // the note tells of it
            failAt(n);
            ending();
            EXPECT_EQ(state(), CallState::idle) << failing;
            // A list that could not be read has no row whose timeline could be.
            std::vector<std::string> expected = whole;
            if (failing == load) expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(at));
            EXPECT_THAT(steps, ElementsAreArray(expected)) << failing;
            detail().txtText.Text("");
        }
    }
}

TEST_F(CallFaults, a_connection_that_dies_during_the_call_leaves_the_screen_without_a_call)
{
    for (const Ending& ending : endings()) {
        openProspects();
        ports.dialogs.expectBox("La conexión con la base de datos está cerrada"); // of the note
        const auto dies =
            control.callStarted().connect([this](const std::string&, std::int32_t, const std::string&) {
                cnn.setState(data::Connection::closed);
            });
        ending();
        EXPECT_EQ(state(), CallState::idle);
        EXPECT_EQ(elements().top.lblCuenta.Caption(), "0");
        EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
        cnn.setState(data::Connection::open);
    }
}

TEST_F(CallFaults, a_refused_update_leaves_the_attempt_out_and_the_line_in)
{
    cnn.onContaining("UPDATE ut_icontact SET uf_ultimointento").fails("Lock wait timeout exceeded", "HY000", 1205);
    for (const Ending& ending : endings()) {
        ending();
        EXPECT_THAT(steps, Contains(testing::StartsWith("INSERT INTO xt_biticontact")));
        EXPECT_THAT(steps, Contains(testing::StartsWith("UPDATE ut_icontact SET uf_ultimointento"))) << "tried";
        EXPECT_EQ(state(), CallState::idle);
    }
    EXPECT_THAT(ports.dialogs.boxes(), IsEmpty());
}

TEST_F(CallFaults, a_refused_first_contact_does_not_keep_the_last_one_from_being_stored)
{
    cnn.onContaining("isnull(uf_contactado)").fails("The isnull function requires 2 argument(s).", "42000", 174);
    endings().back()();
    EXPECT_THAT(steps, Contains(testing::HasSubstr("uf_res_ultimointento = 50")));
    EXPECT_EQ(state(), CallState::idle);
}

TEST_F(CallFaults, a_party_that_is_deleted_meanwhile_is_written_to_no_row_and_leaves_the_list)
{
    for (const Ending& ending : endings()) {
        prospects({prospect(12, {{"uf_Telefono", text("1")}}), prospect(13)});
        openProspects();
        lvw().clickRow(0);
        const auto goes = control.callStarted().connect(
            [this](const std::string&, std::int32_t, const std::string&) { prospects({prospect(13)}); });
        ending();
        EXPECT_EQ(state(), CallState::idle);
        for (const std::string& step : steps)
            if (step.rfind("UPDATE", 0) == 0)
                EXPECT_THAT(step, testing::ContainsRegex("Where Sys_PK ?= ?12")) << "and not who is selected now";
        EXPECT_THAT(steps, Contains(testing::StartsWith("UPDATE")));
        EXPECT_THAT(steps, Contains(testing::EndsWith("'ana',12)")));
        EXPECT_THAT(keys(lvw()), testing::ElementsAre("K13"));
        EXPECT_EQ(lvw().SelectedItem()->Key(), "K13");
    }
}

TEST_F(CallFaults, a_connection_that_dies_during_the_question_brings_it_back_until_it_is_closed)
{
    for (const Ending& ending : endings()) {
        cnn.setState(data::Connection::open);
        openProspects();
        const auto dies = control.callEnded().connect([this] { cnn.setState(data::Connection::closed); });
        decides(4);
        ports.dialogs.expectInput("Motivo del cambio de estado:", "x");
        ports.dialogs.expectBox("La conexión con la base de datos está cerrada");
        ending(); // closes it the second time
        EXPECT_EQ(state(), CallState::idle);
        EXPECT_EQ(std::count(steps.begin(), steps.end(), question), 2);
    }
}

TEST_F(CallFaults, a_list_that_is_empty_by_then_loses_the_line_and_keeps_the_attempt)
{
    isOnTheLine();
    prospects({});
    openProspects();
    steps.clear();
    closesTheQuestion();
    call().cmdCallCon(0).press();
    EXPECT_THAT(steps, testing::Not(Contains(testing::StartsWith("INSERT"))));
    EXPECT_THAT(steps, Contains(testing::HasSubstr("uf_res_ultimointento =  11 Where Sys_PK = 12")));
    EXPECT_THAT(detail().txtText.Text(), testing::StartsWith("Se estableció llamada al: ")) << "nobody took it";
    EXPECT_EQ(state(), CallState::idle);
}

TEST_F(CallFaults, a_question_that_cannot_be_shown_is_no_decision)
{
    ports.events.expectModal("dlgQueH", [](screen::Form& form) {
        form.Hide();
        throw std::runtime_error("sin ventana");
    });
    rings();
    call().cmdCancelCall.press();
    EXPECT_EQ(state(), CallState::idle);
    EXPECT_THAT(steps, Contains(load));
}

/// Dialogs of an application that is being closed.
struct ClosingDialogs : FakeDialogs {
    std::string InputBox(const std::string&) override { throw RuntimeError("La aplicación se está cerrando."); }
};

TEST(CallInAClosingApplication, does_not_ask_for_a_reason_for_ever)
{
    FakePorts ports;
    ClosingDialogs closing;
    FakeConnection cnn;
    ctrDnContacts control({closing, ports.pointer, ports.events, ports.clock});
    control.SetObjects(&cnn, 7, false, "ana");
    control.elements().prospects.lvw.ListItems().Add("K12", "");
    ports.events.expectModal("dlgQueH", [](screen::Form& form) { form.closeWindow(); });
    control.Call_Connect(5);
    EXPECT_THAT(cnn.statements(), Contains(testing::HasSubstr("<Otra razón para no comunicarme>")));
}

} // namespace
} // namespace dn::tests
