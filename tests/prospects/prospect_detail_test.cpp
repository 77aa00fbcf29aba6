// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What a click on a prospect fills, and what sorting and checking do to the list.

#include "tests/support/control_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;

class ProspectDesk : public ControlTest {
protected:
    void show(std::vector<std::vector<Cell>> rows)
    {
        start(7, true);
        prospects(std::move(rows));
        openProspects();
    }

    void reload() { elements().prospects.cbStatus.pick(elements().prospects.cbStatus.ListIndex()); }
    screen::CheckBox& all() { return elements().prospects.chkProsSelPros; }

    std::vector<bool> checks()
    {
        std::vector<bool> result;
        for (int i = 1; i <= lvw().ListItems().Count(); ++i)
            result.push_back(lvw().ListItems()(i).Checked());
        return result;
    }
};

TEST_F(ProspectDesk, a_click_fills_the_summary)
{
    show({prospect(1), prospect(123, {{"uf_Tipo", whole(1)},
                                      {"uf_Interes", text("Tallyra")},
                                      {"uf_proxcontac", date("2026-03-20 10:00:00")},
                                      {"uf_Nombre", text("María")},
                                      {"uf_EMail", text("m@x.mx")},
                                      {"uf_Telefono", text("5512345678")},
                                      {"uf_Empresa", text("Acme")},
                                      {"uf_Puesto", text("Compras")},
                                      {"uf_Comentarios", text("por la tarde")},
                                      {"uf_Redirect", text("URL_Directo")}})});
    lvw().clickRow(1);
    EXPECT_EQ(elements().detail.txtInfo.Text(),
              "K123 | 2026-03-20 10:00:00\r\nContacto | Tallyra\r\nMaría\r\nm@x.mx\r\n"
              "5512345678\r\nAcme\r\nCompras\r\npor la tarde\r\nURL_Directo");
}

TEST_F(ProspectDesk, a_click_unlocks_what_needs_a_row)
{
    show({prospect(1)});
    for (screen::Element* element : std::initializer_list<screen::Element*>{
             &elements().detail.Combo1, &elements().detail.txtText, &elements().detail.cmdIntro})
        element->Enabled(false);
    lvw().clickRow(0);
    EXPECT_TRUE(elements().detail.Combo1.Enabled());
    EXPECT_TRUE(elements().detail.txtText.Enabled());
    EXPECT_TRUE(elements().detail.cmdIntro.Enabled());
}

TEST_F(ProspectDesk, an_empty_list_empties_and_locks_the_detail_and_keeps_the_note)
{
    show({prospect(1, {{"uf_Nombre", text("María")}, {"uf_color", whole(1)}})});
    elements().detail.txtBit.Text("lo anterior");
    elements().detail.txtText.Text("a medias");
    ASSERT_NE(elements().detail.txtInfo.Text(), "");
    prospects({});
    reload();
    EXPECT_EQ(elements().detail.txtInfo.Text(), "");
    EXPECT_EQ(elements().detail.txtBit.Text(), "");
    EXPECT_FALSE(elements().detail.Combo1.Enabled());
    EXPECT_FALSE(elements().detail.txtText.Enabled());
    EXPECT_FALSE(elements().detail.cmdIntro.Enabled());
    EXPECT_EQ(elements().detail.txtText.Text(), "a medias");
    EXPECT_EQ(elements().top.picColors.BackColor(), 0x0000FFU) << "the colour of the mark shown last stays";
}

TEST_F(ProspectDesk, the_swatch_shows_the_mark_of_the_row)
{
    show({prospect(1, {{"uf_color", whole(3)}}), prospect(2)});
    lvw().clickRow(0);
    EXPECT_EQ(elements().top.picColors.BackColor(), 0xFF0000U);
    lvw().clickRow(1);
    EXPECT_EQ(elements().top.picColors.BackColor(), 0xFFFFFFU);
}

TEST_F(ProspectDesk, a_load_shows_the_row_that_it_selects)
{
    show({prospect(5), prospect(6)});
    EXPECT_THAT(elements().detail.txtInfo.Text(), testing::StartsWith("K5 | Agendar\r\n"));
    cnn.forgetStatements();
    reload();
    EXPECT_THAT(cnn.statements(),
                ElementsAre(testing::HasSubstr("FROM ut_icontact"),
                            "SELECT * FROM xt_biticontact WHERE uf_Iicontact = 5 ORDER BY uf_Tiempo"));
}

