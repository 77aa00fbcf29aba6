// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// RefreshRobot as a whole: its order of steps, its failures, the selection that it keeps and the lists that it
// widens.

#include "tests/today/fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Queue : public TodayTest {
protected:
    bool canEdit() { return elements().today.cmdEditHoy.Enabled(); }
    bool canMakeProject() { return elements().today.geProyFromContacto.Enabled(); }
};

TEST_F(Queue, is_what_is_due_and_then_what_got_stuck)
{
    start(7, false);
    due({queuedProspect(30), queuedProject(4)});
    stuck({queuedProject(8), queuedProspect(1)});
    elements().top.lblItem(desk::hoy).click();
    EXPECT_THAT(cnn.statements(), ElementsAre(dueStatement, stuckStatement));
    EXPECT_THAT(keys(lvwHoy()), ElementsAre("K30", "P4", "P8", "K1"));
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "Hoy: 4 actividades | Proyectos: 0 Contactos: 0");
    EXPECT_EQ(elements().today.lblcuenta2.Caption(), "Hoy: 4 actividades | Proyectos: 0 Contactos: 0");
    EXPECT_TRUE(canEdit());
    EXPECT_TRUE(canMakeProject());
}

TEST_F(Queue, asks_alike_on_every_engine)
{
    cnn.on("SELECT NOW()").fails("'NOW' is not a recognized built-in function name.", "42000", 195);
    start(7, false);
    elements().top.lblItem(desk::hoy).click();
    EXPECT_THAT(cnn.statements(), ElementsAre(dueStatement, stuckStatement));
}

TEST_F(Queue, shows_a_party_of_both_views_once_with_its_row_of_the_first)
{
    start(7, false);
    due({queuedProject(5, date("2026-03-14 10:00:00"))});
    stuck({queuedProject(5), queuedProspect(5), queuedProspect(6)});
    openToday();
    EXPECT_THAT(keys(lvwHoy()), ElementsAre("P5", "K5", "K6"));
    EXPECT_EQ(lvwHoy().ListItems()("P5").ListSubItems()(1).Text(), "10:00:00");
}

TEST_F(Queue, that_is_empty_locks_its_commands)
{
    start(7, false);
    due({queuedProspect(1)});
    openToday();
    EXPECT_TRUE(canEdit());
    due({});
    openToday();
    EXPECT_EQ(lvwHoy().ListItems().Count(), 0);
    EXPECT_FALSE(canEdit());
    EXPECT_FALSE(canMakeProject());
    EXPECT_EQ(elements().today.lblcuenta2.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 0");
}

TEST_F(Queue, is_loaded_at_the_start_and_on_the_hosts_demand)
{
    due({queuedProspect(1)});
    connect(7, false);
    control.RefreshData();
    EXPECT_THAT(cnn.statements(), testing::IsSupersetOf({dueStatement, stuckStatement}));
    EXPECT_THAT(keys(lvwHoy()), ElementsAre("K1"));
    due({queuedProspect(2)});
    cnn.forgetStatements();
    control.RefreshRobot();
    EXPECT_THAT(cnn.statements(), ElementsAre(dueStatement, stuckStatement));
    EXPECT_THAT(keys(lvwHoy()), ElementsAre("K2"));
}

TEST_F(Queue, of_another_agent_comes_with_him)
{
    start(7, true);
    openToday();
    elements().top.cbAgente.pick(2);
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr("qhoy where ejecutivo=9 "), HasSubstr("qatascados where "
                                                                                              "ejecutivo=9 ")));
}

TEST_F(Queue, of_nobody_stays_as_it_was_after_the_filters_went_back)
{
    start(7, true);
    due({queuedProspect(1), queuedProspect(2)});
    openToday();
    click("K2");
    for (const int agent : {0, -1}) {
        elements().top.cbAgente.ListIndex(agent); // which loads the tab in view by itself
        elements().prospects.cbStatus.ListIndex(2);
        elements().projects.cbProjStatusProj.ListIndex(3);
        elements().today.cmdEditHoy.Enabled(false);
        cnn.forgetStatements();
        control.RefreshRobot();
        EXPECT_EQ(elements().prospects.cbStatus.ListIndex(), 0) << agent;
        EXPECT_EQ(elements().projects.cbProjStatusProj.ListIndex(), 0) << agent;
        EXPECT_THAT(cnn.statements(), testing::Not(testing::Contains(HasSubstr("ejecutivo="))));
        EXPECT_THAT(keys(lvwHoy()), ElementsAre("K1", "K2"));
        EXPECT_EQ(selectedKeyOf(lvwHoy()), "K2");
        EXPECT_FALSE(canEdit()) << "not even what follows the list";
        elements().today.lblcuenta2.Caption("como estaba");
        cnn.forgetStatements();
        control.RefreshRobot();
        EXPECT_THAT(cnn.statements(), IsEmpty()) << "no filter stands elsewhere";
        EXPECT_EQ(elements().today.lblcuenta2.Caption(), "como estaba");
    }
}

