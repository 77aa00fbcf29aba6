// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// "Asignar": an administrator gives all checked prospects to an agent, an agent passes on the selected one.

#include "screen/list_box.h"
#include "tests/support/control_fixture.h"
#include "tests/support/element_tree.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string update(int agent, int key)
{
    return "UPDATE ut_icontact SET uf_IEjecutivo = " + std::to_string(agent) +
           " WHERE Sys_PK=" + std::to_string(key);
}

const std::string passedOn13 =
    "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
    "(CURRENT_TIMESTAMP, 'Contacto transferido','ana',13)";

class Assignment : public ControlTest {
protected:
    void begin(bool admin)
    {
        start(7, admin);
        prospects({prospect(12), prospect(13), prospect(14)});
        openProspects();
        ports.pointer.shapes.clear();
        ports.events.yields = 0;
    }

    screen::Button& assign() { return elements().prospects.cmdProsAsignPros; }

    /// The next dialog will be that of the agents, and this one is chosen in it.
    void chooses(const char* agent)
    {
        ports.events.expectModal("dlgSelAgente", [agent](screen::Form& form) {
            elementNamed<screen::ListBox>(form, "cbAgente").pick(std::string_view(agent));
            elementNamed<screen::Button>(form, "Command1").press();
        });
    }

    void givesUp()
    {
        ports.events.expectModal("dlgSelAgente", [](screen::Form& form) {
            elementNamed<screen::ListBox>(form, "cbAgente").pick(1);
            elementNamed<screen::Button>(form, "Command2").press();
        });
    }

    std::vector<std::string> changes() const
    {
        std::vector<std::string> result;
        for (const std::string& statement : cnn.statements())
            if (statement.rfind("UPDATE", 0) == 0 || statement.rfind("INSERT", 0) == 0)
                result.push_back(statement);
        return result;
    }
};

// ---- The administrator

TEST_F(Assignment, gives_the_checked_rows_in_the_order_shown_and_logs_nothing)
{
    begin(true);
    prospects(
        {prospect(12, {{"uf_Nombre", text("Zoé")}}), prospect(13), prospect(14, {{"uf_Nombre", text("Ana")}})});
    openProspects();
    lvw().toggleCheck(0);
    lvw().toggleCheck(2);
    lvw().clickHeader(3); // by name: K13, K14, K12
    chooses("Beto");
    ports.pointer.shapes.clear();
    ports.events.yields = 0;
    cnn.forgetStatements();
    prospects({prospect(13)});
    assign().press();
    EXPECT_THAT(cnn.statements(),
                ElementsAre(agentsStatement, update(9, 14), update(9, 12), HasSubstr("FROM ut_icontact WHERE"),
                            HasSubstr("FROM xt_biticontact")));
    EXPECT_THAT(keys(lvw()), ElementsAre("K13"));
    // Its own, around that of the load.
    EXPECT_THAT(ports.pointer.shapes,
                ElementsAre(screen::Pointer::hourglass, screen::Pointer::hourglass, screen::Pointer::hourglass,
                            screen::Pointer::standard, screen::Pointer::standard, screen::Pointer::standard));
    EXPECT_EQ(ports.events.yields, 4) << "one for each row, one of the load, one of the timeline";
}

TEST_F(Assignment, yields_after_each_row_with_the_hourglass)
{
    begin(true);
    lvw().toggleCheck(0);
    lvw().toggleCheck(1);
    chooses("Beto");
    std::vector<std::size_t> sent;
    ports.events.onYield = [&] {
        sent.push_back(changes().size());
        EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::hourglass);
    };
    assign().press();
    EXPECT_THAT(sent, ElementsAre(1U, 2U, 2U, 2U)) << "after each row, then those of the load and the timeline";
}

