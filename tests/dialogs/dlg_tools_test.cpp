// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The tool that hands a group of projects over: its statement to the byte, the question ahead of it, the failures.

#include "dialogs/dlg_tools.h"
#include "tests/support/control_fixture.h"
#include "tests/support/element_tree.h"

#include <functional>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char* const question = "¿Seguro desea ejecutar este proceso (es irreversible)?";

std::vector<std::string> lines(const screen::ComboBox& list)
{
    std::vector<std::string> entries;
    for (int i = 0; i < list.ListCount(); ++i)
        entries.push_back(std::to_string(list.ItemData(i)) + " " + list.List(i));
    return entries;
}

class GroupTool : public testing::Test {
protected:
    GroupTool()
    {
        cnn.on(agentsStatement).gives({"Sys_PK", "Nombre"}, {{whole(7), text("Ana")}, {whole(9), text("Beto")}});
        dialog.Motor = 1;
        dialog.Cnn = &cnn;
    }

    void show(const std::function<void(screen::Form&)>& act)
    {
        ports.events.expectModal("dlgTools", [&](screen::Form& form) {
            loading = cnn.statements();
            cnn.forgetStatements();
            act(form);
            dialog.cmdCerrar.press();
            EXPECT_FALSE(form.Visible());
        });
        dialog.Show();
    }

    /// Agrees to the change and gives the statement that was sent.
    std::string changed()
    {
        cnn.forgetStatements();
        ports.dialogs.expectBox(question, screen::Answer::yes);
        ports.dialogs.expectBox("Proceso completado.");
        dialog.cmdCambiar.press();
        return cnn.statements().size() == 1 ? cnn.statements().front() : "no single statement";
    }

    FakeConnection cnn;
    FakePorts ports;
    std::vector<std::string> loading;
    dialogs::dlgTools dialog{ports.ports()};
};

TEST_F(GroupTool, opens_on_all_projects_and_without_a_receiver)
{
    show([&](screen::Form& form) {
        EXPECT_EQ(form.Caption(), "Herramientas");
        EXPECT_THAT(loading, ElementsAre(agentsStatement));
        EXPECT_EQ(dialog.Label1.Caption(), "Cambiar ejecutivo de grupo de proyectos");
        EXPECT_THAT(lines(dialog.cmdColor), ElementsAre("0 <Cualquier color>", "0 Predeterminado", "0 Rojo",
                                                        "0 Verde", "0 Azul", "0 Morado"));
        EXPECT_THAT(lines(dialog.cmdEstado), ElementsAre("0 <Cualquier estado>", "0 Congelados", "0 Fríos",
                                                         "0 Tibios", "0 Calientes", "0 Cerrados", "0 Perdidos"));
        EXPECT_THAT(lines(dialog.cmdEjecutivo), ElementsAre("0 <Todos los ejecutivos>", "7 Ana", "9 Beto"));
        EXPECT_THAT(lines(dialog.cmdDestino), ElementsAre("7 Ana", "9 Beto"));
        EXPECT_EQ(dialog.cmdColor.ListIndex(), 0);
        EXPECT_EQ(dialog.cmdEstado.ListIndex(), 0);
        EXPECT_EQ(dialog.cmdEjecutivo.ListIndex(), 0);
        EXPECT_EQ(dialog.cmdDestino.ListIndex(), -1);
        EXPECT_EQ(dialog.Check1.Caption(), "Excepto el color seleccionado");
        EXPECT_EQ(dialog.Check1.Value(), 0);
        EXPECT_EQ(dialog.cmdCambiar.Caption(), "&Cambiar");
        EXPECT_EQ(dialog.cmdCerrar.Caption(), "C&errar");
        for (const auto& [label, text] : {std::pair("lblColor", "En color:"), std::pair("lblEstado", "En estado:"),
                                          std::pair("lblEjecutivo", "De:"), std::pair("lblDestino", "A:")})
            EXPECT_EQ(elementNamed<screen::Label>(form, label).Caption(), text);
    });
}

