// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The list from which an agent is chosen.

#include "base/runtime_error.h"
#include "dialogs/dlg_sel_agente.h"
#include "tests/support/control_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;

class AgentPicker : public testing::Test {
protected:
    AgentPicker()
    {
        cnn.on(agentsStatement).gives({"Sys_PK", "Nombre"}, {{whole(9), text("Zoé")}, {whole(7), text("Ana")}});
        dialog.Cnn = &cnn;
    }

    void show(const std::function<void(screen::Form&)>& act)
    {
        ports.events.expectModal("dlgSelAgente", act);
        dialog.Show();
    }

    FakeConnection cnn;
    FakePorts ports;
    dialogs::dlgSelAgente dialog{ports.ports()};
};

TEST_F(AgentPicker, lists_the_agents_in_the_order_of_the_statement_and_selects_none)
{
    show([&](screen::Form& form) {
        EXPECT_EQ(form.Caption(), "Seleccioar agente");
        EXPECT_THAT(cnn.statements(), ElementsAre(agentsStatement));
        ASSERT_EQ(dialog.cbAgente.ListCount(), 2);
        EXPECT_EQ(dialog.cbAgente.List(0), "Zoé");
        EXPECT_EQ(dialog.cbAgente.ItemData(0), 9);
        EXPECT_EQ(dialog.cbAgente.List(1), "Ana");
        EXPECT_EQ(dialog.cbAgente.ItemData(1), 7);
        EXPECT_EQ(dialog.cbAgente.ListIndex(), -1);
        EXPECT_EQ(dialog.Command1.Caption(), "&Aceptar");
        EXPECT_EQ(dialog.Command2.Caption(), "&Cancelar");
        EXPECT_TRUE(dialog.Command1.Default());
        EXPECT_TRUE(dialog.Command2.Cancel());
        dialog.Command2.press();
    });
    EXPECT_EQ(dialog.pkAgenteSel, 0);
}

TEST_F(AgentPicker, gives_the_key_of_the_line_accepted)
{
    show([&](screen::Form&) {
        dialog.cbAgente.pick(1);
        dialog.Command1.press();
    });
    EXPECT_EQ(dialog.pkAgenteSel, 7);
}

TEST_F(AgentPicker, takes_a_double_click_for_an_acceptance)
{
    show([&](screen::Form&) { dialog.cbAgente.doubleClick(0); });
    EXPECT_EQ(dialog.pkAgenteSel, 9);
}

TEST_F(AgentPicker, asks_for_a_line_and_stays)
{
    show([&](screen::Form& form) {
        ports.dialogs.expectBox("Seleccione un elemento");
        dialog.Command1.press();
        EXPECT_TRUE(form.Visible());
        EXPECT_EQ(ports.dialogs.boxes().back().buttons, screen::MessageBox::Buttons::ok);
        EXPECT_EQ(ports.dialogs.boxes().back().icon, screen::MessageBox::Icon::none);
        EXPECT_EQ(ports.dialogs.boxes().back().title, "");
        form.closeWindow();
    });
    EXPECT_EQ(dialog.pkAgenteSel, 0);
}

TEST_F(AgentPicker, without_agents_always_asks)
{
    cnn.on(agentsStatement).gives({"Sys_PK", "Nombre"}, {});
    show([&](screen::Form&) {
        EXPECT_EQ(dialog.cbAgente.ListCount(), 0);
        for (int i = 0; i < 2; ++i) {
            ports.dialogs.expectBox("Seleccione un elemento");
            dialog.Command1.press();
        }
        dialog.Command2.press();
    });
    EXPECT_EQ(dialog.pkAgenteSel, 0);
}

TEST_F(AgentPicker, cancelled_gives_no_key_whatever_is_selected)
{
    dialog.pkAgenteSel = 5;
    show([&](screen::Form&) {
        dialog.cbAgente.pick(1);
        dialog.Command2.press();
    });
    EXPECT_EQ(dialog.pkAgenteSel, 0);
}

TEST_F(AgentPicker, that_cannot_be_read_is_not_shown)
{
    cnn.failAt(1, "sin agentes");
    EXPECT_THROW(dialog.Show(), data::Error);
    cnn.on(agentsStatement).gives({"Sys_PK", "Nombre"}, {{whole(7), text("Ana")}, {whole(8), null}});
    EXPECT_THROW(dialog.Show(), RuntimeError);
    cnn.on(agentsStatement).gives({"Sys_PK", "Nombre"}, {{whole(3'000'000'000), text("Ana")}});
    EXPECT_THROW(dialog.Show(), RuntimeError);
    cnn.on(agentsStatement).givesNothing();
    EXPECT_THROW(dialog.Show(), RuntimeError);
    dialog.Cnn = nullptr;
    EXPECT_THROW(dialog.Show(), RuntimeError);
}

} // namespace
} // namespace dn::tests
