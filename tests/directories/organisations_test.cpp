// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The commands of the directory of organisations, with what sets them apart from those of the persons.

#include "tests/directories/fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Organisations : public DirectoryTest {
protected:
    void SetUp() override
    {
        start(7, true);
        organisations({organisation(30), organisation(4)});
        open(desk::organizaciones);
    }

    desk::OrganisationElements& e() { return elements().organisations; }
    static auto reloaded() { return ElementsAre(HasSubstr("FROM Organizacion")); }

    void loseSelection()
    {
        e().lvwOrganizaciones.ListItems()("PK30").Selected(false);
        ASSERT_FALSE(e().lvwOrganizaciones.SelectedItem());
    }
};

TEST_F(Organisations, a_new_one_belongs_to_nobody_whoever_works)
{
    e().addOrganization.press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarOrganizacion 0 0"));
    EXPECT_THAT(cnn.statements(), reloaded());
}

TEST_F(Organisations, edited_one_is_opened_for_the_agent_in_the_combo_and_not_read_first)
{
    e().lvwOrganizaciones.clickRow(1);
    e().editOrganization.press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarOrganizacion 4 7"));
    EXPECT_THAT(cnn.statements(), reloaded());
}

TEST_F(Organisations, edited_one_is_opened_for_nobody_without_an_agent)
{
    elements().top.cbAgente.pick(0);
    host.log.calls.clear();
    e().editOrganization.press();
    elements().top.cbAgente.ListIndex(-1);
    e().editOrganization.press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarOrganizacion 30 0", "EditarOrganizacion 30 0"));
}

TEST_F(Organisations, deleted_one_leaves_the_list)
{
    e().lvwOrganizaciones.clickRow(1);
    e().deleteOrganization.press();
    EXPECT_THAT(host.log.calls, ElementsAre("BorrarOrganizacion 4 confirm"));
    EXPECT_THAT(cnn.statements(), reloaded());
}

TEST_F(Organisations, a_delete_that_the_operator_refuses_loads_nothing)
{
    host.screens->deleted = 0;
    e().deleteOrganization.press();
    EXPECT_THAT(host.log.calls, ElementsAre("BorrarOrganizacion 30 confirm"));
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Organisations, any_result_of_a_delete_but_0_means_that_it_was_done)
{
    host.screens->deleted = -1;
    e().deleteOrganization.press();
    EXPECT_THAT(cnn.statements(), reloaded());
}

TEST_F(Organisations, relations_show_under_the_name_without_a_stop)
{
    e().lvwOrganizaciones.clickRow(1);
    e().showOrganizationRelations.press();
    EXPECT_THAT(host.log.calls, ElementsAre("MostrarRelaciones 1 4 Relaciones de la organización: Nombre-4"));
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Organisations, a_project_is_made_for_the_selected_one_and_loads_nothing)
{
    e().lvwOrganizaciones.clickRow(1);
    e().genProyectFromOrganization.press();
    EXPECT_THAT(host.log.calls, ElementsAre("CrearProyecto 1 4"));
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Organisations, a_project_without_a_row_is_made_for_the_key_0)
{
    loseSelection();
    e().genProyectFromOrganization.press();
    EXPECT_THAT(host.log.calls, ElementsAre("CrearProyecto 1 0"));
}

TEST_F(Organisations, three_commands_tell_that_they_need_a_row)
{
    loseSelection();
    for (desk::Button* button : {&e().editOrganization, &e().deleteOrganization, &e().showOrganizationRelations}) {
        ports.dialogs.expectBox("Seleccione un elemento de la lista.");
        button->press();
        const screen::MessageBox& box = ports.dialogs.boxes().back();
        EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
        EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
        EXPECT_EQ(box.title, "");
    }
    EXPECT_THAT(host.log.calls, IsEmpty());
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Organisations, an_empty_list_leaves_the_delete_which_answers_with_a_message)
{
    organisations({});
    open(desk::organizaciones);
    ports.dialogs.expectBox("Seleccione un elemento de la lista.");
    for (desk::Button* button : {&e().editOrganization, &e().deleteOrganization, &e().showOrganizationRelations,
                                 &e().genProyectFromOrganization, &e().addOrganization})
        button->press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarOrganizacion 0 0"));
}

TEST_F(Organisations, a_failure_of_any_command_reaches_the_host)
{
    host.log.failing = {"EditarOrganizacion", "BorrarOrganizacion", "MostrarRelaciones", "CrearProyecto"};
    for (desk::Button* button : {&e().addOrganization, &e().editOrganization, &e().deleteOrganization,
                                 &e().showOrganizationRelations, &e().genProyectFromOrganization})
        EXPECT_THROW(button->press(), std::runtime_error) << button->name();
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Organisations, without_host_screens_every_command_fails)
{
    control.oUICRM(nullptr);
    for (desk::Button* button :
         {&e().addOrganization, &e().editOrganization, &e().deleteOrganization, &e().showOrganizationRelations})
        EXPECT_THROW(button->press(), RuntimeError) << button->name();
}

TEST_F(Organisations, a_reload_that_fails_is_told_and_does_not_reach_the_host)
{
    failAt(1);
    ports.dialogs.expectBox("se perdió la conexión");
    e().editOrganization.press();
    EXPECT_THAT(keys(e().lvwOrganizaciones), ElementsAre("PK30", "PK4"));
}

} // namespace
} // namespace dn::tests