TEST_F(ProspectDesk, a_click_on_the_tab_in_view_shows_the_row_ahead_of_its_load)
{
    show({prospect(5), prospect(6)});
    lvw().clickRow(1);
    cnn.forgetStatements();
    elements().top.lblItem(0).click();
    EXPECT_THAT(cnn.statements(),
                ElementsAre("SELECT * FROM xt_biticontact WHERE uf_Iicontact = 6 ORDER BY uf_Tiempo",
                            testing::HasSubstr("FROM ut_icontact"),
                            "SELECT * FROM xt_biticontact WHERE uf_Iicontact = 6 ORDER BY uf_Tiempo"));
}

TEST_F(ProspectDesk, a_reload_behind_the_projects_leaves_their_detail_alone)
{
    show({prospect(5)});
    elements().top.lblItem(1).click();
    elements().detail.txtInfo.Text("datos del proyecto");
    elements().top.picColors.BackColor(0x0000FF);
    elements().prospects.lvw.Enabled(true);
    cnn.forgetStatements();
    elements().prospects.cbStatus.ListIndex(1); // by code, as the queue of the day does
    EXPECT_EQ(elements().top.picColors.BackColor(), 0x0000FFU);
    EXPECT_EQ(elements().detail.txtInfo.Text(), "") << "a load empties the panel before it looks at the tab";
    EXPECT_FALSE(elements().detail.txtText.Enabled());
    EXPECT_THAT(cnn.statements(), ElementsAre(testing::HasSubstr("FROM ut_icontact")));
}

TEST_F(ProspectDesk, a_failed_timeline_leaves_the_summary_in_place)
{
    show({prospect(5, {{"uf_Nombre", text("María")}})});
    failAt(1);
    lvw().clickRow(0);
    EXPECT_THAT(elements().detail.txtInfo.Text(), testing::HasSubstr("María"));
    EXPECT_TRUE(elements().detail.cmdIntro.Enabled());
}

TEST_F(ProspectDesk, a_load_leaves_a_note_that_is_being_typed)
{
    show({prospect(5)});
    elements().detail.txtText.Text("a medias");
    reload();
    EXPECT_EQ(elements().detail.txtText.Text(), "a medias");
}

TEST_F(ProspectDesk, a_tab_opened_during_the_yield_of_a_load_keeps_its_own_detail)
{
    show({prospect(5)});
    bool nested = false;
    ports.events.onYield = [&] {
        if (nested) return;
        nested = true;
        elements().top.lblItem(2).click();
    };
    reload();
    EXPECT_EQ(elements().detail.txtInfo.Text(), "");
    EXPECT_EQ(elements().detail.txtBit.Text(), "");
    EXPECT_FALSE(elements().detail.txtText.Enabled());
    EXPECT_TRUE(elements().today.lvwHoy.Visible());
}

TEST_F(ProspectDesk, a_tab_opened_while_the_timeline_is_read_keeps_its_own_detail)
{
    show({prospect(5)});
    cnn.onContaining("FROM xt_biticontact")
        .gives({"uf_Tiempo", "uf_Mensaje", "uf_Usuario"}, {{date("2026-03-01"), text("x"), text("ana")}});
    bool nested = false;
    ports.events.onYield = [&] {
        if (nested) return;
        nested = true;
        elements().top.lblItem(1).click();
    };
    cnn.forgetStatements();
    elements().top.lblItem(0).click(); // its first yield is that of the timeline of the selected row
    EXPECT_EQ(elements().detail.txtBit.Text(), "");
    EXPECT_TRUE(elements().projects.lvwProy.Visible());
    EXPECT_THAT(cnn.statements(),
                ElementsAre(testing::HasSubstr("xt_biticontact"), testing::HasSubstr("FROM ((((mdtpactividad"),
                            testing::HasSubstr("FROM ((Proyecto")));
}

