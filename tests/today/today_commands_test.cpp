// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// "Editar" and "Crear proyecto" of the queue.

#include "base/runtime_error.h"
#include "tests/support/element_tree.h"
#include "tests/today/fixture.h"

namespace dn::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const std::string read2 =
    "Select Sys_PK, uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto FROM ut_icontact Where Sys_PK=2";

class TodayCommands : public TodayTest {
protected:
    void SetUp() override
    {
        start(7, false);
        due({queuedProspect(1), queuedProspect(2), queuedProject(5), queued("Visita", 6)});
        cnn.on(read2).gives(correctionColumns(), {{whole(2), text("María"), text("m@x.mx"), text("961"),
                                                   text("Acme"), text("Compras")}});
        openToday();
    }

    desk::Button& edit() { return elements().today.cmdEditHoy; }
    /// The second prospect has what its conversion asks for.
    void convertible()
    {
        cnn.onContaining("FROM UT_IContact WHERE Sys_PK = 2;")
            .gives({"uf_Nombre", "uf_telefono", "uf_EMail", "uf_ciudad", "UF_IEjecutivo"},
                   {{text("María"), text("961"), text("m@x.mx"), text("Tuxtla"), whole(7)}});
        cnn.onContaining("FROM Ciudad WHERE").gives({"Sys_PK"}, {});
        host.projects->newPerson = 40;
        host.projects->newProject = 41;
    }
    void choose(const std::string& key)
    {
        click(key);
        cnn.forgetStatements();
        host.log.calls.clear();
    }
};

TEST_F(TodayCommands, a_prospect_is_corrected_and_the_queue_loaded_anew)
{
    choose("K2");
    std::vector<std::string> shown;
    ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
        for (const char* box : {"txtNombre", "txtCorreo", "txtTelefono", "txtEmpresa", "txtPuesto"})
            shown.push_back(elementNamed<screen::TextBox>(form, box).Text());
        elementNamed<screen::Button>(form, "cmdCancel").press();
    });
    edit().press();
    EXPECT_THAT(shown, ElementsAre("María", "m@x.mx", "961", "Acme", "Compras"));
    EXPECT_THAT(cnn.statements(), ElementsAre(read2, dueStatement, stuckStatement));
    EXPECT_EQ(selectedKeyOf(lvwHoy()), "K2");
}

TEST_F(TodayCommands, a_corrected_prospect_loads_the_prospects_too)
{
    choose("K2");
    ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
        elementNamed<screen::TextBox>(form, "txtNombre").edit("Mariana");
        elementNamed<screen::Button>(form, "cmdOk").press();
    });
    edit().press();
    ASSERT_EQ(cnn.statements().size(), 5U);
    EXPECT_EQ(cnn.statements()[0], read2);
    EXPECT_THAT(cnn.statements()[1], testing::AllOf(HasSubstr("Mariana"), testing::EndsWith("2")));
    EXPECT_THAT(cnn.statements()[2], HasSubstr("FROM ut_icontact WHERE uf_IEjecutivo = 7"));
    EXPECT_EQ(cnn.statements()[3], dueStatement);
    EXPECT_EQ(cnn.statements()[4], stuckStatement);
}

TEST_F(TodayCommands, a_corrected_prospect_that_left_the_queue_gives_way_to_the_first_row)
{
    prospects({prospect(1), prospect(2)});
    openProspects();
    openToday();
    choose("K2");
    ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
        due({queuedProspect(1)});
        elementNamed<screen::Button>(form, "cmdCancel").press();
    });
    edit().press();
    EXPECT_EQ(selectedKeyOf(lvwHoy()), "K1");
    EXPECT_EQ(selectedKeyOf(lvw()), "K1");
    EXPECT_THAT(info(), testing::StartsWith("K1 | "));
}

