// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Which elements each tab shows, and what a switch does besides.

#include "tests/support/control_fixture.h"

#include <set>

namespace dn::tests {
namespace {

using testing::ElementsAre;

class Tabs : public ControlTest {
protected:
    /// The elements that a tab switch may show, those in view.
    std::set<std::string> inView()
    {
        desk::Elements& e = elements();
        std::set<std::string> names;
        for (const screen::Element* element : std::initializer_list<const screen::Element*>{
                 &e.prospects.lvw, &e.projects.lvwProy, &e.today.lvwHoy, &e.organisations.lvwOrganizaciones,
                 &e.persons.lvwContactos, &e.today.picHoy, &e.organisations.picOrganizacion,
                 &e.persons.picContactos, &e.detail.picRight, &e.detail.Combo1, &e.detail.cmdEditC,
                 &e.top.lblBuscar, &e.top.txtBuscar, &e.top.cmdOkBuscar, &e.top.picColors, &e.top.picItem(0),
                 &e.top.picItem(1)})
            if (element->Visible()) names.insert(element->name());
        return names;
    }

    void click(int tab) { elements().top.lblItem(tab).click(); }
};

const std::set<std::string> searchRow{"lblBuscar", "txtBuscar", "cmdOkBuscar"};

std::set<std::string> withSearchRow(std::set<std::string> names)
{
    names.insert(searchRow.begin(), searchRow.end());
    return names;
}

TEST_F(Tabs, each_shows_its_own_list_and_panels)
{
    start(7, true);
    const std::set<std::string> expected[]{
        withSearchRow({"lvw", "picRight", "Combo1", "cmdEditC", "picColors", "picItem(0)"}),
        withSearchRow({"lvwProy", "picRight", "picColors", "picItem(1)"}),
        withSearchRow({"lvwHoy", "picHoy", "picRight"}),
        withSearchRow({"lvwOrganizaciones", "picOrganizacion"}),
        withSearchRow({"lvwContactos", "picContactos"}),
    };
    for (const int tab : {0, 1, 2, 3, 4, 2, 0, 4, 1}) {
        click(tab);
        EXPECT_EQ(inView(), expected[tab]) << "tab " << tab;
    }
}

TEST_F(Tabs, the_active_one_is_known_by_its_colour_and_border)
{
    start(7, true);
    for (const int tab : {3, 0}) {
        click(tab);
        for (int i = 0; i < 5; ++i) {
            EXPECT_EQ(elements().top.lblItem(i).BackColor(), i == tab ? 0x8080FFU : 0xC0FFFFU);
            EXPECT_EQ(elements().top.lblItem(i).BorderStyle(), i == tab ? 1 : 0);
        }
    }
}

TEST_F(Tabs, a_click_on_the_active_one_empties_the_detail_and_reloads)
{
    start(7, true);
    openProspects();
    elements().detail.txtBit.Text("bitácora");
    elements().detail.txtInfo.Text("datos");
    elements().detail.txtText.Text("nota a medias");
    elements().top.picColors.BackColor(0x0000FF);
    click(0);
    EXPECT_EQ(elements().detail.txtBit.Text(), "");
    EXPECT_EQ(elements().detail.txtInfo.Text(), "");
    EXPECT_EQ(elements().detail.txtText.Text(), "");
    EXPECT_EQ(elements().top.picColors.BackColor(), 0xFFFFFFU);
    EXPECT_THAT(cnn.statements(), ElementsAre(testing::HasSubstr("FROM ut_icontact")));
}

TEST_F(Tabs, a_switch_locks_the_detail_and_the_commands_of_the_day)
{
    start(7, true);
    desk::DetailElements& detail = elements().detail;
    for (const int tab : {0, 1, 2, 3, 4}) {
        for (screen::Element* element : std::initializer_list<screen::Element*>{
                 &detail.Combo1, &detail.txtText, &detail.cmdIntro, &elements().today.cmdEditHoy,
                 &elements().today.geProyFromContacto})
            element->Enabled(true);
        click(tab);
        const bool unlocked = tab == 1; // the end of a load of the projects unlocks it, with a row and without
        EXPECT_EQ(detail.Combo1.Enabled(), unlocked);
        EXPECT_EQ(detail.txtText.Enabled(), unlocked);
        EXPECT_EQ(detail.cmdIntro.Enabled(), unlocked);
        EXPECT_FALSE(elements().today.cmdEditHoy.Enabled()) << "the queue is empty";
        EXPECT_FALSE(elements().today.geProyFromContacto.Enabled());
    }
}

TEST_F(Tabs, give_the_summary_the_room_of_the_status_combo_where_that_is_hidden)
{
    start(7, true);
    const screen::TextBox& txtInfo = elements().detail.txtInfo;
    for (const int tab : {1, 0, 2, 0}) {
        click(tab);
        EXPECT_EQ(txtInfo.Top(), tab == 0 ? 465 : 15);
        EXPECT_EQ(txtInfo.Height(), tab == 0 ? 2190 : 2640);
    }
}

TEST_F(Tabs, the_rights_are_looked_at_on_each_switch_to_the_prospects)
{
    start(7, true);
    for (const bool admin : {false, true}) {
        control.GAdmon(admin);
        click(1);
        click(0);
        EXPECT_EQ(elements().prospects.picAdmin.Visible(), admin);
        EXPECT_EQ(lvw().CheckBoxes(), admin);
    }
}

TEST_F(Tabs, load_the_list_that_they_show)
{
    start(7, true);
    click(0);
    EXPECT_THAT(cnn.statements(), ElementsAre(testing::HasSubstr("FROM ut_icontact")));
    cnn.forgetStatements();
    click(1);
    EXPECT_THAT(cnn.statements(),
                ElementsAre(testing::HasSubstr("FROM ((((mdtpactividad"), testing::HasSubstr("FROM ((Proyecto")));
}

TEST_F(Tabs, the_queue_is_loaded_by_its_own_and_nothing_is_clicked_there)
{
    start(7, true);
    cnn.onContaining("from qhoy").gives({"Tipo", "Sys_PK", "cita"}, {{text("Proyecto"), whole(3), null}});
    click(2);
    EXPECT_THAT(cnn.statements(), ElementsAre(testing::HasSubstr("from qhoy where ejecutivo=7 "),
                                              testing::HasSubstr("from qatascados where ejecutivo=7 ")));
    EXPECT_TRUE(elements().today.cmdEditHoy.Enabled());
    EXPECT_FALSE(elements().detail.cmdIntro.Enabled());
}

TEST_F(Tabs, the_directories_are_loaded_by_theirs)
{
    start(7, true);
    for (const int tab : {3, 3, 4, 3}) {
        cnn.forgetStatements();
        click(tab);
        EXPECT_THAT(cnn.statements(),
                    ElementsAre(testing::HasSubstr(tab == 3 ? "FROM Organizacion " : "FROM Persona ")));
    }
}

TEST_F(Tabs, without_an_active_one_a_change_of_agent_hides_all_lists_and_loads_nothing)
{
    start(7, true);
    elements().top.cbAgente.pick(2);
    EXPECT_EQ(inView(), withSearchRow({"picRight"}));
    EXPECT_THAT(cnn.statements(), testing::IsEmpty());
}

TEST_F(Tabs, an_active_one_stays_active_when_the_strip_hides_it)
{
    start(7, true);
    click(1);
    elements().top.cbAgente.pick(0);
    EXPECT_FALSE(elements().top.lblItem(1).Visible());
    EXPECT_EQ(desk::TabStrip(elements().top).GetActiveTab(), 1);
    EXPECT_TRUE(elements().projects.lvwProy.Visible());
}

TEST_F(Tabs, the_strip_narrows_once_and_comes_back_to_the_exact_places)
{
    start(7, true);
    click(4); // a tab whose load moves nothing by itself
    const auto lefts = [&] {
        std::vector<int> result;
        for (int i = 0; i < 5; ++i)
            result.push_back(elements().top.lblItem(i).Left());
        result.push_back(elements().top.picColors.Left());
        result.push_back(elements().top.picColors.Width());
        return result;
    };
    const auto wide = lefts();
    EXPECT_THAT(wide, ElementsAre(2805, 4305, 5790, 7290, 8790, 10260, 3645));
    elements().top.cbAgente.pick(0);
    EXPECT_THAT(lefts(), ElementsAre(2805, 4305, 5790, 4290, 5790, 7260, 6645));
    elements().top.cbAgente.pick(0);
    EXPECT_THAT(lefts(), ElementsAre(2805, 4305, 5790, 4290, 5790, 7260, 6645));
    elements().top.cbAgente.pick(1);
    EXPECT_EQ(lefts(), wide);
    elements().top.cbAgente.pick(2);
    EXPECT_EQ(lefts(), wide);
}

TEST_F(Tabs, a_colour_strip_too_narrow_to_give_back_its_room_leaves_the_strip_narrowed)
{
    start(7, true);
    click(4);
    elements().top.cbAgente.pick(0);
    elements().top.picColors.Width(1000);
    elements().top.cbAgente.pick(1);
    EXPECT_EQ(elements().top.lblItem(3).Left(), 4290) << "the failure ended the arrangement there";
    EXPECT_TRUE(elements().persons.lvwContactos.Visible()) << "the tab was shown all the same";
}

TEST_F(Tabs, open_for_the_host_as_by_a_click)
{
    start(7, true);
    EXPECT_EQ(control.activeTab(), -1);
    cnn.forgetStatements();
    click(0);
    const std::vector<std::string> byClick = cnn.statements();
    click(3);
    cnn.forgetStatements();
    control.openTab(0);
    EXPECT_EQ(cnn.statements(), byClick);
    EXPECT_EQ(control.activeTab(), 0);
    EXPECT_EQ(inView(), withSearchRow({"lvw", "picRight", "Combo1", "cmdEditC", "picColors", "picItem(0)"}));
}

TEST_F(Tabs, that_do_not_exist_are_refused_to_the_host)
{
    start(7, true);
    control.openTab(4);
    EXPECT_THROW(control.openTab(5), RuntimeError);
    EXPECT_THROW(control.openTab(-1), RuntimeError);
    EXPECT_EQ(control.activeTab(), 4);
}

TEST_F(Tabs, that_the_strip_does_not_show_do_not_open_for_the_host)
{
    start(0, true); // "< Sin asignar >": the strip is narrowed
    cnn.forgetStatements();
    control.openTab(1);
    EXPECT_EQ(control.activeTab(), 0);
    EXPECT_THAT(cnn.statements(), testing::IsEmpty());
}

} // namespace
} // namespace dn::tests
