// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/qt/board.h"

#include "tests/support/recording_connection.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace dn::tests {

MouseWatch::MouseWatch() { qApp->installEventFilter(this); }

bool MouseWatch::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
        ++seen;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

AtTheBoard::AtTheBoard()
    : hostScreens(
          [this] {
              auto connection = std::make_unique<RecordingConnection>(connect());
              connection->refuses = [this](std::string_view statement) {
                  return hostRefuses && hostRefuses(statement);
              };
              return connection;
          },
          &widget)
{
    screens = &hostScreens;
    database("DELETE FROM mdtpactividad");
    database("INSERT INTO mdtpactividad (Sys_PK, Nombre) VALUES (1, 'Visita')");
    database("INSERT INTO Ciudad (Sys_PK, Nombre) VALUES (3, 'Tuxtla Gutiérrez'), (4, 'San Cristóbal'), "
             "(5, 'San Juan')");
    database("UPDATE Organizacion SET Tel1 = NULL, Tel2 = NULL, Tel3 = '5512345678' WHERE Sys_PK = 1");
    database("INSERT INTO Proyecto (Sys_PK, Descripcion, IEjecutivo, IMeta, IOrganizacion, IContacto, UF_Status1) "
             "VALUES (31, 'Silo', 7, 1, 1, 1, 1), (32, 'Molino', 7, 1, 1, 1, 5), (33, 'Granero', 7, 1, 1, 1, 4)");
    database("INSERT INTO actividad (IProyecto, ITpActividad, Asunto, FInicio) VALUES "
             "(31, 1, 'Enseñar los planos', '2026-03-15 09:30:15'), (32, 1, 'Firmar', '2026-03-16 10:00:00')");
}

void AtTheBoard::clicksTab(int tab)
{
    const std::string name = "lblItem(" + std::to_string(tab) + ")";
    QTest::mouseClick(&widgetIn<QWidget>(widget, name.c_str()), Qt::LeftButton);
    QApplication::processEvents();
}

void AtTheBoard::clicksRow(const char* list, int row)
{
    auto& table = widgetIn<QTableView>(widget, list);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.visualRect(table.model()->index(row, 1)).center());
    QApplication::processEvents();
}

std::string AtTheBoard::shown(const char* list, int row, int column)
{
    QApplication::processEvents();
    return widgetIn<QTableView>(widget, list).model()->index(row, column).data().toString().toStdString();
}

int AtTheBoard::selectedRow(const char* list)
{
    QApplication::processEvents();
    return widgetIn<QTableView>(widget, list).currentIndex().row();
}

std::string AtTheBoard::text(const char* box)
{
    return widgetIn<QPlainTextEdit>(widget, box).toPlainText().toStdString();
}

void AtTheBoard::fillsProject(QWidget& window, const char* organisation, const char* what)
{
    EXPECT_EQ(focus(), "Meta");
    writes("Venta");
    key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "txtOrganizacion");
    writes(organisation);
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }, 5000));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(QApplication::activePopupWidget()));
    QApplication::processEvents();
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    backTo(window);
    key(Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(focus(), "Descripcion");
    writes(what);
    key(Qt::Key_Return);
}

std::vector<std::string> AtTheBoard::everything()
{
    std::vector<std::string> rows;
    for (const char* statement :
         {"SELECT CONCAT_WS('|', 'prospecto', uf_Nombre, uf_Status, IFNULL(uf_NotaStatus, '-'), uf_FechaStatus IS "
          "NOT NULL, IFNULL(uf_color, '-')) FROM ut_icontact ORDER BY Sys_PK",
          "SELECT CONCAT_WS('|', 'persona', Nombre, Domicilio, Colonia, ICiudad, Tel_Trabajo, IFNULL(Tel_Movil, "
          "'-'), EMail, IFNULL(EMail2, '-'), IEjecutivo) FROM Persona WHERE Sys_PK > 2 ORDER BY Sys_PK",
          "SELECT CONCAT_WS('|', 'proyecto', Descripcion, (SELECT Nombre FROM Persona p WHERE p.Sys_PK = "
          "IContacto), IEjecutivo) FROM Proyecto WHERE Sys_PK > 33 ORDER BY Sys_PK",
          "SELECT CONCAT_WS('|', 'bitácora', uf_Mensaje, uf_Usuario, uf_Iicontact > 0, IFNULL(uf_IProy, '-')) "
          "FROM "
          "xt_biticontact ORDER BY Sys_PK"})
        for (std::string& row : inTheDatabase(statement))
            rows.push_back(std::move(row));
    return rows;
}

std::vector<std::string> AtTheBoard::log()
{
    return inTheDatabase(
        "SELECT CONCAT_WS('|', IFNULL(uf_Iicontact, '-'), IFNULL(uf_IProy, '-'), uf_Mensaje) FROM "
        "xt_biticontact ORDER BY Sys_PK");
}

} // namespace dn::tests
