// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The window with what hangs together with a directory entry.

#include "tests/host/screens/projects_at_work.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

namespace dn::host::tests {
namespace {

using dn::tests::pressButton;
using testing::ElementsAre;
using testing::IsEmpty;

class Relations : public ProjectsAtWork {
protected:
    void SetUp() override
    {
        ProjectsAtWork::SetUp();
        server().execute(
            "INSERT INTO Proyecto (Sys_PK, IOrganizacion, IContacto, Descripcion, UF_Status1, FInicio) "
            "VALUES (42, 12, 21, 'Forja', 6, '2026-02-01'), (43, 11, 22, 'Otra', 1, NULL)");
    }
    void shows(std::int16_t kind, std::int32_t key, std::string caption = "Relaciones de prueba")
    {
        crm->MostrarRelaciones(kind, key, caption);
    }
    static std::string caption(QWidget& window, const char* name)
    {
        return window.findChild<QLabel*>(name)->text().remove('&').toStdString();
    }
    static void pressesOn(QWidget& window, const char* name, Qt::Key key)
    {
        list(window, name).setFocus();
        QTest::keyClick(&list(window, name), key);
    }
};

TEST_F(Relations, of_a_person_are_projects_activities_and_organisations)
{
    operatorAt.expect("MostrarRelaciones", [](QWidget& window) {
        EXPECT_EQ(window.windowTitle().toStdString(), "Relaciones del contacto: Ana López .");
        EXPECT_EQ(listed(window, "lstProyectos"),
                  (std::vector<Row>{{"01/02/2026", "Forja", "", "Perdido", ""},
                                    {"05/01/2026", "Licencias", "Venta de licencias", "Frío", "1,234.50"}}));
        EXPECT_EQ(listed(window, "lstActividades"),
                  (std::vector<Row>{{"06/01/2026 10:00", "Llamada", "Pedir datos", "", "Licencias"},
                                    {"05/01/2026 10:00", "Visita", "Presentación", "Sí", "Licencias"}}));
        EXPECT_EQ(listed(window, "lstPartes"),
                  (std::vector<Row>{{"Acero y Forja", "", ""}, {"Acme del Sureste", "9611111111", ""}}));
        EXPECT_EQ(caption(window, "lbllstProyectos"), "Proyectos (2)");
        EXPECT_EQ(caption(window, "lbllstPartes"), "Organizaciones (2)");
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    shows(0, ana, "Relaciones del contacto: Ana López .");
}

TEST_F(Relations, of_an_organisation_are_its_persons_by_work_and_by_projects)
{
    operatorAt.expect("MostrarRelaciones", [](QWidget& window) {
        EXPECT_EQ(listed(window, "lstProyectos"),
                  (std::vector<Row>{{"05/01/2026", "Licencias", "Venta de licencias", "Frío", "1,234.50"},
                                    {"Sin", "Otra", "", "Congelado", ""}}));
        EXPECT_EQ(listed(window, "lstPartes"),
                  (std::vector<Row>{{"Ana López", "9612222222", ""}, {"Bruno Díaz", "", ""}}));
        EXPECT_EQ(caption(window, "lbllstPartes"), "Personas (2)");
        pressButton(window, "Cerrar");
    });
    shows(1, acme);
}

TEST_F(Relations, enter_opens_the_project_and_its_change_shows_afterwards)
{
    operatorAt.expect("MostrarRelaciones", [](QWidget& window) {
        EXPECT_EQ(focus(), "lstProyectos");
        pressesOn(window, "lstProyectos", Qt::Key_Down);
        pressesOn(window, "lstProyectos", Qt::Key_Return);
        EXPECT_EQ(listed(window, "lstProyectos").at(1).at(1), "Renovación");
        EXPECT_EQ(list(window, "lstProyectos").currentIndex().row(), 1);
        pressesOn(window, "lstActividades", Qt::Key_Return);
        pressesOn(window, "lstPartes", Qt::Key_Return);
        EXPECT_EQ(listed(window, "lstPartes").at(0).at(0), "Acero Fino");
        pressButton(window, "Cerrar");
    });
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        types(window, "Descripcion", "Renovación");
        pressButton(window, "Aceptar");
    });
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        EXPECT_EQ(line(window, "Descripcion").text(), "Renovación");
        pressButton(window, "Cancelar");
    });
    operatorAt.expect("EditarOrganizacion", [](QWidget& window) {
        types(window, "Nombre", "Acero Fino");
        pressButton(window, "Aceptar");
    });
    shows(0, ana);
}

