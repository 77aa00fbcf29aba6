// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// "Nuevo" and "Corregir": what they hand over to their dialogs, and what follows.

#include "base/runtime_error.h"
#include "data/failure_modes.h"
#include "prospects/prospect_editing.h"
#include "tests/support/control_fixture.h"
#include "tests/support/element_tree.h"
#include "tests/support/public_operations.h"

namespace dn::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string read12 =
    "Select Sys_PK, uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto FROM ut_icontact Where Sys_PK = 12";
class ProspectEditing : public ControlTest {
protected:
    void SetUp() override
    {
        start(7, true);
        prospects({prospect(11), prospect(12, {{"uf_Nombre", text("María")}})});
        openProspects();
        lvw().clickRow(1);
        cnn.on(read12).gives(correctionColumns(), {{whole(12), text("María"), text("m@x.mx"), text("961"),
                                                    text("Acme"), text("Compras")}});
        cnn.forgetStatements();
    }

    screen::Button& newProspect() { return elements().prospects.cmdProsNewPros; }
    screen::Button& correct() { return elements().detail.cmdEditC; }

    static std::string textOf(screen::Form& form, const char* box)
    {
        return elementNamed<screen::TextBox>(form, box).Text();
    }
    static std::vector<std::string> textsOf(screen::Form& form)
    {
        std::vector<std::string> texts;
        for (const char* box : {"txtNombre", "txtCorreo", "txtTelefono", "txtEmpresa", "txtPuesto"})
            texts.push_back(textOf(form, box));
        return texts;
    }
    static void press(screen::Form& form, const char* button)
    {
        elementNamed<screen::Button>(form, button).press();
    }
    static void fillIn(screen::Form& form)
    {
        elementNamed<screen::TextBox>(form, "txtNombre").edit("Luz Luna");
        elementNamed<screen::TextBox>(form, "txtTelefono").edit("0123456789");
        elementNamed<screen::TextBox>(form, "txtCorreo").edit("l@x.mx");
        elementNamed<screen::ComboBox>(form, "cPais").pick("Cuba");
        elementNamed<screen::TextBox>(form, "cCiudad").edit("Camagüey");
        for (const char* combo : {"cInteres", "cObtencion", "cReferencia"})
            elementNamed<screen::ComboBox>(form, combo).edit("x");
    }

    /// Whether the list was loaded anew since the statements were forgotten.
    bool reloaded() const
    {
        return std::any_of(cnn.statements().begin(), cnn.statements().end(), [](const std::string& statement) {
            return statement.find("FROM ut_icontact WHERE") != std::string::npos;
        });
    }
};

// ---- Nuevo

TEST_F(ProspectEditing, a_new_prospect_is_the_agents_in_view_and_the_list_is_loaded_anew)
{
    elements().top.cbAgente.pick("Beto");
    cnn.forgetStatements();
    ports.events.expectModal("dlgNuevoPros", [&](screen::Form& form) {
        fillIn(form);
        press(form, "cmdOk");
    });
    newProspect().press();
    EXPECT_THAT(cnn.statements(), Contains(HasSubstr("DATE(NOW()), 9, 0, 1, 0, 'URL_Directo')")));
    EXPECT_TRUE(reloaded());
}

TEST_F(ProspectEditing, a_new_prospect_without_an_agent_is_nobodys)
{
    elements().top.cbAgente.pick(0);
    ports.events.expectModal("dlgNuevoPros", [&](screen::Form& form) {
        fillIn(form);
        press(form, "cmdOk");
    });
    newProspect().press();
    EXPECT_THAT(cnn.statements(), Contains(HasSubstr("DATE(NOW()), NULL, 0, 1, 0, ")));
    elements().top.cbAgente.ListIndex(-1);
    cnn.forgetStatements();
    ports.events.expectModal("dlgNuevoPros", [&](screen::Form& form) {
        fillIn(form);
        press(form, "cmdOk");
    });
    newProspect().press();
    EXPECT_THAT(cnn.statements(), Contains(HasSubstr("DATE(NOW()), NULL, 0, 1, 0, ")));
}

TEST_F(ProspectEditing, a_new_prospect_whose_list_cannot_be_read_is_stored_all_the_same)
{
    ports.events.expectModal("dlgNuevoPros", [&](screen::Form& form) {
        fillIn(form);
        press(form, "cmdOk");
        cnn.failAt(1, "se perdió la conexión");
    });
    newProspect().press();
    EXPECT_THAT(cnn.statements(), Contains(HasSubstr("INSERT INTO ut_icontact")));
    EXPECT_THAT(cnn.statements().back(), HasSubstr("FROM ut_icontact WHERE"));
    EXPECT_EQ(lvw().ListItems().Count(), 0) << "and no word";
    EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
    openProspects();
    EXPECT_EQ(lvw().ListItems().Count(), 2);
}

