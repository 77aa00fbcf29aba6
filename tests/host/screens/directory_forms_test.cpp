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
    void SetUp() override
    {
        Screens::SetUp();
        server().execute("INSERT INTO Agente (Sys_PK, Nombre) VALUES (7, 'Sofía'), (8, 'Tomás')");
        server().execute("INSERT INTO Ciudad (Sys_PK, Nombre, Estado) VALUES (3, 'Mérida', NULL), (4, 'Tuxtla', "
                         "'Chiapas')");
    }
    static void typesAll(QWidget& form, const std::vector<std::pair<const char*, const char*>>& texts)
    {
        for (const auto& [name, text] : texts)
            types(form, name, text);
    }
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
        EXPECT_EQ(focus(), "Nombre");
        typesAll(form, {{"Codigo", "P-001"},
                        {"Nombre", " María "},
                        {"Apellido1", "D'Aria"},
                        {"Apellido2", "Núñez"},
                        {"Puesto", "Compras"},
                        {"EMail", "maria@example.com"},
                        {"EMail2", "m@casa.example; n@casa.example"},
                        {"Tel_Trabajo", "9611"},
                        {"Tel_Movil", "9612"},
                        {"Tel_Casa", "9613"},
                        {"Domicilio", "Calle 5 \\ 3"},
                        {"Colonia", "Centro"},
                        {"CodPostal", "29000"}});
        finds(form, "Organizacion", "acero");
        picks(form, "Ciudad", "Tuxtla, Chiapas");
        pressButton(form, "Aceptar");
    });
    HostObject object;
    std::int32_t by = 9;
    std::any result;
    crm->NuevaPersona(object, by, result);
    EXPECT_EQ(rows("SELECT Codigo, Nombre, Apellido1, Apellido2, Puesto, EMail, EMail2, Tel_Trabajo, Tel_Movil, "
                   "Tel_Casa, Domicilio, Colonia, CodPostal, ICiudad, IOrganizacion, IEjecutivo, "
                   "MSN, Notas FROM Persona WHERE Sys_PK > 22"),
              (std::vector<Row>{{"P-001", "María", "D'Aria", "Núñez", "Compras", "maria@example.com",
                                 "m@casa.example; n@casa.example", "9611", "9612", "9613", "Calle 5 \\ 3",
                                 "Centro", "29000", "4", "12", "9", "NULL", "NULL"}}));
    EXPECT_THAT(value("SELECT Sys_GUID FROM Persona WHERE Sys_PK > 22"), testing::MatchesRegex("[0-9a-f]{32}"));
    EXPECT_EQ(std::to_string(std::any_cast<std::int32_t>(result)), value("SELECT MAX(Sys_PK) FROM Persona"));
}

TEST_F(DirectoryForms, a_new_organisation_is_stored_column_by_column)
{
    operatorAt.expect("NuevaOrganizacion", [](QWidget& form) {
        EXPECT_EQ(focus(), "Nombre");
        typesAll(form, {{"Codigo", "O-1"},
                        {"Nombre", "Ñandú"},
                        {"NomComercial", "El Ñandú"},
                        {"Tel1", "1"},
                        {"Tel3", "3"},
                        {"Fax", "4"},
                        {"EMail", "a@b"},
                        {"WebSite", "example.com"},
                        {"Domicilio", "Calle 1"},
                        {"Colonia", "Norte"},
                        {"CodPostal", "29010"},
                        {"Nacionalidad", "México"}});
        picks(form, "Agente", "Tomás");
        pressButton(form, "Aceptar");
    });
    HostObject object;
    std::int32_t by = 0;
    std::any result;
    crm->NuevaOrganizacion(object, by, result);
    EXPECT_EQ(
        rows("SELECT Codigo, Nombre, NomComercial, Tel1, Tel2, Tel3, Fax, EMail, WebSite, Domicilio, Colonia, "
             "CodPostal, ICiudad, Nacionalidad, IEjecutivo, Notas FROM Organizacion WHERE "
             "Sys_PK > 12"),
        (std::vector<Row>{{"O-1", "Ñandú", "El Ñandú", "1", "NULL", "3", "4", "a@b", "example.com", "Calle 1",
                           "Norte", "29010", "NULL", "México", "8", "NULL"}}));
    EXPECT_THAT(value("SELECT Sys_GUID FROM Organizacion WHERE Sys_PK > 12"),
                testing::MatchesRegex("[0-9a-f]{32}"));
}

