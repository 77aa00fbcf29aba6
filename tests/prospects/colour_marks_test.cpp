// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The five buttons that mark the selected row with a colour.

#include "tests/support/project_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr screen::Colour colours[]{0x000000, 0x0000FF, 0x004000, 0xFF0000, 0x800080};

class ColourMarks : public ProjectTest {
protected:
    ColourMarks()
    {
        start(7, true);
        prospects({prospect(12, {{"uf_proxcontac", date("2026-03-20")}}), prospect(13)});
        activities({activity(21), activity(22)});
    }

    void mark(int colour) { elements().top.bColor(colour).press(); }
    screen::Colour swatch() { return elements().top.picColors.BackColor().value(); }

    /// That a row and all its cells have one colour.
    void expectPainted(const screen::ListItem& row, screen::Colour colour)
    {
        EXPECT_EQ(row.ForeColor(), colour);
        EXPECT_EQ(row.Bold(), colour != 0);
        for (int i = 1; i <= row.ListSubItems().Count(); ++i)
            EXPECT_EQ(row.ListSubItems()(i).ForeColor(), colour) << i;
    }
};

TEST_F(ColourMarks, on_a_prospect_are_stored_and_painted_without_a_load)
{
    openProspects();
    for (const int code : {1, 2, 3, 4, 0}) {
        cnn.forgetStatements();
        mark(code);
        EXPECT_THAT(cnn.statements(), ElementsAre("UPDATE ut_icontact SET uf_color = " + std::to_string(code) +
                                                  " WHERE Sys_PK = 12"));
        expectPainted(lvw().ListItems()("K12"), colours[code]);
        EXPECT_EQ(swatch(), code == 0 ? 0xFFFFFFU : colours[code]);
    }
    expectPainted(lvw().ListItems()("K13"), 0);
}

TEST_F(ColourMarks, on_a_project_are_stored_and_painted_without_a_load)
{
    openProjects();
    lvwProy().clickRow(1);
    for (const int code : {4, 3, 2, 1, 0}) {
        cnn.forgetStatements();
        mark(code);
        EXPECT_THAT(cnn.statements(),
                    ElementsAre("UPDATE Proyecto SET UF_Color = " + std::to_string(code) + " WHERE Sys_PK = 22"));
        expectPainted(lvwProy().ListItems()("K22"), colours[code]);
        EXPECT_EQ(swatch(), code == 0 ? 0xFFFFFFU : colours[code]);
    }
}

TEST_F(ColourMarks, need_a_row)
{
    prospects({});
    openProspects();
    activities({});
    for (const int tab : {0, 1}) {
        elements().top.lblItem(tab).click();
        cnn.forgetStatements();
        ports.dialogs.expectBox("Seleccione un elemento de la lista");
        mark(1);
        const screen::MessageBox& box = ports.dialogs.boxes().back();
        EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
        EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
        EXPECT_EQ(box.title, "");
        EXPECT_THAT(cnn.statements(), IsEmpty());
        EXPECT_EQ(swatch(), 0xFFFFFFU);
    }
}

TEST_F(ColourMarks, that_cannot_be_stored_are_told_and_not_painted)
{
    for (const int tab : {0, 1}) {
        elements().top.lblItem(tab).click();
        mark(1);
        failAt(1);
        ports.dialogs.expectBox("se perdió la conexión");
        mark(3);
        EXPECT_EQ(ports.dialogs.boxes().back().icon, screen::MessageBox::Icon::none);
        expectPainted(tab == 0 ? lvw().ListItems()("K12") : lvwProy().ListItems()("K21"), 0x0000FF);
        EXPECT_EQ(swatch(), 0x0000FFU);
    }
}

TEST_F(ColourMarks, by_code_on_another_tab_go_to_the_selected_project)
{
    openProjects();
    for (const int tab : {2, 3, 4}) {
        elements().top.lblItem(tab).click();
        cnn.forgetStatements();
        elements().top.bColor(2).Click.emit();
        EXPECT_THAT(cnn.statements(), ElementsAre("UPDATE Proyecto SET UF_Color = 2 WHERE Sys_PK = 21"));
        expectPainted(lvwProy().ListItems()("K21"), 0x004000);
        mark(1); // the operator's press: the strip is hidden
        EXPECT_THAT(cnn.statements(), testing::SizeIs(1));
    }
}

TEST_F(ColourMarks, by_code_ahead_of_any_tab_go_to_the_selected_project)
{
    start(7, false); // an agent's first screen is a queue without a tab
    openProjects();
    elements().top.lblItem(1).BackColor(desk::TabStrip::inactiveColour);
    elements().top.bColor(4).Click.emit();
    EXPECT_THAT(cnn.statements(), ElementsAre("UPDATE Proyecto SET UF_Color = 4 WHERE Sys_PK = 21"));
    expectPainted(lvwProy().ListItems()("K21"), 0x800080);
}

TEST_F(ColourMarks, are_painted_only_once_they_are_stored)
{
    openProjects();
    screen::Colour then = 1;
    cnn.beforeExecute([&](std::string_view) { then = lvwProy().ListItems()("K21").ForeColor(); });
    mark(3);
    EXPECT_EQ(then, 0U);
    expectPainted(lvwProy().ListItems()("K21"), 0xFF0000);
}

TEST_F(ColourMarks, stay_where_the_row_goes_in_the_next_load)
{
    openProspects();
    mark(1);
    prospects({prospect(12, {{"uf_color", whole(1)}, {"uf_proxcontac", date("2026-03-20")}})});
    openProspects();
    EXPECT_EQ(lvw().ListItems()("K12").ForeColor(), 0x0000FFU);
    EXPECT_EQ(lvw().ListItems()("K12").ListSubItems()(2).ForeColor(), 0xFF8080U)
        << "the date of the next contact has its own colour again";
}

} // namespace
} // namespace dn::tests
