// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every way from one state of a call to another: by the operator's buttons and by the host's methods, which do the
// same, with everything that is written on the way.

#include "tests/calling/call_fixture.h"
#include "tests/support/log_rows.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using Steps = std::vector<std::string>;

struct Ending {
    const char* name;
    CallState from;
    std::function<void(desk::CallElements&)> byButton;
    std::function<void(ctrDnContacts&)> byHost;
    const char* asked; ///< the answer to the question for a reason; nothing where none is put
    Steps written;     ///< ahead of the question
    Steps afterwards;  ///< behind it
};

std::string noteOfTheCall(const std::string& message) { return prospectNote(message, "12"); }

Ending nobodyReached(const char* name, std::int16_t motivo, screen::Button desk::CallElements::*button,
                     const std::string& result)
{
    return {name,
            CallState::ringing,
            [button](desk::CallElements& call) { (call.*button).press(); },
            [motivo](ctrDnContacts& control) { control.Call_NoConnect(motivo); },
            nullptr,
            {"UPDATE ut_icontact SET uf_ultimointento=CURRENT_TIMESTAMP, uf_res_ultimointento=" +
                 std::to_string(motivo) + " Where Sys_PK=12",
             noteOfTheCall("No se pudo establecer llamada al: 5512345678 " + result)},
            {}};
}

Ending noContact(const char* name, std::int16_t index, const std::string& reason, const char* asked = nullptr)
{
    return {name,
            CallState::onTheLine,
            [index](desk::CallElements& call) { call.cmdCallCon(index).press(); },
            [index](ctrDnContacts& control) { control.Call_Connect(index); },
            asked,
            {noteOfTheCall("Se estableció llamada al: 5512345678 pero no se pudo contactar al prospecto. <" +
                           reason + ">")},
            {"UPDATE ut_icontact SET uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento =  " +
             std::to_string(index + 11) + " Where Sys_PK = 12"}};
}

const std::vector<Ending>& endings()
{
    static const std::vector<Ending> all{
        {"cancelled",
         CallState::ringing,
         [](desk::CallElements& call) { call.cmdCancelCall.press(); },
         [](ctrDnContacts& control) { control.Call_NoConnect(0); },
         nullptr,
         {},
         {}},
        nobodyReached("busy", 1, &desk::CallElements::cmdOcupado, "Línea ocupada"),
        nobodyReached("no_answer", 2, &desk::CallElements::cmdNoContestan, "No contestan"),
        nobodyReached("out_of_service", 3, &desk::CallElements::cmdFueraServ, "Fuera de servicio"),
        noContact("not_there", 0, "No se encuentra"),
        noContact("in_a_meeting", 1, "Ocupado o \"en junta\""),
        noContact("wrong_number", 2, "Número equivocado"),
        noContact("hung_up", 3, "Me colgaron"),
        noContact("wants_nothing", 4, "No quiere saber nada"),
        noContact("another_reason", 5, "no habla español", "no habla español"),
        {"contact",
         CallState::summary,
         [](desk::CallElements& call) {
             call.txtResCall.type("Pide precios\ny plazos");
             call.cmdOkCall.press();
         },
         [](ctrDnContacts& control) { control.Call_Resumen("Pide precios\r\ny plazos"); },
         nullptr,
         {noteOfTheCall("Se estableció llamada al 5512345678 Con éxito. Resumen: Pide preciosy plazos"),
          "UPDATE ut_icontact SET uf_contactado = 1, uf_primercontac = CURRENT_TIMESTAMP Where Sys_PK=12 and "
          "isnull(uf_contactado)",
          "UPDATE ut_icontact SET uf_ultimointento = CURRENT_TIMESTAMP, uf_res_ultimointento = 50, "
          "uf_ultimocontac "
          "= CURRENT_TIMESTAMP Where Sys_PK = 12"},
         {}}};
    return all;
}

class CallEndings : public CallTest, public testing::WithParamInterface<std::tuple<Ending, bool>> {
protected:
    void enters(CallState from)
    {
        if (from == CallState::ringing) rings();
        if (from == CallState::onTheLine) isOnTheLine();
        if (from == CallState::summary) isInSummary();
    }
};

