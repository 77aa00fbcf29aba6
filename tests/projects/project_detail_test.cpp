// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What a click on a project fills, and what is left where a step fails.

#include "tests/support/project_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ProjectDesk : public ProjectTest {
protected:
    ProjectDesk()
    {
        start(7, true);
        contactData({{"Tel1", text("55 1")}, {"PN_Nombre", text("María")}});
    }

    void show(std::vector<std::vector<Cell>> rows)
    {
        activities(std::move(rows));
        openProjects();
    }

    std::string txtInfo() { return elements().detail.txtInfo.Text(); }
    std::optional<screen::Colour> swatch() { return elements().top.picColors.BackColor(); }
};

TEST_F(ProjectDesk, a_click_fills_the_summary)
{
    show({activity(1), activity(12, {{"FInicio", date("2026-03-15 08:05:09")},
                                     {"Actividad", text("Visita")},
                                     {"Asunto", text("Enseñar")},
                                     {"Meta", text("Venta nueva")},
                                     {"Organizacion", text("Acme")},
                                     {"Descripcion", text("Veinte puestos")},
                                     {"UF_monto", number("5")},
                                     {"contacto", text("otra")}})});
    lvwProy().clickRow(1);
    EXPECT_EQ(txtInfo(), "15/03/2026 08:05:09\r\nVisita\r\nEnseñar\r\nVenta nueva\r\nAcme\r\nVeinte puestos\r\n"
                         "Tel1: 55 1\r\nMaría \r\n");
}

TEST_F(ProjectDesk, a_project_without_activities_begins_with_an_empty_line)
{
    projects({project(12, {{"Meta", text("Venta")}})});
    openProjects();
    EXPECT_EQ(txtInfo(), "\r\n< Ninguna >\r\nRevise el estado del proyecto\r\nVenta\r\n\r\n\r\n"
                         "Tel1: 55 1\r\nMaría \r\n");
}

TEST_F(ProjectDesk, a_click_asks_for_the_contact_data_and_then_for_the_timeline)
{
    show({activity(1), activity(12)});
    lvwProy().clickRow(1);
    EXPECT_THAT(cnn.statements(),
                ElementsAre(HasSubstr("WHERE Proyecto.Sys_PK=12"),
                            "SELECT * FROM xt_biticontact WHERE uf_IProy = 12 ORDER BY uf_Tiempo"));
}

TEST_F(ProjectDesk, a_click_goes_step_by_step)
{
    show({activity(1), activity(12, {{"Asunto", text("Enseñar")}, {"UF_Color", whole(1)}})});
    elements().detail.cmdIntro.Enabled(false);
    std::vector<std::string> steps;
    cnn.beforeExecute([&](std::string_view statement) {
        steps.push_back(
            std::string(statement.find("xt_biticontact") == std::string_view::npos ? "contact" : "timeline") +
            (swatch() == 0x0000FFU ? " swatch" : "") +
            (txtInfo() == "\r\n\r\nEnseñar\r\n\r\n\r\n\r\n" ? " row" : "") +
            (txtInfo().ends_with("María \r\n") ? " contact" : "") +
            (elements().detail.cmdIntro.Enabled() ? " unlocked" : "") +
            (control.Call_Tel() == "55 1" ? " number" : ""));
    });
    control.Call_Tel("");
    lvwProy().clickRow(1);
    EXPECT_THAT(steps, ElementsAre("contact swatch row", "timeline swatch contact unlocked number"));
}

TEST_F(ProjectDesk, a_click_shows_the_timeline)
{
    cnn.onContaining("uf_IProy = 12")
        .gives({"uf_Tiempo", "uf_Mensaje", "uf_Usuario"},
               {{date("2026-03-01 10:00:00"), text("visita"), text("ana")}});
    show({activity(12)});
    EXPECT_EQ(elements().detail.txtBit.Text(), "ana [01/03/2026 10:00:00]\r\nvisita\r\n\r\n");
}

TEST_F(ProjectDesk, a_click_sets_the_number_of_the_next_call)
{
    show({activity(1), activity(2)});
    contactData({{"Tel_Movil", text("55 9")}});
    lvwProy().clickRow(1);
    EXPECT_EQ(control.Call_Tel(), "55 9");
}

TEST_F(ProjectDesk, a_click_unlocks_what_needs_a_row)
{
    show({activity(1)});
    desk::DetailElements& detail = elements().detail;
    for (screen::Element* element :
         std::initializer_list<screen::Element*>{&detail.Combo1, &detail.txtText, &detail.cmdIntro})
        element->Enabled(false);
    lvwProy().clickRow(0);
    EXPECT_TRUE(detail.Combo1.Enabled());
    EXPECT_TRUE(detail.txtText.Enabled());
    EXPECT_TRUE(detail.cmdIntro.Enabled());
}

