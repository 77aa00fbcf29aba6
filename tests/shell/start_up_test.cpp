// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// How the control is created, bound to a connection, and shown for the first time.

#include "tests/support/control_fixture.h"
#include "tests/support/element_tree.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StartUp : public ControlTest {};

TEST_F(StartUp, a_new_control_has_filled_its_combos_without_a_connection)
{
    EXPECT_THAT(entriesOf(elements().prospects.cbStatus),
                ElementsAre("Recibido", "Descartado", "Sin interés", "Oportunidad"));
    EXPECT_EQ(elements().prospects.cbStatus.ListIndex(), 0);
    EXPECT_THAT(entriesOf(elements().detail.Combo1),
                ElementsAre("< Cambiar estado >", "Descartado", "Sin interés", "Oportunidad"));
    EXPECT_EQ(elements().detail.Combo1.ListIndex(), 0);
    EXPECT_THAT(entriesOf(elements().projects.cbProjStatusProj),
                ElementsAre("<Todos los proyectos>", "Congelados", "Fríos", "Tibios", "Calientes", "Perdidos"));
    EXPECT_EQ(elements().projects.cbProjStatusProj.ListIndex(), -1);
    EXPECT_EQ(control.MotorBD(), 0);
    EXPECT_EQ(elements().organisations.lvwOrganizaciones.ColumnHeaders().size(), 13U);
    EXPECT_EQ(elements().persons.lvwContactos.ColumnHeaders().size(), 12U);
    EXPECT_EQ(ports.events.yields, 0);
}

TEST_F(StartUp, SetObjects_stores_what_it_is_given)
{
    control.SetObjects(&cnn, 7, true, "ana");
    EXPECT_EQ(control.AdoCnn(), &cnn);
    EXPECT_EQ(control.PKAgente(), 7);
    EXPECT_TRUE(control.GAdmon());
    EXPECT_EQ(control.Usuario(), "ana");
    EXPECT_EQ(control.MotorBD(), 1);
    EXPECT_THAT(cnn.statements(), ElementsAre("SELECT NOW()"));
}

