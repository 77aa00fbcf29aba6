// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Calls to projects and to parties of the day's queue: the tab in view tells whom a call is about, at its start
// and again at its end.

#include "tests/support/element_tree.h"
#include "tests/today/fixture.h"

namespace dn::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class CallToOthers : public TodayTest {
protected:
    void SetUp() override
    {
        start(7, false);
        prospects({prospect(12, {{"uf_Telefono", text("111")}}), prospect(13, {{"uf_Telefono", text("222")}})});
        activities({activity(12), activity(88)});
        contactData({{"Tel1", text("961")}});
        openProspects();
        openProjects();
        due({queuedProspect(13), queuedProject(88), queuedProject(12)});
    }

    desk::CallElements& call() { return elements().call; }
    void rings()
    {
        elements().detail.cmdCall.press();
        cnn.forgetStatements();
        host.log.calls.clear();
    }
    void closesTheQuestion()
    {
        ports.events.expectModal("dlgQueH", [](screen::Form& form) { form.closeWindow(); });
    }
    std::vector<std::string> changes()
    {
        std::vector<std::string> result;
        for (const std::string& statement : cnn.statements())
            if (statement.rfind("UPDATE", 0) == 0 || statement.rfind("INSERT", 0) == 0)
                result.push_back(statement);
        return result;
    }
    static std::string projectNote(const std::string& message, int key)
    {
        return "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, uf_IProy) VALUES "
               "(CURRENT_TIMESTAMP, '" +
               message + "','ana',0," + std::to_string(key) + ")";
    }
    void expectIdle()
    {
        EXPECT_FALSE(control.Call_Progress());
        EXPECT_FALSE(call().picLlamada.Visible());
        EXPECT_TRUE(lvwProy().Enabled() && lvwHoy().Enabled() && lvw().Enabled());
        EXPECT_TRUE(elements().detail.cmdCall.Enabled());
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
    elements().detail.cmdCall.press();
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
                                        88),
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
    EXPECT_THAT(changes(),
                ElementsAre(projectNote("Se estableció llamada al 961 Con éxito. Resumen: quedamos el lunes", 88),
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
    EXPECT_EQ(control.Call_Tel(), "222");
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
    EXPECT_THAT(changes(), Contains(projectNote("No se pudo establecer llamada al: 961 Línea ocupada", 12)));
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
}

} // namespace
} // namespace dn::tests
