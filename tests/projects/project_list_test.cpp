// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// RefreshProyectos as a whole: its two passes, its order of steps, its failures, and the selection that it keeps.

#include "tests/support/project_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ProjectList : public ProjectTest {
protected:
    screen::ComboBox& filter() { return elements().projects.cbProjStatusProj; }
};

TEST_F(ProjectList, shows_the_projects_with_activities_first_then_the_others)
{
    start(7, false);
    activities({activity(30), activity(4)});
    projects({project(8), project(2)});
    openProjects();
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K30", "K4", "K8", "K2"));
}

TEST_F(ProjectList, shows_a_project_once_by_the_first_of_its_activities)
{
    start(7, false);
    activities({activity(1, {{"Asunto", text("primera")}}), activity(2, {{"Asunto", text("otra")}}),
                activity(1, {{"Asunto", text("segunda")}}), activity(1, {{"Asunto", text("tercera")}})});
    projects({project(1), project(3), project(2), project(3)});
    openProjects();
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K1", "K2", "K3"));
    EXPECT_EQ(lvwProy().ListItems()("K1").ListSubItems()(2).Text(), "primera");
    EXPECT_EQ(lvwProy().ListItems()("K3").ListSubItems()(1).Text(), "< Ninguna >");
}

TEST_F(ProjectList, picks_the_first_entry_of_the_filter_where_none_is_picked_and_loads_once)
{
    start(0, true); // an agent's queue would have picked it
    elements().top.cbAgente.pick(1);
    cnn.forgetStatements();
    ASSERT_EQ(filter().ListIndex(), -1);
    elements().top.lblItem(1).click();
    EXPECT_EQ(filter().ListIndex(), 0);
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr(readsActivities), HasSubstr(readsProjects)));
}

TEST_F(ProjectList, keeps_the_row_where_the_load_itself_picks_the_entry_of_the_filter)
{
    start(7, false);
    activities({activity(1), activity(2)});
    openProjects();
    lvwProy().clickRow(1);
    filter().ListIndex(-1); // the click that this raises loads the list
    EXPECT_EQ(filter().ListIndex(), 0);
    EXPECT_EQ(selectedKey(), "K2");
}

TEST_F(ProjectList, sends_the_two_statements_for_the_agent_and_the_status_picked)
{
    const char* const conditions[]{"",
                                   " AND Proyecto.UF_Status1=1",
                                   " AND Proyecto.UF_Status1=2",
                                   " AND Proyecto.UF_Status1=3",
                                   " AND Proyecto.UF_Status1=4",
                                   " AND Proyecto.UF_Status1=6"};
    start(9, true);
    openProjects();
    for (int position = 0; position <= 5; ++position) {
        cnn.forgetStatements();
        filter().pick(position);
        const std::string open = position == 0 ? " AND Proyecto.UF_Status1<5" : conditions[position];
        EXPECT_THAT(cnn.statements(),
                    ElementsAre(HasSubstr(std::string("proyecto.IEjecutivo = 9") + conditions[position] +
                                          " ORDER BY actividad.FInicio;"),
                                HasSubstr("WHERE proyecto.IEjecutivo=9" + open + " ORDER BY Proyecto.FInicio")));
    }
}

TEST_F(ProjectList, takes_the_sql_server_forms_for_every_other_engine)
{
    cnn.on("SELECT NOW()").fails("'NOW' is not a recognized built-in function name.", "42000", 195);
    start(7, false);
    elements().top.lblItem(1).click();
    EXPECT_THAT(cnn.statements(),
                ElementsAre(HasSubstr("datediff(D, Proyecto.Sys_DTCreated, GETDATE())as e_dias, "),
                            HasSubstr(readsProjects)));
}

TEST_F(ProjectList, asks_nothing_for_an_agent_whom_nobody_picked)
{
    start(7, false);
    activities({activity(1)});
    openProjects();
    elements().top.cbAgente.Clear();
    reload();
    EXPECT_THAT(cnn.statements(), IsEmpty());
    EXPECT_EQ(lvwProy().ListItems().Count(), 0);
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 0");
}