TEST_F(GroupTool, changes_the_group_of_all_three_filters)
{
    show([&](screen::Form&) {
        dialog.cmdColor.pick("Rojo");
        dialog.cmdEstado.pick("Tibios");
        dialog.cmdEjecutivo.pick("Ana");
        dialog.cmdDestino.pick("Beto");
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 9  WHERE  uf_Color= 1  AND uf_Status1 = 3 AND "
                             "IEjecutivo = 7 ");
        dialog.Check1.toggle();
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 9  WHERE  uf_Color<> 1  AND uf_Status1 = 3 AND "
                             "IEjecutivo = 7 ");
    });
}

TEST_F(GroupTool, joins_whichever_filters_are_set)
{
    show([&](screen::Form&) {
        dialog.cmdDestino.pick("Beto");
        dialog.cmdEstado.pick("Tibios");
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 9  WHERE uf_Status1 = 3");
        dialog.cmdEjecutivo.pick("Ana");
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 9  WHERE uf_Status1 = 3 AND IEjecutivo = 7 ");
        dialog.cmdEstado.pick(0);
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 9  WHERE IEjecutivo = 7 ");
        dialog.cmdColor.pick("Morado");
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 9  WHERE  uf_Color= 4  AND IEjecutivo = 7 ");
        dialog.cmdEjecutivo.pick(0);
        dialog.cmdColor.pick("Predeterminado");
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 9  WHERE  uf_Color= 0 ");
        dialog.cmdEstado.pick("Perdidos");
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 9  WHERE  uf_Color= 0  AND uf_Status1 = 6");
    });
}

TEST_F(GroupTool, without_a_filter_changes_every_project)
{
    show([&](screen::Form&) {
        dialog.cmdDestino.pick("Ana");
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 7 ");
        dialog.Check1.toggle(); // without a colour it has no effect
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 7 ");
    });
}

TEST_F(GroupTool, lets_an_executive_hand_projects_to_himself)
{
    show([&](screen::Form&) {
        dialog.cmdEjecutivo.pick("Beto");
        dialog.cmdDestino.pick("Beto");
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 9  WHERE IEjecutivo = 9 ");
    });
}

TEST_F(GroupTool, does_not_depend_on_the_engine)
{
    dialog.Motor = 2;
    show([&](screen::Form&) {
        dialog.cmdDestino.pick("Ana");
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 7 ");
    });
}

TEST_F(GroupTool, asks_for_a_receiver_and_stays)
{
    show([&](screen::Form& form) {
        ports.dialogs.expectBox("Debe seleccionar el ejecutivo que recibirá los proyectos");
        dialog.cmdCambiar.press();
        EXPECT_TRUE(form.Visible());
        EXPECT_THAT(cnn.statements(), IsEmpty());
        EXPECT_THAT(ports.pointer.shapes, IsEmpty());
    });
}

TEST_F(GroupTool, without_agents_has_nobody_to_receive)
{
    cnn.on(agentsStatement).givesNothing();
    show([&](screen::Form&) {
        ports.dialogs.expectBox("Debe seleccionar el ejecutivo que recibirá los proyectos");
        dialog.cmdCambiar.press();
        EXPECT_THAT(cnn.statements(), IsEmpty());
    });
}

// The group is put together ahead of the look at the receiver.
TEST_F(GroupTool, tells_of_the_present_executive_ahead_of_the_receiver)
{
    show([&](screen::Form&) {
        dialog.cmdEjecutivo.ListIndex(-1);
        ports.dialogs.expectBox("No hay ningún elemento seleccionado en la lista.");
        dialog.cmdCambiar.press();
    });
}

TEST_F(GroupTool, without_a_selection_has_no_colour_and_no_state_that_a_project_could_have)
{
    show([&](screen::Form&) {
        dialog.cmdDestino.pick("Beto");
        dialog.cmdColor.ListIndex(-1);
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 9 ");
        dialog.cmdEstado.ListIndex(-1);
        EXPECT_EQ(changed(), "UPDATE Proyecto SET IEjecutivo = 9  WHERE uf_Status1 = -1");
    });
}

