// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The commands on projects: what they ask of the host, in which order, and what they show afterwards.

#include "tests/support/project_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ProjectCommands : public ProjectTest {
protected:
    ProjectCommands()
    {
        start(7, true);
        activities({activity(12), activity(13)});
        projects({project(14)});
        openProjects();
        host.log.calls.clear();
    }

    desk::ProjectElements& commands() { return elements().projects; }
    bool reloaded()
    {
        return !cnn.statements().empty() && cnn.statements()[0].find(readsActivities) != std::string::npos;
    }
};

// ---- A new project

TEST_F(ProjectCommands, a_new_project_is_loaded_and_selected)
{
    host.projects->newProject = 14;
    commands().cmdProjNewProj.press();
    EXPECT_THAT(host.log.calls, ElementsAre("CrearProyecto 2 0"));
    EXPECT_TRUE(reloaded());
    EXPECT_EQ(selectedKey(), "K14");
}

TEST_F(ProjectCommands, a_new_project_is_selected_without_a_click)
{
    lvwProy().clickRow(1);
    const std::string shown = elements().detail.txtInfo.Text();
    host.projects->newProject = 14;
    cnn.forgetStatements();
    commands().cmdProjNewProj.press();
    EXPECT_EQ(elements().detail.txtInfo.Text(), shown);
    EXPECT_THAT(cnn.statements().back(), HasSubstr("uf_IProy = 13"));
}

