// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The window of a project that is there: its data, its activities, and what happens when somebody else was faster.

#include "host/screens/choices.h"
#include "tests/host/screens/projects_at_work.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

namespace dn::host::tests {
namespace {

using dn::tests::pressButton;
using testing::ElementsAre;
using testing::HasSubstr;

class ProjectEditor : public ProjectsAtWork {
protected:
    static std::vector<Row> project()
    {
        return rows("SELECT IMeta, IOrganizacion, IContacto, Descripcion, UF_monto, UF_Status1, UF_Color, "
                    "IEjecutivo, Sys_GUID, FInicio, uf_contactado, Notas FROM Proyecto WHERE Sys_PK = 41");
    }
    const std::vector<Row> asItWas{{"3", "11", "21", "Licencias", "1234.50", "2", "NULL", "7",
                                    "0123456789abcdef0123456789abcdef", "2026-01-05 09:30:15", "1", "reservada"}};
};

TEST_F(ProjectEditor, shows_the_project_and_looking_changes_nothing)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        EXPECT_EQ(focus(), "Meta");
        EXPECT_EQ(combo(window, "Meta"), "Venta de licencias");
        EXPECT_EQ(line(window, "txtOrganizacion").text(), "Acme del Sureste");
        EXPECT_EQ(line(window, "txtPersona").text(), "Ana López");
        EXPECT_EQ(line(window, "Descripcion").text(), "Licencias");
        EXPECT_EQ(line(window, "Monto").text(), "1,234.50");
        EXPECT_EQ(combo(window, "Temperatura"), "Frío");
        EXPECT_EQ(combo(window, "Color"), "Predeterminado");
        EXPECT_EQ(combo(window, "Agente"), "Sofía");
        EXPECT_EQ(listed(window), (std::vector<Row>{{"no", "06/01/2026 10:00", "Llamada", "Pedir datos"},
                                                    {"sí", "05/01/2026 10:00", "Visita", "Presentación"}}));
        pressButton(window, "Aceptar");
    });
    opens();
    EXPECT_EQ(project(), asItWas);
}

TEST_F(ProjectEditor, what_is_changed_is_stored_column_by_column)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        picks(window, "Meta", "Asesoría");
        finds(window, "Organizacion", "acero");
        finds(window, "Persona", "bruno");
        types(window, "Descripcion", "  O'Higgins \\ 100% «ñandú» 👍 مرحبا; DROP TABLE Proyecto  ");
        types(window, "Monto", "$ 2,000");
        picks(window, "Temperatura", "Perdido");
        picks(window, "Color", "Morado");
        picks(window, "Agente", "Tomás");
        QTest::keyClick(&window, Qt::Key_Return);
    });
    opens();
    EXPECT_EQ(project(),
              (std::vector<Row>{{"4", "12", "22", "O'Higgins \\ 100% «ñandú» 👍 مرحبا; DROP TABLE Proyecto",
                                 "2000.00", "6", "4", "8", "0123456789abcdef0123456789abcdef",
                                 "2026-01-05 09:30:15", "1", "reservada"}}));
}

TEST_F(ProjectEditor, what_may_be_open_can_be_emptied)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        types(window, "txtOrganizacion", "");
        EXPECT_THAT(messageBelow(window, "Organizacion"), HasSubstr("no aparecerá"));
        types(window, "txtPersona", "");
        types(window, "Monto", "");
        pressButton(window, "Aceptar");
    });
    opens();
    EXPECT_EQ(rows("SELECT IOrganizacion, IContacto, UF_monto FROM Proyecto"),
              (std::vector<Row>{{"NULL", "NULL", "NULL"}}));
}

TEST_F(ProjectEditor, odd_values_that_nobody_touches_stay)
{
    server().execute(
        "UPDATE Proyecto SET IMeta = 99, IOrganizacion = 98, IContacto = 97, UF_Status1 = 9, UF_Color "
        "= 0, IEjecutivo = 0, UF_monto = -3.10 WHERE Sys_PK = 41");
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        EXPECT_EQ(combo(window, "Meta"), "(clave 99)");
        EXPECT_EQ(combo(window, "Agente"), "(sin asignar)");
        EXPECT_EQ(line(window, "Monto").text(), "-3.10");
        types(window, "Descripcion", "Otra");
        pressButton(window, "Aceptar");
    });
    opens();
    EXPECT_EQ(rows("SELECT IMeta, IOrganizacion, IContacto, Descripcion, UF_monto, UF_Status1, UF_Color, "
                   "IEjecutivo FROM Proyecto"),
              (std::vector<Row>{{"99", "98", "97", "Otra", "-3.10", "9", "0", "0"}}));
}