TEST_F(GroupTool, asks_first_with_no_as_the_default)
{
    show([&](screen::Form& form) {
        dialog.cmdDestino.pick("Ana");
        ports.dialogs.expectBox(question, screen::Answer::no);
        dialog.cmdCambiar.press();
        EXPECT_EQ(ports.dialogs.boxes().back().defaultButton, 2);
        EXPECT_TRUE(form.Visible());
        EXPECT_THAT(cnn.statements(), IsEmpty());
        EXPECT_THAT(ports.pointer.shapes, IsEmpty());
    });
}

TEST_F(GroupTool, shows_the_hourglass_while_the_statement_runs)
{
    show([&](screen::Form&) {
        dialog.cmdDestino.pick("Ana");
        std::vector<int> pointer;
        cnn.beforeExecute([&](std::string_view) { pointer.push_back(ports.pointer.MousePointer()); });
        ports.dialogs.onBox = [&] { pointer.push_back(ports.pointer.MousePointer()); };
        changed();
        EXPECT_THAT(pointer,
                    ElementsAre(screen::Pointer::standard, screen::Pointer::hourglass, screen::Pointer::standard))
            << "question, statement, message";
        EXPECT_THAT(ports.pointer.shapes, ElementsAre(screen::Pointer::hourglass, screen::Pointer::standard));
    });
}

TEST_F(GroupTool, tells_of_a_statement_that_fails_and_keeps_the_hourglass)
{
    show([&](screen::Form& form) {
        dialog.cmdDestino.pick("Ana");
        cnn.failAt(1, "Lock wait timeout exceeded");
        ports.dialogs.expectBox(question, screen::Answer::yes);
        ports.dialogs.expectBox("Lock wait timeout exceeded");
        dialog.cmdCambiar.press();
        EXPECT_TRUE(form.Visible());
        EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::hourglass);
        changed();
        EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
    });
}

TEST_F(GroupTool, tells_of_a_present_executive_that_is_not_selected)
{
    show([&](screen::Form&) {
        dialog.cmdDestino.pick("Ana");
        dialog.cmdEjecutivo.ListIndex(-1);
        ports.dialogs.expectBox("No hay ningún elemento seleccionado en la lista.");
        dialog.cmdCambiar.press();
        EXPECT_THAT(cnn.statements(), IsEmpty());
    });
}

TEST_F(GroupTool, opens_without_agents_when_they_cannot_be_read)
{
    cnn.failAt(1);
    show([&](screen::Form&) {
        EXPECT_THAT(lines(dialog.cmdEjecutivo), ElementsAre("0 <Todos los ejecutivos>"));
        EXPECT_THAT(lines(dialog.cmdDestino), IsEmpty());
        EXPECT_EQ(dialog.cmdEjecutivo.ListIndex(), 0);
        EXPECT_EQ(dialog.cmdEstado.ListIndex(), 0);
        dialog.Cnn = nullptr;
    });
    dialog.Cnn = nullptr;
    show([&](screen::Form&) { EXPECT_THAT(lines(dialog.cmdDestino), IsEmpty()); });
}