TEST_F(TodayCommands, a_corrected_prospect_whose_list_fails_leaves_the_queue_loaded)
{
    prospects({prospect(1), prospect(2)});
    openProspects();
    openToday();
    choose("K2");
    ASSERT_EQ(lvw().ListItems().Count(), 2);
    ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
        elementNamed<screen::Button>(form, "cmdOk").press();
        cnn.failAt(1, "se perdió la conexión");
    });
    edit().press();
    EXPECT_EQ(lvw().ListItems().Count(), 0);
    EXPECT_THAT(cnn.statements(), testing::IsSupersetOf({dueStatement, stuckStatement}));
    EXPECT_EQ(selectedKeyOf(lvwHoy()), "K2");
}

TEST_F(TodayCommands, a_correction_that_is_refused_stays_open_and_the_queue_is_loaded_in_the_end)
{
    choose("K2");
    ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
        failAt(1);
        ports.dialogs.expectBox("se perdió la conexión");
        elementNamed<screen::Button>(form, "cmdOk").press();
        EXPECT_TRUE(form.Visible());
        form.closeWindow();
    });
    edit().press();
    ASSERT_EQ(cnn.statements().size(), 3U) << "no load of the prospects";
    EXPECT_THAT(cnn.statements()[0], testing::StartsWith("UPDATE ut_icontact set "));
    EXPECT_EQ(cnn.statements()[1], dueStatement);
    EXPECT_EQ(cnn.statements()[2], stuckStatement);
}

TEST_F(TodayCommands, a_project_is_opened_by_the_host_and_the_queue_loaded_anew)
{
    choose("P5");
    edit().press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto 5"));
    EXPECT_THAT(cnn.statements(), ElementsAre(dueStatement, stuckStatement));
    EXPECT_EQ(selectedKeyOf(lvwHoy()), "P5");
    choose("P6"); // whatever is no prospect is a project
    edit().press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto 6"));
}

TEST_F(TodayCommands, a_double_click_edits)
{
    choose("P5");
    lvwHoy().doubleClickRow(2);
    EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto 5"));
}

TEST_F(TodayCommands, nothing_is_edited_without_a_row)
{
    choose("K1");
    lvwHoy().ListItems()("K1").Selected(false);
    cnn.forgetStatements();
    lvwHoy().doubleClickEmpty();
    edit().press();
    EXPECT_THAT(cnn.statements(), IsEmpty());
    EXPECT_THAT(host.log.calls, IsEmpty());
}

TEST_F(TodayCommands, a_null_in_any_column_ends_in_an_error_ahead_of_the_dialog)
{
    for (std::size_t column = 0; column < correctionColumns().size(); ++column) {
        std::vector<Cell> row{whole(2), text("María"), text("m"), text("9"), text("A"), text("C")};
        row[column] = null;
        cnn.on(read2).gives(correctionColumns(), {row});
        choose("K2");
        EXPECT_THROW(edit().press(), RuntimeError) << correctionColumns()[column];
        EXPECT_THAT(cnn.statements(), ElementsAre(read2)) << "no reload";
    }
}

TEST_F(TodayCommands, a_prospect_that_is_gone_ends_in_an_error)
{
    cnn.on(read2).gives(correctionColumns(), {});
    choose("K2");
    EXPECT_THROW(edit().press(), data::Error);
    cnn.on(read2).givesNothing();
    EXPECT_THROW(edit().press(), RuntimeError);
}

TEST_F(TodayCommands, a_failed_statement_reaches_the_host)
{
    choose("K2");
    failAt(1);
    EXPECT_THROW(edit().press(), data::Error);
    EXPECT_THAT(cnn.statements(), ElementsAre(read2));
}

