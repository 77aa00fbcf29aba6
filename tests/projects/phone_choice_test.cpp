// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// GetDatosProyecto: the contact data of a project, and the number that its next call will use.

#include "projects/phone_choice.h"
#include "tests/support/project_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;

class PhoneChoice : public ProjectTest {
protected:
    PhoneChoice() { session.AdoCnn = &cnn; }

    std::string data(Columns columns)
    {
        contactData(std::move(columns));
        return choice.GetDatosProyecto(12);
    }

    std::string number(Columns columns)
    {
        data(std::move(columns));
        return session.Call_Tel;
    }

    desk::Session session;
    dn::projects::PhoneChoice choice{session};
};

TEST_F(PhoneChoice, sends_one_statement_the_same_on_both_engines)
{
    for (const std::int16_t engine : {desk::Session::mySql, desk::Session::sqlServer}) {
        session.MotorBD = engine;
        cnn.forgetStatements();
        choice.GetDatosProyecto(12);
        EXPECT_THAT(
            cnn.statements(),
            ElementsAre("SELECT Organizacion.Tel1, Organizacion.Tel2, Organizacion.Tel3, Organizacion.Fax, "
                        "Organizacion.EMail, Organizacion.WebSite,Persona.Nombre AS PN_Nombre, "
                        "Persona.Apellido1 AS PN_Apellido1, Persona.Apellido2 AS PN_Apellido2 , "
                        "Persona.EMail, Persona.Tel_Trabajo, Persona.Tel_Movil, Persona.Tel_Casa FROM "
                        "(Proyecto INNER JOIN Organizacion ON Proyecto.IOrganizacion=Organizacion.Sys_PK) "
                        "INNER JOIN Persona ON Proyecto.IContacto=Persona.Sys_PK WHERE Proyecto.Sys_PK=12"));
    }
}

TEST_F(PhoneChoice, writes_a_line_for_each_value_and_the_name_on_one)
{
    EXPECT_EQ(
        data({{"Tel1", text("55 1")},
              {"Tel2", text(" 55 2 ")},
              {"Tel3", text("55 3")},
              {"Fax", text("55 4")},
              {"EMail", text("ventas@acme.mx")},
              {"WebSite", text("acme.mx")},
              {"PN_Nombre", text("María")},
              {"PN_Apellido1", text("Ñúñez")},
              {"PN_Apellido2", text("Sáenz")},
              {"Persona.EMail", text("m@acme.mx")},
              {"Tel_Trabajo", text("55 5")},
              {"Tel_Movil", text("55 6")},
              {"Tel_Casa", text("55 7")}}),
        "Tel1: 55 1\r\nTel2: 55 2\r\nTel3: 55 3\r\nFax: 55 4\r\nEMail: ventas@acme.mx\r\nWebSite: acme.mx\r\n"
        "María Ñúñez Sáenz \r\nEMail: m@acme.mx\r\nTel_Trabajo: 55 5\r\nTel_Movil: 55 6\r\nTel_Casa: 55 7");
}

TEST_F(PhoneChoice, leaves_out_what_has_no_value)
{
    EXPECT_EQ(
        data({{"Tel1", text("")}, {"Tel2", text("   ")}, {"Fax", text("9")}, {"PN_Apellido1", text(" Luz ")}}),
        "Fax: 9\r\nLuz ");
    EXPECT_EQ(data({{"Tel_Casa", text("1")}, {"PN_Nombre", text("")}, {"PN_Apellido2", text("B")}}),
              "\r\nB \r\nTel_Casa: 1");
}

TEST_F(PhoneChoice, begins_with_the_line_of_the_name_where_the_organisation_has_nothing)
{
    EXPECT_EQ(data({}), "\r\n");
    EXPECT_EQ(data({{"PN_Nombre", text("María")}}), "\r\nMaría ");
    EXPECT_EQ(data({{"Tel_Movil", text("1")}}), "\r\n\r\nTel_Movil: 1");
}

TEST_F(PhoneChoice, knows_the_parts_of_the_name_in_any_letter_case)
{
    cnn.onContaining(readsContactData)
        .gives({"tel1", "pn_nombre", "Pn_Apellido1"}, {{text("1"), text("A"), text("B")}});
    EXPECT_EQ(choice.GetDatosProyecto(12), "tel1: 1\r\nA B ");
}

TEST_F(PhoneChoice, takes_the_first_number_that_is_not_null)
{
    Columns all{{"Tel1", text("1")},      {"Tel2", text("2")},     {"Tel3", text("3")}, {"Tel_Trabajo", text("4")},
                {"Tel_Movil", text("5")}, {"Tel_Casa", text("6")}, {"Fax", text("7")}};
    const std::pair<const char*, const char*> order[]{
        {"1", "Tel1"}, {"2", "Tel2"}, {"3", "Tel3"}, {"4", "Tel_Trabajo"}, {"5", "Tel_Movil"}};
    for (const auto& [expected, column] : order) {
        EXPECT_EQ(number(all), expected);
        all.erase(column);
    }
    EXPECT_EQ(number(all), "Tel. Proyecto") << "neither the one at home nor the fax is called";
}

TEST_F(PhoneChoice, takes_a_number_that_is_empty_but_not_null)
{
    EXPECT_EQ(number({{"Tel1", text("")}, {"Tel2", text("2")}}), "");
    EXPECT_EQ(number({{"Tel1", text("  ")}, {"Tel2", text("2")}}), "  ");
}

TEST_F(PhoneChoice, takes_the_numbers_of_the_first_row)
{
    cnn.onContaining(readsContactData).gives({"Tel1"}, {{text("1")}, {text("2")}});
    EXPECT_EQ(choice.GetDatosProyecto(12), "Tel1: 1");
    EXPECT_EQ(session.Call_Tel, "1");
}

TEST_F(PhoneChoice, keeps_the_last_number_for_a_project_without_contact_data)
{
    session.Call_Tel = "el anterior";
    EXPECT_EQ(choice.GetDatosProyecto(12), "") << "no recordset";
    cnn.onContaining(readsContactData).gives(contactDataColumns(), {});
    EXPECT_EQ(choice.GetDatosProyecto(12), "") << "no row";
    cnn.failAt(1);
    EXPECT_EQ(choice.GetDatosProyecto(12), "") << "a failure";
    session.AdoCnn = nullptr;
    EXPECT_EQ(choice.GetDatosProyecto(12), "") << "no connection";
    EXPECT_EQ(session.Call_Tel, "el anterior");
}

TEST_F(PhoneChoice, passes_over_a_field_that_cannot_be_read)
{
    EXPECT_EQ(data({{"Tel1", failing("x")}, {"Tel2", text("2")}}), "Tel2: 2\r\n");
    EXPECT_EQ(session.Call_Tel, "2");
    EXPECT_EQ(data({{"PN_Nombre", failing("x")}, {"PN_Apellido1", text("Luz")}, {"Fax", failing("x")}}),
              "\r\nLuz ");
    EXPECT_EQ(session.Call_Tel, "Tel. Proyecto");
}

} // namespace
} // namespace dn::tests
