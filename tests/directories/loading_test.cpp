// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// LoadContactos and LoadOrganizaciones: filter, rows, buttons, counters, and what a failure leaves.

#include "tests/directories/fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

class DirectoryLoading : public DirectoryTest {
protected:
    screen::ListView& lvwContactos() { return elements().persons.lvwContactos; }
    screen::ListView& lvwOrganizaciones() { return elements().organisations.lvwOrganizaciones; }

    /// Which of the persons' buttons can be pressed: new, edit, delete, relations, project.
    std::vector<bool> personButtons()
    {
        desk::PersonElements& e = elements().persons;
        return {e.addContact.Enabled(), e.editContact.Enabled(), e.deleteContact.Enabled(),
                e.showContactRelations.Enabled(), e.genProyectFromContact.Enabled()};
    }
    std::vector<bool> organisationButtons()
    {
        desk::OrganisationElements& e = elements().organisations;
        return {e.addOrganization.Enabled(), e.editOrganization.Enabled(), e.deleteOrganization.Enabled(),
                e.showOrganizationRelations.Enabled(), e.genProyectFromOrganization.Enabled()};
    }

    /// Puts buttons and counters in a state that no load leaves behind, and tells whether it still stands.
    void leaveMarks()
    {
        elements().persons.editContact.Enabled(false);
        elements().persons.lblInfoContacto.Caption("como estaba");
        elements().organisations.editOrganization.Enabled(false);
        elements().organisations.lblinfoOrganizacion.Caption("como estaba");
    }
    bool marksStand()
    {
        using testing::Matches;
        return Matches(ElementsAre(true, false, true, true, true))(personButtons()) &&
               Matches(ElementsAre(true, false, true, true, true))(organisationButtons()) &&
               elements().persons.lblInfoContacto.Caption() == "como estaba" &&
               elements().organisations.lblinfoOrganizacion.Caption() == "como estaba";
    }
};

TEST_F(DirectoryLoading, shows_every_field_of_a_person_under_its_header)
{
    start(7, false);
    persons({person(30), person(4)});
    elements().top.lblItem(desk::contactos).click();
    EXPECT_THAT(keys(lvwContactos()), ElementsAre("PK30", "PK4"));
    EXPECT_THAT(cells(lvwContactos().ListItems()("PK4")),
                ElementsAre("Codigo-4", "Nombre-4", "Apellido1-4", "Apellido2-4", "EMail-4", "EMail2-4",
                            "Tel_Casa-4", "Tel_Trabajo-4", "Tel_Movil-4", "Domicilio-4", "Colonia-4",
                            "CodPostal-4"));
    EXPECT_EQ(lvwContactos().ListItems()(1).SmallIcon(), 0);
    EXPECT_EQ(lvwContactos().ListItems()(1).ForeColor(), 0U);
    EXPECT_EQ(selectedKeyOf(lvwContactos()), "PK30");
    EXPECT_EQ(elements().persons.lblInfoContacto.Caption(), "Contactos: 2.");
}

TEST_F(DirectoryLoading, shows_every_field_of_an_organisation_under_its_header)
{
    start(7, false);
    organisations({organisation(30), organisation(4)});
    elements().top.lblItem(desk::organizaciones).click();
    EXPECT_THAT(keys(lvwOrganizaciones()), ElementsAre("PK30", "PK4"));
    EXPECT_THAT(cells(lvwOrganizaciones().ListItems()("PK4")),
                ElementsAre("Codigo-4", "Nombre-4", "NombreComercial-4", "Tel1-4", "Tel2-4", "Tel3-4", "Fax-4",
                            "EMail-4", "WebSite-4", "Domicilio-4", "Colonia-4", "CodPostal-4", "Nacionalidad-4"));
    EXPECT_EQ(selectedKeyOf(lvwOrganizaciones()), "PK30");
    EXPECT_EQ(elements().organisations.lblinfoOrganizacion.Caption(), "Organizaciones: 2.");
}

TEST_F(DirectoryLoading, shows_a_number_in_the_country_as_a_number_and_an_empty_text_as_an_empty_cell)
{
    start(7, false);
    auto row = organisation(1);
    row[1] = text("");
    row.back() = whole(52);
    organisations({row});
    open(desk::organizaciones);
    EXPECT_EQ(cells(lvwOrganizaciones().ListItems()(1)).front(), "");
    EXPECT_EQ(cells(lvwOrganizaciones().ListItems()(1)).back(), "52");
}