TEST_F(Queue, may_be_asked_for_before_there_is_anything)
{
    control.RefreshRobot(); // the host has handed over nothing yet
    EXPECT_EQ(elements().projects.cbProjStatusProj.ListIndex(), 0);
    connect(7, false);
    control.RefreshRobot();
    EXPECT_THAT(cnn.statements(), IsEmpty()) << "the agents are not there yet";
    EXPECT_EQ(lvwHoy().ListItems().Count(), 0);
}

TEST_F(Queue, takes_a_filter_without_an_entry_to_the_first_one_too)
{
    start(7, false);
    elements().prospects.cbStatus.ListIndex(-1);
    elements().projects.cbProjStatusProj.ListIndex(-1);
    control.RefreshRobot();
    EXPECT_EQ(elements().prospects.cbStatus.ListIndex(), 0);
    EXPECT_EQ(elements().projects.cbProjStatusProj.ListIndex(), 0);
}

TEST_F(Queue, takes_the_filters_of_the_other_lists_back_and_reloads_them_first)
{
    start(7, false);
    openToday();
    elements().prospects.cbStatus.ListIndex(2);
    elements().projects.cbProjStatusProj.ListIndex(3);
    cnn.forgetStatements();
    control.RefreshRobot();
    EXPECT_EQ(elements().prospects.cbStatus.ListIndex(), 0);
    EXPECT_EQ(elements().projects.cbProjStatusProj.ListIndex(), 0);
    ASSERT_EQ(cnn.statements().size(), 5U);
    EXPECT_THAT(cnn.statements()[0], HasSubstr("uf_Status = 0"));
    EXPECT_THAT(cnn.statements()[1], HasSubstr(readsActivities));
    EXPECT_THAT(cnn.statements()[2], HasSubstr(readsProjects));
    EXPECT_EQ(cnn.statements()[3], dueStatement);
    EXPECT_EQ(cnn.statements()[4], stuckStatement);
}

TEST_F(Queue, leaves_lists_alone_whose_filters_stand_at_the_first_entry)
{
    start(7, false);
    openToday();
    control.RefreshRobot();
    EXPECT_THAT(cnn.statements(), ElementsAre(dueStatement, stuckStatement));
}

TEST_F(Queue, selects_and_clicks_the_same_row_again)
{
    start(7, false);
    prospects({prospect(1), prospect(2)});
    openProspects();
    due({queuedProspect(1), queuedProspect(2)});
    openToday();
    click("K2");
    elements().detail.txtInfo.Text("");
    elements().today.cmdEditHoy.Enabled(false);
    due({queuedProspect(2), queuedProspect(1), queuedProspect(3)});
    std::string counted;
    bool enabled = true;
    ports.events.onYield = [&] { // the click reads the timeline
        counted = elements().today.lblcuenta2.Caption();
        enabled = canEdit();
    };
    cnn.forgetStatements();
    control.RefreshRobot();
    EXPECT_EQ(selectedKeyOf(lvwHoy()), "K2");
    EXPECT_EQ(selectedKeyOf(lvw()), "K2");
    EXPECT_THAT(info(), testing::StartsWith("K2 | "));
    EXPECT_THAT(cnn.statements(), ElementsAre(dueStatement, stuckStatement, HasSubstr("uf_Iicontact = 2")));
    EXPECT_THAT(counted, testing::StartsWith("Hoy: 2 ")) << "counted after the click";
    EXPECT_FALSE(enabled) << "and enabled last";
    EXPECT_THAT(elements().today.lblcuenta2.Caption(), testing::StartsWith("Hoy: 3 "));
    EXPECT_TRUE(canEdit());
}

TEST_F(Queue, that_the_host_loads_selects_and_clicks_whatever_tab_is_in_view)
{
    start(7, false);
    prospects({prospect(1), prospect(2)});
    activities({activity(5)});
    openProspects();
    openProjects();
    due({queuedProspect(1), queuedProspect(2)});
    openToday();
    click("K2");
    openProspects();
    lvw().clickRow(0);
    control.RefreshRobot();
    EXPECT_EQ(selectedKeyOf(lvw()), "K2");
    EXPECT_THAT(info(), testing::StartsWith("K2 | ")) << "the row of the queue is what stands in the detail";
    openProjects();
    const std::string project = info();
    control.RefreshRobot();
    EXPECT_EQ(info(), project) << "but there no prospect shows";
}

TEST_F(Queue, clicks_the_first_row_when_the_selected_one_is_gone)
{
    start(7, false);
    prospects({prospect(1), prospect(2)});
    openProspects();
    due({queuedProspect(1), queuedProspect(2)});
    openToday();
    click("K2");
    due({queuedProspect(1)});
    control.RefreshRobot();
    EXPECT_EQ(selectedKeyOf(lvwHoy()), "K1");
    EXPECT_EQ(selectedKeyOf(lvw()), "K1");
    due({});
    cnn.forgetStatements();
    control.RefreshRobot();
    EXPECT_EQ(selectedKeyOf(lvwHoy()), "none");
    EXPECT_THAT(cnn.statements(), ElementsAre(dueStatement, stuckStatement)) << "nothing to click";
}