TEST_F(ProjectCommands, a_new_project_given_up_changes_nothing)
{
    for (const int result : {0, -1}) {
        host.projects->newProject = result;
        commands().cmdProjNewProj.press();
    }
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(ProjectCommands, a_new_project_that_fails_in_the_host_counts_as_given_up)
{
    host.log.failing = {"CrearProyecto"};
    commands().cmdProjNewProj.press();
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(ProjectCommands, a_new_project_that_the_list_does_not_show_is_not_selected)
{
    lvwProy().clickRow(1);
    host.projects->newProject = 99;
    commands().cmdProjNewProj.press();
    EXPECT_EQ(selectedKey(), "K13");
}

TEST_F(ProjectCommands, a_new_project_is_found_by_its_whole_key_in_a_sorted_list)
{
    activities({activity(12, {{"Asunto", text("a")}}), activity(1, {{"Asunto", text("b")}}),
                activity(112, {{"Asunto", text("c")}})});
    projects({});
    lvwProy().SortKey(2);
    lvwProy().SortOrder(screen::ListView::descending);
    lvwProy().Sorted(true);
    host.projects->newProject = 1;
    commands().cmdProjNewProj.press();
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K112", "K1", "K12"));
    EXPECT_EQ(selectedKey(), "K1");
}

// ---- Editing

TEST_F(ProjectCommands, editing_needs_a_row)
{
    lvwProy().ListItems().Clear();
    for (const bool twice : {false, true}) {
        ports.dialogs.expectBox("Debe seleccionar un elemento de la lista");
        if (twice)
            lvwProy().doubleClickEmpty();
        else
            commands().cmdNewProjEditProj.press();
        const screen::MessageBox& box = ports.dialogs.boxes().back();
        EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
        EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
        EXPECT_EQ(box.title, "");
    }
    EXPECT_THAT(host.log.calls, IsEmpty());
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(ProjectCommands, editing_opens_the_project_loads_and_selects_it_again)
{
    lvwProy().clickRow(1);
    cnn.forgetStatements();
    commands().cmdNewProjEditProj.press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto 13"));
    EXPECT_TRUE(reloaded());
    EXPECT_EQ(selectedKey(), "K13");
}

TEST_F(ProjectCommands, a_project_without_activities_is_edited_like_any_other)
{
    lvwProy().clickRow(2);
    commands().cmdNewProjEditProj.press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto 14"));
}

TEST_F(ProjectCommands, a_double_click_edits)
{
    lvwProy().clickRow(1);
    lvwProy().doubleClickRow(1);
    EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto 13"));
}

TEST_F(ProjectCommands, a_project_that_left_the_list_in_its_screen_is_not_selected)
{
    lvwProy().clickRow(1);
    activities({activity(12)});
    commands().cmdNewProjEditProj.press();
    EXPECT_EQ(selectedKey(), "K12") << "the row that the list selects by itself";
}

TEST_F(ProjectCommands, editing_goes_on_behind_each_failure)
{
    lvwProy().clickRow(1);
    host.log.failing = {"EditarProyecto"};
    cnn.forgetStatements();
    commands().cmdNewProjEditProj.press();
    EXPECT_TRUE(reloaded());
    EXPECT_EQ(selectedKey(), "K13");
    host.log.failing.clear();
    failAt(1);
    commands().cmdNewProjEditProj.press();
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K14"));
    failAt(2);
    commands().cmdNewProjEditProj.press();
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K12", "K13"));
}

TEST_F(ProjectCommands, a_row_whose_key_is_no_project_is_not_edited)
{
    for (const char* key : {"K0", "K-3", "Kx", "K99999999999"}) {
        lvwProy().ListItems().Clear();
        lvwProy().ListItems().Add(key, "");
        commands().cmdNewProjEditProj.press();
    }
    EXPECT_THAT(host.log.calls, IsEmpty());
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

// ---- The directory

struct SearchCase {
    const char* found;
    const char* opens;
};

TEST_F(ProjectCommands, a_search_opens_what_it_found)
{
    for (const SearchCase& search : {SearchCase{"O12", "EditarOrganizacion 12 0"},
                                     {"P7", "EditarPersona 7 0"},
                                     {"o12", "EditarPersona 12 0"},
                                     {"Ñ5", "EditarPersona 5 0"}}) {
        host.log.calls.clear();
        host.screens->found = search.found;
        commands().cmdProjSeekProj.press();
        EXPECT_THAT(host.log.calls, ElementsAre("BuscarEntidad '' persons organisations", search.opens));
    }
    EXPECT_THAT(cnn.statements(), IsEmpty()) << "the list is not loaded anew";
}

TEST_F(ProjectCommands, a_search_given_up_opens_nothing)
{
    commands().cmdProjSeekProj.press();
    EXPECT_THAT(host.log.calls, ElementsAre("BuscarEntidad '' persons organisations"));
}

TEST_F(ProjectCommands, a_search_passes_over_every_failure)
{
    host.screens->found = "O12";
    const char* const searches = "BuscarEntidad '' persons organisations";
    host.log.failing = {"BuscarEntidad"};
    commands().cmdProjSeekProj.press();
    EXPECT_THAT(host.log.calls, ElementsAre(searches));
    host.log.failing = {"EditarOrganizacion"};
    commands().cmdProjSeekProj.press();
    EXPECT_THAT(host.log.calls, ElementsAre(searches, searches, "EditarOrganizacion 12 0"));
    host.log.failing.clear();
    host.log.calls.clear();
    for (const char* noKey : {"O", "O12x", "P99999999999", "7"}) {
        host.screens->found = noKey;
        commands().cmdProjSeekProj.press();
    }
    EXPECT_THAT(host.log.calls, ElementsAre(searches, searches, searches, searches));
    control.oUICRM(nullptr);
    commands().cmdProjSeekProj.press();
    EXPECT_THAT(host.log.calls, testing::SizeIs(4));
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(ProjectCommands, a_new_person_belongs_to_the_agent_in_view)
{
    elements().top.cbAgente.pick(2);
    host.log.calls.clear();
    cnn.forgetStatements();
    commands().cmdProjNewContact.press();
    commands().cmdProjNewOrg.press();
    EXPECT_THAT(host.log.calls, ElementsAre("NuevaPersona 9", "NuevaOrganizacion 9"));
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(ProjectCommands, a_new_person_hands_every_failure_to_the_host)
{
    host.log.failing = {"NuevaPersona"};
    EXPECT_THROW(commands().cmdProjNewContact.press(), std::runtime_error);
    control.oUICRM(nullptr);
    EXPECT_THROW(commands().cmdProjNewContact.press(), RuntimeError);
    elements().top.cbAgente.Clear();
    EXPECT_THROW(commands().cmdProjNewContact.press(), RuntimeError);
    EXPECT_THAT(host.log.calls, ElementsAre("NuevaPersona 7"));
}

TEST_F(ProjectCommands, a_new_organisation_passes_over_every_failure)
{
    host.log.failing = {"NuevaOrganizacion"};
    commands().cmdProjNewOrg.press();
    control.oUICRM(nullptr);
    commands().cmdProjNewOrg.press();
    elements().top.cbAgente.Clear();
    commands().cmdProjNewOrg.press();
    EXPECT_THAT(host.log.calls, ElementsAre("NuevaOrganizacion 7"));
}

// ---- Without a host

class ProjectCommandsWithoutHost : public ProjectTest {
protected:
    ProjectCommandsWithoutHost()
    {
        control.SetObjects(&cnn, 7, true, "ana");
        control.RefreshData();
        activities({activity(12)});
        openProjects();
    }
};

TEST_F(ProjectCommandsWithoutHost, load_the_list_where_they_would_and_open_nothing)
{
    elements().projects.cmdNewProjEditProj.press();
    EXPECT_THAT(cnn.statements()[0], HasSubstr(readsActivities));
    cnn.forgetStatements();
    elements().projects.cmdProjNewProj.press();
    elements().projects.cmdProjSeekProj.press();
    elements().projects.cmdProjNewOrg.press();
    EXPECT_THROW(elements().projects.cmdProjNewContact.press(), RuntimeError);
    EXPECT_THAT(cnn.statements(), IsEmpty());
    EXPECT_TRUE(ports.dialogs.boxes().empty());
}

} // namespace
} // namespace dn::tests