TEST_F(DirectoryForms, a_new_entry_belongs_to_who_was_handed_over_or_else_to_who_works)
{
    for (const std::int32_t by : {9, 0}) {
        operatorAt.expect("NuevaPersona", [](QWidget& form) {
            types(form, "Nombre", "Nueva");
            pressButton(form, "Aceptar");
        });
        editPerson(0, by);
    }
    EXPECT_EQ(rows("SELECT IEjecutivo FROM Persona WHERE Sys_PK > 22 ORDER BY Sys_PK"),
              (std::vector<Row>{{"9"}, {"7"}}));
}

TEST_F(DirectoryForms, hostile_texts_are_stored_as_they_are)
{
    for (const char* text : {"O'Higgins''", "C:\\nuevo\\", "100% _ ?", "👍🏽 e\xCC\x81", "مرحبا עולם",
                             "'; DROP TABLE Persona; -- ", "<b>no</b> &amp;"}) {
        operatorAt.expect("EditarPersona", [text](QWidget& form) {
            types(form, "Colonia", text);
            pressButton(form, "Aceptar");
        });
        editPerson(ana);
        EXPECT_EQ(value("SELECT Colonia FROM Persona WHERE Sys_PK = 21"),
                  QString::fromUtf8(text).trimmed().toStdString());
        operatorAt.expect("EditarPersona", [text](QWidget& form) {
            EXPECT_EQ(line(form, "Colonia").text(), QString::fromUtf8(text).trimmed());
            pressButton(form, "Cancelar");
        });
        editPerson(ana);
    }
}

TEST_F(DirectoryForms, control_characters_of_a_paste_become_blanks)
{
    operatorAt.expect("EditarPersona", [](QWidget& form) {
        line(form, "Colonia").setText(QString::fromUtf8("\tCentro\r\nNorte\x01\x7F\n"));
        pressButton(form, "Aceptar");
    });
    editPerson(ana);
    EXPECT_EQ(value("SELECT Colonia FROM Persona WHERE Sys_PK = 21"), "Centro  Norte");
}

