// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Calls to projects and to parties of the day's queue: the tab in view tells whom a call is about, at its start
// and again at its end.

#include "tests/calling/call_fixture.h"
#include "tests/support/log_rows.h"

#include <functional>

namespace dn::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class CallToOthers : public CallAnyoneTest {
protected:
    void rings()
    {
        cmdCall().press();
        cnn.forgetStatements();
        host.log.calls.clear();
    }
};

TEST_F(CallToOthers, a_project_is_called_by_the_number_that_its_click_found)
{
    lvwProy().clickRow(1);
    rings();
    EXPECT_EQ(control.Call_Tabla(), "Proyecto");
    EXPECT_EQ(control.Call_PK(), 88);
    EXPECT_EQ(call().lbltel.Caption(), "---9-61");
    EXPECT_FALSE(lvwProy().usable());
}

TEST_F(CallToOthers, a_project_without_a_telephone_shows_the_word_for_it)
{
    contactData({});
    lvwProy().clickRow(1);
    rings();
    EXPECT_EQ(control.Call_Tel(), "Tel. Proyecto");
    EXPECT_EQ(call().lbltel.Caption(), "Tel. Proyecto");
}

TEST_F(CallToOthers, a_project_selected_without_a_click_is_called_by_the_number_held)
{
    lvwProy().clickRow(1);
    lvwProy().ListItems()(1).Selected(true);
    control.Call_Tel("de otro");
    rings();
    EXPECT_EQ(control.Call_PK(), 12);
    EXPECT_EQ(control.Call_Tel(), "de otro");
}

TEST_F(CallToOthers, without_a_project_is_refused)
{
    lvwProy().ListItems().Clear();
    ports.dialogs.expectBox("Seleccione un proyecto");
    cmdCall().press();
    expectIdle();
}

TEST_F(CallToOthers, the_end_writes_to_the_project_and_opens_it_without_a_question)
{
    lvwProy().clickRow(1);
    rings();
    call().cmdContesta.press();
    call().cmdCallCon(2).press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto 88"));
    EXPECT_THAT(changes(),
                ElementsAre(projectNote("Se estableció llamada al: 961 pero no se pudo contactar al prospecto. "
                                        "<Número equivocado>",
                                        "88"),
                            "UPDATE Proyecto SET uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento =  13 "
                            "Where Sys_PK = 88"));
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "2");
    EXPECT_EQ(selectedKey(), "K88");
    expectIdle();
}

TEST_F(CallToOthers, a_cancelled_call_opens_the_project_all_the_same)
{
    lvwProy().clickRow(0);
    rings();
    call().cmdCancelCall.press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto 12"));
    EXPECT_THAT(changes(), IsEmpty());
    expectIdle();
}

TEST_F(CallToOthers, a_summary_counts_as_the_projects_first_contact)
{
    lvwProy().clickRow(1);
    rings();
    control.Call_Connect(6);
    control.Call_Resumen("quedamos el lunes");
    EXPECT_THAT(
        changes(),
        ElementsAre(projectNote("Se estableció llamada al 961 Con éxito. Resumen: quedamos el lunes", "88"),
                    "UPDATE Proyecto SET uf_contactado = 1, uf_primercontac = CURRENT_TIMESTAMP Where "
                    "Sys_PK=88 and isnull(uf_contactado)",
                    "UPDATE Proyecto SET uf_ultimointento = CURRENT_TIMESTAMP, uf_res_ultimointento = 50, "
                    "uf_ultimocontac = CURRENT_TIMESTAMP Where Sys_PK = 88"));
}

TEST_F(CallToOthers, a_project_screen_that_fails_leaves_no_call)
{
    host.log.failing = {"EditarProyecto"};
    lvwProy().clickRow(1);
    rings();
    call().cmdOcupado.press();
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "2");
    expectIdle();
}

TEST_F(CallToOthers, of_the_day_without_a_selected_row_do_nothing)
{
    due({});
    openToday();
    rings();
    EXPECT_FALSE(control.Call_Progress());
    control.Call_NoConnect(0); // and ask nothing at their end
    EXPECT_EQ(elements().today.lblcuenta2.Caption(), "0");
}

TEST_F(CallToOthers, of_the_day_call_the_prospect_behind_the_row)
{
    openToday();
    click("K13");
    rings();
    EXPECT_EQ(control.Call_Tabla(), "ut_icontact");
    EXPECT_EQ(control.Call_PK(), 13);
    EXPECT_EQ(lvwHoy().ListItems()("K13").ListSubItems()(4).Text(), "96113") << "which is for reading only";
    EXPECT_EQ(control.Call_Tel(), "222");
    EXPECT_EQ(call().lbltel.Caption(), "---2-22");
    EXPECT_FALSE(lvwHoy().usable());
    closesTheQuestion();
    call().cmdNoContestan.press();
    EXPECT_THAT(changes(),
                ElementsAre("UPDATE ut_icontact SET uf_ultimointento=CURRENT_TIMESTAMP, "
                            "uf_res_ultimointento=2 Where Sys_PK=13",
                            "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) "
                            "VALUES (CURRENT_TIMESTAMP, 'No se pudo establecer llamada al: 222 No "
                            "contestan','ana',13)"));
    EXPECT_EQ(elements().today.lblcuenta2.Caption(), "3") << "the bare number of the queue";
    expectIdle();
}

