// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The activities in the window of a project: they are stored with the project, or not at all.

#include "screen/qt/colours.h"
#include "screen/qt/theme.h"
#include "tests/host/screens/projects_at_work.h"

#include <QApplication>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QPushButton>
#include <QTest>

namespace dn::host::tests {
namespace {

using dn::tests::pressButton;
using testing::HasSubstr;

class Activities : public ProjectsAtWork {
protected:
    static std::vector<Row> stored()
    {
        return rows(
            "SELECT Sys_PK, IProyecto, ITpActividad, Asunto, FInicio, Hecho, Notas FROM actividad ORDER BY "
            "Sys_PK");
    }
    const Row done{"51", "41", "2", "Presentación", "2026-01-05 10:00:00", "1", "NULL"};
    const Row pending{"52", "41", "1", "Pedir datos", "2026-01-06 10:00:07", "0", "n"};

    static void presses(QWidget& window, Qt::Key key) { QTest::keyClick(&list(window), key); }
};

TEST_F(Activities, a_new_one_is_stored_column_by_column)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        presses(window, Qt::Key_Insert);
        EXPECT_EQ(listed(window).size(), 3U);
        EXPECT_EQ(value("SELECT COUNT(*) FROM actividad"), "2");
        pressButton(window, "Aceptar");
    });
    operatorAt.expect("NuevaActividad", [](QWidget& form) {
        fillsActivity(form, "280220261645", "Visita", " O'Neil \\ 50% 👍 ");
        QTest::keyClick(&form, Qt::Key_Return);
    });
    opens();
    const std::string key = value("SELECT MAX(Sys_PK) FROM actividad");
    EXPECT_EQ(stored(),
              (std::vector<Row>{
                  done, pending, {key, "41", "2", "O'Neil \\ 50% 👍", "2026-02-28 16:45:00", "0", "NULL"}}));
    EXPECT_EQ(value("SELECT " + isRecent("Sys_DTCreated") + " FROM actividad WHERE Sys_PK = " + key), "1");
}

TEST_F(Activities, the_space_bar_and_the_button_mark_as_done_and_back)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        presses(window, Qt::Key_Space);
        EXPECT_EQ(listed(window).at(0).at(0), "sí");
        EXPECT_EQ(window.findChild<QPushButton*>("cmdHecha")->text().remove('&').toStdString(), "No está hecha");
        QTest::mouseClick(window.findChild<QWidget*>("cmdHecha"), Qt::LeftButton);
        EXPECT_EQ(listed(window).at(0).at(0), "no");
        presses(window, Qt::Key_Space);
        presses(window, Qt::Key_Down);
        presses(window, Qt::Key_Space);
        pressButton(window, "Aceptar");
    });
    opens();
    Row nowPending = done;
    nowPending[5] = "0";
    Row nowDone = pending;
    nowDone[5] = "1";
    EXPECT_EQ(stored(), (std::vector<Row>{nowPending, nowDone}));
}

TEST_F(Activities, a_click_on_the_check_box_marks_it_too)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        const QRect cell = list(window).visualRect(list(window).model()->index(0, 0));
        QTest::mouseClick(list(window).viewport(), Qt::LeftButton, {},
                          cell.center() - QPoint(cell.width() / 2 - 12, 0));
        EXPECT_EQ(listed(window).at(0).at(0), "sí");
        pressButton(window, "Aceptar");
    });
    opens();
    EXPECT_EQ(value("SELECT Hecho FROM actividad WHERE Sys_PK = 52"), "1");
}

TEST_F(Activities, what_is_done_can_be_read_in_every_theme)
{
    using screen::qt::Scheme;
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        constexpr int toDo = 0; // it stands ahead of what is done
        constexpr int isDone = 1;
        const auto inkOf = [&](int row, int column) {
            return list(window).topLevelItem(row)->foreground(column).color();
        };
        for (const Scheme scheme : {Scheme::light, Scheme::dark, Scheme::whiteOnBlack, Scheme::blackOnWhite}) {
            window.setPalette(screen::qt::schemePalette(scheme));
            const QPalette shown = list(window).palette();
            for (int column = 1; column <= 3; ++column) {
                EXPECT_EQ(inkOf(toDo, column), shown.color(QPalette::Text));
                EXPECT_NE(inkOf(isDone, column), shown.color(QPalette::Text));
                for (const auto paper : {QPalette::Base, QPalette::AlternateBase})
                    EXPECT_GE(screen::qt::contrast(inkOf(isDone, column), shown.color(paper)),
                              screen::qt::readable)
                        << static_cast<int>(scheme) << ", column " << column;
            }
        }
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    opens();
}

TEST_F(Activities, putting_off_changes_the_date_alone)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        pressButton(window, "Cambiar fecha…");
        EXPECT_EQ(listed(window).at(0).at(1), "15/03/2026 09:00");
        pressButton(window, "Aceptar");
    });
    operatorAt.expect("EditarActividad", [](QWidget& form) {
        EXPECT_EQ(form.findChild<QDateTimeEdit*>("Fecha")->text().toStdString(), "06/01/2026 10:00");
        EXPECT_EQ(focus(), "Fecha");
        typesMoment(form, "Fecha", "150320260900");
        pressButton(form, "Aceptar");
    });
    opens();
    Row later = pending;
    later[4] = "2026-03-15 09:00:00";
    EXPECT_EQ(stored(), (std::vector<Row>{done, later}));
}