TEST_F(ProjectList, is_empty_for_an_agent_without_projects)
{
    start(7, false);
    activities({});
    projects({});
    openProjects();
    EXPECT_EQ(lvwProy().ListItems().Count(), 0);
    EXPECT_EQ(selectedKey(), "none");
}

TEST_F(ProjectList, asks_for_the_first_rows_ahead_of_its_clearing_and_for_the_second_behind_the_first_pass)
{
    start(7, false);
    activities({activity(1), activity(2)});
    openProjects();
    activities({activity(3)});
    std::vector<int> rowsThen;
    cnn.beforeExecute([&](std::string_view) { rowsThen.push_back(lvwProy().ListItems().Count()); });
    elements().projects.cbProjStatusProj.pick(0);
    EXPECT_THAT(rowsThen, ElementsAre(2, 1, 1, 1)) << "activities, projects, contact data, timeline";
}

TEST_F(ProjectList, neither_shows_the_hourglass_nor_yields_by_itself)
{
    start(7, false);
    activities({});
    openProjects();
    ports.pointer.shapes.clear();
    ports.events.yields = 0;
    reload();
    EXPECT_THAT(ports.pointer.shapes, IsEmpty());
    EXPECT_EQ(ports.events.yields, 0);
}

TEST_F(ProjectList, holds_the_other_pass_alone_where_a_statement_fails)
{
    start(7, false);
    activities({activity(1)});
    projects({project(1), project(2)});
    openProjects();
    failAt(1);
    reload();
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K1", "K2"));
    EXPECT_EQ(lvwProy().ListItems()("K1").ListSubItems()(1).Text(), "< Ninguna >");
    failAt(2);
    reload();
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K1"));
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 1 Contactos: 0");
    EXPECT_TRUE(ports.dialogs.boxes().empty());
}

TEST_F(ProjectList, is_empty_and_silent_on_a_lost_connection)
{
    start(7, false);
    activities({activity(1)});
    openProjects();
    cnn.setState(data::Connection::closed);
    reload();
    EXPECT_EQ(lvwProy().ListItems().Count(), 0);
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 0");
}

TEST_F(ProjectList, ends_in_peace_whenever_the_connection_dies)
{
    const std::vector<std::vector<std::string>> left{{}, {"K1"}, {"K1", "K2"}, {"K1", "K2"}};
    start(7, false);
    for (std::size_t dying = 1; dying <= left.size(); ++dying) {
        activities({activity(1)});
        projects({project(2)});
        openProjects();
        std::size_t sent = 0;
        cnn.beforeExecute([&](std::string_view) {
            if (++sent >= dying) cnn.setState(data::Connection::closed);
        });
        reload();
        EXPECT_EQ(sent, left[dying - 1].empty() ? 2U : 4U)
            << "each statement is tried, of a row where there is one";
        EXPECT_EQ(keys(lvwProy()), left[dying - 1]) << dying;
        EXPECT_EQ(elements().top.lblCuenta.Caption(),
                  "Hoy: 0 actividades | Proyectos: " + std::to_string(left[dying - 1].size()) + " Contactos: 0");
        EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
        cnn.beforeExecute(nullptr);
        cnn.setState(data::Connection::open);
    }
    EXPECT_TRUE(ports.dialogs.boxes().empty());
}

TEST_F(ProjectList, keeps_the_rows_read_so_far_when_the_server_fails_in_the_middle)
{
    start(7, false);
    cnn.onContaining(readsActivities).gives(Rows{activityColumns(), {activity(1), activity(2), activity(3)}, 2});
    cnn.onContaining(readsProjects).gives(Rows{projectColumns(), {project(4), project(5)}, 1});
    openProjects();
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K1", "K2", "K4"));
}

TEST_F(ProjectList, selects_the_same_project_again_and_shows_it)
{
    start(7, false);
    activities({activity(1), activity(2), activity(3)});
    openProjects();
    lvwProy().clickRow(1);
    activities({activity(3), activity(1)});
    projects({project(2)});
    cnn.forgetStatements();
    reload();
    EXPECT_EQ(selectedKey(), "K2");
    EXPECT_THAT(cnn.statements(),
                ElementsAre(HasSubstr(readsActivities), HasSubstr(readsProjects), HasSubstr("Proyecto.Sys_PK=2"),
                            "SELECT * FROM xt_biticontact WHERE uf_IProy = 2 ORDER BY uf_Tiempo"));
    EXPECT_THAT(elements().detail.txtInfo.Text(), testing::StartsWith("\r\n< Ninguna >\r\n"));
}

