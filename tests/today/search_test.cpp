// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The search row.

#include "tests/today/fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class Search : public TodayTest {
protected:
    void SetUp() override
    {
        start(7, false);
        prospects({prospect(1, {{"uf_Nombre", text("José Ñúñez")}, {"uf_Empresa", text("La Ceiba")}}),
                   prospect(2, {{"uf_Nombre", text("Ana")}, {"uf_Empresa", text("la ceiba del norte")}}),
                   prospect(3, {{"uf_Nombre", text("Luz")}, {"uf_Ciudad", text("Tapachula  Centro")}})});
        activities({activity(4, {{"Descripcion", text("Silo")}}), activity(5, {{"Descripcion", text("Molino")}})});
        openProjects();
        openProspects();
    }

    desk::TopElements& top() { return elements().top; }
    void search(const std::string& what)
    {
        top().txtBuscar.Text(what);
        cnn.forgetStatements();
        top().cmdOkBuscar.press();
    }
    void expectMiss(const std::string& what)
    {
        ports.dialogs.expectBox("No se encontró ninguna coincidencia");
        const std::string before = selectedKeyOf(lvw());
        search(what);
        EXPECT_EQ(selectedKeyOf(lvw()), before) << what;
        EXPECT_THAT(cnn.statements(), IsEmpty()) << what;
    }
};

TEST_F(Search, finds_the_first_prospect_that_holds_the_text_in_any_cell)
{
    search("norte");
    EXPECT_EQ(selectedKeyOf(lvw()), "K2");
    EXPECT_THAT(info(), StartsWith("K2 | "));
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr("uf_Iicontact = 2")));
    search("CENTRO");
    EXPECT_EQ(selectedKeyOf(lvw()), "K3");
}

TEST_F(Search, starts_at_the_top_again_each_time)
{
    search("ceiba");
    EXPECT_EQ(selectedKeyOf(lvw()), "K1");
    search("ceiba");
    EXPECT_EQ(selectedKeyOf(lvw()), "K1");
}

TEST_F(Search, walks_the_rows_as_they_are_sorted)
{
    lvw().SortKey(3);
    lvw().Sorted(true); // Ana, José, Luz
    search("ceiba");
    EXPECT_EQ(selectedKeyOf(lvw()), "K2");
}

TEST_F(Search, does_not_regard_case_and_keeps_accents_apart)
{
    search("ñÚÑEZ");
    EXPECT_EQ(selectedKeyOf(lvw()), "K1");
    expectMiss("nunez");
}

TEST_F(Search, does_not_look_at_the_first_column)
{
    const std::string label(lvw().ListItems()("K1").Text());
    ASSERT_NE(label, "");
    expectMiss(label);
}

TEST_F(Search, takes_the_blanks_of_the_text_for_a_part_of_it)
{
    expectMiss(" Silo");
    search("  Centro");
    EXPECT_EQ(selectedKeyOf(lvw()), "K3");
    expectMiss("Ana ");
}

TEST_F(Search, asks_for_a_text)
{
    for (const char* empty : {"", "   "}) {
        ports.dialogs.expectBox("Escriba un texto a buscar");
        const std::string before = selectedKeyOf(lvw());
        search(empty);
        EXPECT_EQ(selectedKeyOf(lvw()), before);
        EXPECT_THAT(cnn.statements(), IsEmpty());
        const screen::MessageBox& box = ports.dialogs.boxes().back();
        EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
        EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
        EXPECT_EQ(box.title, "");
    }
}

TEST_F(Search, tells_that_nothing_was_found)
{
    expectMiss("no está");
    const screen::MessageBox& box = ports.dialogs.boxes().back();
    EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
    EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(box.title, "");
}

TEST_F(Search, gives_the_focus_back_to_its_box_each_time)
{
    int focused = 0;
    const auto watching = top().txtBuscar.focusGiven.connect([&] { ++focused; });
    search("norte");
    EXPECT_EQ(focused, 1);
    ports.dialogs.expectBox("Escriba un texto a buscar");
    search(" ");
    EXPECT_EQ(focused, 2);
    expectMiss("no está");
    EXPECT_EQ(focused, 3);
}

TEST_F(Search, scrolls_to_the_row)
{
    std::vector<std::size_t> revealed;
    const auto watching = lvw().revealed.connect([&](std::size_t position) { revealed.push_back(position); });
    search("norte");
    EXPECT_THAT(revealed, ElementsAre(1U));
}