TEST_F(CallToOthers, of_the_day_call_the_project_behind_the_row_and_keep_it_selected)
{
    openToday();
    click("P88");
    rings();
    EXPECT_EQ(control.Call_Tabla(), "Proyecto");
    EXPECT_EQ(control.Call_PK(), 88);
    EXPECT_EQ(control.Call_Tel(), "961");
    call().cmdFueraServ.press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto 88"));
    EXPECT_EQ(selectedKeyOf(lvwHoy()), "P88");
    expectIdle();
}

TEST_F(CallToOthers, the_end_goes_by_the_tab_shown_at_that_moment)
{
    openProspects();
    lvw().clickRow(0);
    rings();
    openProjects(); // the tabs stay usable
    EXPECT_FALSE(lvwProy().usable());
    call().cmdOcupado.press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto 12")) << "the project that is selected there";
    EXPECT_THAT(changes(), Contains("UPDATE ut_icontact SET uf_ultimointento=CURRENT_TIMESTAMP, "
                                    "uf_res_ultimointento=1 Where Sys_PK=12"));
    // The note goes to the row selected in the tab in view, with the number that its click has found meanwhile.
    EXPECT_THAT(changes(), Contains(projectNote("No se pudo establecer llamada al: 961 Línea ocupada", "12")));
    expectIdle();
}

TEST_F(CallToOthers, on_a_directory_the_queue_is_loaded_anew)
{
    openToday();
    elements().top.lblItem(desk::contactos).click();
    cnn.forgetStatements();
    closesTheQuestion();
    control.Call_NoConnect(0);
    EXPECT_THAT(cnn.statements(), Contains(dueStatement));
    EXPECT_EQ(elements().today.lblcuenta2.Caption(), "3");
}

// The lists are locked during a call: what counts is the row that was selected there before.
TEST_F(CallToOthers, an_end_on_another_tab_writes_to_the_called_party_and_logs_and_asks_by_that_tab)
{
    struct Elsewhere {
        const char* selected; ///< on the tab "Hoy", nothing for an empty queue
        std::int16_t tab;
        const char* noteEnds;
        bool asks;
    };
    const std::vector<std::function<void()>> endings{[this] { call().cmdOcupado.press(); },
                                                     [this] {
                                                         call().cmdContesta.press();
                                                         call().cmdCallCon(2).press();
                                                     },
                                                     [this] {
                                                         control.Call_Connect(6);
                                                         call().cmdOkCall.press();
                                                     }};
    for (const Elsewhere& elsewhere :
         {Elsewhere{"P88", desk::hoy, "'ana',0,88)", false}, Elsewhere{"K13", desk::hoy, "'ana',13)", true},
          Elsewhere{nullptr, desk::hoy, nullptr, false}, Elsewhere{"K13", desk::organizaciones, "'ana',12)", true},
          Elsewhere{"K13", desk::contactos, "'ana',12)", true}})
        for (const auto& ending : endings) {
            if (elsewhere.selected == nullptr) due({});
            openToday();
            if (elsewhere.selected != nullptr) click(elsewhere.selected);
            openProspects();
            lvw().clickRow(0);
            rings();
            elements().top.lblItem(elsewhere.tab).click();
            cnn.forgetStatements();
            if (elsewhere.asks) closesTheQuestion();
            ending();
            bool noted = false;
            bool stored = false;
            for (const std::string& change : changes()) {
                if (change.rfind("UPDATE", 0) == 0) {
                    stored = true;
                    EXPECT_THAT(change, testing::ContainsRegex("^UPDATE ut_icontact .*Sys_PK ?= ?12"));
                } else {
                    noted = true;
                    EXPECT_THAT(change,
                                testing::EndsWith(elsewhere.noteEnds == nullptr ? "" : elsewhere.noteEnds));
                }
            }
            EXPECT_TRUE(stored);
            EXPECT_EQ(noted, elsewhere.noteEnds != nullptr);
            EXPECT_EQ(host.log.calls.size(), elsewhere.selected != nullptr && !elsewhere.asks ? 1U : 0U);
            expectIdle();
            elements().detail.txtText.Text("");
            due({queuedProspect(13), queuedProject(88), queuedProject(12)});
        }
}

TEST_F(CallToOthers, the_keyboard_goes_to_no_list_while_none_shows)
{
    lvwProy().SetFocus();
    rings();
    ASSERT_TRUE(call().cmdContesta.hasFocus());
    lvwProy().Visible(false);
    call().cmdCancelCall.press();
    for (screen::ListView* list : {&lvw(), &lvwProy(), &lvwHoy()})
        EXPECT_FALSE(list->hasFocus()) << list->name();
    EXPECT_FALSE(control.Call_Progress());
}

TEST_F(CallToOthers, the_keyboard_comes_back_to_the_list_in_sight)
{
    lvwProy().SetFocus();
    rings();
    EXPECT_TRUE(call().cmdContesta.hasFocus());
    call().cmdCancelCall.press();
    EXPECT_TRUE(lvwProy().hasFocus());
    openToday();
    click("K13");
    lvwHoy().SetFocus();
    rings();
    closesTheQuestion();
    call().cmdCancelCall.press();
    EXPECT_TRUE(lvwHoy().hasFocus());
    openProspects();
    lvw().SetFocus();
    rings();
    elements().top.lblItem(desk::contactos).click();
    call().cmdContesta.SetFocus();
    closesTheQuestion();
    call().cmdCancelCall.press();
    EXPECT_TRUE(elements().persons.lvwContactos.hasFocus());
}

} // namespace
} // namespace dn::tests