TEST_F(GroupTool, leaves_out_an_agent_who_cannot_be_read_and_gives_nobody_his_key)
{
    cnn.on(agentsStatement)
        .gives({.names = {"Sys_PK", "Nombre"},
                .rows = {{whole(7), text("Ana")},
                         {whole(8), null},
                         {whole(3'000'000'000), text("Zoé")},
                         {failing("no"), text("Eva")},
                         {whole(9), text("Beto")},
                         {whole(10), text("Gil")}},
                .moveFailsAt = 5});
    show([&](screen::Form&) {
        EXPECT_THAT(lines(dialog.cmdEjecutivo), ElementsAre("0 <Todos los ejecutivos>", "7 Ana", "9 Beto"));
        EXPECT_THAT(lines(dialog.cmdDestino), ElementsAre("7 Ana", "9 Beto"));
    });
}

TEST_F(GroupTool, without_a_connection_says_so)
{
    show([&](screen::Form&) {
        dialog.cmdDestino.pick("Ana");
        dialog.Cnn = nullptr;
        ports.dialogs.expectBox(question, screen::Answer::yes);
        ports.dialogs.expectBox("Variable de objeto no establecida");
        dialog.cmdCambiar.press();
    });
}

TEST_F(GroupTool, opens_the_export_with_its_own_connection_and_engine)
{
    dialog.Motor = 2;
    ports.events.expectModal("dlgFiltro", [&](screen::Form& form) {
        cnn.forgetStatements();
        elementNamed<screen::CheckBox>(form, "chkProyectos").toggle();
        cnn.onContaining("FROM (Proyecto").fails("mal cerrado");
        EXPECT_THROW(elementNamed<screen::Button>(form, "cmdExportar").press(), data::Error);
        EXPECT_THAT(cnn.statements(), ElementsAre(testing::HasSubstr("ISNULL(Persona.Apellido2), '')")));
        form.closeWindow();
    });
    dialog.ShowExportFiltro();
}

TEST_F(GroupTool, has_no_button_for_the_export)
{
    show([&](screen::Form& form) {
        std::vector<std::string> buttons;
        for (const screen::Element* child : form.children())
            if (dynamic_cast<const screen::Button*>(child) != nullptr) buttons.push_back(child->name());
        EXPECT_THAT(buttons, ElementsAre("cmdCambiar", "cmdCerrar"));
    });
}

TEST_F(GroupTool, passes_over_an_export_that_cannot_be_opened)
{
    ports.events.expectModal("dlgFiltro", [](screen::Form& form) {
        form.Hide();
        throw std::runtime_error("sin ventana");
    });
    dialog.ShowExportFiltro();
}

// ---- How the operator and the host come to it

class GroupToolInTheControl : public ControlTest {};

TEST_F(GroupToolInTheControl, opens_from_its_button_on_the_connection_in_use)
{
    start(7, true);
    ports.events.expectModal("dlgTools", [&](screen::Form& form) {
        EXPECT_THAT(cnn.statements(), ElementsAre(agentsStatement));
        EXPECT_EQ(elementNamed<screen::ComboBox>(form, "cmdDestino").ListCount(), 2);
        form.closeWindow();
        cnn.forgetStatements();
    });
    elements().top.lblItem(desk::proyectos).click();
    cnn.forgetStatements();
    elements().projects.cmdNewProjTool.press();
    EXPECT_THAT(cnn.statements(), IsEmpty()) << "the list is not loaded anew";
}

TEST_F(GroupToolInTheControl, that_cannot_be_opened_is_passed_over)
{
    start(7, true);
    elements().top.lblItem(desk::proyectos).click();
    ports.events.expectModal("dlgTools", [](screen::Form& form) {
        form.Hide();
        throw std::runtime_error("sin ventana");
    });
    elements().projects.cmdNewProjTool.press();
}

TEST_F(GroupToolInTheControl, is_for_those_who_may_choose_the_agent)
{
    start(7, false);
    EXPECT_FALSE(elements().projects.cmdNewProjTool.Enabled());
}

TEST_F(GroupToolInTheControl, gives_the_host_the_export)
{
    start(7, false);
    ports.events.expectModal("dlgFiltro", [&](screen::Form& form) {
        elementNamed<screen::CheckBox>(form, "chkProyectos").toggle();
        cnn.forgetStatements();
        ports.events.expectModal("dlgShow", [](screen::Form& lists) { lists.closeWindow(); });
        elementNamed<screen::Button>(form, "cmdExportar").press();
        EXPECT_THAT(cnn.statements(), ElementsAre(testing::HasSubstr("CONCAT( IFNULL(Persona.Nombre")));
        form.closeWindow();
    });
    control.ExportarListas();
}

} // namespace
} // namespace dn::tests