TEST_F(TodayCommands, a_failure_of_the_hosts_screen_reaches_the_host)
{
    choose("P5");
    host.log.failing = {"EditarProyecto"};
    EXPECT_THROW(edit().press(), std::runtime_error);
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(TodayCommands, a_failure_of_the_reloads_passes)
{
    for (const std::size_t failing : {1U, 2U}) {
        choose("P5");
        failAt(failing);
        edit().press();
        EXPECT_THAT(cnn.statements(), Contains(stuckStatement));
        control.RefreshRobot();
    }
}

// ---- Crear proyecto

TEST_F(TodayCommands, a_prospect_becomes_a_project_and_leaves_the_queue)
{
    convertible();
    choose("K2");
    due({queuedProspect(1)});
    elements().today.geProyFromContacto.press();
    EXPECT_THAT(host.log.calls,
                ElementsAre("CrearPersona María|Internal|Internal|1|961||m@x.mx||7", "CrearProyecto 0 40"));
    ASSERT_GE(cnn.statements().size(), 6U);
    EXPECT_THAT(cnn.statements()[0], HasSubstr("FROM UT_IContact WHERE Sys_PK = 2;"));
    EXPECT_EQ(cnn.statements()[2],
              "UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus='Actualizado por creación de proyecto', "
              "uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK=2");
    EXPECT_THAT(cnn.statements()[3], HasSubstr(">> Descartado: "));
    EXPECT_EQ(cnn.statements()[4], dueStatement);
    EXPECT_EQ(cnn.statements()[5], stuckStatement);
    EXPECT_THAT(cnn.statements(), Not(Contains(HasSubstr("FROM ut_icontact WHERE")))) << "only the queue reloads";
    EXPECT_THAT(keys(lvwHoy()), ElementsAre("K1"));
}

TEST_F(TodayCommands, a_prospect_stays_when_the_operator_gives_the_project_up)
{
    convertible();
    host.projects->newProject = 0;
    choose("K2");
    elements().today.geProyFromContacto.press();
    EXPECT_THAT(cnn.statements(), Not(Contains(HasSubstr("UPDATE"))));
    EXPECT_THAT(cnn.statements(), testing::IsSupersetOf({dueStatement, stuckStatement})) << "the queue is loaded";
}

TEST_F(TodayCommands, a_project_is_not_made_of_a_project)
{
    choose("P5");
    ports.dialogs.expectBox("Seleccione un contacto para convertir en proyecto.");
    elements().today.geProyFromContacto.press();
    EXPECT_THAT(cnn.statements(), IsEmpty());
    EXPECT_THAT(host.log.calls, IsEmpty());
    const screen::MessageBox& box = ports.dialogs.boxes().back();
    EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(box.title, "");
}

TEST_F(TodayCommands, no_project_is_made_without_a_row)
{
    choose("K1");
    lvwHoy().ListItems()("K1").Selected(false);
    elements().today.geProyFromContacto.press();
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(TodayCommands, a_conversion_that_fails_reaches_the_host_and_loads_nothing)
{
    convertible();
    for (std::size_t failing = 1; failing <= 4; ++failing) {
        choose("K2");
        failAt(failing);
        EXPECT_THROW(elements().today.geProyFromContacto.press(), data::Error) << failing;
        EXPECT_EQ(cnn.statements().size(), failing);
    }
    for (const char* operation : {"CrearPersona", "CrearProyecto"}) {
        choose("K2");
        host.log.failing = {operation};
        EXPECT_THROW(elements().today.geProyFromContacto.press(), std::runtime_error) << operation;
        EXPECT_THAT(cnn.statements(), Not(Contains(dueStatement)));
    }
}

TEST_F(TodayCommands, a_key_that_is_no_number_reaches_the_host)
{
    due({queued("Proyecto", 5)});
    cnn.onContaining("from qhoy")
        .gives(columns(),
               {{whole(7), text("Proyecto"), text("x"), null, text("a"), text("b"), text("c"), text("d")}});
    openToday();
    EXPECT_THROW(edit().press(), RuntimeError);
    EXPECT_THAT(host.log.calls, Not(Contains(HasSubstr("EditarProyecto"))));
}

} // namespace
} // namespace dn::tests