TEST_F(StartUp, what_the_host_sets_it_reads_back_and_nothing_is_sent)
{
    HostLog log;
    const auto screens = std::make_shared<FakeUICRM>(log);
    control.Call_Tabla("Proyecto");
    control.Call_PK(-7);
    control.Call_Tel("5512345678");
    control.Call_Progress(true);
    control.TemplatePath("/plantillas");
    control.oUICRM(screens);
    control.Usuario("ana");
    control.AdoCnn(&cnn);
    control.PKAgente(9);
    control.GAdmon(true);
    control.eBasic(5);
    EXPECT_EQ(control.Call_Tabla(), "Proyecto");
    EXPECT_EQ(control.Call_PK(), -7);
    EXPECT_EQ(control.Call_Tel(), "5512345678");
    EXPECT_TRUE(control.Call_Progress());
    EXPECT_EQ(control.TemplatePath(), "/plantillas");
    EXPECT_EQ(control.oUICRM(), screens);
    EXPECT_EQ(control.Usuario(), "ana");
    EXPECT_EQ(control.AdoCnn(), &cnn);
    EXPECT_EQ(control.PKAgente(), 9);
    EXPECT_TRUE(control.GAdmon());
    EXPECT_EQ(std::any_cast<int>(control.eBasic()), 5);
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

class StartUpRights : public StartUp, public testing::WithParamInterface<bool> {};

TEST_P(StartUpRights, follow_the_administrator_flag)
{
    const bool admin = GetParam();
    control.SetObjects(&cnn, 7, admin, "ana");
    EXPECT_EQ(lvw().CheckBoxes(), admin);
    EXPECT_EQ(elements().prospects.picAdmin.Visible(), admin);
    EXPECT_EQ(elements().top.cbAgente.Enabled(), admin);
    EXPECT_EQ(elements().projects.cmdNewProjTool.Enabled(), admin);
}

INSTANTIATE_TEST_SUITE_P(BothKinds, StartUpRights, testing::Bool());

TEST_F(StartUp, a_closed_connection_is_told_and_stored_and_nothing_else_is)
{
    control.SetObjects(&cnn, 7, true, "ana");
    FakeConnection closed;
    closed.setState(data::Connection::closed);
    ports.dialogs.expectAnyBox();
    control.SetObjects(&closed, 9, false, "beto");
    ASSERT_EQ(ports.dialogs.boxes().size(), 1U);
    EXPECT_EQ(ports.dialogs.boxes()[0].prompt, "Error al conectar al servidor.");
    EXPECT_EQ(ports.dialogs.boxes()[0].icon, screen::MessageBox::Icon::critical);
    EXPECT_EQ(ports.dialogs.boxes()[0].title, "Fuerza de ventas");
    EXPECT_EQ(ports.dialogs.boxes()[0].buttons, screen::MessageBox::Buttons::ok);
    EXPECT_EQ(control.AdoCnn(), &closed);
    EXPECT_EQ(control.PKAgente(), 7);
    EXPECT_TRUE(control.GAdmon());
    EXPECT_EQ(control.Usuario(), "ana");
    EXPECT_EQ(control.MotorBD(), 1);
    EXPECT_THAT(closed.statements(), IsEmpty());
}

TEST_F(StartUp, no_connection_at_all_is_told_like_a_closed_one)
{
    ports.dialogs.expectAnyBox();
    control.SetObjects(nullptr, 7, true, "ana");
    EXPECT_EQ(ports.dialogs.boxes().back().prompt, "Error al conectar al servidor.");
    EXPECT_EQ(control.AdoCnn(), nullptr);
    EXPECT_FALSE(control.GAdmon());
}

TEST_F(StartUp, a_refused_probe_leaves_the_engine_as_it_was_and_sends_no_second_one)
{
    cnn.on("SELECT NOW()").fails("'NOW' is not a recognized built-in function name.", "42000", 195);
    control.SetObjects(&cnn, 7, false, "ana");
    EXPECT_EQ(control.MotorBD(), 0);
    EXPECT_THAT(cnn.statements(), ElementsAre("SELECT NOW()"));
    EXPECT_EQ(control.Usuario(), "ana");
}

TEST_F(StartUp, a_probe_that_is_refused_later_keeps_the_engine_found_first)
{
    control.SetObjects(&cnn, 7, false, "ana");
    FakeConnection other;
    other.failAt(1);
    control.SetObjects(&other, 7, false, "ana");
    EXPECT_EQ(control.MotorBD(), 1);
}

TEST_F(StartUp, the_second_probe_finds_the_other_engine_when_the_first_gives_nothing)
{
    cnn.on("SELECT NOW()").givesNothing();
    cnn.on("SELECT GETDATE()").gives({""}, {{date("2026-03-14 09:30:00")}});
    control.SetObjects(&cnn, 7, false, "ana");
    EXPECT_EQ(control.MotorBD(), 2);
    EXPECT_THAT(cnn.statements(), ElementsAre("SELECT NOW()", "SELECT GETDATE()"));
}

TEST_F(StartUp, two_probes_without_an_answer_find_no_engine)
{
    cnn.on("SELECT NOW()").givesNothing();
    control.SetObjects(&cnn, 7, false, "ana");
    EXPECT_EQ(control.MotorBD(), 0);
}

TEST_F(StartUp, RefreshData_shows_the_queue_of_an_agent_and_no_tab)
{
    connect(9, false);
    control.RefreshData();
    EXPECT_EQ(elements().top.cbAgente.ListIndex(), 2);
    EXPECT_TRUE(elements().today.lvwHoy.Visible());
    EXPECT_FALSE(elements().today.picHoy.Visible());
    EXPECT_FALSE(elements().detail.Combo1.Visible());
    EXPECT_FALSE(elements().detail.cmdEditC.Visible());
    EXPECT_FALSE(lvw().Visible());
    EXPECT_EQ(desk::TabStrip(elements().top).GetActiveTab(), -1);
    // The projects come with their filter, which had no entry before; the prospects' filter had its first one.
    EXPECT_THAT(cnn.statements(), ElementsAre(agentsStatement, testing::HasSubstr("mdtpactividad"),
                                              testing::HasSubstr("FROM ((Proyecto"),
                                              testing::HasSubstr("from qhoy where ejecutivo=9 "),
                                              testing::HasSubstr("from qatascados where ejecutivo=9 ")));
}

TEST_F(StartUp, RefreshData_hands_the_host_no_failure_of_the_queue)
{
    for (std::size_t failing = 2; failing <= 5; ++failing) {
        connect(9, false);
        cnn.failAt(failing);
        control.RefreshData();
        EXPECT_TRUE(elements().today.lvwHoy.Visible());
    }
}

TEST_F(StartUp, RefreshData_shows_an_administrator_without_key_the_prospects_of_nobody)
{
    connect(0, true);
    control.RefreshData();
    EXPECT_EQ(elements().top.cbAgente.ListIndex(), 0);
    EXPECT_EQ(desk::TabStrip(elements().top).GetActiveTab(), 0);
    EXPECT_TRUE(lvw().Visible());
    EXPECT_FALSE(elements().today.lvwHoy.Visible());
    EXPECT_FALSE(elements().today.picHoy.Visible());
    EXPECT_THAT(
        cnn.statements(),
        ElementsAre(agentsStatement, testing::HasSubstr("IFNULL(uf_IEjecutivo, 0) = 0 AND uf_Status = 0")));
}

TEST_F(StartUp, RefreshData_shows_an_unknown_agent_empty_prospects)
{
    for (const std::int32_t key : {555, 0}) {
        connect(key, false);
        control.RefreshData();
        EXPECT_EQ(elements().top.cbAgente.ListIndex(), -1);
        EXPECT_EQ(desk::TabStrip(elements().top).GetActiveTab(), 0);
        EXPECT_EQ(lvw().ListItems().Count(), 0);
        EXPECT_THAT(cnn.statements(), ElementsAre(agentsStatement));
    }
}

TEST_F(StartUp, RefreshData_may_be_repeated)
{
    start(9, false);
    control.RefreshData();
    EXPECT_THAT(entriesOf(elements().top.cbAgente), ElementsAre("< Sin asignar >", "Ana", "Beto"));
    EXPECT_EQ(elements().top.cbAgente.ListIndex(), 2);
}

TEST_F(StartUp, RefreshData_hands_a_failed_statement_to_the_host)
{
    connect(7, false);
    cnn.on(agentsStatement).fails("Table 'ventas.Agente' doesn't exist", "42S02", 1146);
    try {
        control.RefreshData();
        FAIL() << "no failure reached the host";
    } catch (const data::Error& failure) {
        EXPECT_STREQ(failure.what(), "Table 'ventas.Agente' doesn't exist");
    }
}

TEST_F(StartUp, RefreshData_before_SetObjects_is_an_error_of_the_call)
{
    EXPECT_THROW(control.RefreshData(), RuntimeError);
}

TEST_F(StartUp, RefreshData_without_host_screens_passes_over_them)
{
    control.SetObjects(&cnn, 0, true, "ana");
    cnn.forgetStatements();
    control.RefreshData();
    EXPECT_EQ(elements().top.cbAgente.ListIndex(), 0);
    EXPECT_EQ(desk::TabStrip(elements().top).GetActiveTab(), 0);
    EXPECT_THAT(cnn.statements(), testing::SizeIs(2));
}

TEST_F(StartUp, any_statement_may_fail_and_the_control_stands)
{
    // The agents' statement is the one whose failure the host gets; all others are passed over.
    for (std::size_t failing = 1; failing <= 3; ++failing) {
        FakePorts otherPorts;
        FakeConnection other;
        ctrDnContacts fresh(otherPorts.ports());
        other.on("SELECT NOW()").gives({"NOW()"}, {{date("2026-03-14 09:30:00")}});
        other.on(agentsStatement).gives({"Sys_PK", "Nombre"}, {{whole(7), text("Ana")}});
        other.onContaining("FROM ut_icontact WHERE").gives(prospectColumns(), {prospect(1)});
        other.failAt(failing);
        fresh.SetObjects(&other, 0, true, "ana");
        bool reachedHost = false;
        try {
            fresh.RefreshData();
        } catch (const data::Error&) {
            reachedHost = true;
        }
        EXPECT_EQ(reachedHost, failing == 2);
        EXPECT_EQ(fresh.MotorBD(), failing == 1 ? 0 : 1);
        EXPECT_EQ(fresh.elements().prospects.lvw.ListItems().Count(), failing == 1 ? 1 : 0);
        EXPECT_EQ(otherPorts.pointer.MousePointer(), screen::Pointer::standard);
    }
}

} // namespace
} // namespace dn::tests