TEST_F(Assignment, of_an_administrator_needs_a_checked_row_also_when_one_is_selected)
{
    begin(true);
    lvw().clickRow(1);
    cnn.forgetStatements();
    ports.dialogs.expectBox("Seleccione al menos un contacto");
    assign().press();
    EXPECT_EQ(ports.dialogs.boxes().back().buttons, screen::MessageBox::Buttons::ok);
    EXPECT_EQ(ports.dialogs.boxes().back().icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(ports.dialogs.boxes().back().title, "");
    EXPECT_THAT(cnn.statements(), IsEmpty()) << "no agent is asked for";
}

TEST_F(Assignment, given_up_changes_nothing)
{
    begin(true);
    lvw().toggleCheck(0);
    givesUp();
    cnn.forgetStatements();
    assign().press();
    EXPECT_THAT(cnn.statements(), ElementsAre(agentsStatement));
    EXPECT_THAT(ports.pointer.shapes, IsEmpty());
}

TEST_F(Assignment, to_a_key_below_1_changes_nothing)
{
    begin(true);
    lvw().toggleCheck(0);
    for (const int key : {0, -3}) {
        cnn.on(agentsStatement).gives({"Sys_PK", "Nombre"}, {{whole(key), text("Nadie")}});
        chooses("Nadie");
        cnn.forgetStatements();
        assign().press();
        EXPECT_THAT(cnn.statements(), ElementsAre(agentsStatement));
    }
}

TEST_F(Assignment, goes_on_after_a_failure_at_each_statement)
{
    // the agents, three rows, the list, the timeline
    for (std::size_t failing = 1; failing <= 6; ++failing) {
        begin(true);
        for (std::size_t row = 0; row < 3; ++row)
            lvw().toggleCheck(row);
        if (failing > 1) chooses("Beto");
        failAt(failing);
        assign().press();
        EXPECT_EQ(changes().size(), failing == 1 ? 0U : 3U) << failing;
        EXPECT_EQ(lvw().ListItems().Count(), failing == 5 ? 0 : 3) << failing;
        EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
    }
}

TEST_F(Assignment, reaches_every_row_that_was_checked_also_when_the_list_changes_meanwhile)
{
    begin(true);
    for (std::size_t row = 0; row < 3; ++row)
        lvw().toggleCheck(row);
    chooses("Beto");
    bool nested = false;
    ports.events.onYield = [&] {
        if (std::exchange(nested, true)) return;
        lvw().clickHeader(0);
        lvw().clickHeader(0); // turned round
        elements().top.lblItem(desk::prospectos).click();
    };
    cnn.forgetStatements();
    assign().press();
    EXPECT_THAT(changes(), ElementsAre(update(9, 12), update(9, 13), update(9, 14)));
}

// ---- An agent

TEST_F(Assignment, of_an_agent_passes_the_selected_row_on_and_logs_it)
{
    begin(false);
    lvw().clickRow(1);
    chooses("Beto");
    cnn.forgetStatements();
    prospects({prospect(12), prospect(14)});
    assign().press();
    ASSERT_GE(cnn.statements().size(), 4U);
    EXPECT_EQ(cnn.statements()[0], agentsStatement);
    EXPECT_EQ(cnn.statements()[1], update(9, 13));
    EXPECT_EQ(cnn.statements()[2], passedOn13);
    EXPECT_THAT(cnn.statements()[3], HasSubstr("FROM ut_icontact WHERE"));
    EXPECT_THAT(keys(lvw()), ElementsAre("K12", "K14"));
}

TEST_F(Assignment, of_an_agent_needs_a_selected_row)
{
    begin(false);
    prospects({});
    openProspects();
    ports.dialogs.expectBox("Debe seleccionar un prospecto de la lista");
    assign().press();
    EXPECT_EQ(ports.dialogs.boxes().back().buttons, screen::MessageBox::Buttons::ok);
    EXPECT_EQ(ports.dialogs.boxes().back().icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(ports.dialogs.boxes().back().title, "");
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Assignment, of_an_agent_given_up_changes_nothing)
{
    begin(false);
    givesUp();
    cnn.forgetStatements();
    assign().press();
    EXPECT_THAT(cnn.statements(), ElementsAre(agentsStatement));
}

TEST_F(Assignment, of_an_agent_goes_on_after_a_failure_at_each_statement)
{
    // the agents, the update, the log row, the list
    for (std::size_t failing = 1; failing <= 4; ++failing) {
        begin(false);
        lvw().clickRow(1);
        if (failing > 1) chooses("Beto");
        failAt(failing);
        assign().press();
        if (failing == 1)
            EXPECT_THAT(changes(), IsEmpty());
        else
            EXPECT_THAT(changes(), ElementsAre(update(9, 13), passedOn13)) << failing;
        EXPECT_EQ(lvw().ListItems().Count(), failing == 4 ? 0 : 3) << failing;
    }
}

TEST_F(Assignment, without_a_connection_does_nothing)
{
    begin(false);
    control.AdoCnn(nullptr);
    assign().press();
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

} // namespace
} // namespace dn::tests
