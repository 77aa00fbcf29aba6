// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// LoadProspectos as a whole: its order of steps, its failures, and the selection that it keeps.

#include "tests/support/control_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ProspectList : public ControlTest {
protected:
    void reload() { elements().prospects.cbStatus.pick(elements().prospects.cbStatus.ListIndex()); }
    std::string selectedKey() { return lvw().SelectedItem() ? std::string(lvw().SelectedItem()->Key()) : "none"; }
};

TEST_F(ProspectList, shows_the_rows_in_the_order_of_the_statement)
{
    start(7, false);
    prospects({prospect(30), prospect(4), prospect(12)});
    openProspects();
    EXPECT_THAT(keys(lvw()), ElementsAre("K30", "K4", "K12"));
}

TEST_F(ProspectList, sends_one_statement_for_the_agent_and_the_status_in_view)
{
    start(7, true);
    openProspects();
    elements().prospects.cbStatus.pick(2);
    EXPECT_THAT(cnn.statements(), ElementsAre(testing::HasSubstr("uf_IEjecutivo = 7 AND uf_Status = 2")));
    cnn.forgetStatements();
    elements().top.cbAgente.pick(0);
    EXPECT_THAT(cnn.statements(),
                ElementsAre(testing::HasSubstr("IFNULL(uf_IEjecutivo, 0) = 0 AND uf_Status = 2")));
}

TEST_F(ProspectList, takes_the_sql_server_forms_for_every_other_engine)
{
    cnn.on("SELECT NOW()").fails("'NOW' is not a recognized built-in function name.", "42000", 195);
    start(7, false);
    elements().top.lblItem(0).click();
    EXPECT_THAT(cnn.statements(),
                ElementsAre(testing::HasSubstr("datediff(D, Sys_DTCreated, GETDATE())as e_dias, ")));
}

TEST_F(ProspectList, stops_without_an_agent_and_leaves_pointer_and_counters_alone)
{
    connect(7, false);
    elements().top.lblCuenta.Caption("como estaba");
    reload();
    EXPECT_THAT(cnn.statements(), IsEmpty());
    EXPECT_THAT(ports.pointer.shapes, IsEmpty());
    EXPECT_EQ(ports.events.yields, 0);
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "como estaba");
}

TEST_F(ProspectList, shows_the_hourglass_and_yields_once_ahead_of_the_statement)
{
    start(7, false);
    ports.pointer.shapes.clear();
    ports.events.yields = 0;
    int pointerThen = -1;
    int yieldsThen = -1;
    cnn.beforeExecute([&](std::string_view) {
        pointerThen = ports.pointer.MousePointer();
        yieldsThen = ports.events.yields;
    });
    elements().top.lblItem(0).click();
    EXPECT_EQ(pointerThen, screen::Pointer::hourglass);
    EXPECT_EQ(yieldsThen, 1);
    EXPECT_THAT(ports.pointer.shapes, ElementsAre(screen::Pointer::hourglass, screen::Pointer::standard));
    EXPECT_EQ(ports.events.yields, 1);
}

TEST_F(ProspectList, is_empty_for_no_rows_and_leaves_the_detail_locked)
{
    start(7, false);
    prospects({});
    openProspects();
    EXPECT_EQ(lvw().ListItems().Count(), 0);
    EXPECT_FALSE(lvw().SelectedItem());
    EXPECT_FALSE(elements().detail.Combo1.Enabled());
    EXPECT_FALSE(elements().detail.txtText.Enabled());
    EXPECT_FALSE(elements().detail.cmdIntro.Enabled());
    EXPECT_EQ(elements().detail.txtInfo.Text(), "");
    EXPECT_EQ(elements().detail.txtBit.Text(), "");
}

TEST_F(ProspectList, passes_over_a_statement_that_fails)
{
    start(7, false);
    prospects({prospect(1)});
    openProspects();
    cnn.failAt(1, "Lost connection to server during query", "HY000", 2013);
    reload();
    EXPECT_EQ(lvw().ListItems().Count(), 0);
    EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 0");
}

TEST_F(ProspectList, keeps_the_rows_read_so_far_when_the_server_fails_in_the_middle)
{
    start(7, false);
    cnn.onContaining("FROM ut_icontact WHERE")
        .gives(Rows{prospectColumns(), {prospect(1), prospect(2), prospect(3)}, 2});
    openProspects();
    EXPECT_THAT(keys(lvw()), ElementsAre("K1", "K2"));
    EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 2");
}

TEST_F(ProspectList, leaves_a_repeated_key_out_and_goes_on)
{
    start(7, false);
    prospects(
        {prospect(1, {{"uf_Nombre", text("primera")}}), prospect(1, {{"uf_Nombre", text("otra")}}), prospect(2)});
    openProspects();
    EXPECT_THAT(keys(lvw()), ElementsAre("K1", "K2"));
    EXPECT_EQ(lvw().ListItems()("K1").ListSubItems()(3).Text(), "primera");
}