TEST_F(ProjectEditor, a_person_without_an_organisation_in_the_project_brings_none_by_being_shown)
{
    server().execute("UPDATE Proyecto SET IOrganizacion = NULL WHERE Sys_PK = 41");
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        EXPECT_EQ(line(window, "txtOrganizacion").text(), "");
        pressButton(window, "Aceptar");
    });
    opens();
    EXPECT_EQ(value("SELECT IOrganizacion FROM Proyecto"), "NULL");
}

TEST_F(ProjectEditor, each_field_says_what_it_lacks)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        types(window, "Descripcion", "");
        pressButton(window, "Aceptar");
        EXPECT_EQ(messageBelow(window, "Descripcion"), "Escriba una descripción del proyecto.");
        EXPECT_EQ(focus(), "Descripcion");
        line(window, "Descripcion").setText(QString(100'000, u'x')); // as a paste does
        pressButton(window, "Aceptar");
        EXPECT_THAT(messageBelow(window, "Descripcion"), HasSubstr("caben 500"));
        types(window, "Descripcion", "Bien");
        types(window, "Monto", "mucho");
        pressButton(window, "Aceptar");
        EXPECT_THAT(messageBelow(window, "Monto"), HasSubstr("dos decimales"));
        EXPECT_EQ(focus(), "Monto");
        types(window, "Monto", "1");
        types(window, "txtPersona", "Nadie");
        pressButton(window, "Aceptar");
        EXPECT_THAT(messageBelow(window, "Persona"), HasSubstr("Elija una persona"));
        EXPECT_EQ(focus(), "txtPersona");
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    expectQuestion("sin guardar los cambios", "Cerrar sin guardar");
    opens();
    EXPECT_EQ(project(), asItWas);
}

TEST_F(ProjectEditor, giving_up_asks_only_where_something_would_be_lost)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    opens();
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        types(window, "Descripcion", "Casi");
        window.close();
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(line(window, "Descripcion").text(), "Casi");
        pressButton(window, "Cancelar");
    });
    expectQuestion("sin guardar", "Seguir editando");
    expectQuestion("sin guardar", "Cerrar sin guardar");
    opens();
    EXPECT_EQ(project(), asItWas);
}

TEST_F(ProjectEditor, a_project_that_is_not_there_is_told)
{
    expectNotice("ya no existe");
    opens(nobody);
}

TEST_F(ProjectEditor, a_project_deleted_meanwhile_keeps_what_was_typed)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        types(window, "Descripcion", "Larga y pensada");
        server().execute("DELETE FROM Proyecto");
        pressButton(window, "Aceptar");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(line(window, "Descripcion").text(), "Larga y pensada");
        pressButton(window, "Cancelar");
    });
    expectNotice("ya no existe");
    expectQuestion("sin guardar", "Cerrar sin guardar");
    opens();
    EXPECT_EQ(value("SELECT COUNT(*) FROM Proyecto"), "0");
}

TEST_F(ProjectEditor, changes_of_two_operators_in_different_fields_join)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        types(window, "Descripcion", "La mía");
        server().execute("UPDATE Proyecto SET UF_monto = 99, UF_Status1 = 4 WHERE Sys_PK = 41");
        pressButton(window, "Aceptar");
    });
    opens();
    EXPECT_EQ(rows("SELECT Descripcion, UF_monto, UF_Status1 FROM Proyecto"),
              (std::vector<Row>{{"La mía", "99.00", "4"}}));
}

TEST_F(ProjectEditor, changes_of_two_operators_in_one_field_are_shown_and_then_overwritten_knowingly)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        types(window, "Descripcion", "La mía");
        types(window, "Monto", "5");
        server().execute("UPDATE Proyecto SET Descripcion = 'La de otro', UF_monto = 99 WHERE Sys_PK = 41");
        pressButton(window, "Aceptar");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(line(window, "Descripcion").text(), "La mía");
        EXPECT_EQ(messageBelow(window, "Descripcion"), "Otra persona lo cambió a: La de otro");
        EXPECT_EQ(messageBelow(window, "Monto"), "Otra persona lo cambió a: 99.00");
        EXPECT_EQ(window.focusWidget()->objectName().toStdString(), "Descripcion");
        EXPECT_EQ(value("SELECT Descripcion FROM Proyecto"), "La de otro");
        pressButton(window, "Aceptar");
    });
    expectNotice("Otra persona cambió este registro");
    opens();
    EXPECT_EQ(rows("SELECT Descripcion, UF_monto FROM Proyecto"), (std::vector<Row>{{"La mía", "5.00"}}));
}

