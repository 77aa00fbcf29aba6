// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The combo of agents: filling it, selecting by key, and what a selection does.

#include "screen/list_box.h"
#include "tests/support/control_fixture.h"
#include "tests/support/element_tree.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;

class Agents : public ControlTest {
protected:
    screen::ComboBox& cbAgente() { return elements().top.cbAgente; }
};

TEST_F(Agents, stand_in_the_order_of_the_statement_behind_the_entry_of_nobody)
{
    cnn.on(agentsStatement).gives({"Sys_PK", "Nombre"}, {{whole(9), text("Zoé")}, {whole(7), text("Ana")}});
    start(7, true);
    ASSERT_EQ(cbAgente().ListCount(), 3);
    EXPECT_EQ(cbAgente().List(0), "< Sin asignar >");
    EXPECT_EQ(cbAgente().ItemData(0), 0);
    EXPECT_EQ(cbAgente().List(1), "Zoé");
    EXPECT_EQ(cbAgente().ItemData(1), 9);
    EXPECT_EQ(cbAgente().List(2), "Ana");
    EXPECT_EQ(cbAgente().ItemData(2), 7);
}

TEST_F(Agents, an_empty_table_leaves_the_entry_of_nobody_alone)
{
    cnn.on(agentsStatement).gives({"Sys_PK", "Nombre"}, {});
    start(7, true);
    EXPECT_EQ(cbAgente().ListCount(), 1);
    EXPECT_EQ(cbAgente().ListIndex(), -1);
}

TEST_F(Agents, SelAgente_selects_by_key)
{
    start(7, true);
    control.SelAgente(9);
    EXPECT_EQ(cbAgente().ListIndex(), 2);
    EXPECT_EQ(control.PKAgente(), 7) << "a selection does not change who works";
}

TEST_F(Agents, SelAgente_of_nobody_is_for_administrators)
{
    start(7, true);
    control.SelAgente(0);
    EXPECT_EQ(cbAgente().ListIndex(), 0);

    start(7, false);
    control.SelAgente(0);
    EXPECT_EQ(cbAgente().ListIndex(), 1);
}

TEST_F(Agents, SelAgente_of_an_unknown_key_keeps_the_selection)
{
    start(7, true);
    control.SelAgente(555);
    EXPECT_EQ(cbAgente().ListIndex(), 1);
}

TEST_F(Agents, a_selection_tells_the_host_screens)
{
    start(7, true);
    host.log.calls.clear();
    cbAgente().pick(2);
    cbAgente().pick(0);
    EXPECT_THAT(host.log.calls, ElementsAre("SetAgente 9", "SetAgente 0"));
}

TEST_F(Agents, a_selection_goes_on_when_the_host_screens_fail)
{
    start(7, true);
    openProspects();
    host.log.failing = {"SetAgente"};
    cbAgente().pick(2);
    EXPECT_THAT(cnn.statements(), ElementsAre(testing::HasSubstr("uf_IEjecutivo = 9 AND")));
}

TEST_F(Agents, picking_the_selected_entry_again_reloads_the_tab)
{
    start(7, true);
    openProspects();
    cbAgente().pick(1);
    EXPECT_THAT(cnn.statements(), ElementsAre(testing::HasSubstr("uf_IEjecutivo = 7 AND")));
}

TEST_F(Agents, an_ordinary_agent_cannot_pick_another)
{
    start(7, false);
    openProspects();
    cbAgente().pick(2);
    EXPECT_EQ(cbAgente().ListIndex(), 1);
    EXPECT_THAT(cnn.statements(), testing::IsEmpty());
}

TEST_F(Agents, a_key_beyond_16_bits_leaves_the_strip_and_shows_the_tab)
{
    cnn.on(agentsStatement).gives({"Sys_PK", "Nombre"}, {{whole(7), text("Ana")}, {whole(70000), text("Lejana")}});
    start(0, true);
    openProspects();
    ASSERT_FALSE(elements().top.lblItem(1).Visible());
    cbAgente().pick(2);
    EXPECT_THAT(cnn.statements(), ElementsAre(testing::HasSubstr("uf_IEjecutivo = 70000 AND")));
    EXPECT_TRUE(elements().top.lblItem(1).Visible()) << "the load of the list fits the strip by itself";
}

// A directory does not fit the strip, as the prospects do.
TEST_F(Agents, a_key_of_16_bits_widens_the_strip_on_a_directory_and_none_beyond_does)
{
    cnn.on(agentsStatement)
        .gives({"Sys_PK", "Nombre"}, {{whole(70000), text("Lejana")},
                                      {whole(32768), text("Primera que no")},
                                      {whole(-32769), text("Última que no")},
                                      {whole(-40000), text("Negativa")},
                                      {whole(32767), text("Última")},
                                      {whole(-32768), text("Primera")}});
    for (const int place : {1, 2, 3, 4, 5, 6}) {
        start(0, true);
        openProspects();
        elements().top.lblItem(4).click();
        ASSERT_FALSE(elements().top.lblItem(1).Visible());
        cnn.forgetStatements();
        cbAgente().pick(place);
        EXPECT_EQ(elements().top.lblItem(1).Visible(), place > 4) << place;
        EXPECT_THAT(cnn.statements(), ElementsAre(testing::HasSubstr("FROM Persona")))
            << "the tab is shown all the same";
    }
}

TEST_F(Agents, a_key_beyond_32_bits_is_an_error_of_the_call)
{
    cnn.on(agentsStatement).gives({"Sys_PK", "Nombre"}, {{whole(3'000'000'000), text("Imposible")}});
    connect(7, true);
    EXPECT_THROW(control.RefreshData(), RuntimeError);
}

// ---- Asking for an agent

TEST_F(Agents, ShSelAgente_gives_the_key_of_the_agent_chosen)
{
    connect(7, true);
    ports.events.expectModal("dlgSelAgente", [](screen::Form& form) {
        elementNamed<screen::ListBox>(form, "cbAgente").doubleClick(1);
    });
    EXPECT_EQ(control.ShSelAgente(), 9);
    EXPECT_THAT(cnn.statements(), ElementsAre(agentsStatement));
}

TEST_F(Agents, ShSelAgente_gives_0_when_none_is_chosen)
{
    connect(7, true);
    ports.events.expectModal("dlgSelAgente", [](screen::Form& form) {
        elementNamed<screen::ListBox>(form, "cbAgente").pick(1);
        form.closeWindow();
    });
    EXPECT_EQ(control.ShSelAgente(), 0);
}

TEST_F(Agents, ShSelAgente_gives_0_when_anything_fails)
{
    EXPECT_EQ(control.ShSelAgente(), 0) << "there is no connection yet";
    connect(7, true);
    failAt(1);
    EXPECT_EQ(control.ShSelAgente(), 0);
}

} // namespace
} // namespace dn::tests
