// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The window of a new project: what is typed in becomes one row, or none.

#include "tests/host/screens/fixture.h"

#include <QApplication>
#include <QTest>

namespace dn::host::tests {
namespace {

using dn::tests::pressButton;
using testing::HasSubstr;
using testing::IsEmpty;

class NewProject : public Screens {
protected:
    static std::string count() { return value("SELECT COUNT(*) FROM Proyecto"); }
};

TEST_F(NewProject, what_is_typed_becomes_a_row_column_by_column)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        picks(window, "Meta", "Venta de licencias");
        finds(window, "Organizacion", "acm");
        finds(window, "Persona", "ana");
        types(window, "Descripcion", "  O'Higgins \\ 100% «ñandú» 👍; DROP TABLE Proyecto  ");
        types(window, "Monto", "1,234.50");
        picks(window, "Temperatura", "Tibio");
        QTest::keyClick(&window, Qt::Key_Return);
    });
    const std::int32_t key = newProject();
    EXPECT_GT(key, 0);
    EXPECT_EQ(rows("SELECT Sys_PK, " + isRecent("Sys_DTCreated") +
                   ", Descripcion, IEjecutivo, IMeta, "
                   "IOrganizacion, IContacto, " +
                   isRecent("FInicio") +
                   ", UF_Status1, UF_Color, UF_monto, uf_ultimocontac, uf_contactado FROM Proyecto"),
              (std::vector<Row>{{std::to_string(key), "1", "O'Higgins \\ 100% «ñandú» 👍; DROP TABLE Proyecto", "7",
                                 "3", "11", "21", "1", "3", "NULL", "1234.50", "NULL", "NULL"}}));
    EXPECT_THAT(value("SELECT Sys_GUID FROM Proyecto"), testing::MatchesRegex("[0-9a-f]{32}"));
}

TEST_F(NewProject, what_is_optional_stays_open)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        EXPECT_THAT(messageBelow(window, "Organizacion"), HasSubstr("Sin organización"));
        fillsWhatIsRequired(window);
        pressButton(window, "Aceptar");
    });
    EXPECT_GT(newProject(), 0);
    EXPECT_EQ(rows("SELECT IOrganizacion, IContacto, UF_monto, UF_Status1 FROM Proyecto"),
              (std::vector<Row>{{"NULL", "NULL", "NULL", "1"}}));
}

TEST_F(NewProject, giving_up_makes_nothing)
{
    for (const bool byKey : {true, false}) {
        operatorAt.expect("CrearProyecto", [byKey](QWidget& window) {
            fillsWhatIsRequired(window);
            if (byKey)
                QTest::keyClick(&window, Qt::Key_Escape);
            else
                pressButton(window, "Cancelar");
        });
        EXPECT_EQ(newProject(), 0);
        EXPECT_EQ(count(), "0");
    }
}

TEST_F(NewProject, closing_the_window_is_giving_up)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        fillsWhatIsRequired(window);
        window.close();
    });
    EXPECT_EQ(newProject(), 0);
    EXPECT_EQ(count(), "0");
}

TEST_F(NewProject, each_field_says_what_it_lacks_and_takes_the_focus)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        pressButton(window, "Aceptar");
        EXPECT_EQ(messageBelow(window, "Meta"), "Elija la meta del proyecto.");
        EXPECT_EQ(focus(), "Meta");

        picks(window, "Meta", "Asesoría");
        pressButton(window, "Aceptar");
        EXPECT_EQ(messageBelow(window, "Meta"), "");
        EXPECT_EQ(messageBelow(window, "Descripcion"), "Escriba una descripción del proyecto.");
        EXPECT_EQ(focus(), "Descripcion");

        types(window, "Descripcion", "   ");
        pressButton(window, "Aceptar");
        EXPECT_EQ(focus(), "Descripcion");

        types(window, "Descripcion", "Una");
        for (const char* wrong : {"mucho", "1,23", "1.234", "-5", "1;2"}) {
            types(window, "Monto", wrong);
            pressButton(window, "Aceptar");
            EXPECT_THAT(messageBelow(window, "Monto"), HasSubstr("dos decimales")) << wrong;
            EXPECT_EQ(focus(), "Monto");
        }
        pressButton(window, "Cancelar");
    });
    EXPECT_EQ(newProject(), 0);
    EXPECT_EQ(count(), "0");
}

TEST_F(NewProject, a_name_that_fits_nobody_is_not_taken)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        fillsWhatIsRequired(window);
        types(window, "txtOrganizacion", "Nadie");
        pressButton(window, "Aceptar");
        EXPECT_THAT(messageBelow(window, "Organizacion"), HasSubstr("Elija una organización"));
        EXPECT_EQ(focus(), "txtOrganizacion");
        types(window, "txtOrganizacion", "");
        types(window, "txtPersona", "Nadie");
        pressButton(window, "Aceptar");
        EXPECT_THAT(messageBelow(window, "Persona"), HasSubstr("Elija una persona"));
        EXPECT_EQ(focus(), "txtPersona");
        pressButton(window, "Cancelar");
    });
    EXPECT_EQ(newProject(), 0);
}