TEST_F(ProspectEditing, a_new_prospect_that_is_given_up_reloads_nothing)
{
    ports.events.expectModal("dlgNuevoPros", [](screen::Form& form) { press(form, "cmdCancel"); });
    newProspect().press();
    ports.events.expectModal("dlgNuevoPros", [](screen::Form& form) { form.closeWindow(); });
    newProspect().press();
    EXPECT_FALSE(reloaded());
}

TEST_F(ProspectEditing, each_new_prospect_finds_an_empty_dialog)
{
    ports.events.expectModal("dlgNuevoPros", [](screen::Form& form) {
        fillIn(form);
        press(form, "cmdCancel");
    });
    newProspect().press();
    ports.events.expectModal("dlgNuevoPros", [](screen::Form& form) {
        EXPECT_EQ(textOf(form, "txtNombre"), "");
        EXPECT_EQ(elementNamed<screen::ComboBox>(form, "cPais").Text(), "México");
        press(form, "cmdCancel");
    });
    newProspect().press();
}

TEST_F(ProspectEditing, a_new_prospect_takes_the_engine_along)
{
    cnn.on("SELECT NOW()").fails("'NOW' is not a recognized built-in function name");
    start(7, true);
    ports.events.expectModal("dlgNuevoPros", [](screen::Form& form) {
        fillIn(form);
        press(form, "cmdOk");
    });
    // The probe of the engine keeps what an earlier one found: a control of its own, then.
    ctrDnContacts other(ports.ports());
    other.SetObjects(&cnn, 7, true, "ana");
    other.RefreshData();
    other.elements().top.lblItem(desk::prospectos).click();
    other.elements().prospects.cmdProsNewPros.press();
    EXPECT_THAT(cnn.statements(), Contains(HasSubstr("VALUES (GETDATE(), REPLACE(NEWID(),'-',''), ")));
}

TEST_F(ProspectEditing, a_dialog_that_cannot_read_its_lists_does_not_come)
{
    for (std::size_t list = 1; list <= 3; ++list) {
        failAt(list);
        newProspect().press(); // neither a window nor a box
        EXPECT_EQ(cnn.statements().size(), list);
    }
}

TEST_F(ProspectEditing, without_a_connection_nothing_comes_of_nuevo)
{
    control.AdoCnn(nullptr);
    newProspect().press();
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

// ---- Corregir

TEST_F(ProspectEditing, correcting_shows_the_row_and_writes_it)
{
    ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
        EXPECT_THAT(cnn.statements(), ElementsAre(read12));
        EXPECT_THAT(textsOf(form), ElementsAre("María", "m@x.mx", "961", "Acme", "Compras"));
        elementNamed<screen::TextBox>(form, "txtNombre").edit("Mariana");
        prospects({prospect(12, {{"uf_Nombre", text("Mariana")}}), prospect(11)});
        press(form, "cmdOk");
    });
    correct().press();
    ASSERT_GE(cnn.statements().size(), 3U);
    EXPECT_EQ(cnn.statements()[1], "UPDATE ut_icontact set uf_Nombre='Mariana',uf_EMail='m@x.mx',"
                                   "uf_Telefono='961',uf_Empresa='Acme',uf_Puesto='Compras' WHERE Sys_PK=12");
    EXPECT_TRUE(reloaded());
    EXPECT_EQ(lvw().SelectedItem()->Key(), "K12") << "found again by its key";
}

TEST_F(ProspectEditing, correcting_needs_a_selected_row)
{
    prospects({});
    openProspects();
    ports.dialogs.expectBox("Seleccione un elemento de la lista");
    correct().press();
    EXPECT_EQ(ports.dialogs.boxes().back().buttons, screen::MessageBox::Buttons::ok);
    EXPECT_EQ(ports.dialogs.boxes().back().icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(ports.dialogs.boxes().back().title, "");
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(ProspectEditing, a_correction_that_is_given_up_reloads_nothing)
{
    ports.events.expectModal("dlgCorregir", [](screen::Form& form) { press(form, "cmdCancel"); });
    correct().press();
    EXPECT_THAT(cnn.statements(), ElementsAre(read12));
}

TEST_F(ProspectEditing, a_null_leaves_its_box_empty)
{
    for (std::size_t column = 1; column <= 5; ++column) {
        std::vector<Cell> row{whole(12), text("n"), text("c"), text("t"), text("e"), text("p")};
        row[column] = null;
        cnn.on(read12).gives(correctionColumns(), {row});
        ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
            std::vector<std::string> expected{"n", "c", "t", "e", "p"};
            expected[column - 1] = "";
            EXPECT_EQ(textsOf(form), expected);
            press(form, "cmdCancel");
        });
        correct().press();
    }
}

TEST_F(ProspectEditing, a_null_keeps_nothing_of_the_correction_before)
{
    ports.events.expectModal("dlgCorregir", [](screen::Form& form) { press(form, "cmdCancel"); });
    correct().press();
    cnn.on(read12).gives(correctionColumns(), {{whole(12), null, null, null, null, null}});
    ports.events.expectModal("dlgCorregir", [](screen::Form& form) {
        EXPECT_THAT(textsOf(form), ElementsAre("", "", "", "", ""));
        press(form, "cmdCancel");
    });
    correct().press();
}

