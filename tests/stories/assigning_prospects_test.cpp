// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A supervisor hands out the prospects of the morning; an agent passes one on to a colleague.

#include "screen/list_box.h"
#include "tests/stories/operator.h"
#include "tests/support/element_tree.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AssigningProspects : public Operator {
protected:
    ~AssigningProspects() override { database("ALTER TABLE ut_icontact DROP CONSTRAINT IF EXISTS atorado"); }

    /// In the dialog of the agents that comes next.
    void chooses(const std::string& agent)
    {
        ports.events.expectModal("dlgSelAgente", [agent](screen::Form& form) {
            elementNamed<screen::ListBox>(form, "cbAgente").pick(std::string_view(agent));
            elementNamed<screen::Button>(form, "Command1").press();
        });
    }

    std::vector<std::string> log()
    {
        return inTheDatabase("SELECT uf_Mensaje, uf_Usuario, uf_Iicontact FROM xt_biticontact");
    }

    std::vector<std::string> agentsOf(const std::string& name)
    {
        return inTheDatabase("SELECT uf_IEjecutivo FROM ut_icontact WHERE uf_Nombre = '" + name + "'");
    }
};

TEST_F(AssigningProspects, an_agent_passes_the_selected_one_on_and_a_line_of_it_stays)
{
    prospect("Eva");
    const auto luz = prospect("Luz");
    enters(ana);
    clicksRow("Luz");
    chooses("Beto");
    presses("cmdProsAsignPros");
    EXPECT_THAT(seesProspects(), ElementsAre("Eva"));
    EXPECT_THAT(agentsOf("Luz"), ElementsAre("9"));
    EXPECT_THAT(log(), ElementsAre("Contacto transferido|ana|" + std::to_string(luz)));
}

TEST_F(AssigningProspects, to_himself_keeps_it_in_the_list)
{
    prospect("Luz");
    enters(ana);
    chooses("Ana");
    presses("cmdProsAsignPros");
    EXPECT_THAT(seesProspects(), ElementsAre("Luz"));
    EXPECT_THAT(log(), testing::SizeIs(1));
}

TEST_F(AssigningProspects, a_supervisor_hands_out_the_checked_ones_and_no_line_stays)
{
    for (const char* name : {"Eva", "Luz", "Sol"})
        prospect(name, {{"uf_IEjecutivo", "NULL"}});
    entersAsAdministrator();
    checksRow("Eva");
    checksRow("Sol");
    clicksRow("Luz"); // selecting is not checking
    chooses("Beto");
    presses("cmdProsAsignPros");
    EXPECT_THAT(seesProspects(), ElementsAre("Luz"));
    EXPECT_THAT(agentsOf("Eva"), ElementsAre("9"));
    EXPECT_THAT(agentsOf("Sol"), ElementsAre("9"));
    EXPECT_THAT(log(), IsEmpty());
    picks("cbAgente", "Beto");
    EXPECT_THAT(seesProspects(), ElementsAre("Eva", "Sol"));
}

TEST_F(AssigningProspects, to_the_agent_in_view_keeps_the_rows_in_the_list)
{
    prospect("Eva");
    entersAsAdministrator(ana);
    checksRow("Eva");
    chooses("Ana");
    presses("cmdProsAsignPros");
    EXPECT_THAT(seesProspects(), ElementsAre("Eva"));
}

TEST_F(AssigningProspects, a_supervisor_without_a_checked_row_is_told)
{
    prospect("Eva");
    entersAsAdministrator(ana);
    isTold("Seleccione al menos un contacto");
    presses("cmdProsAsignPros");
    EXPECT_THAT(changesSent(), IsEmpty());
}

TEST_F(AssigningProspects, of_a_thousand_the_one_that_the_server_refuses_stays_and_the_others_go)
{
    manyRows("INSERT INTO ut_icontact (uf_Nombre, uf_IEjecutivo)", 1000, [](int row) {
        const std::string digits = std::to_string(row);
        return "'P" + std::string(4 - digits.size(), '0') + digits + "', 7";
    });
    database("ALTER TABLE ut_icontact ADD CONSTRAINT atorado CHECK (uf_Nombre <> 'P0500' OR uf_IEjecutivo = 7)");
    entersAsAdministrator(ana);
    clicksBox("chkProsSelPros");
    chooses("Beto");
    presses("cmdProsAsignPros");
    EXPECT_THAT(seesProspects(), ElementsAre("P0500"));
    EXPECT_THAT(inTheDatabase("SELECT COUNT(*) FROM ut_icontact WHERE uf_IEjecutivo = 9"), ElementsAre("999"));
    EXPECT_THAT(agentsOf("P0500"), ElementsAre("7"));
    EXPECT_THAT(log(), IsEmpty());
    EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
    EXPECT_EQ(sees("lblCuenta"), "Hoy: 1000 actividades | Proyectos: 0 Contactos: 1");
    picks("cbAgente", "Beto");
    EXPECT_THAT(seesProspects(), testing::SizeIs(999));
}

TEST_F(AssigningProspects, an_empty_house_has_nobody_to_give_them_to)
{
    prospect("Eva");
    enters(ana);
    database("DELETE FROM Agente");
    ports.events.expectModal("dlgSelAgente", [this](screen::Form& form) {
        isTold("Seleccione un elemento");
        elementNamed<screen::Button>(form, "Command1").press();
        form.closeWindow();
    });
    presses("cmdProsAsignPros");
    EXPECT_THAT(changesSent(), IsEmpty());
}

} // namespace
} // namespace dn::tests
