// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The export and the group tool at their real windows, with the mouse and with the keyboard alone.

#include "tests/stories/qt/window.h"
#include "tests/stories/with_projects.h"
#include "tests/support/table_files.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ExportingAtTheWindow : public WithProjects<AtTheWindow> {
protected:
    ExportingAtTheWindow()
    {
        prospect("Luz", {{"uf_Email", "'luz@example.com'"}, {"uf_Telefono", "'961'"}});
        prospect("Ana", {{"uf_Email", "'ana@example.com'"}});
        project(1, 1);
    }

    /// In the save dialog: chooses the kind and types the name.
    void saves(const QString& name, int kind)
    {
        hands.expect("ShowSave", [=, this](QWidget& window) {
            auto& dialog = dynamic_cast<QFileDialog&>(window);
            dialog.setDirectory(QString::fromStdString(folder.file("")));
            dialog.selectNameFilter(dialog.nameFilters()[kind - 1]);
            dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
            pressButton(dialog, "Guardar");
        });
    }

    static std::string shown(const QTableView& grid, int row, int column)
    {
        return grid.model()->index(row, column).data().toString().toStdString();
    }

    OutputFolder folder;
};

TEST_F(ExportingAtTheWindow, lists_are_filtered_shown_copied_changed_and_saved_with_the_keyboard)
{
    opens(0, true);
    hands.expect("dlgFiltro", [&](QWidget& window) {
        isLegible(window);
        EXPECT_EQ(focus(), "chkContactos");
        EXPECT_THAT(tabOrder(window),
                    ElementsAre("chkContactos", "chkProyectos", "dxEjecutivo.InnerList", "dxStatus.InnerList",
                                "chkStatus", "dxMeta.InnerList", "chkMeta", "dxColor.InnerList", "chkColor",
                                "dxEstado.InnerList", "chkEstado", "cCerrado", "cPerdidos", "cmdExportar",
                                "cmdCancel"));
        key(Qt::Key_Space);
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), "chkProyectos");
        key(Qt::Key_Space);
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), "dxEjecutivo.InnerList");
        writes("ana");
        EXPECT_EQ(widgetIn<QComboBox>(window, "dxEjecutivo.InnerList").currentText(), QStringLiteral("Ana"));
        picture(window, "dlgFiltro");
        key(Qt::Key_Return);
        backTo(window);
        EXPECT_EQ(focus(), "dxEjecutivo.InnerList");
        key(Qt::Key_Escape);
    });
    hands.expect("dlgShow", [&](QWidget& window) {
        isLegible(window);
        EXPECT_EQ(focus(), "dxGrid");
        EXPECT_THAT(tabOrder(window), ElementsAre("dxGrid", "cmdExport", "cmdCerrar"));
        auto& grid = widgetIn<QTableView>(window, "dxGrid");
        EXPECT_EQ(widgetIn<QLabel>(window, "lblTotal").text(), QStringLiteral("Total de Registros: 3"));
        for (const auto& [column, width] :
             {std::pair(0, 200), std::pair(1, 200), std::pair(2, 150), std::pair(3, 150)})
            EXPECT_EQ(grid.columnWidth(column), width);
        EXPECT_FALSE(grid.horizontalScrollBar()->isVisible()) << "all columns fit";
        EXPECT_EQ(shown(grid, 2, 2), "sol@example.com;rosa@example.com");
        key(Qt::Key_A, Qt::ControlModifier);
        key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
                  "Luz\t\tluz@example.com\t961\nAna\t\tana@example.com\t\n"
                  "Rosa Ñuño \tCafé «El Sol»\tsol@example.com;rosa@example.com\t55;961");
        EXPECT_EQ(focus(), "dxGrid");
        key(Qt::Key_Home, Qt::ControlModifier);
        key(Qt::Key_F2);
        EXPECT_EQ(focus(), "dxGrid.cell");
        writes("Lucía");
        picture(window, "dlgShow-cell");
        key(Qt::Key_Return);
        EXPECT_EQ(focus(), "dxGrid");
        EXPECT_EQ(shown(grid, 0, 0), "Lucía");
        key(Qt::Key_F2);
        key(Qt::Key_Escape);
        EXPECT_TRUE(window.isVisible()) << "the key left the cell and not the window";
        EXPECT_EQ(focus(), "dxGrid");
        key(Qt::Key_Down, Qt::ShiftModifier);
        key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Lucía\nAna"));
        picture(window, "dlgShow");
        saves(QStringLiteral("correos"), 1);
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), "cmdExport");
        key(Qt::Key_Space);
        backTo(window);
        saves(QStringLiteral("correos.xls"), 2);
        key(Qt::Key_Space);
        backTo(window);
        hands.expect("ShowSave", [](QWidget& dialog) { pressButton(dialog, "Cancelar"); });
        key(Qt::Key_Space);
        backTo(window);
        EXPECT_EQ(focus(), "cmdExport");
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), "cmdCerrar");
        key(Qt::Key_Space);
    });
    widget.control().ExportarListas();
    EXPECT_THAT(folder.names(), ElementsAre("correos", "correos.xls"));
    EXPECT_THAT(contentsOf(folder.file("correos")), testing::StartsWith("\xD0\xCF\x11\xE0"));
    EXPECT_THAT(contentsOf(folder.file("correos.xls")), HasSubstr("<td>Lucía</td>"));
    EXPECT_THAT(inTheDatabase("SELECT uf_Nombre FROM ut_icontact ORDER BY Sys_PK"), ElementsAre("Luz", "Ana"))
        << "a cell that was changed is no row of the database";
}

