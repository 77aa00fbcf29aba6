// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Notes: from the box to the log and the timeline.

#include "tests/support/control_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* insertProspect =
    "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES (CURRENT_TIMESTAMP, '";
constexpr const char* insertProject =
    "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, "
    "uf_IProy) VALUES (CURRENT_TIMESTAMP, '";

class Notes : public ControlTest {
protected:
    void SetUp() override
    {
        start(7, true);
        prospects({prospect(12), prospect(13)});
        openProspects();
    }

    desk::DetailElements& detail() { return elements().detail; }

    void registers(const std::string& note)
    {
        detail().txtText.Text(note);
        detail().cmdIntro.press();
    }
};

TEST_F(Notes, go_to_the_log_of_the_selected_prospect_and_to_the_top_of_its_timeline)
{
    lvw().clickRow(1);
    detail().txtBit.Text("lo anterior");
    cnn.forgetStatements();
    ports.clock.now = {2026, 3, 14, 9, 30, 5};
    registers("pide precios");
    EXPECT_THAT(cnn.statements(), ElementsAre(std::string(insertProspect) + "pide precios','ana',13)"));
    EXPECT_EQ(detail().txtBit.Text(), "ana [14/03/2026 09:30:05]\r\npide precios\r\n\r\nlo anterior");
    EXPECT_EQ(detail().txtText.Text(), "");
}

struct Cleaned {
    const char* typed;
    const char* stored;
};

TEST_F(Notes, are_cleaned_and_not_escaped)
{
    const Cleaned cases[]{{"  con blancos  ", "con blancos"},
                          {"O'Higgins d'Arc", "OHiggins dArc"},
                          {"una\r\ndos\r\n\r\ntres", "unadostres"},
                          {"una\ndos\rtres", "una\ndos\rtres"},
                          {"'x' ", "x"},
                          {" ' x ' ", " x "},    // trimmed first, so these blanks stay
                          {"a\r'\nb", "a\r\nb"}, // the pair that the apostrophe's going makes stays
                          {"\\ % _ \" ; -- /*", "\\ % _ \" ; -- /*"},
                          {"😀 شكرا ñ", "😀 شكرا ñ"},
                          {"\tx\t", "\tx\t"}};
    for (const Cleaned& c : cases) {
        cnn.forgetStatements();
        registers(c.typed);
        EXPECT_THAT(cnn.statements(), ElementsAre(insertProspect + std::string(c.stored) + "','ana',12)"));
    }
}

TEST_F(Notes, without_text_are_refused)
{
    for (const char* nothing : {"", "   ", "'''", "\r\n\r\n", "\r\n'\r\n"}) {
        cnn.forgetStatements();
        ports.dialogs.expectBox("Debe escribir un mensaje");
        registers(nothing);
        EXPECT_THAT(cnn.statements(), IsEmpty());
        EXPECT_TRUE(detail().txtText.hasFocus());
        EXPECT_EQ(detail().txtText.Text(), "");
    }
}

TEST_F(Notes, of_a_blank_that_the_cleaning_left_are_stored)
{
    registers("' '"); // not blank when it is trimmed
    EXPECT_THAT(cnn.statements(), ElementsAre(insertProspect + std::string(" ','ana',12)")));
}