TEST_F(ProspectDesk, a_list_emptied_while_the_timeline_is_read_shows_no_timeline)
{
    show({prospect(5)});
    cnn.onContaining("FROM xt_biticontact")
        .gives({"uf_Tiempo", "uf_Mensaje", "uf_Usuario"}, {{date("2026-03-01"), text("x"), text("ana")}});
    bool nested = false;
    ports.events.onYield = [&] {
        if (nested) return;
        nested = true;
        prospects({});
        reload();
    };
    lvw().clickRow(0);
    EXPECT_EQ(lvw().ListItems().Count(), 0);
    EXPECT_EQ(elements().detail.txtBit.Text(), "");
}

// ---- Sorting

TEST_F(ProspectDesk, the_first_click_on_another_header_sorts_upwards)
{
    show({prospect(1, {{"uf_Nombre", text("Luz")}}), prospect(2, {{"uf_Nombre", text("Ana")}})});
    lvw().SortOrder(screen::ListView::descending);
    lvw().clickHeader(3);
    EXPECT_EQ(lvw().SortKey(), 3);
    EXPECT_EQ(lvw().SortOrder(), screen::ListView::ascending);
    EXPECT_TRUE(lvw().Sorted());
    EXPECT_THAT(keys(lvw()), ElementsAre("K2", "K1"));
}

TEST_F(ProspectDesk, further_clicks_on_a_header_turn_the_order_round)
{
    show({prospect(1, {{"uf_Nombre", text("Luz")}}), prospect(2, {{"uf_Nombre", text("Ana")}})});
    lvw().clickHeader(3);
    lvw().clickHeader(3);
    EXPECT_THAT(keys(lvw()), ElementsAre("K1", "K2"));
    EXPECT_EQ(lvw().SortOrder(), screen::ListView::descending);
    lvw().clickHeader(3);
    EXPECT_THAT(keys(lvw()), ElementsAre("K2", "K1"));
    EXPECT_EQ(lvw().SortOrder(), screen::ListView::ascending);
}

TEST_F(ProspectDesk, the_first_click_on_the_first_header_counts_as_a_repeat)
{
    show({prospect(1)});
    lvw().clickHeader(0);
    EXPECT_EQ(lvw().SortOrder(), screen::ListView::descending);
    EXPECT_TRUE(lvw().Sorted());
}

TEST_F(ProspectDesk, any_order_but_ascending_turns_to_ascending)
{
    show({prospect(1)});
    lvw().SortKey(4);
    lvw().SortOrder(screen::ListView::descending);
    lvw().clickHeader(4);
    EXPECT_EQ(lvw().SortOrder(), screen::ListView::ascending);
}

TEST_F(ProspectDesk, days_sort_as_numbers_where_they_are_padded_and_as_texts_where_not)
{
    show({prospect(1, {{"e_dias", whole(9)}, {"e_duc", whole(9)}}),
          prospect(2, {{"e_dias", whole(100)}, {"e_duc", whole(100)}}),
          prospect(3, {{"e_dias", whole(20)}, {"e_duc", whole(20)}})});
    lvw().clickHeader(12);
    EXPECT_THAT(keys(lvw()), ElementsAre("K1", "K3", "K2"));
    lvw().clickHeader(14);
    EXPECT_THAT(keys(lvw()), ElementsAre("K2", "K3", "K1"));
}

// ---- Checking

TEST_F(ProspectDesk, the_box_checks_and_unchecks_all_rows)
{
    show({prospect(1), prospect(2), prospect(3)});
    all().toggle();
    EXPECT_THAT(checks(), ElementsAre(true, true, true));
    all().toggle();
    EXPECT_THAT(checks(), ElementsAre(false, false, false));
}

TEST_F(ProspectDesk, unchecking_a_row_takes_the_mark_off_the_box_and_leaves_the_other_rows)
{
    show({prospect(1), prospect(2), prospect(3)});
    all().toggle();
    lvw().toggleCheck(1);
    EXPECT_EQ(all().Value(), 0);
    EXPECT_THAT(checks(), ElementsAre(true, false, true));
    all().toggle();
    EXPECT_THAT(checks(), ElementsAre(true, true, true)) << "the box works again afterwards";
}

TEST_F(ProspectDesk, checking_the_last_row_does_not_mark_the_box)
{
    show({prospect(1), prospect(2)});
    lvw().toggleCheck(0);
    lvw().toggleCheck(1);
    EXPECT_EQ(all().Value(), 0);
}

} // namespace
} // namespace dn::tests