TEST_P(CallEndings, leads_back_to_where_no_call_is)
{
    const auto& [ending, byHost] = GetParam();
    enters(ending.from);
    if (ending.asked != nullptr) {
        ports.dialogs.expectInput("Motivo para no comunicarme:", "");
        ports.dialogs.expectInput("Motivo para no comunicarme:", ending.asked);
    }
    closesTheQuestion();
    if (byHost)
        ending.byHost(control);
    else
        ending.byButton(call());

    Steps expected = ending.written;
    expected.insert(expected.end(), {question, load, timeline});
    const bool twice = ending.from != CallState::ringing;
    expected.insert(expected.end(), ending.afterwards.begin(), ending.afterwards.end());
    if (twice) expected.insert(expected.end(), {load, timeline});
    EXPECT_THAT(steps, ElementsAreArray(expected));
    EXPECT_EQ(state(), CallState::idle);
    EXPECT_FALSE(call().picLlamando.Visible());
    EXPECT_EQ(detail().txtText.Text(), "");
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "2") << "the bare number of rows";
    EXPECT_EQ(lvw().SelectedItem()->Key(), "K12");
    EXPECT_EQ(control.Call_PK(), 12) << "the call in hand is kept";
    EXPECT_EQ(control.Call_Tabla(), "ut_icontact");
    EXPECT_EQ(control.Call_Tel(), "5512345678");
}

TEST_P(CallEndings, leads_there_also_when_the_connection_dies_at_any_statement)
{
    const auto& [ending, byHost] = GetParam();
    const std::size_t statements = ending.written.size() + 2 + ending.afterwards.size() + 2;
    for (std::size_t n = 1; n <= statements; ++n) {
        cnn.beforeExecute(nullptr);
        cnn.setState(data::Connection::open);
        detail().txtText.Text("");
        openProspects();
        enters(ending.from);
        if (ending.asked != nullptr) ports.dialogs.expectInput("Motivo para no comunicarme:", ending.asked);
        std::size_t count = 0;
        cnn.beforeExecute([&](std::string_view statement) {
            if (++count == n) cnn.setState(data::Connection::closed);
            if (count >= n && statement.rfind("INSERT", 0) == 0) // the note tells of it
                ports.dialogs.expectBox("La conexión con la base de datos está cerrada");
        });
        closesTheQuestion();
        if (byHost)
            ending.byHost(control);
        else
            ending.byButton(call());
        EXPECT_EQ(state(), CallState::idle) << n;
        EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard) << n;
        EXPECT_GE(count, ending.written.size() + 1 + ending.afterwards.size()) << "each one has its turn";
    }
}

INSTANTIATE_TEST_SUITE_P(Calls, CallEndings, testing::Combine(testing::ValuesIn(endings()), testing::Bool()),
                         [](const auto& ending) {
                             return std::string(std::get<0>(ending.param).name) +
                                    (std::get<1>(ending.param) ? "_by_the_host" : "_by_the_operator");
                         });

class CallTransitions : public CallTest {};

TEST_F(CallTransitions, a_call_begins_with_its_number_and_locks_the_lists_and_writes_nothing)
{
    EXPECT_EQ(state(), CallState::idle);
    detail().cmdCall.press();
    EXPECT_EQ(state(), CallState::ringing);
    EXPECT_EQ(call().lbltel.Caption(), "55-12-34-56-78");
    EXPECT_THAT(steps, IsEmpty());
    EXPECT_EQ(control.Call_Tabla(), "ut_icontact");
    EXPECT_EQ(control.Call_PK(), 12);
    EXPECT_EQ(control.Call_Tel(), "5512345678");
    lvw().clickRow(1);
    EXPECT_EQ(lvw().SelectedItem()->Key(), "K12") << "the list refuses the mouse";
    detail().cmdCall.press();
    EXPECT_EQ(state(), CallState::ringing) << "and the button is refused";
}