TEST_F(ProspectList, selects_the_same_prospect_again)
{
    start(7, false);
    prospects({prospect(1), prospect(2), prospect(3)});
    openProspects();
    lvw().clickRow(1);
    prospects({prospect(3), prospect(1), prospect(2)});
    reload();
    EXPECT_EQ(selectedKey(), "K2");
    EXPECT_EQ(lvw().SelectedItem()->Index(), 3);
}

TEST_F(ProspectList, falls_back_on_the_first_row_when_the_prospect_left_the_list)
{
    start(7, false);
    prospects({prospect(1), prospect(2)});
    openProspects();
    lvw().clickRow(1);
    prospects({prospect(5), prospect(6)});
    reload();
    EXPECT_EQ(selectedKey(), "K5");
}

TEST_F(ProspectList, counts_its_rows_in_every_counter_line)
{
    start(7, false);
    prospects({prospect(1), prospect(2)});
    openProspects();
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 2");
    EXPECT_EQ(elements().today.lblcuenta2.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 2");
    EXPECT_EQ(elements().organisations.lblinfoOrganizacion.Caption(), "Organizaciones: 0.");
    EXPECT_EQ(elements().persons.lblInfoContacto.Caption(), "Contactos: 0.");
}

TEST_F(ProspectList, leaves_the_list_to_a_load_that_overtook_it_during_its_yield)
{
    start(7, true);
    prospects({prospect(1), prospect(2)});
    openProspects();
    lvw().clickRow(1);
    bool nested = false;
    ports.events.onYield = [&] {
        if (nested) return;
        nested = true;
        prospects({prospect(8), prospect(9)});
        elements().top.cbAgente.pick(2);
        prospects({prospect(1), prospect(2)}); // what the overtaken load would read
    };
    cnn.forgetStatements();
    reload();
    EXPECT_THAT(keys(lvw()), ElementsAre("K8", "K9"));
    EXPECT_EQ(selectedKey(), "K8");
    EXPECT_THAT(elements().detail.txtInfo.Text(), testing::StartsWith("K8 | "));
    EXPECT_EQ(elements().top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 2");
    EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
    EXPECT_THAT(cnn.statements(), testing::Not(testing::Contains(testing::HasSubstr("uf_IEjecutivo = 7 AND"))));
}

TEST_F(ProspectList, shows_nothing_when_the_agent_is_gone_after_its_yield)
{
    start(7, false);
    prospects({prospect(1)});
    openProspects();
    ports.events.onYield = [&] { elements().top.cbAgente.Clear(); };
    reload();
    EXPECT_EQ(lvw().ListItems().Count(), 0);
    EXPECT_THAT(cnn.statements(), IsEmpty()) << "above all not those of nobody";
    EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
}

TEST_F(ProspectList, fits_the_strip_by_itself_where_nobody_did_before)
{
    start(0, true);
    openProspects();                        // narrowed
    elements().top.cbAgente.ItemData(0, 7); // the host's doing: the entry is a real agent's now
    reload();
    EXPECT_EQ(elements().top.lblItem(3).Left(), 7290);
    EXPECT_EQ(elements().top.picColors.Left(), 10260);
    elements().top.cbAgente.ItemData(0, 0);
    reload();
    EXPECT_EQ(elements().top.lblItem(3).Left(), 4290);
    EXPECT_EQ(elements().top.picColors.Left(), 7260);
}

TEST_F(ProspectList, keeps_the_order_of_a_header_when_it_is_loaded_again)
{
    start(7, false);
    prospects({prospect(1, {{"uf_Nombre", text("Óscar")}}), prospect(2, {{"uf_Nombre", text("ana")}}),
               prospect(3, {{"uf_Nombre", text("Ñandú")}}), prospect(4, {{"uf_Nombre", text("Noé")}})});
    openProspects();
    lvw().SortKey(3);
    lvw().Sorted(true);
    EXPECT_THAT(keys(lvw()), ElementsAre("K2", "K4", "K3", "K1"));
    reload();
    EXPECT_THAT(keys(lvw()), ElementsAre("K2", "K4", "K3", "K1"));
}

TEST_F(ProspectList, takes_the_work_tabs_away_for_the_prospects_of_nobody_only_once)
{
    start(7, true);
    openProspects();
    const auto left = [&](int tab) { return elements().top.lblItem(tab).Left(); };
    const screen::Twips colours = elements().top.picColors.Left();
    elements().top.cbAgente.pick(0);
    elements().top.cbAgente.pick(0);
    reload();
    EXPECT_FALSE(elements().top.lblItem(1).Visible());
    EXPECT_FALSE(elements().top.lblItem(2).Visible());
    EXPECT_EQ(left(3), 7290 - 3000);
    EXPECT_EQ(left(4), 8790 - 3000);
    EXPECT_EQ(elements().top.picColors.Left(), colours - 3000);
    elements().top.cbAgente.pick(1);
    EXPECT_TRUE(elements().top.lblItem(1).Visible());
    EXPECT_TRUE(elements().top.lblItem(2).Visible());
    EXPECT_EQ(left(3), 7290);
    EXPECT_EQ(left(4), 8790);
    EXPECT_EQ(elements().top.picColors.Left(), colours);
}

} // namespace
} // namespace dn::tests
