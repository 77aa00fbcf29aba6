// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A short day before the real window, from the first queue to the empty one: once with the mouse, once with the
// keyboard alone.

#include "tests/stories/qt/window.h"
#include "tests/stories/queued_projects.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QTableView>

#include <algorithm>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class TheQueueAtTheWindow : public AtTheWindow {
protected:
    void SetUp() override
    {
        fillCatalogues(*beside);
        due("María Ñúñez", "NOW() - INTERVAL 3 DAY");
        due("Luz Luna", "NOW() - INTERVAL 2 DAY");
        due("Pedro Páramo", "NULL");
        silo = openProject(*beside, "Silo", ana);
        pendingActivity(*beside, silo, "NOW() - INTERVAL 1 DAY");
        host.projects->newPerson = 501;
        host.projects->newProject = 88;
        host.log.during = [this](const std::string& call) {
            if (call == "EditarProyecto " + std::to_string(silo))
                database("UPDATE actividad SET FInicio = NOW() + INTERVAL 5 DAY");
        };
        opens(ana, false);
        backTo(widget);
    }

    void due(const std::string& name, const std::string& next)
    {
        prospect(name, {{"uf_Telefono", "'5512345678'"},
                        {"uf_EMail", "'a@b.mx'"},
                        {"uf_Empresa", "'Aceros del Norte'"},
                        {"uf_Puesto", "'Compras'"},
                        {"uf_proxcontac", next}});
    }
    /// The queue as it stands in the table, from top to bottom.
    std::vector<std::string> queued()
    {
        QApplication::processEvents();
        std::vector<std::string> names;
        const QAbstractItemModel& rows = *table().model();
        for (int row = 0; row < rows.rowCount(); ++row)
            names.push_back(rows.index(row, 2).data().toString().toStdString());
        return names;
    }
    QTableView& table() { return widgetIn<QTableView>(widget, "lvwHoy"); }
    QPoint rowOf(const std::string& name)
    {
        const auto names = queued();
        const auto at = static_cast<int>(std::find(names.begin(), names.end(), name) - names.begin());
        return table().visualRect(table().model()->index(at, 2)).center();
    }
    /// In the dialog of the next contact, from the second option on.
    static void picksNextMonth()
    {
        key(Qt::Key_Tab);
        key(Qt::Key_PageDown);
    }
    void clicksRow(const std::string& name)
    {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, rowOf(name));
        QApplication::processEvents();
    }
    std::string summary() { return widget.control().elements().detail.txtInfo.Text(); }
    std::vector<std::string> log()
    {
        return inTheDatabase("SELECT uf_Mensaje FROM xt_biticontact ORDER BY Sys_PK");
    }
    std::string stored(const std::string& column, const std::string& name)
    {
        return inTheDatabase("SELECT " + column + " FROM ut_icontact WHERE uf_Nombre = '" + name + "'").at(0);
    }
    void expectTheDayIsDone()
    {
        EXPECT_THAT(queued(), IsEmpty());
        EXPECT_FALSE(widgetIn<QWidget>(widget, "cmdEditHoy").isEnabled());
        EXPECT_FALSE(widgetIn<QWidget>(widget, "geProyFromContacto").isEnabled());
        EXPECT_THAT(log(), ElementsAre("pide planos", "No se pudo establecer llamada al: 5512345678 No contestan",
                                       ">> Descartado: ",
                                       "Se estableció llamada al: 5512345678 pero no se pudo contactar al "
                                       "prospecto. <Número equivocado>",
                                       ">> Descartado: no existe"));
        EXPECT_EQ(stored("CONCAT(uf_Status, '|', uf_res_ultimointento)", "María Ñúñez"), "0|2");
        EXPECT_EQ(stored("DATEDIFF(uf_proxcontac, CURRENT_DATE) >= 27", "María Ñúñez"), "1");
        EXPECT_EQ(stored("CONCAT(uf_Status, '|', uf_NotaStatus)", "Luz Luna"),
                  "1|Actualizado por creación de proyecto");
        EXPECT_EQ(stored("CONCAT(uf_Status, '|', uf_NotaStatus, '|', uf_res_ultimointento)", "Pedro Páramo"),
                  "1|no existe|13");
        EXPECT_THAT(
            host.log.calls,
            testing::IsSupersetOf({std::string("CrearPersona Luz Luna|Internal|Internal|1|5512345678||"
                                               "a@b.mx||7"),
                                   std::string("CrearProyecto 0 501"), "EditarProyecto " + std::to_string(silo)}));
    }

    std::int64_t silo = 0;
};