TEST_F(CallTransitions, an_answered_line_shows_who_may_be_on_it)
{
    isOnTheLine();
    EXPECT_FALSE(call().picLlamando.Visible());
    EXPECT_EQ(call().lbltel.Caption(), "55-12-34-56-78");
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(CallTransitions, the_right_person_leads_to_an_empty_summary)
{
    for (const std::int16_t answer : {std::int16_t{6}, std::int16_t{7}, std::int16_t{32767}}) {
        isOnTheLine();
        call().txtResCall.Text("lo de antes");
        control.Call_Connect(answer);
        EXPECT_EQ(state(), CallState::summary);
        EXPECT_EQ(call().txtResCall.Text(), "");
        EXPECT_THAT(steps, IsEmpty());
        control.IniciarLlamada("ut_icontact", 12, "1");
        closesTheQuestion();
        control.Call_NoConnect(0);
    }
}

// The host has no step for an answered line.
TEST_F(CallTransitions, the_host_goes_from_ringing_to_the_summary_which_shows_alone)
{
    rings();
    control.Call_Connect(6);
    EXPECT_EQ(state(), CallState::summary);
    EXPECT_FALSE(call().picLlamando.Visible());
    EXPECT_TRUE(call().txtResCall.hasFocus());
    call().txtResCall.type("Pide precios");
    call().cmdCancelCall.press(); // its key is Escape
    EXPECT_EQ(state(), CallState::summary);
    EXPECT_EQ(call().txtResCall.Text(), "Pide precios");
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(CallTransitions, what_an_earlier_call_left_open_is_put_right_by_the_next_one)
{
    isInSummary();
    closesTheQuestion();
    call().cmdOkCall.press();
    EXPECT_TRUE(call().picResumen.Visible()) << "hidden by the panel around it only";
    rings();
}

TEST_F(CallTransitions, a_second_call_of_the_host_takes_the_place_of_the_first_in_every_state)
{
    const std::vector<std::function<void()>> ways{[this] { rings(); }, [this] { isOnTheLine(); },
                                                  [this] { isInSummary(); }};
    for (const auto& enter : ways) {
        enter();
        control.IniciarLlamada("Proyecto", 88, "12345");
        EXPECT_EQ(state(), CallState::ringing);
        EXPECT_EQ(call().lbltel.Caption(), "--1-23-45");
        EXPECT_EQ(control.Call_Tabla(), "Proyecto");
        EXPECT_EQ(control.Call_PK(), 88);
        EXPECT_EQ(control.Call_Tel(), "12345");
        closesTheQuestion();
        control.Call_NoConnect(0);
        EXPECT_EQ(state(), CallState::idle);
    }
}

TEST_F(CallTransitions, a_call_that_the_host_starts_during_the_question_stays_on_the_screen)
{
    isOnTheLine();
    ports.events.expectModal("dlgQueH", [&](screen::Form& form) {
        control.IniciarLlamada("ut_icontact", 13, "777");
        form.closeWindow();
    });
    steps.clear();
    call().cmdCallCon(0).press();
    EXPECT_TRUE(call().picLlamando.shown());
    EXPECT_TRUE(control.Call_Progress());
    // The late statement goes by the call in hand, which is the new one by now.
    EXPECT_THAT(steps, testing::Contains("UPDATE ut_icontact SET uf_ultimointento= CURRENT_TIMESTAMP, "
                                         "uf_res_ultimointento =  11 Where Sys_PK = 13"));
    closesTheQuestion();
    call().cmdCancelCall.press();
    EXPECT_EQ(state(), CallState::idle);
}

TEST_F(CallTransitions, a_call_that_the_host_starts_while_another_one_is_scheduled_leaves_the_schedule_alone)
{
    rings();
    decides(1);
    ports.events.expectModal("dlgAgendarContacto", [&](screen::Form& form) {
        control.IniciarLlamada("ut_icontact", 13, "777");
        ports.dialogs.expectBox("¿Seguro desea programar el contacto para: 2026-mar-14 10:30:00?",
                                screen::Answer::yes);
        elementNamed<screen::Button>(form, "cmdOk").press();
    });
    call().cmdCancelCall.press();
    EXPECT_THAT(steps, testing::Contains(
                           testing::AllOf(testing::HasSubstr("uf_proxcontac"), testing::EndsWith("Sys_PK=12"))));
    EXPECT_TRUE(call().picLlamando.shown());
    EXPECT_EQ(control.Call_PK(), 13);
    closesTheQuestion();
    call().cmdCancelCall.press();
    EXPECT_EQ(state(), CallState::idle);
}

TEST_F(CallTransitions, a_reason_unheard_of_is_logged_without_a_result_and_stored_nowhere)
{
    rings();
    closesTheQuestion();
    control.Call_NoConnect(9);
    EXPECT_THAT(steps, ElementsAre(noteOfTheCall("No se pudo establecer llamada al: 5512345678"), question, load,
                                   timeline)); // the note's text is trimmed as all notes are
    EXPECT_EQ(state(), CallState::idle);
}

TEST_F(CallTransitions, an_answer_below_all_others_has_no_reason_and_a_code_of_its_own)
{
    rings();
    closesTheQuestion();
    control.Call_Connect(-12);
    EXPECT_THAT(steps,
                ElementsAre(noteOfTheCall("Se estableció llamada al: 5512345678 pero no se pudo contactar al "
                                          "prospecto. <>"),
                            question, load, timeline,
                            "UPDATE ut_icontact SET uf_ultimointento= CURRENT_TIMESTAMP, "
                            "uf_res_ultimointento = -1 Where Sys_PK = 12",
                            load, timeline));
}

TEST_F(CallTransitions, endings_may_be_told_without_a_call)
{
    control.Call_Tabla("Proyecto");
    control.Call_PK(7);
    control.Call_Tel("");
    closesTheQuestion();
    control.Call_Connect(2);
    EXPECT_THAT(steps,
                ElementsAre(noteOfTheCall("Se estableció llamada al:  pero no se pudo contactar al prospecto. "
                                          "<Número equivocado>"),
                            question, load, timeline,
                            "UPDATE Proyecto SET uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento =  "
                            "13 Where Sys_PK = 7",
                            load, timeline));
    EXPECT_EQ(state(), CallState::idle);
}

TEST_F(CallTransitions, the_summary_loses_its_apostrophes)
{
    rings();
    closesTheQuestion();
    control.Call_Resumen("d'Arc\r\nllamará");
    EXPECT_EQ(steps.front(), noteOfTheCall("Se estableció llamada al 5512345678 Con éxito. Resumen: dArcllamará"));
}

TEST_F(CallTransitions, the_host_learns_of_a_start_when_everything_stands_and_of_an_end_ahead_of_the_question)
{
    Steps told;
    const auto started =
        control.callStarted().connect([&](const std::string& table, std::int32_t key, const std::string& number) {
            EXPECT_EQ(state(), CallState::ringing);
            EXPECT_EQ(control.Call_Tel(), number);
            told.push_back(table + " " + std::to_string(key) + " " + number);
        });
    const auto ended = control.callEnded().connect([&] {
        EXPECT_EQ(state(), CallState::idle);
        steps.emplace_back("ended");
    });
    detail().cmdCall.press();
    control.IniciarLlamada("Proyecto", 88, "Tel. Proyecto");
    EXPECT_THAT(told, ElementsAre("ut_icontact 12 5512345678", "Proyecto 88 Tel. Proyecto"));
    steps.clear();
    closesTheQuestion();
    call().cmdCancelCall.press();
    EXPECT_THAT(steps, ElementsAre("ended", question, load, timeline));
}

TEST_F(CallTransitions, a_host_that_fails_or_answers_at_once_disturbs_nothing)
{
    auto listener = control.callStarted().connect(
        [](const std::string&, std::int32_t, const std::string&) { throw std::runtime_error("no hay línea"); });
    rings();
    listener = control.callStarted().connect([&](const std::string&, std::int32_t, const std::string&) {
        closesTheQuestion();
        control.Call_NoConnect(1);
    });
    const auto ended = control.callEnded().connect([] { throw std::runtime_error("no hay línea"); });
    control.IniciarLlamada("ut_icontact", 12, "1");
    EXPECT_EQ(state(), CallState::idle);
    listener.reset();
    EXPECT_FALSE(call().cmdContesta.hasFocus());
}

TEST_F(CallTransitions, the_bar_goes_round_whether_somebody_calls_or_not)
{
    for (int i = 0; i < 100; ++i)
        call().Timer1.tick();
    EXPECT_EQ(call().PG.Value(), 100);
    call().Timer1.tick();
    EXPECT_EQ(call().PG.Value(), 0);
    call().Timer1.tick();
    rings();
    EXPECT_EQ(call().PG.Value(), 1) << "a call does not begin it anew";
    call().Timer1.tick();
    EXPECT_EQ(call().PG.Value(), 2);
    EXPECT_EQ(call().Timer1.Moves(), &call().PG);
    for (int i = 0; i < call().Timer1.Round(); ++i)
        call().Timer1.tick();
    EXPECT_EQ(call().PG.Value(), 2) << "where it was";
}

} // namespace
} // namespace dn::tests