TEST_F(DirectoryForms, a_text_too_long_is_not_cut_off_but_told)
{
    operatorAt.expect("EditarPersona", [](QWidget& form) {
        line(form, "Colonia").setText(QString(100'000, u'x'));
        pressButton(form, "Aceptar");
        EXPECT_THAT(messageBelow(form, "Colonia"), HasSubstr("caben 255"));
        EXPECT_EQ(focus(), "Colonia");
        line(form, "Colonia").setText(QString::fromUtf8("👍").repeated(255)); // characters, not halves of them
        pressButton(form, "Aceptar");
    });
    editPerson(ana);
    EXPECT_EQ(value("SELECT CHAR_LENGTH(Colonia) FROM Persona WHERE Sys_PK = 21"), "255");
}

TEST_F(DirectoryForms, an_address_needs_its_form_but_an_old_odd_one_stays)
{
    server().execute("UPDATE Persona SET EMail = 'EMail', EMail2 = 'viejo' WHERE Sys_PK = 21");
    operatorAt.expect("EditarPersona", [](QWidget& form) {
        for (const char* wrong : {"ana", "ana@", "@b", "a b@c", "a@b; c", "a@b@c"}) {
            types(form, "EMail", wrong);
            pressButton(form, "Aceptar");
            EXPECT_EQ(messageBelow(form, "EMail"), "Escriba el correo en la forma nombre@dominio.") << wrong;
            EXPECT_EQ(focus(), "EMail");
        }
        types(form, "EMail", "ana@example.com");
        pressButton(form, "Aceptar");
    });
    editPerson(ana);
    EXPECT_EQ(rows("SELECT EMail, EMail2 FROM Persona WHERE Sys_PK = 21"),
              (std::vector<Row>{{"ana@example.com", "viejo"}}));
}

TEST_F(DirectoryForms, changes_of_two_operators_join_or_are_told)
{
    operatorAt.expect("EditarOrganizacion", [](QWidget& form) {
        types(form, "Tel1", "111");
        types(form, "Tel2", "222");
        server().execute("UPDATE Organizacion SET Tel1 = '999', Fax = '333' WHERE Sys_PK = 11");
        pressButton(form, "Aceptar");
        EXPECT_EQ(messageBelow(form, "Tel1"), "Otra persona lo cambió a: 999");
        EXPECT_EQ(messageBelow(form, "Tel2"), "");
        EXPECT_EQ(line(form, "Tel1").text(), "111");
        pressButton(form, "Aceptar");
    });
    expectNotice("Otra persona cambió este registro");
    editOrganisation(acme);
    EXPECT_EQ(rows("SELECT Tel1, Tel2, Fax FROM Organizacion WHERE Sys_PK = 11"),
              (std::vector<Row>{{"111", "222", "333"}}));
}

TEST_F(DirectoryForms, whichever_statement_fails_nothing_is_stored_and_nothing_is_lost)
{
    operatorAt.expect("NuevaPersona", [this](QWidget& form) {
        types(form, "Nombre", "Nueva");
        for (int n = 0; n < 4; ++n) { // START, INSERT, its key, COMMIT
            failAfter(n);
            pressButton(form, "Aceptar");
            EXPECT_EQ(line(form, "Nombre").text(), "Nueva") << n;
            EXPECT_EQ(value("SELECT COUNT(*) FROM Persona"), "2") << n;
        }
        pressButton(form, "Cancelar");
    });
    for (int n = 0; n < 4; ++n)
        expectNotice("Lock wait timeout");
    EXPECT_FALSE(editPerson(0).has_value());
    operatorAt.expect("EditarPersona", [this](QWidget& form) {
        types(form, "Nombre", "Ana Luisa");
        for (int n = 0; n < 5; ++n) { // START, hold, read, UPDATE, COMMIT
            failAfter(n);
            pressButton(form, "Aceptar");
            EXPECT_EQ(line(form, "Nombre").text(), "Ana Luisa") << n;
            EXPECT_EQ(value("SELECT Nombre FROM Persona WHERE Sys_PK = 21"), "Ana") << n;
        }
        pressButton(form, "Aceptar");
    });
    for (int n = 0; n < 5; ++n)
        expectNotice("Lock wait timeout");
    EXPECT_TRUE(editPerson(ana).has_value());
    EXPECT_EQ(value("SELECT Nombre FROM Persona WHERE Sys_PK = 21"), "Ana Luisa");
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
    server().execute("UPDATE Persona SET MSN = '999', IEjecutivo = 5, Notas = 'n' WHERE Sys_PK = 21");
    operatorAt.expect("EditarPersona", [](QWidget& form) {
        EXPECT_EQ(line(form, "Nombre").text(), "Ana");
        EXPECT_EQ(line(form, "txtOrganizacion").text(), "Acme del Sureste");
        types(form, "Apellido2", "Gil");
        types(form, "Tel_Movil", "");
        types(form, "txtOrganizacion", "");
        pressButton(form, "Aceptar");
    });
    EXPECT_TRUE(editPerson(ana, 9).has_value());
    EXPECT_EQ(rows("SELECT Nombre, Apellido1, Apellido2, Tel_Movil, IOrganizacion, MSN, IEjecutivo, Notas FROM "
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

TEST_F(DirectoryForms, no_two_things_of_a_window_share_a_mnemonic)
{
    for (const auto& [window, least] :
         std::initializer_list<std::pair<const char*, std::size_t>>{{"NuevaPersona", 15},
                                                                    {"NuevaOrganizacion", 15},
                                                                    {"CrearProyecto", 11},
                                                                    {"EditarProyecto", 16},
                                                                    {"MostrarRelaciones", 4},
                                                                    {"BuscarEntidad", 3}})
        operatorAt.expect(window, [least = least](QWidget& form) {
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
            EXPECT_GE(seen.size(), least) << form.objectName().toStdString();
            QTest::keyClick(&form, Qt::Key_Escape);
        });
    editPerson(0);
    editOrganisation(0);
    newProject();
    server().execute("INSERT INTO Proyecto (Sys_PK, IMeta) VALUES (41, 3)");
    projects->EditarProyecto(sale);
    std::int16_t kind = 0;
    std::int32_t key = ana;
    std::string text;
    crm->MostrarRelaciones(kind, key, text);
    crm->BuscarEntidad("", true, true, text);
}

} // namespace
} // namespace dn::host::tests