TEST_F(Queue, clicks_nothing_when_nothing_was_selected)
{
    start(7, false);
    prospects({prospect(1)});
    openProspects();
    due({queuedProspect(1)});
    openToday();
    EXPECT_EQ(selectedKeyOf(lvwHoy()), "K1") << "the first row is selected by itself";
    EXPECT_EQ(info(), "") << "and not clicked";
}

TEST_F(Queue, any_statement_may_fail_and_the_others_run)
{
    start(7, false);
    openToday();
    due({queuedProspect(1)});
    stuck({queuedProspect(2)});
    failAt(1);
    control.RefreshRobot();
    EXPECT_THAT(cnn.statements(), ElementsAre(dueStatement, stuckStatement));
    EXPECT_THAT(keys(lvwHoy()), ElementsAre("K2"));
    EXPECT_TRUE(canEdit());
    elements().prospects.cbStatus.ListIndex(2);
    elements().projects.cbProjStatusProj.ListIndex(3);
    prospects({prospect(1), prospect(2)});
    activities({activity(5)});
    projects({project(6)});
    struct Lost {
        const char* statement;
        std::vector<std::string> prospects, projects, queue;
    };
    const std::vector<std::string> both{"K1", "K2"};
    const std::vector<std::string> all{"K5", "K6"};
    for (const Lost& lost : {Lost{"uf_Status = 0", {}, all, both},
                             {readsActivities, both, {"K6"}, both},
                             {readsProjects, both, {"K5"}, both},
                             {"from qhoy", both, all, {"K2"}},
                             {"from qatascados", both, all, {"K1"}}}) {
        elements().prospects.cbStatus.ListIndex(2);
        elements().projects.cbProjStatusProj.ListIndex(3);
        cnn.onContaining(lost.statement).fails("se perdió la conexión").once();
        control.RefreshRobot();
        EXPECT_EQ(keys(lvw()), lost.prospects) << lost.statement;
        EXPECT_EQ(keys(lvwProy()), lost.projects) << lost.statement;
        EXPECT_EQ(keys(lvwHoy()), lost.queue) << lost.statement;
        EXPECT_TRUE(canEdit()) << lost.statement;
    }
}

TEST_F(Queue, keeps_the_rows_read_so_far_when_the_server_fails_in_the_middle)
{
    start(7, false);
    cnn.onContaining("from qhoy")
        .gives(Rows{columns(), {queuedProspect(1), queuedProspect(2), queuedProspect(3)}, 2});
    stuck({queuedProject(9)});
    openToday();
    EXPECT_THAT(keys(lvwHoy()), ElementsAre("K1", "K2", "P9"));
}

TEST_F(Queue, without_rows_to_read_is_empty)
{
    start(7, false);
    due({queuedProspect(1)});
    openToday();
    cnn.onContaining("from q").givesNothing();
    control.RefreshRobot();
    EXPECT_EQ(lvwHoy().ListItems().Count(), 0);
    EXPECT_FALSE(canEdit());
}

TEST_F(Queue, does_not_fill_the_detail_of_a_tab_that_the_operator_went_to_meanwhile)
{
    start(7, false);
    prospects({prospect(1), prospect(2)});
    openProspects();
    due({queuedProspect(1), queuedProspect(2)});
    openToday();
    click("K2");
    elements().prospects.cbStatus.ListIndex(1);
    bool went = false;
    ports.events.onYield = [&] {
        if (went) return;
        went = true;
        elements().top.lblItem(desk::organizaciones).click();
    };
    control.RefreshRobot();
    EXPECT_TRUE(went);
    EXPECT_EQ(info(), "");
    EXPECT_FALSE(elements().detail.cmdIntro.Enabled());
    EXPECT_THAT(keys(lvwHoy()), ElementsAre("K1", "K2"));
    EXPECT_EQ(selectedKeyOf(lvwHoy()), "K2") << "he finds his row again when he comes back";
    EXPECT_TRUE(canEdit());
}

TEST_F(Queue, stands_a_refresh_inside_its_own_yield)
{
    start(7, false);
    due({queuedProspect(1), queuedProspect(2)});
    openToday();
    elements().prospects.cbStatus.ListIndex(1);
    bool nested = false;
    ports.events.onYield = [&] {
        if (nested) return;
        nested = true;
        control.RefreshRobot();
    };
    control.RefreshRobot();
    EXPECT_TRUE(nested);
    EXPECT_THAT(keys(lvwHoy()), ElementsAre("K1", "K2"));
    EXPECT_EQ(elements().prospects.cbStatus.ListIndex(), 0);
}

} // namespace
} // namespace dn::tests