TEST_F(ProjectEditor, both_wrote_the_same_and_nobody_is_asked)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        types(window, "Descripcion", "Igual");
        server().execute("UPDATE Proyecto SET Descripcion = 'Igual' WHERE Sys_PK = 41");
        pressButton(window, "Aceptar");
    });
    opens();
    EXPECT_EQ(value("SELECT Descripcion FROM Proyecto"), "Igual");
}

TEST_F(ProjectEditor, whichever_statement_fails_nothing_is_stored_and_nothing_is_lost)
{
    constexpr int statements = 7; // START, hold, read, update; the activity's insert and its key; COMMIT
    operatorAt.expect("EditarProyecto", [this](QWidget& window) {
        types(window, "Descripcion", "Por fin");
        pressButton(window, "Agregar…");
        for (int n = 0; n < statements; ++n) {
            failAfter(n);
            pressButton(window, "Aceptar");
            EXPECT_TRUE(window.isVisible()) << n;
            EXPECT_EQ(line(window, "Descripcion").text(), "Por fin") << n;
            EXPECT_EQ(listed(window).size(), 3U) << n;
            EXPECT_EQ(project(), asItWas) << n;
            EXPECT_EQ(value("SELECT COUNT(*) FROM actividad"), "2") << n;
        }
        pressButton(window, "Aceptar");
    });
    operatorAt.expect("NuevaActividad", [](QWidget& form) {
        fillsActivity(form, "010320261200", "Llamada", "Nueva");
        pressButton(form, "Aceptar");
    });
    for (int n = 0; n < statements; ++n)
        expectNotice("Lock wait timeout");
    opens();
    EXPECT_EQ(value("SELECT Descripcion FROM Proyecto"), "Por fin");
    EXPECT_EQ(value("SELECT COUNT(*) FROM actividad"), "3");
}

TEST_F(ProjectEditor, whichever_statement_of_its_opening_fails_it_is_told_and_not_opened)
{
    expectNotice("ya no existe");
    opens(nobody);                // the connection stands from here on
    for (int n = 0; n < 7; ++n) { // goals, agents, project, organisation, person, kinds, activities
        failAfter(n);
        expectNotice("Lock wait timeout");
        opens();
    }
    operatorAt.expect("EditarProyecto", [](QWidget& window) { pressButton(window, "Cancelar"); });
    opens();
}

TEST_F(ProjectEditor, an_account_that_may_only_read_is_told_so)
{
    server().execute("CREATE OR REPLACE USER 'lectora'@'%' IDENTIFIED BY 'x'");
    server().execute("GRANT SELECT ON pantallas.* TO 'lectora'@'%'");
    ScreensFactory readers([] { return openAs("lectora", "x"); });
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        types(window, "Descripcion", "Prohibida");
        pressButton(window, "Aceptar");
        pressButton(window, "Cancelar");
    });
    expectNotice("denied");
    expectQuestion("sin guardar", "Cerrar sin guardar");
    readers.newUIProyectos()->EditarProyecto(sale);
    EXPECT_EQ(project(), asItWas);
    server().execute("DROP USER 'lectora'@'%'");
}

TEST_F(ProjectEditor, the_keyboard_reaches_everything_in_the_order_shown)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        std::vector<std::string> visited{focus()};
        for (int i = 0; i < 16; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            visited.push_back(focus());
        }
        EXPECT_THAT(visited, ElementsAre("Meta", "txtOrganizacion", "cmdOrganizacion", "txtPersona", "cmdPersona",
                                         "Descripcion", "Monto", "Temperatura", "Color", "Agente",
                                         "lstActividades", "cmdAgregar", "cmdEditar", "cmdReprogramar", "cmdHecha",
                                         "cmdAceptar", "cmdCancelar"));
        QTest::keyClick(&window, Qt::Key_V, Qt::AltModifier);
        EXPECT_EQ(focus(), "lstActividades");
        QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier);
    });
    opens();
}

TEST_F(ProjectEditor, the_patches_of_the_colours_are_made_once)
{
    const std::vector<Choice> first = colours();
    const std::vector<Choice> second = colours();
    for (std::size_t i = 0; i < first.size(); ++i) {
        EXPECT_EQ(first.at(i).icon.cacheKey(), second.at(i).icon.cacheKey())
            << "or each window would leave its own in the toolkit's cache";
        EXPECT_NE(first.at(i).icon.cacheKey(), first.at((i + 1) % first.size()).icon.cacheKey());
    }
}

} // namespace
} // namespace dn::host::tests