TEST_F(TheQueueAtTheWindow, with_the_mouse)
{
    QTest::mouseClick(&widgetIn<QAbstractButton>(widget, "lblItem(2)"), Qt::LeftButton);
    EXPECT_THAT(queued(), ElementsAre("María Ñúñez", "Luz Luna", "Silo", "Pedro Páramo"));
    picture(widget, "today-1-queue");

    clicksRow("Silo");
    EXPECT_THAT(summary(), HasSubstr("Proyecto de Silo"));
    QTest::mouseClick(widgetIn<QAbstractScrollArea>(widget, "txtText").viewport(), Qt::LeftButton);
    EXPECT_EQ(focus(), "txtText");
    writes("pide planos");
    clicks("cmdIntro");
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, rowOf("Silo"));
    EXPECT_THAT(queued(), ElementsAre("María Ñúñez", "Luz Luna", "Pedro Páramo"));

    clicksRow("María Ñúñez");
    clicks("cmdCall");
    picture(widget, "today-2-call");
    hands.expect("dlgQueH", [](QWidget& window) {
        pressButton(window, "Agendar una próxima llamada");
        pressButton(window, "Aceptar");
    });
    hands.expect("dlgAgendarContacto", [](QWidget& window) {
        pressButton(window, "Programar para el dìa y hora:");
        picksNextMonth();
        pressButton(window, "Aceptar");
    });
    hands.expect("MsgBox", [](QWidget& box) { pressButton(box, "Sí"); });
    clicks("cmdNoContestan");
    EXPECT_THAT(queued(), ElementsAre("Luz Luna", "Pedro Páramo"));

    clicksRow("Luz Luna");
    clicks("geProyFromContacto");
    EXPECT_THAT(queued(), ElementsAre("Pedro Páramo"));

    clicksRow("Pedro Páramo");
    clicks("cmdCall");
    clicks("cmdContesta");
    hands.expect("dlgQueH", [](QWidget& window) {
        pressButton(window, "Descartar");
        pressButton(window, "Aceptar");
    });
    hands.expect("InputBox", [](QWidget& box) {
        writes("no existe");
        pressButton(box, "Aceptar");
    });
    clicks("cmdCallCon(2)");
    picture(widget, "today-3-empty");
    expectTheDayIsDone();
}

TEST_F(TheQueueAtTheWindow, with_the_keyboard_alone)
{
    tabsTo("lblItem(0)");
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    EXPECT_EQ(focus(), "lblItem(2)");
    key(Qt::Key_Return);
    tabsTo("lvwHoy");
    EXPECT_THAT(queued(), ElementsAre("María Ñúñez", "Luz Luna", "Silo", "Pedro Páramo"));
    widget.control().elements().detail.txtInfo.Text("");
    key(Qt::Key_Space); // the row that is selected already
    EXPECT_THAT(summary(), HasSubstr("María Ñúñez"));
    EXPECT_EQ(focus(), "lvwHoy");

    key(Qt::Key_B, Qt::AltModifier); // the search row, which the panel covers
    EXPECT_EQ(focus(), "txtBuscar");
    writes("proyecto de silo");
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), "txtBuscar");
    EXPECT_THAT(summary(), HasSubstr("Proyecto de Silo"));

    tabsTo("lvwHoy");
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_THAT(summary(), HasSubstr("Proyecto de Silo"));
    hands.expect("InputBox", [](QWidget&) {
        writes("pide planos");
        key(Qt::Key_Return);
    });
    key(Qt::Key_F6);
    backTo(widget);
    EXPECT_EQ(focus(), "lvwHoy");
    key(Qt::Key_F2);
    EXPECT_THAT(queued(), ElementsAre("María Ñúñez", "Luz Luna", "Pedro Páramo"));
    EXPECT_EQ(focus(), "lvwHoy");

    key(Qt::Key_Home);
    key(Qt::Key_F8);
    EXPECT_EQ(focus(), "cmdContesta");
    hands.expect("dlgQueH", [](QWidget&) {
        EXPECT_EQ(focus(), "Option1");
        key(Qt::Key_Space);
        key(Qt::Key_Return);
    });
    hands.expect("dlgAgendarContacto", [](QWidget&) {
        EXPECT_EQ(focus(), "opt1");
        key(Qt::Key_Down);
        EXPECT_EQ(focus(), "opt2");
        picksNextMonth();
        key(Qt::Key_A, Qt::AltModifier);
    });
    hands.expect("MsgBox", [](QWidget&) { key(Qt::Key_Return); });
    key(Qt::Key_3, Qt::ControlModifier);
    backTo(widget);
    EXPECT_EQ(focus(), "lvwHoy");
    EXPECT_THAT(queued(), ElementsAre("Luz Luna", "Pedro Páramo"));

    key(Qt::Key_Home);
    tabsTo("geProyFromContacto");
    key(Qt::Key_Space);
    EXPECT_THAT(queued(), ElementsAre("Pedro Páramo"));

    tabsTo("lvwHoy");
    key(Qt::Key_F8);
    EXPECT_EQ(focus(), "cmdContesta");
    key(Qt::Key_Space);
    EXPECT_EQ(focus(), "cmdCallCon(6)");
    hands.expect("dlgQueH", [](QWidget&) {
        EXPECT_EQ(focus(), "Option1");
        for (int i = 0; i < 3; ++i)
            key(Qt::Key_Down);
        EXPECT_EQ(focus(), "Option4");
        key(Qt::Key_Return);
    });
    hands.expect("InputBox", [](QWidget&) {
        writes("no existe");
        key(Qt::Key_Return);
    });
    key(Qt::Key_3, Qt::AltModifier);
    backTo(widget);
    EXPECT_EQ(focus(), "lvwHoy");
    expectTheDayIsDone();
}

} // namespace
} // namespace dn::tests