TEST_F(Relations, a_double_click_opens_the_person)
{
    operatorAt.expect("MostrarRelaciones", [](QWidget& window) {
        QTreeWidget& parties = list(window, "lstPartes");
        const QPoint at = parties.visualItemRect(parties.topLevelItem(0)).center();
        QTest::mouseClick(parties.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(parties.viewport(), Qt::LeftButton, {}, at);
        pressButton(window, "Cerrar");
    });
    operatorAt.expect("EditarPersona", [](QWidget& window) {
        EXPECT_EQ(line(window, "Nombre").text(), "Ana");
        pressButton(window, "Cancelar");
    });
    shows(1, acme);
}

TEST_F(Relations, of_one_who_has_none_are_empty_lists)
{
    server().execute("DELETE FROM Proyecto");
    operatorAt.expect("MostrarRelaciones", [](QWidget& window) {
        for (const char* name : {"lstProyectos", "lstActividades", "lstPartes"}) {
            EXPECT_THAT(listed(window, name), IsEmpty());
            pressesOn(window, name, Qt::Key_Return);
        }
        EXPECT_TRUE(window.isVisible());
        pressButton(window, "Cerrar");
    });
    shows(0, bruno);
}

TEST_F(Relations, of_nobody_are_told)
{
    expectNotice("ya no existe");
    shows(0, 0);
    expectNotice("ya no existe");
    shows(1, nobody);
}

TEST_F(Relations, hundreds_are_cut_off_and_the_window_says_so)
{
    server().execute("INSERT INTO Proyecto (IContacto, Descripcion) SELECT 22, seq FROM seq_1_to_600");
    operatorAt.expect("MostrarRelaciones", [](QWidget& window) {
        EXPECT_EQ(listed(window, "lstProyectos").size(), 500U);
        EXPECT_EQ(caption(window, "lbllstProyectos"), "Proyectos (los primeros 500)");
        pressButton(window, "Cerrar");
    });
    shows(0, bruno);
}

TEST_F(Relations, whichever_statement_of_its_opening_fails_it_is_told)
{
    expectNotice("ya no existe");
    shows(0, nobody); // the connection stands from here on
    for (int n = 0; n < 4; ++n) {
        failAfter(n);
        expectNotice("Lock wait timeout");
        shows(0, ana);
    }
}

TEST_F(Relations, a_project_that_cannot_be_opened_keeps_the_window)
{
    operatorAt.expect("MostrarRelaciones", [](QWidget& window) {
        server().execute("DELETE FROM Proyecto WHERE Sys_PK = 42");
        pressesOn(window, "lstProyectos", Qt::Key_Return);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(listed(window, "lstProyectos").size(), 1U);
        pressButton(window, "Cerrar");
    });
    expectNotice("ya no existe");
    shows(0, ana);
}

TEST_F(Relations, the_keyboard_reaches_each_list)
{
    operatorAt.expect("MostrarRelaciones", [](QWidget& window) {
        std::vector<std::string> visited{focus()};
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            visited.push_back(focus());
        }
        EXPECT_THAT(visited, ElementsAre("lstProyectos", "lstActividades", "lstPartes", "cmdCerrar"));
        QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier);
        EXPECT_EQ(focus(), "lstActividades");
        QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier);
    });
    shows(1, acme);
}

} // namespace
} // namespace dn::host::tests