TEST_F(DirectoryLoading, asks_for_the_entries_of_the_agent_in_the_combo_and_reloads_with_him)
{
    start(7, true);
    elements().top.lblItem(desk::contactos).click();
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr("FROM Persona  WHERE IEjecutivo = 7 ORDER BY")));
    cnn.forgetStatements();
    elements().top.cbAgente.pick(2);
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr("FROM Persona  WHERE IEjecutivo = 9 ORDER BY")));
    elements().top.lblItem(desk::organizaciones).click();
    cnn.forgetStatements();
    elements().top.cbAgente.pick(1);
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr("FROM Organizacion  WHERE IEjecutivo = 7 ORDER BY")));
}

TEST_F(DirectoryLoading, asks_for_everybodys_entries_without_an_agent)
{
    start(0, true); // "< Sin asignar >"
    elements().top.lblItem(desk::contactos).click();
    EXPECT_THAT(cnn.statements(), ElementsAre(EndsWith("FROM Persona  ORDER BY Nombre, Apellido1, Apellido2;")));
    cnn.forgetStatements();
    elements().top.cbAgente.ListIndex(-1);
    elements().top.lblItem(desk::organizaciones).click();
    EXPECT_THAT(cnn.statements(), ElementsAre(EndsWith("FROM Organizacion  ORDER BY Nombre, NombreComercial;")));
}

TEST_F(DirectoryLoading, takes_the_other_null_function_where_the_engine_is_not_known)
{
    cnn.on("SELECT NOW()").fails("'NOW' is not a recognized built-in function name.", "42000", 195);
    start(7, false);
    elements().top.lblItem(desk::contactos).click();
    elements().top.lblItem(desk::organizaciones).click();
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr("ISNULL(CodPostal, '')"), HasSubstr("ISNULL(Fax, '')")));
}

TEST_F(DirectoryLoading, an_empty_directory_leaves_the_buttons_that_need_no_row)
{
    start(7, false);
    persons({person(1)});
    organisations({organisation(1)});
    open(desk::contactos);
    open(desk::organizaciones);
    EXPECT_THAT(personButtons(), ElementsAre(true, true, true, true, true));
    EXPECT_THAT(organisationButtons(), ElementsAre(true, true, true, true, true));
    persons({});
    organisations({});
    open(desk::contactos);
    open(desk::organizaciones);
    EXPECT_THAT(personButtons(), ElementsAre(true, false, false, false, false));
    EXPECT_THAT(organisationButtons(), ElementsAre(true, false, true, false, false)) << "new and delete stay";
    EXPECT_EQ(elements().persons.lblInfoContacto.Caption(), "Contactos: 0.");
    EXPECT_EQ(elements().organisations.lblinfoOrganizacion.Caption(), "Organizaciones: 0.");
}

TEST_F(DirectoryLoading, a_statement_without_rows_to_read_gives_an_empty_list)
{
    start(7, false);
    persons({person(1)});
    open(desk::contactos);
    cnn.onContaining("FROM Persona").givesNothing();
    open(desk::contactos);
    EXPECT_EQ(lvwContactos().ListItems().Count(), 0);
    EXPECT_THAT(personButtons(), ElementsAre(true, false, false, false, false));
}

TEST_F(DirectoryLoading, a_failed_statement_is_told_and_leaves_rows_buttons_and_counters)
{
    start(7, false);
    persons({person(1), person(2)});
    organisations({organisation(3)});
    for (const int tab : {desk::organizaciones, desk::contactos}) {
        open(tab);
        screen::ListView& list = tab == desk::contactos ? lvwContactos() : lvwOrganizaciones();
        const auto before = keys(list);
        leaveMarks();
        failAt(1);
        ports.dialogs.expectBox("se perdió la conexión");
        elements().top.lblItem(tab).click();
        const screen::MessageBox& box = ports.dialogs.boxes().back();
        EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
        EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
        EXPECT_EQ(box.title, "");
        EXPECT_EQ(ports.dialogs.boxes().size(), tab == desk::contactos ? 2U : 1U);
        EXPECT_EQ(keys(list), before);
        EXPECT_TRUE(marksStand());
        EXPECT_TRUE(list.Visible()) << "the tab was shown all the same";
    }
}

TEST_F(DirectoryLoading, a_connection_that_was_closed_is_told)
{
    start(7, false);
    cnn.setState(data::Connection::closed);
    ports.dialogs.expectAnyBox();
    elements().top.lblItem(desk::contactos).click();
}

