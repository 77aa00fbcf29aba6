// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the operator presses while the control yields in the middle of a call, and what the host begins at its end:
// each outcome is written once and to its own party.

#include "tests/calling/call_fixture.h"
#include "tests/support/log_rows.h"

#include <stdexcept>
#include <utility>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class CallYields : public CallAnyoneTest {
protected:
    /// Rings for the prospect 13, or another party of the day.
    void ringsOfTheDay(const char* key = "K13")
    {
        openToday();
        click(key);
        cmdCall().press();
        cnn.forgetStatements();
    }
    void ringsOfTheProspects()
    {
        openProspects();
        lvw().clickRow(0);
        cmdCall().press();
        cnn.forgetStatements();
    }
    /// Does something at each yield, but not within itself.
    void atEachYield(std::function<void()> act)
    {
        ports.events.onYield = [act = std::move(act), within = false]() mutable {
            if (within) return;
            within = true;
            act();
            within = false;
        };
    }
};

TEST_F(CallYields, an_answer_that_is_pressed_twice_counts_once)
{
    ringsOfTheDay();
    call().cmdContesta.press();
    atEachYield([this] { call().cmdCallCon(0).press(); });
    closesTheQuestion();
    call().cmdCallCon(0).press();
    EXPECT_THAT(changes(),
                ElementsAre(prospectNote("Se estableció llamada al: 222 pero no se pudo contactar al prospecto. "
                                         "<No se encuentra>",
                                         "13"),
                            "UPDATE ut_icontact SET uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento =  "
                            "11 Where Sys_PK = 13"));
    expectIdle();
}

TEST_F(CallYields, the_host_who_tells_while_it_rings_is_followed_by_no_button)
{
    for (screen::Button* button : {&call().cmdOcupado, &call().cmdNoContestan, &call().cmdFueraServ,
                                   &call().cmdCancelCall, &call().cmdContesta}) {
        ringsOfTheDay();
        atEachYield([button] { button->press(); });
        closesTheQuestion();
        control.Call_Connect(1);
        EXPECT_THAT(changes(), SizeIs(2)) << button->name();
        expectIdle();
        ports.events.onYield = nullptr;
    }
}

TEST_F(CallYields, a_summary_that_is_ended_twice_is_stored_once)
{
    ringsOfTheDay();
    control.Call_Connect(6);
    call().txtResCall.type("hecho");
    int started = 0;
    const auto counts =
        control.callStarted().connect([&](const std::string&, std::int32_t, const std::string&) { ++started; });
    atEachYield([this] {
        call().cmdOkCall.press();
        cmdCall().press(); // has the same key
    });
    closesTheQuestion();
    call().cmdOkCall.press();
    EXPECT_THAT(changes(), SizeIs(3));
    EXPECT_EQ(started, 0);
    expectIdle();
}

TEST_F(CallYields, a_call_of_the_day_that_is_pressed_twice_starts_once)
{
    int started = 0;
    const auto counts =
        control.callStarted().connect([&](const std::string&, std::int32_t, const std::string&) { ++started; });
    for (const char* key : {"K13", "P88"}) {
        started = 0;
        openToday();
        click(key);
        atEachYield([this] { cmdCall().press(); });
        cmdCall().press();
        EXPECT_EQ(started, 1);
        EXPECT_TRUE(control.Call_Progress());
        ports.events.onYield = nullptr;
        if (key[0] == 'K') closesTheQuestion();
        control.Call_NoConnect(0);
    }
}

// The lists and the button are free again when the question has gone, and the list is loaded, which yields, ahead
// of the statement that stores the attempt.
TEST_F(CallYields, whoever_is_clicked_before_the_attempt_is_stored_does_not_get_it)
{
    ringsOfTheProspects();
    call().cmdContesta.press();
    int tried = 0;
    atEachYield([&] {
        if (lvw().ListItems().Count() != 2 || !lvw().usable()) return;
        ++tried;
        lvw().clickRow(1);
        cmdCall().press();
        lvw().doubleClickRow(1);
    });
    closesTheQuestion();
    call().cmdCallCon(2).press();
    EXPECT_GT(tried, 0);
    EXPECT_EQ(changes().back(), "UPDATE ut_icontact SET uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento "
                                "=  13 Where Sys_PK = 12");
    EXPECT_EQ(control.Call_PK(), 12);
    expectIdle();
}

// The lists are free again when the note of an unanswered call is written.
TEST_F(CallYields, whoever_is_clicked_while_the_note_is_written_does_not_get_it)
{
    due({queuedProspect(13), queuedProject(88), queuedProspect(12)});
    for (const char* other : {"P88", "K12"}) {
        ringsOfTheDay();
        bool once = true;
        atEachYield([&] {
            if (std::exchange(once, false)) click(other);
        });
        if (other[0] == 'K') closesTheQuestion(); // it is for the party in hand by then
        call().cmdOcupado.press();
        EXPECT_FALSE(once);
        EXPECT_THAT(
            changes(),
            ElementsAre("UPDATE ut_icontact SET uf_ultimointento=CURRENT_TIMESTAMP, uf_res_ultimointento=1 "
                        "Where Sys_PK=13",
                        prospectNote("No se pudo establecer llamada al: 222 Línea ocupada", "13")));
        expectIdle();
        ports.events.onYield = nullptr;
    }
}

TEST_F(CallYields, another_party_of_the_day_waits_until_the_question_has_been_put)
{
    ringsOfTheDay();
    atEachYield([this] { cmdCall().press(); });
    ports.events.expectModal("dlgQueH", [this](screen::Form& form) {
        EXPECT_EQ(control.Call_PK(), 13);
        EXPECT_FALSE(control.Call_Progress());
        form.closeWindow();
    });
    call().cmdOcupado.press();
    expectIdle();
    ports.events.onYield = nullptr;
    cmdCall().press();
    EXPECT_TRUE(control.Call_Progress()) << "and afterwards nobody is held up";
    closesTheQuestion();
    call().cmdCancelCall.press();
}