TEST_F(ExportingAtTheWindow, every_filter_is_reached_and_set_with_the_keyboard)
{
    opens(0, true);
    hands.expect("dlgFiltro", [&](QWidget& window) {
        const auto at = [](const char* field) { EXPECT_EQ(focus(), field); };
        const auto marks = [&](const char* box, bool mark = true) {
            at(box);
            if (mark) key(Qt::Key_Space);
            key(Qt::Key_Tab);
        };
        const auto chooses = [&](const char* field, const char* letters) {
            at(field);
            writes(letters);
            key(Qt::Key_Tab);
        };
        marks("chkContactos");
        marks("chkProyectos");
        chooses("dxEjecutivo.InnerList", "ana");
        chooses("dxStatus.InnerList", "opor");
        marks("chkStatus");
        chooses("dxMeta.InnerList", "venta");
        marks("chkMeta", false);
        chooses("dxColor.InnerList", "negro");
        marks("chkColor");
        chooses("dxEstado.InnerList", "tibio");
        marks("chkEstado", false);
        marks("cCerrado");
        marks("cPerdidos");
        at("cmdExportar");
        cnn->statements.clear();
        key(Qt::Key_Space);
        backTo(window);
        at("cmdExportar");
        key(Qt::Key_Tab);
        at("cmdCancel");
        key(Qt::Key_Space);
    });
    hands.expect("dlgShow", [](QWidget& window) {
        EXPECT_EQ(widgetIn<QLabel>(window, "lblTotal").text(), QStringLiteral("Total de Registros: 0"));
        EXPECT_EQ(focus(), "dxGrid");
        key(Qt::Key_Escape);
    });
    database("UPDATE ut_icontact SET uf_Status = 3");
    widget.control().ExportarListas();
    EXPECT_THAT(
        cnn->statements,
        ElementsAre("Select uf_Email, uf_Nombre, uf_Telefono, uf_Empresa FROM ut_icontact WHERE uf_iEjecutivo=7 "
                    "AND  uf_Status<>3",
                    testing::EndsWith(" WHERE Proyecto.IEjecutivo=7 AND  Proyecto.IMeta=1 AND  "
                                      "Proyecto.uf_color<>0 AND  Proyecto.uf_status1=3 AND  "
                                      "Proyecto.uf_status1<>5 AND  Proyecto.uf_status1<>6")));
}

