// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator looks up persons and organisations, and has the host's screens open them. What those screens do to
// the database, the test does in their place.

#include "tests/stories/operator.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LookingUpTheDirectory : public Operator {
protected:
    void person(const std::string& literals)
    {
        database("INSERT INTO Persona (Sys_PK, Codigo, Nombre, Apellido1, Apellido2, IEjecutivo) VALUES (" +
                 literals + ")");
    }
    void organisation(const std::string& literals)
    {
        database(
            "INSERT INTO Organizacion (Sys_PK, Codigo, Nombre, NomComercial, Nacionalidad, IEjecutivo) VALUES (" +
            literals + ")");
    }

    /// While an operation of the host runs, this happens in the database.
    void whileTheHost(const std::string& call, const std::string& statement)
    {
        host.log.during = [this, call, statement](const std::string& called) {
            if (called == call) database(statement);
        };
    }

    std::vector<std::string> persons() { return rows(control.elements().persons.lvwContactos); }
    std::vector<std::string> organisations() { return rows(control.elements().organisations.lvwOrganizaciones); }

private:
    static std::vector<std::string> rows(screen::ListView& list)
    {
        std::vector<std::string> lines;
        for (int i = 1; i <= list.ListItems().Count(); ++i) {
            const screen::ListItem row = list.ListItems()(i);
            std::string line(row.Text());
            for (int cell = 1; cell <= 3; ++cell)
                line.append("|").append(row.ListSubItems()(cell).Text());
            lines.push_back(line);
        }
        return lines;
    }
};

TEST_F(LookingUpTheDirectory, an_agent_sees_his_own_persons_by_name)
{
    person("1, 'P1', 'Óscar', 'Núñez', 'Gil', 7");
    person("2, NULL, 'Ana', 'Ruiz', NULL, 7");
    person("3, 'P3', NULL, NULL, NULL, 7");
    person("4, 'P4', 'Ana', 'Ramos', 'Paz', 7");
    person("5, 'P5', 'De Beto', NULL, NULL, 9");
    person("6, 'P6', 'De nadie', NULL, NULL, NULL");
    enters(ana);
    opensTab(desk::contactos);
    EXPECT_THAT(persons(), ElementsAre("P3|||", "P4|Ana|Ramos|Paz", "|Ana|Ruiz|", "P1|Óscar|Núñez|Gil"));
    EXPECT_EQ(sees("lblInfoContacto"), "Contactos: 4.");
}

TEST_F(LookingUpTheDirectory, nobody_in_the_combo_means_everybodys_entries)
{
    person("1, 'P1', 'De Ana', '', '', 7");
    person("2, 'P2', 'De Beto', '', '', 9");
    person("3, 'P3', 'De nadie', '', '', NULL");
    organisation("1, 'O1', 'Aceros', 'Aceros SA', 'México', 9");
    organisation("2, 'O2', 'Barro', NULL, NULL, NULL");
    entersAsAdministrator();
    opensTab(desk::contactos);
    EXPECT_EQ(persons().size(), 3U);
    opensTab(desk::organizaciones);
    EXPECT_THAT(organisations(), ElementsAre("O1|Aceros|Aceros SA|", "O2|Barro||"));
    picks("cbAgente", "Ana");
    EXPECT_THAT(organisations(), IsEmpty());
    EXPECT_EQ(sees("lblinfoOrganizacion"), "Organizaciones: 0.");
    picks("cbAgente", "Beto");
    EXPECT_THAT(organisations(), ElementsAre("O1|Aceros|Aceros SA|"));
}

TEST_F(LookingUpTheDirectory, what_the_hosts_screens_change_shows_when_they_close)
{
    person("1, 'P1', 'Ana', 'Ruiz', 'Gil', 7");
    enters(ana);
    opensTab(desk::contactos);
    whileTheHost("EditarPersona 0 7",
                 "INSERT INTO Persona (Sys_PK, Codigo, Nombre, IEjecutivo) VALUES (8, 'P8', 'Zoe', 7)");
    presses("addContact");
    EXPECT_THAT(persons(), ElementsAre("P1|Ana|Ruiz|Gil", "P8|Zoe||"));

    host.person->agent = beto;
    whileTheHost("EditarPersona 1 9", "UPDATE Persona SET Nombre = 'Anabel' WHERE Sys_PK = 1");
    presses("editContact");
    EXPECT_THAT(persons(), ElementsAre("P1|Anabel|Ruiz|Gil", "P8|Zoe||"));

    whileTheHost("BorrarPersona 1 confirm", "DELETE FROM Persona WHERE Sys_PK = 1");
    presses("deleteContact");
    EXPECT_THAT(persons(), ElementsAre("P8|Zoe||"));
    EXPECT_TRUE(canUse("deleteContact"));
    whileTheHost("BorrarPersona 8 confirm", "DELETE FROM Persona WHERE Sys_PK = 8");
    presses("deleteContact");
    EXPECT_THAT(persons(), IsEmpty());
    EXPECT_FALSE(canUse("deleteContact"));
    EXPECT_TRUE(canUse("addContact"));
    EXPECT_THAT(changesSent(), IsEmpty()) << "the control itself changes nothing here";
}

TEST_F(LookingUpTheDirectory, organisations_come_and_go_the_same_way)
{
    organisation("5, 'O5', 'Aceros', 'Aceros SA', 'México', 7");
    enters(ana);
    opensTab(desk::organizaciones);
    whileTheHost("EditarOrganizacion 0 0",
                 "INSERT INTO Organizacion (Sys_PK, Codigo, Nombre, IEjecutivo) VALUES (8, 'O8', 'Zinc', NULL)");
    presses("addOrganization");
    EXPECT_THAT(organisations(), ElementsAre("O5|Aceros|Aceros SA|")) << "the new one is nobody's";
    whileTheHost("BorrarOrganizacion 5 confirm", "DELETE FROM Organizacion WHERE Sys_PK = 5");
    presses("deleteOrganization");
    EXPECT_THAT(organisations(), IsEmpty());
    EXPECT_TRUE(canUse("deleteOrganization"));
    isTold("Seleccione un elemento de la lista.");
    presses("deleteOrganization");
}

TEST_F(LookingUpTheDirectory, a_server_that_refuses_leaves_the_list_of_before)
{
    person("1, 'P1', 'Ana', 'Ruiz', 'Gil', 7");
    enters(ana);
    opensTab(desk::contactos);
    database("DELETE FROM Persona");
    cnn->refuses = [](std::string_view statement) { return statement.find("Persona") != std::string_view::npos; };
    isTold("Lock wait timeout exceeded");
    opensTab(desk::contactos);
    EXPECT_THAT(persons(), ElementsAre("P1|Ana|Ruiz|Gil"));
}

} // namespace
} // namespace dn::tests