TEST_F(Search, selects_takes_the_focus_scrolls_and_clicks_in_this_order)
{
    std::vector<std::string> steps;
    const auto selecting = lvw().changed.connect([&] {
        if (steps.empty() && selectedKeyOf(lvw()) == "K2") steps.emplace_back("selects");
    });
    const auto focusing = top().txtBuscar.focusGiven.connect([&] { steps.emplace_back("focus"); });
    const auto scrolling = lvw().revealed.connect([&](std::size_t) { steps.emplace_back("scrolls"); });
    const auto showing = elements().detail.txtInfo.changed.connect([&] {
        if (steps.empty() || steps.back() != "clicks") steps.emplace_back("clicks");
    });
    search("norte");
    EXPECT_THAT(steps, ElementsAre("selects", "focus", "scrolls", "clicks"));
}

TEST_F(Search, looks_at_the_cells_that_a_row_has)
{
    lvw().ListItems().Clear();
    lvw().ListItems().Add("K8", "sin celdas");
    expectMiss("celdas");
    lvw().ListItems().Add("K9", "una").ListSubItems().Add("celda única");
    search("ÚNICA");
    EXPECT_EQ(selectedKeyOf(lvw()), "K9");
}

TEST_F(Search, finds_no_text_that_begins_in_one_cell_and_ends_in_the_next)
{
    lvw().ListItems().Clear();
    screen::ListItem row = lvw().ListItems().Add("K9", "una");
    row.ListSubItems().Add("dos");
    row.ListSubItems().Add("tres");
    expectMiss("dostres");
    expectMiss("dos tres");
}

TEST_F(Search, of_the_day_shows_a_project_and_leaves_the_queue_with_its_row)
{
    due({queuedProspect(1), queuedProspect(2)});
    top().lblItem(desk::hoy).click();
    click("K2");
    search("molino");
    EXPECT_THAT(info(), HasSubstr("Molino"));
    EXPECT_EQ(selectedKeyOf(lvwHoy()), "K2");
    EXPECT_EQ(selectedKeyOf(lvwProy()), "K5");
    EXPECT_FALSE(lvwProy().Visible());
    elements().detail.txtText.Text("para la fila");
    cnn.forgetStatements();
    elements().detail.cmdIntro.press(); // a note is for the row of the queue, whose party shows again
    EXPECT_THAT(cnn.statements().back(), testing::EndsWith("'para la fila','ana',2)"));
    EXPECT_THAT(info(), StartsWith("K2 | "));
}

TEST_F(Search, before_any_tab_was_opened_looks_through_the_projects)
{
    ctrDnContacts fresh(ports.ports());
    fresh.SetObjects(&cnn, 7, false, "ana");
    fresh.RefreshData();
    fresh.elements().top.txtBuscar.Text("molino");
    fresh.elements().top.cmdOkBuscar.press();
    EXPECT_EQ(selectedKeyOf(fresh.elements().projects.lvwProy), "K5");
    EXPECT_THAT(fresh.elements().detail.txtInfo.Text(), HasSubstr("Molino"));
}

TEST_F(Search, looks_through_the_projects_on_every_other_tab)
{
    for (const int tab : {1, 2, 3, 4}) {
        top().lblItem(tab).click();
        lvwProy().ListItems()("K4").Selected(true);
        const std::string before = selectedKeyOf(lvwHoy());
        search("molino");
        EXPECT_EQ(selectedKeyOf(lvwProy()), "K5") << tab;
        EXPECT_THAT(info(), HasSubstr("Molino")) << tab;
        EXPECT_EQ(selectedKeyOf(lvwHoy()), before) << tab;
    }
}

TEST_F(Search, finds_no_project_while_the_prospects_are_in_view_and_no_prospect_elsewhere)
{
    expectMiss("molino");
    top().lblItem(desk::hoy).click();
    expectMiss("norte");
}

TEST_F(Search, in_an_empty_list_finds_nothing)
{
    lvw().ListItems().Clear();
    expectMiss("norte");
}

TEST_F(Search, starts_by_Enter_which_goes_on_to_the_box)
{
    top().txtBuscar.Text("norte");
    EXPECT_EQ(top().txtBuscar.pressKey(13), 13);
    EXPECT_EQ(selectedKeyOf(lvw()), "K2");
    top().txtBuscar.Text("centro");
    EXPECT_EQ(top().txtBuscar.pressKey('x'), 'x');
    EXPECT_EQ(selectedKeyOf(lvw()), "K2") << "no other key searches";
}

TEST_F(Search, shows_the_summary_when_the_timeline_cannot_be_read)
{
    top().txtBuscar.Text("norte");
    failAt(1);
    top().cmdOkBuscar.press();
    EXPECT_THAT(info(), StartsWith("K2 | "));
    EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
}

} // namespace
} // namespace dn::tests