TEST_F(Notes, keep_a_box_of_100_kilobytes_whole)
{
    const std::string large(100'000, 'x');
    registers(large);
    EXPECT_THAT(cnn.statements(), ElementsAre(insertProspect + large + "','ana',12)"));
}

TEST_F(Notes, that_fail_are_told_and_keep_the_cleaned_text)
{
    detail().txtBit.Text("lo anterior");
    failAt(1);
    ports.dialogs.expectBox("se perdió la conexión");
    registers("  d'Arc ");
    EXPECT_EQ(detail().txtText.Text(), "dArc");
    EXPECT_EQ(detail().txtBit.Text(), "lo anterior");
}

TEST_F(Notes, use_the_user_name_as_it_stands)
{
    control.Usuario("o'neil");
    registers("x");
    EXPECT_THAT(cnn.statements(), ElementsAre(insertProspect + std::string("x','o'neil',12)")));
}

TEST_F(Notes, without_a_selected_row_do_nothing_on_each_tab_of_a_party)
{
    prospects({});
    for (const int tab : {0, 1, 2}) {
        elements().top.lblItem(tab).click();
        detail().txtText.Enabled(true);
        detail().cmdIntro.Enabled(true);
        cnn.forgetStatements();
        registers("  a medias ");
        EXPECT_EQ(detail().txtText.Text(), "  a medias ") << "not even cleaned";
        EXPECT_THAT(cnn.statements(), IsEmpty());
    }
}

TEST_F(Notes, of_a_project_carry_its_key_and_no_prospect)
{
    elements().top.lblItem(1).click();
    elements().projects.lvwProy.ListItems().Add("K88", "2026-03-14");
    detail().cmdIntro.Enabled(true);
    cnn.forgetStatements();
    registers("visita");
    EXPECT_THAT(cnn.statements(), ElementsAre(insertProject + std::string("visita','ana',0,88)")));
}

TEST_F(Notes, of_the_day_go_where_the_row_belongs)
{
    elements().projects.lvwProy.ListItems().Add("K88", "");
    elements().top.lblItem(2).click();
    cnn.forgetStatements();
    detail().cmdIntro.Enabled(true);
    elements().today.lvwHoy.ListItems().Add("K12", "Contacto");
    registers("al prospecto");
    elements().today.lvwHoy.ListItems().Clear();
    elements().today.lvwHoy.ListItems().Add("P88", "contacto"); // the text must be exact
    registers("al proyecto");
    // Each is preceded by the click on its row, which reads the timeline of its record.
    EXPECT_THAT(cnn.statements(),
                ElementsAre(testing::HasSubstr("uf_Iicontact = 12"),
                            insertProspect + std::string("al prospecto','ana',12)"),
                            testing::HasSubstr("Proyecto.Sys_PK"), testing::HasSubstr("uf_IProy = 88"),
                            insertProject + std::string("al proyecto','ana',0,88)")));
}

TEST_F(Notes, on_a_directory_go_to_the_prospect_selected_behind_it)
{
    elements().top.lblItem(4).click();
    detail().txtText.Text("x");
    elements().detail.picRight.Visible(true);
    detail().cmdIntro.Enabled(true);
    cnn.forgetStatements();
    detail().cmdIntro.press();
    EXPECT_THAT(cnn.statements(), ElementsAre(insertProspect + std::string("x','ana',12)")));
}

TEST_F(Notes, on_a_directory_without_a_prospect_are_a_failure_that_is_told)
{
    prospects({});
    openProspects();
    elements().top.lblItem(4).click();
    elements().detail.picRight.Visible(true);
    detail().cmdIntro.Enabled(true);
    ports.dialogs.expectBox("No hay ningún elemento seleccionado en la lista.");
    registers(" x ");
    EXPECT_EQ(detail().txtText.Text(), "x");
}

TEST_F(Notes, are_registered_by_enter_which_breaks_no_line)
{
    detail().txtText.type("pide precios\n");
    EXPECT_THAT(cnn.statements(), ElementsAre(std::string(insertProspect) + "pide precios','ana',12)"));
    EXPECT_EQ(detail().txtText.Text(), "");
}

TEST_F(Notes, other_keys_pass)
{
    EXPECT_EQ(detail().txtText.pressKey('x'), 'x');
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Notes, asked_for_replace_what_stood_in_the_box)
{
    detail().txtText.Text("a medias");
    ports.dialogs.expectInput("Nota:", "  dictada ");
    detail().cmdNote.press();
    EXPECT_THAT(cnn.statements(), ElementsAre(std::string(insertProspect) + "dictada','ana',12)"));
    EXPECT_EQ(detail().txtText.Text(), "");
}

TEST_F(Notes, asked_for_without_a_selected_row_stay_in_the_box)
{
    prospects({});
    openProspects();
    ports.dialogs.expectInput("Nota:", " sin fila ");
    detail().cmdNote.press();
    EXPECT_EQ(detail().txtText.Text(), " sin fila ");
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Notes, asked_for_and_not_given_leave_the_box_alone)
{
    detail().txtText.Text("a medias");
    for (const char* nothing : {"", "    "}) {
        ports.dialogs.expectInput("Nota:", nothing);
        detail().cmdNote.press();
    }
    EXPECT_EQ(detail().txtText.Text(), "a medias");
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

} // namespace
} // namespace dn::tests