TEST_F(ProjectList, shows_the_row_that_the_list_itself_selects_when_the_project_left)
{
    start(7, false);
    activities({activity(1), activity(2)});
    openProjects();
    lvwProy().clickRow(1);
    activities({activity(5, {{"Asunto", text("de otro")}}), activity(6)});
    reload();
    EXPECT_EQ(selectedKey(), "K5");
    EXPECT_THAT(elements().detail.txtInfo.Text(), HasSubstr("de otro"));
}

TEST_F(ProjectList, passes_over_a_detail_that_fails)
{
    start(7, false);
    activities({activity(1)});
    openProjects();
    for (const std::size_t failing : {3U, 4U}) {
        failAt(failing);
        reload();
        EXPECT_EQ(lvwProy().ListItems().Count(), 1);
        EXPECT_EQ(elements().top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 1 Contactos: 0");
        EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
    }
}

TEST_F(ProjectList, loaded_behind_the_prospects_leaves_their_detail_alone)
{
    start(7, false);
    prospects({prospect(5)});
    openProspects();
    const std::string shown = elements().detail.txtInfo.Text();
    activities({activity(1)});
    filter().ListIndex(1); // by code, as the queue of the day does
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K1"));
    EXPECT_EQ(elements().detail.txtInfo.Text(), shown);
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr(readsActivities), HasSubstr(readsProjects)));
}

TEST_F(ProjectList, a_load_that_runs_inside_the_yield_of_another_leaves_one_list)
{
    start(7, true);
    activities({activity(1), activity(2)});
    openProjects();
    bool nested = false;
    ports.events.onYield = [&] {
        if (nested) return;
        nested = true;
        activities({activity(8), activity(9)});
        elements().top.cbAgente.pick(2);
    };
    reload();
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K8", "K9"));
    EXPECT_EQ(selectedKey(), "K8");
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 2 Contactos: 0");
}

TEST_F(ProjectList, a_click_on_the_tab_in_view_shows_the_row_ahead_of_its_load)
{
    start(7, false);
    activities({activity(5), activity(6)});
    openProjects();
    lvwProy().clickRow(1);
    cnn.forgetStatements();
    elements().top.lblItem(1).click();
    EXPECT_THAT(cnn.statements(),
                ElementsAre(HasSubstr("Proyecto.Sys_PK=6"), HasSubstr("uf_IProy = 6"), HasSubstr(readsActivities),
                            HasSubstr(readsProjects), HasSubstr("Proyecto.Sys_PK=6"), HasSubstr("uf_IProy = 6")));
}

TEST_F(ProjectList, a_tab_opened_while_the_timeline_is_read_keeps_its_own_detail)
{
    start(7, false);
    activities({activity(5)});
    openProjects();
    bool nested = false;
    ports.events.onYield = [&] {
        if (nested) return;
        nested = true;
        elements().top.lblItem(3).click();
    };
    elements().top.lblItem(1).click(); // its first yield is that of the timeline of the selected row
    EXPECT_TRUE(elements().organisations.lvwOrganizaciones.Visible());
    EXPECT_EQ(elements().detail.txtInfo.Text(), "");
    EXPECT_FALSE(elements().detail.txtText.Enabled());
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr("Proyecto.Sys_PK=5"), HasSubstr("uf_IProy = 5"),
                                              HasSubstr(" FROM Organizacion ")));
}

TEST_F(ProjectList, keeps_the_order_of_a_sorted_list_when_it_is_loaded_again)
{
    start(7, false);
    activities({activity(1, {{"Asunto", text("b")}}), activity(2, {{"Asunto", text("a")}})});
    openProjects();
    lvwProy().SortKey(2);
    lvwProy().Sorted(true);
    reload();
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K2", "K1"));
}

} // namespace
} // namespace dn::tests