TEST_F(NewProject, a_name_typed_in_full_is_taken)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        fillsWhatIsRequired(window);
        types(window, "txtOrganizacion", "acero y FORJA");
        types(window, "txtPersona", "bruno díaz");
        pressButton(window, "Aceptar");
    });
    EXPECT_GT(newProject(), 0);
    EXPECT_EQ(rows("SELECT IOrganizacion, IContacto FROM Proyecto"), (std::vector<Row>{{"12", "22"}}));
}

TEST_F(NewProject, letters_typed_after_a_choice_undo_it)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        fillsWhatIsRequired(window);
        finds(window, "Organizacion", "acm");
        QTest::keyClicks(&line(window, "txtOrganizacion"), " otra");
        pressButton(window, "Aceptar");
        EXPECT_EQ(focus(), "txtOrganizacion");
        pressButton(window, "Cancelar");
    });
    EXPECT_EQ(newProject(), 0);
}

TEST_F(NewProject, for_a_person_it_begins_with_that_person_and_the_organisation)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        EXPECT_EQ(line(window, "txtPersona").text(), "Ana López");
        EXPECT_EQ(line(window, "txtOrganizacion").text(), "Acme del Sureste");
        fillsWhatIsRequired(window);
        pressButton(window, "Aceptar");
    });
    EXPECT_GT(newProject(0, ana), 0);
    EXPECT_EQ(rows("SELECT IOrganizacion, IContacto FROM Proyecto"), (std::vector<Row>{{"11", "21"}}));
}

TEST_F(NewProject, for_an_organisation_it_begins_with_that_one)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        EXPECT_EQ(line(window, "txtOrganizacion").text(), "Acme del Sureste");
        EXPECT_EQ(line(window, "txtPersona").text(), "");
        fillsWhatIsRequired(window);
        pressButton(window, "Aceptar");
    });
    EXPECT_GT(newProject(1, acme), 0);
    EXPECT_EQ(rows("SELECT IOrganizacion, IContacto FROM Proyecto"), (std::vector<Row>{{"11", "NULL"}}));
}

TEST_F(NewProject, a_party_that_is_gone_leaves_the_field_empty)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        EXPECT_EQ(line(window, "txtPersona").text(), "");
        pressButton(window, "Cancelar");
    });
    EXPECT_EQ(newProject(0, nobody), 0);
}

TEST_F(NewProject, belongs_to_nobody_while_nobody_is_chosen)
{
    crm->SetAgente(0);
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        fillsWhatIsRequired(window);
        pressButton(window, "Aceptar");
    });
    EXPECT_GT(newProject(), 0);
    EXPECT_EQ(value("SELECT IEjecutivo FROM Proyecto"), "0");
}

TEST_F(NewProject, organisation_and_person_can_be_made_on_the_way)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        fillsWhatIsRequired(window);
        types(window, "txtOrganizacion", "D'Artagnan y Cía");
        QTest::mouseClick(window.findChild<QWidget*>("cmdOrganizacion"), Qt::LeftButton);
        EXPECT_EQ(line(window, "txtOrganizacion").text(), "D'Artagnan y Cía");
        types(window, "txtPersona", "Carla");
        QTest::mouseClick(window.findChild<QWidget*>("cmdPersona"), Qt::LeftButton);
        EXPECT_EQ(line(window, "txtPersona").text(), "Carla Ruiz");
        pressButton(window, "Aceptar");
    });
    operatorAt.expect("NuevaOrganizacion", [](QWidget& form) {
        EXPECT_EQ(line(form, "Nombre").text(), "D'Artagnan y Cía");
        types(form, "Tel1", "5551234567");
        pressButton(form, "Aceptar");
    });
    operatorAt.expect("NuevaPersona", [](QWidget& form) {
        EXPECT_EQ(line(form, "Nombre").text(), "Carla");
        EXPECT_EQ(line(form, "txtOrganizacion").text(), "D'Artagnan y Cía");
        types(form, "Apellido1", "Ruiz");
        pressButton(form, "Aceptar");
    });
    EXPECT_GT(newProject(), 0);
    EXPECT_EQ(rows("SELECT o.Nombre, o.Tel1, o.IEjecutivo, p.Nombre, p.Apellido1, p.IEjecutivo, "
                   "CASE WHEN p.IOrganizacion = o.Sys_PK THEN 1 ELSE 0 END FROM Proyecto JOIN Organizacion o ON "
                   "o.Sys_PK = Proyecto.IOrganizacion JOIN Persona p ON p.Sys_PK = IContacto"),
              (std::vector<Row>{{"D'Artagnan y Cía", "5551234567", "7", "Carla", "Ruiz", "7", "1"}}));
}

