// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The forms of persons and organisations: making new ones, and changing those of the directory.

#include "tests/host/screens/fixture.h"

#include <QPushButton>
#include <QTest>

#include <set>

namespace dn::host::tests {
namespace {

using dn::tests::pressButton;
using testing::HasSubstr;

class DirectoryForms : public Screens {
protected:
    std::any editPerson(std::int32_t key, std::int32_t by = 0)
    {
        std::any result;
        crm->EditarPersona(key, by, result);
        return result;
    }
    std::any editOrganisation(std::int32_t key, std::int32_t by = 0)
    {
        std::any result;
        crm->EditarOrganizacion(key, by, result);
        return result;
    }
};

TEST_F(DirectoryForms, a_new_person_is_stored_column_by_column)
{
    operatorAt.expect("NuevaPersona", [](QWidget& form) {
        for (const auto& [name, text] :
             std::initializer_list<std::pair<const char*, const char*>>{{"Nombre", " María "},
                                                                        {"Apellido1", "D'Aria"},
                                                                        {"Apellido2", "Núñez"},
                                                                        {"Puesto", "Compras"},
                                                                        {"EMail", "maria@example.com"},
                                                                        {"Tel_Trabajo", "9611"},
                                                                        {"Tel_Movil", "9612"},
                                                                        {"Domicilio", "Calle 5 \\ 3"},
                                                                        {"Colonia", "Centro"},
                                                                        {"CodPostal", "29000"}})
            types(form, name, text);
        finds(form, "Organizacion", "acero");
        pressButton(form, "Aceptar");
    });
    HostObject object;
    std::int32_t by = 9;
    std::any result;
    crm->NuevaPersona(object, by, result);
    EXPECT_EQ(
        rows("SELECT Nombre, Apellido1, Apellido2, Puesto, EMail, Tel_Trabajo, Tel_Movil, Domicilio, Colonia, "
             "CodPostal, IOrganizacion, IEjecutivo, LENGTH(Sys_GUID), Tel_Casa FROM Persona WHERE Sys_PK > 22"),
        (std::vector<Row>{{"María", "D'Aria", "Núñez", "Compras", "maria@example.com", "9611", "9612",
                           "Calle 5 \\ 3", "Centro", "29000", "12", "9", "32", "NULL"}}));
    EXPECT_EQ(std::to_string(std::any_cast<std::int32_t>(result)), value("SELECT MAX(Sys_PK) FROM Persona"));
}

TEST_F(DirectoryForms, a_new_organisation_is_stored_column_by_column)
{
    operatorAt.expect("NuevaOrganizacion", [](QWidget& form) {
        for (const auto& [name, text] :
             std::initializer_list<std::pair<const char*, const char*>>{{"Nombre", "Ñandú"},
                                                                        {"NomComercial", "El Ñandú"},
                                                                        {"Tel1", "1"},
                                                                        {"EMail", "a@b"},
                                                                        {"WebSite", "example.com"},
                                                                        {"Domicilio", "Calle 1"},
                                                                        {"Colonia", "Norte"},
                                                                        {"CodPostal", "29010"}})
            types(form, name, text);
        pressButton(form, "Aceptar");
    });
    HostObject object;
    std::int32_t by = 0;
    std::any result;
    crm->NuevaOrganizacion(object, by, result);
    EXPECT_EQ(rows("SELECT Nombre, NomComercial, Tel1, Tel2, EMail, WebSite, Domicilio, Colonia, CodPostal, "
                   "IEjecutivo, LENGTH(Sys_GUID) FROM Organizacion WHERE Sys_PK > 12"),
              (std::vector<Row>{{"Ñandú", "El Ñandú", "1", "NULL", "a@b", "example.com", "Calle 1", "Norte",
                                 "29010", "7", "32"}}));
}

TEST_F(DirectoryForms, the_key_0_makes_a_new_one)
{
    operatorAt.expect("NuevaPersona", [](QWidget& form) {
        types(form, "Nombre", "Nueva");
        pressButton(form, "Aceptar");
    });
    EXPECT_TRUE(editPerson(0).has_value());
    operatorAt.expect("NuevaOrganizacion", [](QWidget& form) {
        types(form, "Nombre", "Nueva");
        pressButton(form, "Aceptar");
    });
    EXPECT_TRUE(editOrganisation(0).has_value());
    EXPECT_EQ(value("SELECT COUNT(*) FROM Persona"), "3");
    EXPECT_EQ(value("SELECT COUNT(*) FROM Organizacion"), "3");
}

TEST_F(DirectoryForms, an_entry_without_a_name_is_not_taken)
{
    operatorAt.expect("NuevaPersona", [](QWidget& form) {
        types(form, "Apellido1", "Solo");
        pressButton(form, "Aceptar");
        EXPECT_EQ(messageBelow(form, "Nombre"), "Escriba el nombre de la persona.");
        EXPECT_EQ(focus(), "Nombre");
        pressButton(form, "Cancelar");
    });
    EXPECT_FALSE(editPerson(0).has_value());
    operatorAt.expect("NuevaOrganizacion", [](QWidget& form) {
        pressButton(form, "Aceptar");
        EXPECT_EQ(messageBelow(form, "Nombre"), "Escriba el nombre de la organización.");
        pressButton(form, "Cancelar");
    });
    EXPECT_FALSE(editOrganisation(0).has_value());
    EXPECT_EQ(value("SELECT COUNT(*) FROM Persona"), "2");
}

TEST_F(DirectoryForms, changing_a_person_leaves_what_the_form_does_not_show)
{
    server().execute("UPDATE Persona SET Tel_Casa = '999', IEjecutivo = 5, Notas = 'n' WHERE Sys_PK = 21");
    operatorAt.expect("EditarPersona", [](QWidget& form) {
        EXPECT_EQ(line(form, "Nombre").text(), "Ana");
        EXPECT_EQ(line(form, "txtOrganizacion").text(), "Acme del Sureste");
        types(form, "Apellido2", "Gil");
        types(form, "Tel_Movil", "");
        types(form, "txtOrganizacion", "");
        pressButton(form, "Aceptar");
    });
    EXPECT_TRUE(editPerson(ana, 9).has_value());
    EXPECT_EQ(
        rows("SELECT Nombre, Apellido1, Apellido2, Tel_Movil, IOrganizacion, Tel_Casa, IEjecutivo, Notas FROM "
             "Persona WHERE Sys_PK = 21"),
        (std::vector<Row>{{"Ana", "López", "Gil", "NULL", "NULL", "999", "5", "n"}}));
}

TEST_F(DirectoryForms, changing_an_organisation_and_changing_nothing)
{
    operatorAt.expect("EditarOrganizacion", [](QWidget& form) { pressButton(form, "Aceptar"); });
    editOrganisation(acme);
    EXPECT_EQ(value("SELECT Nombre FROM Organizacion WHERE Sys_PK = 11"), "Acme del Sureste");
    operatorAt.expect("EditarOrganizacion", [](QWidget& form) {
        types(form, "Nombre", "Acme's");
        pressButton(form, "Aceptar");
    });
    editOrganisation(acme);
    EXPECT_EQ(value("SELECT Nombre FROM Organizacion WHERE Sys_PK = 11"), "Acme's");
}

TEST_F(DirectoryForms, giving_up_changes_nothing)
{
    operatorAt.expect("EditarPersona", [](QWidget& form) {
        types(form, "Nombre", "Otra");
        QTest::keyClick(&form, Qt::Key_Escape);
    });
    EXPECT_FALSE(editPerson(ana).has_value());
    EXPECT_EQ(value("SELECT Nombre FROM Persona WHERE Sys_PK = 21"), "Ana");
}

TEST_F(DirectoryForms, an_entry_that_is_gone_is_told)
{
    operatorAt.expect("Aviso", [](QWidget& box) {
        EXPECT_THAT(boxText(box), HasSubstr("ya no existe"));
        pressButton(box, "Aceptar");
    });
    EXPECT_FALSE(editPerson(nobody).has_value());
    operatorAt.expect("EditarOrganizacion", [](QWidget& form) {
        server().execute("DELETE FROM Organizacion WHERE Sys_PK = 11");
        pressButton(form, "Aceptar");
        pressButton(form, "Cancelar");
    });
    operatorAt.expect("Aviso", [](QWidget& box) { pressButton(box, "Aceptar"); });
    EXPECT_FALSE(editOrganisation(acme).has_value());
}

TEST_F(DirectoryForms, no_two_fields_of_a_form_share_a_mnemonic)
{
    const auto check = [](QWidget& form) {
        std::set<QString> seen;
        const auto one = [&](const QString& text) {
            const auto at = text.indexOf('&');
            const bool taken = at >= 0 && !seen.insert(text.mid(at + 1, 1).toLower()).second;
            EXPECT_FALSE(taken) << text.toStdString();
        };
        for (const QLabel* label : form.findChildren<QLabel*>())
            one(label->text());
        for (const QPushButton* button : form.findChildren<QPushButton*>())
            one(button->text());
        EXPECT_GT(seen.size(), 7U);
        pressButton(form, "Cancelar");
    };
    operatorAt.expect("NuevaPersona", check);
    editPerson(0);
    operatorAt.expect("NuevaOrganizacion", check);
    editOrganisation(0);
    operatorAt.expect("CrearProyecto", check);
    newProject();
}

} // namespace
} // namespace dn::host::tests