TEST_F(ProjectDesk, the_swatch_shows_the_mark_of_the_row)
{
    show({activity(1, {{"UF_Color", whole(4)}}), activity(2), activity(3, {{"UF_Color", whole(7)}})});
    EXPECT_EQ(swatch(), 0x800080U);
    lvwProy().clickRow(1);
    EXPECT_EQ(swatch(), 0xFFFFFFU);
    elements().top.picColors.BackColor(0x0000FF);
    lvwProy().clickRow(2);
    EXPECT_EQ(swatch(), 0xFFFFFFU) << "a code beyond the table is no mark";
}

TEST_F(ProjectDesk, a_click_behind_the_prospects_changes_nothing)
{
    show({activity(1, {{"UF_Color", whole(1)}}), activity(2)});
    openProspects();
    control.Call_Tel("el anterior");
    elements().detail.txtInfo.Text("un contacto");
    lvwProy().ItemClick.emit(lvwProy().ListItems()(2));
    EXPECT_EQ(txtInfo(), "un contacto");
    EXPECT_EQ(control.Call_Tel(), "el anterior");
    EXPECT_FALSE(elements().detail.txtText.Enabled());
    EXPECT_THAT(cnn.statements(), testing::IsEmpty());
}

TEST_F(ProjectDesk, a_click_on_every_other_tab_counts)
{
    show({activity(1, {{"Asunto", text("Enseñar")}})});
    elements().top.lblItem(2).click();
    lvwProy().ItemClick.emit(lvwProy().ListItems()(1));
    EXPECT_THAT(txtInfo(), HasSubstr("Enseñar"));
}

TEST_F(ProjectDesk, without_a_row_the_summary_and_the_number_stay_and_the_rest_runs)
{
    show({activity(1, {{"UF_Color", whole(1)}})});
    const std::string shown = txtInfo();
    activities({});
    elements().detail.txtText.Enabled(false);
    elements().detail.txtBit.Text("bitácora");
    control.Call_Tel("el anterior");
    cnn.forgetStatements();
    reload();
    EXPECT_EQ(txtInfo(), shown);
    EXPECT_EQ(swatch(), 0x0000FFU);
    EXPECT_EQ(control.Call_Tel(), "el anterior");
    EXPECT_TRUE(elements().detail.txtText.Enabled());
    EXPECT_EQ(elements().detail.txtBit.Text(), "");
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr(readsActivities), HasSubstr(readsProjects)));
}

TEST_F(ProjectDesk, contact_data_that_cannot_be_read_leave_an_empty_line_and_the_last_number)
{
    show({activity(1), activity(2)});
    const std::string number = control.Call_Tel();
    failAt(1);
    lvwProy().clickRow(1);
    EXPECT_EQ(txtInfo(), "\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
    EXPECT_EQ(control.Call_Tel(), number);
    EXPECT_TRUE(elements().detail.cmdIntro.Enabled());
    EXPECT_THAT(cnn.statements(), testing::SizeIs(2)) << "the timeline is read all the same";
}

TEST_F(ProjectDesk, a_timeline_that_cannot_be_read_leaves_the_summary_in_place)
{
    show({activity(1, {{"Asunto", text("Enseñar")}})});
    failAt(2);
    lvwProy().clickRow(0);
    EXPECT_THAT(txtInfo(), HasSubstr("Enseñar"));
    EXPECT_EQ(elements().detail.txtBit.Text(), "");
    EXPECT_TRUE(elements().detail.cmdIntro.Enabled());
}

TEST_F(ProjectDesk, a_cell_that_the_row_does_not_have_is_left_out)
{
    show({activity(1, {{"Actividad", text("a")}, {"Asunto", text("b")}})});
    lvwProy().ListItems().Clear();
    screen::ListItem row = lvwProy().ListItems().Add("K1", "fecha");
    row.ListSubItems().Add("sola");
    lvwProy().clickRow(0);
    EXPECT_EQ(txtInfo(), "fecha\r\nsola\r\nTel1: 55 1\r\nMaría \r\n");
}

TEST_F(ProjectDesk, a_key_that_is_no_number_leaves_the_contact_data_out)
{
    show({});
    lvwProy().ListItems().Add("K99999999999", "fecha");
    control.Call_Tel("el anterior");
    lvwProy().clickRow(0);
    EXPECT_EQ(txtInfo(), "fecha\r\n");
    EXPECT_EQ(control.Call_Tel(), "el anterior");
}

TEST_F(ProjectDesk, a_list_that_is_disabled_takes_no_click)
{
    show({activity(1), activity(2)});
    lvwProy().Enabled(false);
    host.log.calls.clear();
    lvwProy().clickRow(1);
    lvwProy().doubleClickRow(1);
    EXPECT_EQ(selectedKey(), "K1");
    EXPECT_THAT(cnn.statements(), testing::IsEmpty());
    EXPECT_THAT(host.log.calls, testing::IsEmpty());
}

} // namespace
} // namespace dn::tests
