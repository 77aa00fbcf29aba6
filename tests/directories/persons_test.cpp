// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The commands of the directory of persons.

#include "tests/directories/fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Persons : public DirectoryTest {
protected:
    void SetUp() override
    {
        start(7, true);
        persons({person(30), person(4)});
        open(desk::contactos);
    }

    desk::PersonElements& e() { return elements().persons; }
    static auto reloaded() { return ElementsAre(HasSubstr("FROM Persona")); }

    void loseSelection()
    {
        e().lvwContactos.ListItems()("PK30").Selected(false);
        ASSERT_FALSE(e().lvwContactos.SelectedItem());
    }

    /// Each of these calls fails in turn: the host gets the failure, and nothing behind it is asked.
    void expectFailuresReachTheHost(desk::Button& button, const std::vector<std::string>& operations)
    {
        for (std::size_t failing = 0; failing < operations.size(); ++failing) {
            host.log.failing = {operations[failing]};
            host.log.calls.clear();
            cnn.forgetStatements();
            EXPECT_THROW(button.press(), std::runtime_error) << operations[failing];
            EXPECT_EQ(host.log.calls.size(), failing + 1) << operations[failing];
            EXPECT_THAT(cnn.statements(), IsEmpty()) << operations[failing];
        }
    }
};

TEST_F(Persons, a_new_one_belongs_to_the_agent_in_the_combo)
{
    e().addContact.press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarPersona 0 7"));
    EXPECT_THAT(cnn.statements(), reloaded());
}

TEST_F(Persons, a_new_one_belongs_to_nobody_without_an_agent)
{
    elements().top.cbAgente.pick(0);
    host.log.calls.clear();
    e().addContact.press();
    elements().top.cbAgente.ListIndex(-1);
    e().addContact.press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarPersona 0 0", "EditarPersona 0 0"));
}

TEST_F(Persons, edited_one_is_read_first_and_opened_for_its_own_agent)
{
    e().lvwContactos.clickRow(1);
    host.person->agent = 15;
    e().editContact.press();
    EXPECT_THAT(host.log.calls, ElementsAre("new PersonaRegistro", "PersonaRegistro.Conexion", "Cargar 4 <> 3",
                                            "Llave", "Ejecutivo", "Ejecutivo.Llave", "EditarPersona 4 15"));
    EXPECT_EQ(host.person->connection, &cnn);
    EXPECT_THAT(cnn.statements(), reloaded());
}

TEST_F(Persons, a_double_click_edits)
{
    e().lvwContactos.clickRow(1);
    e().lvwContactos.doubleClickRow(1);
    EXPECT_THAT(host.log.calls, testing::Contains("EditarPersona 4 0"));
    EXPECT_THAT(cnn.statements(), reloaded());
}

TEST_F(Persons, one_that_cannot_be_read_is_told_and_leaves_list_and_selection)
{
    e().lvwContactos.clickRow(1);
    host.person->loads = false;
    host.person->lastError = "La persona ya no existe.";
    ports.dialogs.expectBox("Error al consultar los datos: La persona ya no existe.");
    e().editContact.press();
    EXPECT_THAT(host.log.calls,
                ElementsAre("new PersonaRegistro", "PersonaRegistro.Conexion", "Cargar 4 <> 3", "UltimoError"));
    EXPECT_THAT(cnn.statements(), IsEmpty());
    EXPECT_EQ(selectedKeyOf(e().lvwContactos), "PK4");
    const screen::MessageBox& box = ports.dialogs.boxes().back();
    EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
    EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(box.title, "");
}

TEST_F(Persons, editing_without_a_row_asks_the_host_for_the_key_0)
{
    loseSelection();
    host.person->loads = false;
    host.person->lastError = "No hay clave.";
    ports.dialogs.expectBox("Error al consultar los datos: No hay clave.");
    e().editContact.press();
    EXPECT_THAT(host.log.calls, testing::Contains("Cargar 0 <> 3"));
}

TEST_F(Persons, deleted_one_leaves_the_list)
{
    e().lvwContactos.clickRow(1);
    e().deleteContact.press();
    EXPECT_THAT(host.log.calls, ElementsAre("BorrarPersona 4 confirm"));
    EXPECT_THAT(cnn.statements(), reloaded());
}

