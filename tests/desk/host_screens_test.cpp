// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// How the host's screens are bound.

#include "tests/support/control_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;

class HostScreens : public ControlTest {
protected:
    void bind()
    {
        control.hostObjects(&host);
        control.SetObjects(&cnn, 7, false, "ana");
        control.InitUICRM("C:\\pantallas", lands);
    }
};

TEST_F(HostScreens, are_bound_in_this_order)
{
    bind();
    EXPECT_THAT(host.log.calls,
                ElementsAre("new UI_CRM", "new ConexionCRM", "Conexion (write)", "Conexion (read)", "AdoCnn",
                            "SetPathXML C:\\pantallas", "SetFXLands", "Abrir", "Preparar", "new UIProyectos",
                            "SetMotorBD 1", "Inicializar C:\\pantallas ana"));
    EXPECT_EQ(host.holder->connection, &cnn);
    EXPECT_EQ(host.projects->connection, &cnn);
    EXPECT_EQ(host.screens->lands, lands);
    EXPECT_EQ(host.projects->lands, lands);
    EXPECT_EQ(host.projects->screens, host.screens);
    EXPECT_EQ(control.oUICRM(), host.screens);
}

TEST_F(HostScreens, may_be_replaced_by_the_project_screens)
{
    const auto other = std::make_shared<FakeUICRM>(host.log);
    host.projects->replacement = other;
    bind();
    EXPECT_EQ(control.oUICRM(), other);
}

TEST_F(HostScreens, are_made_anew_when_they_are_bound_again_and_the_project_screens_stay)
{
    bind();
    const auto first = host.screens;
    host.log.calls.clear();
    control.InitUICRM("D:\\otras", lands);
    EXPECT_NE(control.oUICRM(), first);
    EXPECT_THAT(host.log.calls, testing::Contains("new UI_CRM"));
    EXPECT_THAT(host.log.calls, testing::Not(testing::Contains("new UIProyectos")));
    EXPECT_THAT(host.log.calls, testing::Contains("Inicializar D:\\otras ana"));
    EXPECT_EQ(host.projects->screens, control.oUICRM()) << "the project screens received the new references";
}

TEST_F(HostScreens, set_the_folder_of_the_templates_to_the_drive_r)
{
    control.TemplatePath("/plantillas");
    bind();
    EXPECT_EQ(control.TemplatePath(), "R:");
    control.TemplatePath("/plantillas");
    EXPECT_EQ(control.TemplatePath(), "/plantillas");
}

TEST_F(HostScreens, hand_each_failure_to_the_host)
{
    control.hostObjects(&host);
    control.SetObjects(&cnn, 7, false, "ana");
    for (const char* operation :
         {"new UI_CRM", "new ConexionCRM", "Conexion (write)", "Conexion (read)", "new UIProyectos", "AdoCnn",
          "SetPathXML", "SetFXLands", "Abrir", "Preparar", "SetMotorBD", "Inicializar"}) {
        host.log.failing = {operation};
        EXPECT_THROW(control.InitUICRM("x", lands), std::runtime_error) << operation;
    }
}

TEST_F(HostScreens, need_a_factory)
{
    control.SetObjects(&cnn, 7, false, "ana");
    EXPECT_THROW(control.InitUICRM("x", lands), RuntimeError);
}

TEST_F(HostScreens, NuevoProyecto_asks_for_a_project_without_a_party)
{
    bind();
    host.log.calls.clear();
    host.projects->newProject = 31;
    std::int32_t key = 12;
    EXPECT_EQ(control.NuevoProyecto(key), 31);
    EXPECT_EQ(key, 12);
    EXPECT_THAT(host.log.calls, ElementsAre("CrearProyecto 2 0"));
}

TEST_F(HostScreens, NuevoProyecto_is_0_when_anything_fails)
{
    EXPECT_EQ(control.NuevoProyecto(), 0) << "without a factory";
    bind();
    host.log.failing = {"CrearProyecto"};
    EXPECT_EQ(control.NuevoProyecto(), 0);
    host.log.failing = {};
    host.projects->failsWithResult = true;
    EXPECT_EQ(control.NuevoProyecto(), 0) << "a result that was written ahead of the failure does not count";
}

TEST_F(HostScreens, NuevoProyecto_makes_the_project_screens_when_they_are_not_there_yet)
{
    control.hostObjects(&host);
    host.projects->newProject = 5;
    EXPECT_EQ(control.NuevoProyecto(), 5);
    EXPECT_THAT(host.log.calls, ElementsAre("new UIProyectos", "CrearProyecto 2 0"));
}

} // namespace
} // namespace dn::tests