TEST_F(DirectoryLoading, rows_read_ahead_of_a_failure_stay)
{
    start(7, false);
    persons({person(8), person(9)});
    open(desk::contactos);
    cnn.onContaining("FROM Persona")
        .gives(Rows{DirectoryColumns::persons(), {person(1), person(2), person(3)}, 2});
    leaveMarks();
    ports.dialogs.expectBox("Lost connection to server during query");
    elements().top.lblItem(desk::contactos).click();
    EXPECT_THAT(keys(lvwContactos()), ElementsAre("PK1", "PK2"));
    EXPECT_EQ(selectedKeyOf(lvwContactos()), "PK1");
    EXPECT_TRUE(marksStand());
}

TEST_F(DirectoryLoading, rows_of_organisations_read_ahead_of_a_failure_stay)
{
    start(7, false);
    organisations({organisation(8)});
    open(desk::organizaciones);
    cnn.onContaining("FROM Organizacion")
        .gives(Rows{DirectoryColumns::organisations(), {organisation(1), organisation(2), organisation(3)}, 2});
    leaveMarks();
    ports.dialogs.expectBox("Lost connection to server during query");
    elements().top.lblItem(desk::organizaciones).click();
    EXPECT_THAT(keys(lvwOrganizaciones()), ElementsAre("PK1", "PK2"));
    EXPECT_TRUE(marksStand());
}

TEST_F(DirectoryLoading, a_cell_that_cannot_be_read_ends_the_load_there)
{
    start(7, false);
    auto broken = person(2);
    broken[3] = failing("la celda no llegó");
    persons({person(1), broken, person(3)});
    ports.dialogs.expectBox("la celda no llegó");
    elements().top.lblItem(desk::contactos).click();
    EXPECT_THAT(keys(lvwContactos()), ElementsAre("PK1", "PK2"));
    EXPECT_THAT(cells(lvwContactos().ListItems()("PK2")), ElementsAre("Codigo-2", "Nombre-2"));
}

TEST_F(DirectoryLoading, a_null_that_the_statement_let_through_ends_the_load_there)
{
    start(7, false);
    auto broken = organisation(2);
    broken[2] = null;
    organisations({organisation(1), broken});
    ports.dialogs.expectBox("Uso no válido de Null");
    elements().top.lblItem(desk::organizaciones).click();
    EXPECT_THAT(keys(lvwOrganizaciones()), ElementsAre("PK1", "PK2"));
}

TEST_F(DirectoryLoading, a_repeated_key_ends_the_load_there)
{
    start(7, false);
    persons({person(1), person(1), person(2)});
    ports.dialogs.expectBox("La clave no es única en la colección");
    elements().top.lblItem(desk::contactos).click();
    EXPECT_THAT(keys(lvwContactos()), ElementsAre("PK1"));
}

TEST_F(DirectoryLoading, a_column_that_does_not_come_ends_the_load_at_its_cell)
{
    start(7, false);
    cnn.onContaining("FROM Persona").gives({"sys_pk", "CODIGO", "nombre"}, {{whole(1), text("A"), text("Ana")}});
    ports.dialogs.expectBox("No existe la columna Apellido1");
    elements().top.lblItem(desk::contactos).click();
    EXPECT_THAT(keys(lvwContactos()), ElementsAre("PK1"));
    EXPECT_THAT(cells(lvwContactos().ListItems()(1)), ElementsAre("A", "Ana"));
    cnn.onContaining("FROM Organizacion").gives({"Codigo"}, {{text("A")}});
    ports.dialogs.expectBox("No existe la columna Sys_PK");
    elements().top.lblItem(desk::organizaciones).click();
    EXPECT_EQ(lvwOrganizaciones().ListItems().Count(), 0);
}

TEST_F(DirectoryLoading, a_header_sorts_nothing)
{
    start(7, false);
    persons({person(2), person(1)});
    open(desk::contactos);
    lvwContactos().clickHeader(1);
    EXPECT_THAT(keys(lvwContactos()), ElementsAre("PK2", "PK1"));
}

TEST_F(DirectoryLoading, a_click_on_a_row_sends_nothing_and_a_double_click_on_an_organisation_neither)
{
    start(7, false);
    persons({person(1), person(2)});
    organisations({organisation(1)});
    open(desk::contactos);
    lvwContactos().clickRow(1);
    open(desk::organizaciones);
    lvwOrganizaciones().clickRow(0);
    lvwOrganizaciones().doubleClickRow(0);
    EXPECT_THAT(cnn.statements(), testing::IsEmpty());
    EXPECT_THAT(host.log.calls, testing::IsEmpty());
    EXPECT_EQ(elements().detail.txtInfo.Text(), "");
}

} // namespace
} // namespace dn::tests