TEST_F(ExportingAtTheWindow, the_grid_is_sorted_by_a_click_on_its_header)
{
    opens(0, true);
    hands.expect("dlgFiltro", [&](QWidget& window) {
        key(Qt::Key_Space);
        key(Qt::Key_Return);
        backTo(window);
        key(Qt::Key_Escape);
    });
    hands.expect("dlgShow", [&](QWidget& window) {
        auto& grid = widgetIn<QTableView>(window, "dxGrid");
        QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, {},
                          {grid.columnViewportPosition(0) + 20, 5});
        QApplication::processEvents();
        EXPECT_EQ(shown(grid, 0, 0), "Ana");
        key(Qt::Key_Escape);
    });
    widget.control().ExportarListas();
}

TEST_F(ExportingAtTheWindow, a_group_changes_hands_with_the_keyboard)
{
    database("UPDATE Proyecto SET uf_color = 1, uf_status1 = 3");
    opens(ana, true);
    widget.control().elements().top.lblItem(desk::proyectos).click();
    QApplication::processEvents();
    hands.expect("dlgTools", [&](QWidget& window) {
        isLegible(window);
        EXPECT_EQ(focus(), "cmdColor");
        EXPECT_THAT(tabOrder(window), ElementsAre("cmdColor", "Check1", "cmdEstado", "cmdEjecutivo", "cmdDestino",
                                                  "cmdCambiar", "cmdCerrar"));
        writes("rojo");
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), "Check1");
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), "cmdEstado");
        writes("tibios");
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), "cmdEjecutivo");
        writes("ana");
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), "cmdDestino");
        EXPECT_EQ(widgetIn<QComboBox>(window, "cmdDestino").currentIndex(), -1);
        writes("beto");
        picture(window, "dlgTools");
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), "cmdCambiar");
        key(Qt::Key_Space);
        backTo(window);
        EXPECT_EQ(focus(), "cmdCambiar");
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), "cmdCerrar");
        key(Qt::Key_Space);
    });
    hands.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(boxText(box), "¿Seguro desea ejecutar este proceso (es irreversible)?");
        const auto chosen = [] { return dynamic_cast<QAbstractButton&>(*QApplication::focusWidget()).text(); };
        EXPECT_EQ(chosen().remove(u'&'), QStringLiteral("No"));
        key(Qt::Key_Tab);
        EXPECT_EQ(chosen().remove(u'&'), QStringLiteral("Sí"));
        key(Qt::Key_Space);
    });
    hands.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(boxText(box), "Proceso completado.");
        key(Qt::Key_Return);
    });
    clicks("cmdNewProjTool");
    EXPECT_THAT(inTheDatabase("SELECT IEjecutivo FROM Proyecto"), ElementsAre("9"));
    EXPECT_THAT(cnn->statements, testing::Contains("UPDATE Proyecto SET IEjecutivo = 9  WHERE  uf_Color= 1  AND "
                                                   "uf_Status1 = 3 AND IEjecutivo = 7 "));
}

TEST_F(ExportingAtTheWindow, the_enter_key_refuses_an_irreversible_change)
{
    opens(ana, true);
    widget.control().elements().top.lblItem(desk::proyectos).click();
    QApplication::processEvents();
    hands.expect("dlgTools", [&](QWidget& window) {
        widgetIn<QComboBox>(window, "cmdDestino").setFocus();
        writes("beto");
        key(Qt::Key_Return);
        backTo(window);
        key(Qt::Key_Escape);
    });
    hands.expect("MsgBox", [](QWidget&) { key(Qt::Key_Return); });
    clicks("cmdNewProjTool");
    EXPECT_THAT(inTheDatabase("SELECT IEjecutivo FROM Proyecto"), ElementsAre("7"));
}

} // namespace
} // namespace dn::tests