TEST_F(NewProject, giving_up_a_new_organisation_leaves_what_was_typed)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        types(window, "txtOrganizacion", "Quizá");
        QTest::mouseClick(window.findChild<QWidget*>("cmdOrganizacion"), Qt::LeftButton);
        EXPECT_EQ(line(window, "txtOrganizacion").text(), "Quizá");
        pressButton(window, "Cancelar");
    });
    operatorAt.expect("NuevaOrganizacion", [](QWidget& form) { pressButton(form, "Cancelar"); });
    newProject();
    EXPECT_EQ(value("SELECT COUNT(*) FROM Organizacion"), "2");
}

TEST_F(NewProject, a_refused_statement_shows_the_servers_words_and_keeps_the_window)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        fillsWhatIsRequired(window);
        finds(window, "Organizacion", "acm");
        server().execute("RENAME TABLE Proyecto TO Proyecto_aparte");
        pressButton(window, "Aceptar");
        server().execute("RENAME TABLE Proyecto_aparte TO Proyecto");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(line(window, "Descripcion").text(), "Licencias para ventas");
        EXPECT_EQ(count(), "0");
        pressButton(window, "Aceptar");
    });
    operatorAt.expect("Aviso", [](QWidget& box) {
        EXPECT_EQ(box.windowTitle(), QApplication::applicationDisplayName());
        EXPECT_THAT(boxText(box), HasSubstr("doesn't exist"));
        pressButton(box, "Aceptar");
    });
    EXPECT_GT(newProject(), 0);
    EXPECT_EQ(rows("SELECT Descripcion, IOrganizacion FROM Proyecto"),
              (std::vector<Row>{{"Licencias para ventas", "11"}}));
}

// What the server has closed is noticed ahead of the next statement.
TEST_F(NewProject, a_connection_that_was_lost_meanwhile_is_opened_again)
{
    const std::string others =
        "SELECT ID FROM information_schema.PROCESSLIST WHERE DB = 'pantallas' AND ID <> CONNECTION_ID()";
    operatorAt.expect("CrearProyecto", [&](QWidget& window) {
        fillsWhatIsRequired(window);
        const auto lost = rows(others);
        EXPECT_FALSE(lost.empty());
        for (const Row& row : lost)
            server().execute("KILL " + row.at(0));
        EXPECT_TRUE(QTest::qWaitFor([&] { return rows(others).empty(); }));
        pressButton(window, "Aceptar");
    });
    EXPECT_GT(newProject(), 0);
    EXPECT_EQ(count(), "1");
}

TEST_F(NewProject, a_persons_organisation_that_cannot_be_read_is_told)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        server().execute("RENAME TABLE Organizacion TO Organizacion_aparte");
        finds(window, "Persona", "ana");
        server().execute("RENAME TABLE Organizacion_aparte TO Organizacion");
        EXPECT_EQ(line(window, "txtPersona").text(), "Ana López");
        pressButton(window, "Cancelar");
    });
    operatorAt.expect("Aviso", [](QWidget& box) { pressButton(box, "Aceptar"); });
    EXPECT_EQ(newProject(), 0);
}

TEST_F(NewProject, without_goals_it_says_whom_to_ask)
{
    server().execute("DELETE FROM Meta");
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        pressButton(window, "Aceptar");
        EXPECT_THAT(messageBelow(window, "Meta"), HasSubstr("administrador"));
        pressButton(window, "Cancelar");
    });
    EXPECT_EQ(newProject(), 0);
}

TEST_F(NewProject, a_window_that_cannot_be_filled_is_not_shown)
{
    server().execute("RENAME TABLE Meta TO Meta_aparte");
    operatorAt.expect("Aviso", [](QWidget& box) { pressButton(box, "Aceptar"); });
    EXPECT_EQ(newProject(), 0);
    server().execute("RENAME TABLE Meta_aparte TO Meta");
}

TEST_F(NewProject, the_keyboard_reaches_every_field_in_the_order_shown)
{
    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        std::vector<std::string> visited{focus()};
        for (int i = 0; i < 11; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            visited.push_back(focus());
        }
        EXPECT_THAT(visited, testing::ElementsAre("Meta", "txtOrganizacion", "cmdOrganizacion", "txtPersona",
                                                  "cmdPersona", "Descripcion", "Monto", "Temperatura", "Color",
                                                  "Agente", "cmdAceptar", "cmdCancelar"));
        QTest::keyClick(&window, Qt::Key_O, Qt::AltModifier);
        EXPECT_EQ(focus(), "txtOrganizacion");
        QTest::keyClick(&window, Qt::Key_D, Qt::AltModifier);
        EXPECT_EQ(focus(), "Descripcion");
        QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier);
    });
    EXPECT_EQ(newProject(), 0);
}

} // namespace
} // namespace dn::host::tests
