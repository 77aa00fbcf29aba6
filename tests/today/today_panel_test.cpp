// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The link from the queue to the records, and the note of a party of the queue.

#include "tests/today/fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class TodayPanel : public TodayTest {
protected:
    void SetUp() override
    {
        start(7, false);
        prospects({prospect(1), prospect(2)});
        activities({activity(1), activity(5)});
        openProspects();
        openProjects();
        due({queuedProspect(1), queuedProspect(2), queuedProject(1), queuedProject(5)});
        openToday();
    }
};

TEST_F(TodayPanel, a_click_selects_the_prospect_in_its_list_and_shows_it)
{
    click("K2");
    EXPECT_EQ(selectedKeyOf(lvw()), "K2");
    EXPECT_THAT(info(), StartsWith("K2 | "));
    EXPECT_TRUE(elements().detail.cmdIntro.Enabled());
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr("uf_Iicontact = 2")));
    EXPECT_FALSE(lvw().Visible());
}

TEST_F(TodayPanel, a_click_selects_the_project_in_its_list_and_shows_it)
{
    lvwProy().ListItems()("K1").Selected(true);
    click("P5");
    EXPECT_EQ(selectedKeyOf(lvwProy()), "K5");
    EXPECT_EQ(selectedKeyOf(lvw()), "K1") << "the prospects keep their selection";
    EXPECT_THAT(cnn.statements(), testing::Contains(HasSubstr("uf_IProy = 5")));
    EXPECT_TRUE(elements().detail.cmdIntro.Enabled());
}

TEST_F(TodayPanel, a_click_tells_a_prospect_from_a_project_of_the_same_key)
{
    lvw().ListItems()("K2").Selected(true);
    lvwProy().ListItems()("K5").Selected(true);
    click("P1");
    EXPECT_EQ(selectedKeyOf(lvwProy()), "K1");
    EXPECT_EQ(selectedKeyOf(lvw()), "K2");
    click("K1");
    EXPECT_EQ(selectedKeyOf(lvw()), "K1");
}

TEST_F(TodayPanel, a_click_on_a_prospect_that_its_list_lacks_shows_the_one_selected_there)
{
    due({queuedProspect(99)});
    lvw().ListItems()("K2").Selected(true);
    openToday();
    click("K99");
    EXPECT_EQ(selectedKeyOf(lvw()), "K2");
    EXPECT_THAT(info(), StartsWith("K2 | "));
}

TEST_F(TodayPanel, a_click_on_a_project_that_its_list_lacks_shows_the_one_selected_there)
{
    due({queuedProject(99)});
    lvwProy().ListItems()("K5").Selected(true);
    openToday();
    click("P99");
    EXPECT_EQ(selectedKeyOf(lvwProy()), "K5");
    EXPECT_THAT(cnn.statements(), testing::Contains(HasSubstr("uf_IProy = 5")));
}

TEST_F(TodayPanel, a_click_for_an_empty_list_shows_nobody)
{
    lvw().ListItems().Clear();
    click("K1");
    EXPECT_EQ(info(), "");
    EXPECT_FALSE(elements().detail.cmdIntro.Enabled());
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(TodayPanel, a_click_for_an_empty_list_leaves_the_party_that_was_shown)
{
    click("P5");
    const std::string before = info();
    lvw().ListItems().Clear();
    click("K1");
    EXPECT_EQ(info(), before) << "as if nobody had been clicked";
    lvwProy().ListItems().Clear();
    elements().detail.txtBit.Text("la bitácora de otro");
    click("P1");
    EXPECT_EQ(info(), before);
    EXPECT_EQ(elements().detail.txtBit.Text(), "") << "of a project the timeline goes at least";
}

// The first screen has no tab in front, and its prospects have not been loaded.
TEST_F(TodayPanel, a_click_on_the_first_screen_finds_projects_and_no_prospects)
{
    ctrDnContacts fresh(ports.ports());
    fresh.SetObjects(&cnn, 7, false, "ana");
    fresh.RefreshData();
    desk::Elements& first = fresh.elements();
    EXPECT_EQ(first.prospects.lvw.ListItems().Count(), 0);
    first.today.lvwHoy.clickRow(3);
    EXPECT_EQ(selectedKeyOf(first.projects.lvwProy), "K5");
    const std::string project = first.detail.txtInfo.Text();
    EXPECT_NE(project, "");
    first.today.lvwHoy.clickRow(1);
    EXPECT_EQ(first.detail.txtInfo.Text(), project) << "another party, then";
    first.top.lblItem(desk::prospectos).click();
    first.top.lblItem(desk::hoy).click();
    first.today.lvwHoy.clickRow(1);
    EXPECT_THAT(first.detail.txtInfo.Text(), StartsWith("K2 | "));
}

TEST_F(TodayPanel, a_prospect_in_another_status_is_called_and_corrected_by_two_different_keys)
{
    due({queuedProspect(99)});
    lvw().ListItems()("K2").Selected(true);
    openToday();
    click("K99");
    cnn.forgetStatements();
    elements().detail.cmdCall.press();
    EXPECT_EQ(control.Call_PK(), 2) << "a call is for whoever is selected behind the queue";
    ports.events.expectModal("dlgQueH", [](screen::Form& form) { form.closeWindow(); });
    control.Call_NoConnect(0);
    cnn.forgetStatements();
    EXPECT_THROW(elements().today.cmdEditHoy.press(), std::exception); // the database has no such row here
    EXPECT_THAT(cnn.statements(), ElementsAre(testing::EndsWith("FROM ut_icontact Where Sys_PK=99")))
        << "a correction is for the row of the queue";
}

TEST_F(TodayPanel, a_timeline_that_cannot_be_read_leaves_the_summary)
{
    failAt(1);
    click("K2");
    EXPECT_THAT(info(), StartsWith("K2 | "));
    EXPECT_EQ(elements().detail.txtBit.Text(), "");
}

TEST_F(TodayPanel, notes_go_to_the_party_of_the_row)
{
    const auto registers = [&](const std::string& note) {
        elements().detail.txtText.Enabled(true);
        elements().detail.cmdIntro.Enabled(true);
        elements().detail.txtText.Text(note);
        cnn.forgetStatements();
        elements().detail.cmdIntro.press();
    };
    click("K2");
    // Whatever was selected since, in the lists that are not seen: the note is for the row of the queue.
    lvw().ListItems()("K1").Selected(true);
    registers("para la dos");
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr("uf_Iicontact = 2"),
                                              "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, "
                                              "uf_Iicontact) VALUES (CURRENT_TIMESTAMP, 'para la dos','ana',2)"));
    click("P5");
    lvwProy().ListItems()("K1").Selected(true);
    registers("para el proyecto");
    EXPECT_THAT(cnn.statements(),
                testing::Contains("INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, "
                                  "uf_IProy) VALUES (CURRENT_TIMESTAMP, 'para el proyecto','ana',0,5)"));
}

} // namespace
} // namespace dn::tests