TEST_F(ProspectEditing, a_row_that_cannot_be_read_shows_empty_boxes_and_updates_no_row)
{
    const auto accepts = [](screen::Form& form) {
        EXPECT_THAT(textsOf(form), ElementsAre("", "", "", "", ""));
        press(form, "cmdOk");
    };
    const auto updatesNoRow = [&] {
        EXPECT_THAT(cnn.statements(),
                    Contains("UPDATE ut_icontact set uf_Nombre='',uf_EMail='',uf_Telefono='',uf_Empresa='',"
                             "uf_Puesto='' WHERE Sys_PK=0"));
    };
    ports.events.expectModal("dlgCorregir", accepts);
    failAt(1);
    correct().press();
    updatesNoRow();
    for (const bool nothing : {true, false}) { // no recordset; no row
        Answer& answer = cnn.on(read12);
        if (nothing)
            answer.givesNothing();
        else
            answer.gives(correctionColumns(), {});
        cnn.forgetStatements();
        ports.events.expectModal("dlgCorregir", accepts);
        correct().press();
        updatesNoRow();
    }
}

TEST_F(ProspectEditing, a_refused_correction_is_told_and_the_dialog_stays)
{
    ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
        failAt(1);
        ports.dialogs.expectBox("se perdió la conexión");
        press(form, "cmdOk");
        EXPECT_TRUE(form.Visible());
        press(form, "cmdCancel");
    });
    correct().press();
    EXPECT_FALSE(reloaded());
}

TEST_F(ProspectEditing, a_list_that_fails_after_the_correction_is_empty)
{
    ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
        failAt(2);
        press(form, "cmdOk");
    });
    correct().press();
    EXPECT_EQ(lvw().ListItems().Count(), 0);
}

TEST_F(ProspectEditing, the_mails_of_the_prospect_are_shown_and_the_dialog_stays)
{
    cnn.on("SELECT Sys_GUID FROM ut_icontact Where Sys_PK=12").gives({"Sys_GUID"}, {{text("ABCD")}});
    ports.events.expectModal("dlgCorregir", [](screen::Form& form) {
        press(form, "cmdHistorial");
        EXPECT_TRUE(form.Visible());
        press(form, "cmdCancel");
    });
    correct().press();
    EXPECT_EQ(host.log.calls.back(), "VerHistorial CT.ABCD");
}

// ---- The same dialog for a room that lets failures go

class CorrectingForAnotherRoom : public ProspectEditing {
protected:
    void run()
    {
        desk::Session session;
        session.AdoCnn = &cnn;
        desk::TabStrip tabs(elements().top);
        desk::Counters counters(elements());
        desk::Timeline timeline(session, elements(), ports.ports());
        prospects::ProspectDetail detail(elements().detail, elements().top, tabs, timeline);
        prospects::ProspectList list(session, elements().prospects, elements().top, tabs, detail, counters,
                                     ports.ports());
        prospects::ProspectEditing editing(session, elements().prospects, elements().top, list, operations,
                                           ports.ports());
        editing.correct(read12, [](const std::function<void()>& statement) { statement(); });
    }

    FakeOperations operations;
};

TEST_F(CorrectingForAnotherRoom, asks_the_control_for_the_mails)
{
    ports.events.expectModal("dlgCorregir", [](screen::Form& form) {
        press(form, "cmdHistorial");
        press(form, "cmdCancel");
    });
    run();
    EXPECT_THAT(operations.calls, ElementsAre("Historial 0 12"));
}

TEST_F(CorrectingForAnotherRoom, shows_the_row_and_reloads_the_list)
{
    ports.events.expectModal("dlgCorregir", [](screen::Form& form) {
        EXPECT_THAT(textsOf(form), ElementsAre("María", "m@x.mx", "961", "Acme", "Compras"));
        press(form, "cmdOk");
    });
    run();
    EXPECT_TRUE(reloaded());
}

TEST_F(CorrectingForAnotherRoom, a_null_in_any_column_and_a_failed_statement_reach_it_and_no_dialog_comes)
{
    for (std::size_t column = 0; column <= 5; ++column) {
        std::vector<Cell> row{whole(12), text("n"), text("c"), text("t"), text("e"), text("p")};
        row[column] = null;
        cnn.on(read12).gives(correctionColumns(), {row});
        EXPECT_THROW(run(), RuntimeError) << column;
    }
    cnn.on(read12).gives(correctionColumns(), {});
    EXPECT_THROW(run(), data::Error);
    cnn.on(read12).givesNothing();
    EXPECT_THROW(run(), RuntimeError);
    failAt(1);
    EXPECT_THROW(run(), data::Error);
}

} // namespace
} // namespace dn::tests