TEST_F(Persons, a_delete_that_the_operator_refuses_loads_nothing)
{
    host.screens->deleted = 0;
    e().deleteContact.press();
    EXPECT_THAT(host.log.calls, ElementsAre("BorrarPersona 30 confirm"));
    EXPECT_THAT(cnn.statements(), IsEmpty());
    EXPECT_THAT(keys(e().lvwContactos), ElementsAre("PK30", "PK4"));
}

TEST_F(Persons, any_result_of_a_delete_but_0_means_that_it_was_done)
{
    host.screens->deleted = -1;
    e().deleteContact.press();
    EXPECT_THAT(cnn.statements(), reloaded());
}

TEST_F(Persons, deleting_without_a_row_is_told)
{
    loseSelection();
    ports.dialogs.expectBox("Debe seleccionar un elemento a eliminar.");
    e().deleteContact.press();
    EXPECT_THAT(host.log.calls, IsEmpty());
    const screen::MessageBox& box = ports.dialogs.boxes().back();
    EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(box.title, "");
}

TEST_F(Persons, relations_show_under_the_whole_name)
{
    e().lvwContactos.clickRow(1);
    e().showContactRelations.press();
    EXPECT_THAT(host.log.calls, ElementsAre("MostrarRelaciones 0 4 Relaciones del contacto: Nombre-4 Apellido1-4 "
                                            "Apellido2-4."));
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Persons, relations_keep_the_blank_of_a_missing_surname)
{
    auto row = person(5);
    row[4] = text("");
    persons({row});
    open(desk::contactos);
    e().showContactRelations.press();
    EXPECT_THAT(host.log.calls,
                ElementsAre("MostrarRelaciones 0 5 Relaciones del contacto: Nombre-5 Apellido1-5 ."));
}

TEST_F(Persons, relations_without_a_row_show_nobodys)
{
    loseSelection();
    e().showContactRelations.press();
    EXPECT_THAT(host.log.calls, ElementsAre("MostrarRelaciones 0 0 Relaciones del contacto:   ."));
}

TEST_F(Persons, a_project_is_made_for_the_selected_one_and_loads_nothing)
{
    e().lvwContactos.clickRow(1);
    e().genProyectFromContact.press();
    host.projects->newProject = 0; // nobody looks at the result
    e().genProyectFromContact.press();
    EXPECT_THAT(host.log.calls, ElementsAre("CrearProyecto 0 4", "CrearProyecto 0 4"));
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Persons, a_project_without_a_row_is_made_for_the_key_0)
{
    loseSelection();
    e().genProyectFromContact.press();
    EXPECT_THAT(host.log.calls, ElementsAre("CrearProyecto 0 0"));
}

TEST_F(Persons, commands_cannot_be_pressed_on_an_empty_list_but_for_the_new_one)
{
    persons({});
    open(desk::contactos);
    for (desk::Button* button : {&e().editContact, &e().deleteContact, &e().showContactRelations,
                                 &e().genProyectFromContact, &e().addContact})
        button->press();
    EXPECT_THAT(host.log.calls, ElementsAre("EditarPersona 0 7"));
}

TEST_F(Persons, a_failure_of_any_command_reaches_the_host)
{
    expectFailuresReachTheHost(e().addContact, {"EditarPersona"});
    expectFailuresReachTheHost(e().editContact, {"new PersonaRegistro", "PersonaRegistro.Conexion", "Cargar",
                                                 "Llave", "Ejecutivo", "Ejecutivo.Llave", "EditarPersona"});
    expectFailuresReachTheHost(e().deleteContact, {"BorrarPersona"});
    expectFailuresReachTheHost(e().showContactRelations, {"MostrarRelaciones"});
    expectFailuresReachTheHost(e().genProyectFromContact, {"CrearProyecto"});
}

TEST_F(Persons, without_host_screens_every_command_fails)
{
    control.oUICRM(nullptr);
    for (desk::Button* button : {&e().addContact, &e().editContact, &e().deleteContact, &e().showContactRelations})
        EXPECT_THROW(button->press(), RuntimeError);
    host.person->withoutAgent = true;
    EXPECT_THROW(e().editContact.press(), RuntimeError);
}

TEST_F(Persons, a_reload_that_fails_is_told_and_does_not_reach_the_host)
{
    failAt(1);
    ports.dialogs.expectBox("se perdió la conexión");
    e().addContact.press();
    EXPECT_THAT(keys(e().lvwContactos), ElementsAre("PK30", "PK4"));
}

} // namespace
} // namespace dn::tests
