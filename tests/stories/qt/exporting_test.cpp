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

TEST_F(ExportingAtTheWindow, lists_are_filtered_shown_sorted_copied_and_saved_with_the_keyboard)
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
        key(Qt::Key_Space);
        key(Qt::Key_Tab);
        writes("ana");
        EXPECT_EQ(widgetIn<QComboBox>(window, "dxEjecutivo.InnerList").currentText(), QStringLiteral("Ana"));
        picture(window, "dlgFiltro");
        key(Qt::Key_Return);
        backTo(window);
        key(Qt::Key_Escape);
    });
    hands.expect("dlgShow", [&](QWidget& window) {
        isLegible(window);
        EXPECT_EQ(focus(), "dxGrid");
        EXPECT_THAT(tabOrder(window), ElementsAre("dxGrid", "cmdExport", "cmdCerrar"));
        auto& grid = widgetIn<QTableView>(window, "dxGrid");
        EXPECT_EQ(widgetIn<QLabel>(window, "lblTotal").text(), QStringLiteral("Total de Registros: 3"));
        EXPECT_EQ(grid.columnWidth(0), 200);
        EXPECT_EQ(grid.columnWidth(3), 150);
        EXPECT_EQ(shown(grid, 2, 2), "sol@example.com;rosa@example.com");
        QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, {},
                          {grid.columnViewportPosition(0) + 20, 5});
        EXPECT_EQ(shown(grid, 0, 0), "Ana");
        key(Qt::Key_End);
        key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
                  "Rosa Ñuño \tCafé «El Sol»\tsol@example.com;rosa@example.com\t55;961");
        picture(window, "dlgShow");
        saves(QStringLiteral("correos"), 1);
        key(Qt::Key_Tab);
        key(Qt::Key_Space);
        backTo(window);
        saves(QStringLiteral("correos.xls"), 2);
        key(Qt::Key_Space);
        backTo(window);
        hands.expect("ShowSave", [](QWidget& dialog) { pressButton(dialog, "Cancelar"); });
        key(Qt::Key_Space);
        backTo(window);
        key(Qt::Key_Escape);
    });
    widget.control().ExportarListas();
    EXPECT_THAT(folder.names(), ElementsAre("correos", "correos.xls"));
    EXPECT_THAT(contentsOf(folder.file("correos")), testing::StartsWith("\xD0\xCF\x11\xE0"));
    EXPECT_THAT(contentsOf(folder.file("correos.xls")), HasSubstr("<td>Rosa Ñuño </td>"));
}

TEST_F(ExportingAtTheWindow, a_group_changes_hands_with_clicks)
{
    opens(ana, true);
    widget.control().elements().top.lblItem(desk::proyectos).click();
    QApplication::processEvents();
    hands.expect("dlgTools", [&](QWidget& window) {
        isLegible(window);
        EXPECT_EQ(focus(), "cmdColor");
        EXPECT_THAT(tabOrder(window), ElementsAre("cmdColor", "Check1", "cmdEstado", "cmdEjecutivo", "cmdDestino",
                                                  "cmdCambiar", "cmdCerrar"));
        auto& receiver = widgetIn<QComboBox>(window, "cmdDestino");
        EXPECT_EQ(receiver.currentIndex(), -1);
        receiver.setFocus();
        writes("beto");
        picture(window, "dlgTools");
        QTest::mouseClick(&widgetIn<QAbstractButton>(window, "cmdCambiar"), Qt::LeftButton);
        backTo(window);
        key(Qt::Key_Escape);
    });
    hands.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(boxText(box), "¿Seguro desea ejecutar este proceso (es irreversible)?");
        pressButton(box, "Sí");
    });
    hands.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(boxText(box), "Proceso completado.");
        key(Qt::Key_Return);
    });
    clicks("cmdNewProjTool");
    EXPECT_THAT(inTheDatabase("SELECT IEjecutivo FROM Proyecto"), ElementsAre("9"));
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