TEST_F(Activities, editing_reaches_every_column_and_leaves_the_notes)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        presses(window, Qt::Key_Return);
        pressButton(window, "Aceptar");
    });
    operatorAt.expect("EditarActividad", [](QWidget& form) {
        fillsActivity(form, "010420261530", "Visita", "Otra cosa");
        QTest::keyClick(form.findChild<QCheckBox*>("Hecho"), Qt::Key_Space);
        pressButton(form, "Aceptar");
    });
    opens();
    EXPECT_EQ(stored(), (std::vector<Row>{done, {"52", "41", "2", "Otra cosa", "2026-04-01 15:30:00", "1", "n"}}));
}

TEST_F(Activities, what_is_missing_is_said_below_its_field)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        pressButton(window, "Agregar…");
        EXPECT_EQ(listed(window).size(), 2U);
        pressButton(window, "Cancelar");
    });
    operatorAt.expect("NuevaActividad", [](QWidget& form) {
        pressButton(form, "Aceptar");
        EXPECT_EQ(messageBelow(form, "Tipo"), "Elija el tipo de actividad.");
        EXPECT_EQ(focus(), "Tipo");
        picks(form, "Tipo", "Llamada");
        pressButton(form, "Aceptar");
        EXPECT_EQ(messageBelow(form, "Asunto"), "Escriba el asunto de la actividad.");
        EXPECT_EQ(focus(), "Asunto");
        line(form, "Asunto").setText(QString(501, u'ñ'));
        pressButton(form, "Aceptar");
        EXPECT_THAT(messageBelow(form, "Asunto"), HasSubstr("Son 501 caracteres y caben 500"));
        QTest::keyClick(&form, Qt::Key_Escape);
    });
    opens();
    EXPECT_EQ(stored(), (std::vector<Row>{done, pending}));
}

TEST_F(Activities, without_kinds_it_says_whom_to_ask)
{
    server().execute("DELETE FROM mdtpactividad");
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        presses(window, Qt::Key_Insert);
        pressButton(window, "Cancelar");
    });
    operatorAt.expect("NuevaActividad", [](QWidget& form) {
        pressButton(form, "Aceptar");
        EXPECT_THAT(messageBelow(form, "Tipo"), HasSubstr("administrador"));
        pressButton(form, "Cancelar");
    });
    opens();
}

TEST_F(Activities, giving_up_the_project_gives_up_its_activities)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        presses(window, Qt::Key_Space);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    expectQuestion("sin guardar", "Cerrar sin guardar");
    opens();
    EXPECT_EQ(stored(), (std::vector<Row>{done, pending}));
}

TEST_F(Activities, a_date_that_is_missing_shows_as_such_and_stays)
{
    server().execute("UPDATE actividad SET FInicio = NULL WHERE Sys_PK = 52");
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        EXPECT_EQ(listed(window).at(0).at(1), "Sin fecha");
        presses(window, Qt::Key_F2);
        pressButton(window, "Aceptar");
    });
    operatorAt.expect("EditarActividad", [](QWidget& form) {
        EXPECT_EQ(form.findChild<QDateTimeEdit*>("Fecha")->text().toStdString(), "Sin fecha");
        types(form, "Asunto", "Sin prisa");
        pressButton(form, "Aceptar");
    });
    opens();
    EXPECT_EQ(rows("SELECT Asunto, FInicio FROM actividad WHERE Sys_PK = 52"),
              (std::vector<Row>{{"Sin prisa", "NULL"}}));
}

TEST_F(Activities, one_deleted_meanwhile_is_told_and_can_be_added_again)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        presses(window, Qt::Key_Space);
        types(window, "Descripcion", "También esto");
        server().execute("DELETE FROM actividad WHERE Sys_PK = 52");
        pressButton(window, "Aceptar");
        EXPECT_EQ(value("SELECT Descripcion FROM Proyecto"), "Licencias");
        pressButton(window, "Aceptar");
    });
    expectNotice("La actividad «Pedir datos» ya no existe");
    opens();
    EXPECT_EQ(value("SELECT Descripcion FROM Proyecto"), "También esto");
    EXPECT_EQ(rows("SELECT Asunto, Hecho FROM actividad WHERE Sys_PK > 52"),
              (std::vector<Row>{{"Pedir datos", "1"}}));
}

TEST_F(Activities, one_changed_meanwhile_in_the_same_column_is_told_and_overwritten_knowingly)
{
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        presses(window, Qt::Key_Return);
        server().execute("UPDATE actividad SET Asunto = 'De otro', FInicio = '2026-07-01' WHERE Sys_PK = 52");
        pressButton(window, "Aceptar");
        EXPECT_EQ(value("SELECT Asunto FROM actividad WHERE Sys_PK = 52"), "De otro");
        EXPECT_EQ(listed(window).at(0).at(3), "Mío");
        pressButton(window, "Aceptar");
    });
    operatorAt.expect("EditarActividad", [](QWidget& form) {
        types(form, "Asunto", "Mío");
        pressButton(form, "Aceptar");
    });
    expectNotice("Otra persona cambió la actividad «Pedir datos»");
    opens();
    EXPECT_EQ(rows("SELECT Asunto, FInicio FROM actividad WHERE Sys_PK = 52"),
              (std::vector<Row>{{"Mío", "2026-07-01 00:00:00"}}));
}

TEST_F(Activities, without_any_the_buttons_that_need_one_rest)
{
    server().execute("DELETE FROM actividad");
    operatorAt.expect("EditarProyecto", [](QWidget& window) {
        for (const char* name : {"cmdEditar", "cmdReprogramar", "cmdHecha"})
            EXPECT_FALSE(window.findChild<QPushButton*>(name)->isEnabled()) << name;
        presses(window, Qt::Key_Return);
        presses(window, Qt::Key_Space);
        EXPECT_TRUE(window.isVisible());
        pressButton(window, "Cancelar");
    });
    opens();
}

} // namespace
} // namespace dn::host::tests