TEST_F(CallYields, a_double_click_that_comes_twice_asks_once)
{
    openProspects();
    atEachYield([this] {
        if (lvw().ListItems().Count() == 2) lvw().doubleClickRow(0);
    });
    closesTheQuestion();
    lvw().doubleClickRow(0);
    expectIdle();
}

TEST_F(CallYields, the_host_may_end_and_begin_calls_at_any_time)
{
    ringsOfTheDay();
    bool once = true;
    atEachYield([&] {
        if (std::exchange(once, false)) control.IniciarLlamada("ut_icontact", 12, "333");
    });
    closesTheQuestion();
    call().cmdNoContestan.press();
    EXPECT_TRUE(control.Call_Progress());
    EXPECT_EQ(control.Call_PK(), 12);
    ports.events.onYield = nullptr;
    closesTheQuestion();
    call().cmdCancelCall.press();
    expectIdle();
}

TEST_F(CallYields, the_next_call_of_a_dialler_does_not_get_the_outcome_of_the_last_one)
{
    for (const std::int16_t motivo : {std::int16_t{1}, std::int16_t{2}, std::int16_t{3}}) {
        ringsOfTheProspects();
        auto next = control.callEnded().connect([this] { control.IniciarLlamada("ut_icontact", 13, "222"); });
        closesTheQuestion();
        control.Call_NoConnect(motivo);
        ASSERT_THAT(changes(), SizeIs(2));
        EXPECT_EQ(changes()[0], "UPDATE ut_icontact SET uf_ultimointento=CURRENT_TIMESTAMP, "
                                "uf_res_ultimointento=" +
                                    std::to_string(motivo) + " Where Sys_PK=12");
        EXPECT_THAT(changes()[1], testing::HasSubstr("llamada al: 111 "));
        EXPECT_EQ(control.Call_PK(), 13);
        next.reset();
        closesTheQuestion();
        control.Call_NoConnect(0);
    }
}

TEST_F(CallYields, the_next_call_begins_when_the_late_statement_is_out)
{
    const std::vector<std::function<void()>> endings{
        [this] { control.Call_NoConnect(0); }, [this] { control.Call_NoConnect(1); },
        [this] { control.Call_Connect(0); }, [this] { control.Call_Resumen("hecho"); }};
    for (const auto& ending : endings) {
        ringsOfTheProspects();
        int settled = 0;
        auto next = control.callSettled().connect([&] {
            ++settled;
            control.IniciarLlamada("ut_icontact", 13, "222");
        });
        closesTheQuestion();
        ending();
        EXPECT_EQ(settled, 1);
        EXPECT_TRUE(control.Call_Progress());
        for (const std::string& change : changes())
            EXPECT_THAT(change, testing::AnyOf(testing::HasSubstr("Sys_PK=12"), testing::HasSubstr("Sys_PK = 12"),
                                               testing::HasSubstr("'ana',12)")));
        next = control.callSettled().connect([] { throw std::runtime_error("no hay línea"); });
        closesTheQuestion();
        control.Call_NoConnect(0);
        expectIdle();
    }
}

TEST_F(CallYields, a_question_without_a_call_settles_none)
{
    openProspects();
    int settled = 0;
    const auto counts = control.callSettled().connect([&] { ++settled; });
    closesTheQuestion();
    lvw().doubleClickRow(0);
    EXPECT_EQ(settled, 0);
    ports.events.expectModal("dlgQueH", [&](screen::Form& form) {
        closesTheQuestion();
        control.Call_NoConnect(0); // the host's, which stands within the other one
        EXPECT_EQ(settled, 0);
        form.closeWindow();
    });
    lvw().doubleClickRow(0);
    EXPECT_EQ(settled, 1);
}

/// A connection that dies at a statement and stays dead, whichever it is, with a project and with parties of the
/// day; a note that is lost is told.
TEST_F(CallYields, a_connection_that_dies_anywhere_leaves_the_screen_without_a_call)
{
    for (const bool ofTheDay : {false, true})
        for (const bool ofProject : {false, true})
            for (std::size_t n = 1; n <= 9; ++n) {
                cnn.setState(data::Connection::open);
                cnn.beforeExecute(nullptr);
                elements().detail.txtText.Text("");
                openProspects();
                openProjects();
                if (ofTheDay)
                    ringsOfTheDay(ofProject ? "P88" : "K13");
                else if (ofProject)
                    cmdCall().press();
                else
                    ringsOfTheProspects();
                ASSERT_TRUE(control.Call_Progress());
                call().cmdContesta.press();
                std::size_t count = 0;
                bool lost = false;
                cnn.beforeExecute([&](std::string_view statement) {
                    if (++count == n) cnn.setState(data::Connection::closed);
                    if (statement.rfind("INSERT", 0) != 0 || count < n) return;
                    lost = true;
                    ports.dialogs.expectBox("La conexión con la base de datos está cerrada");
                });
                if (!ofProject) closesTheQuestion();
                call().cmdCallCon(4).press();
                expectIdle();
                EXPECT_TRUE(cmdCall().Enabled());
                EXPECT_TRUE(lvw().Enabled() && lvwProy().Enabled() && lvwHoy().Enabled());
                EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
                EXPECT_EQ(lost, !elements().detail.txtText.Text().empty()) << n;
            }
}

} // namespace
} // namespace dn::tests
