// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One call of a prospect at the real window: with the mouse, and with the keyboard alone.

#include "tests/stories/qt/window.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QTableView>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class CallingAtTheWindow : public AtTheWindow {
protected:
    void SetUp() override
    {
        for (const char* name : {"Abel Canto", "María Ñúñez", "Zoé Pérez"})
            prospect(name, {{"uf_Telefono", "'5512345678'"}, {"uf_Empresa", "'Aceros del Norte'"}});
        opens(ana, false);
        backTo(widget);
    }

    /// The row of the middle one: the list goes from the newest to the oldest.
    void clicksMaria()
    {
        auto& list = widgetIn<QTableView>(widget, "lvw");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualRect(list.model()->index(1, 0)).center());
        QApplication::processEvents();
    }
    std::vector<std::string> log()
    {
        return inTheDatabase("SELECT uf_Mensaje FROM xt_biticontact ORDER BY Sys_PK");
    }
    std::string stored(const std::string& column)
    {
        return inTheDatabase("SELECT " + column + " FROM ut_icontact WHERE uf_Nombre = 'María Ñúñez'").at(0);
    }
    void legible(const char* panel)
    {
        QWidget& box = widgetIn<QWidget>(widget, panel);
        EXPECT_TRUE(box.isVisible()) << panel;
        for (const QAbstractButton* button : box.findChildren<QAbstractButton*>())
            EXPECT_LE(button->minimumSizeHint().width(), button->width()) << button->objectName().toStdString();
    }
};

TEST_F(CallingAtTheWindow, with_the_mouse)
{
    clicksMaria();
    clicks("cmdCall");
    legible("picLlamando");
    EXPECT_EQ(widgetIn<QLabel>(widget, "lbltel").text(), QStringLiteral("55-12-34-56-78"));
    EXPECT_FALSE(widgetIn<QWidget>(widget, "lvw").isEnabled());
    picture(widget, "call-1-ringing");
    clicks("cmdContesta");
    legible("picContacto");
    picture(widget, "call-2-on-the-line");
    clicks("cmdCallCon(6)");
    legible("picResumen");
    writes("Pide precios");
    picture(widget, "call-3-summary");
    hands.expect("dlgQueH", [&](QWidget& window) {
        isLegible(window);
        picture(window, "dlgQueH");
        pressButton(window, "Agendar una próxima llamada");
        pressButton(window, "Aceptar");
    });
    hands.expect("dlgAgendarContacto", [&](QWidget& window) {
        isLegible(window);
        picture(window, "dlgAgendarContacto");
        key(Qt::Key_Up); // from the first option there is no way up
        key(Qt::Key_Down);
        EXPECT_FALSE(widgetIn<QComboBox>(window, "cmbTiempo").isEnabled());
        picture(window, "dlgAgendarContacto-day");
        key(Qt::Key_Up);
        pressButton(window, "Aceptar");
    });
    hands.expect("MsgBox", [&](QWidget& box) {
        EXPECT_THAT(boxText(box), HasSubstr("¿Seguro desea programar el contacto para: "));
        picture(box, "call-4-confirmation");
        pressButton(box, "Sí");
    });
    clicks("cmdOkCall");
    EXPECT_FALSE(widgetIn<QWidget>(widget, "picLlamada").isVisible());
    EXPECT_TRUE(widgetIn<QWidget>(widget, "lvw").isEnabled());
    picture(widget, "call-5-over");
    EXPECT_THAT(log(), ElementsAre("Se estableció llamada al 5512345678 Con éxito. Resumen: Pide precios"));
    EXPECT_EQ(stored("uf_res_ultimointento"), "50");
    EXPECT_NE(stored("uf_proxcontac"), "NULL");
}

TEST_F(CallingAtTheWindow, with_the_keyboard_alone)
{
    widgetIn<QWidget>(widget, "lvw").setFocus();
    key(Qt::Key_Home);
    key(Qt::Key_Down);
    key(Qt::Key_F8);
    EXPECT_EQ(focus(), "cmdContesta");
    EXPECT_EQ(widget.control().Call_Tel(), "5512345678");
    key(Qt::Key_Space);
    EXPECT_EQ(focus(), "cmdCallCon(0)");
    for (int i = 1; i <= 6; ++i)
        key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "cmdCallCon(6)");
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), "txtResCall");
    writes("Volver a llamar");
    key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "cmdOkCall");
    hands.expect("dlgQueH", [&](QWidget& window) {
        EXPECT_EQ(focus(), "Option1");
        EXPECT_THAT(tabOrder(window), ElementsAre("Option1", "Option2", "Option3", "Option4", "cmdMail", "cmdOk"));
        key(Qt::Key_Return); // nothing is marked yet
        backTo(window);
        key(Qt::Key_Down);
        EXPECT_EQ(focus(), "Option2");
        key(Qt::Key_Up); // the arrows choose
        picture(window, "dlgQueH-chosen");
        key(Qt::Key_Return);
    });
    hands.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(boxText(box), "Debe seleccionar una opción");
        key(Qt::Key_Return);
    });
    hands.expect("dlgAgendarContacto", [&](QWidget& window) {
        EXPECT_EQ(focus(), "opt1");
        EXPECT_THAT(tabOrder(window), ElementsAre("opt1", "cmbTiempo", "cmbMedida", "opt2", "cmdOk", "cmdCancel"));
        key(Qt::Key_Tab);
        writes("3");
        EXPECT_EQ(widgetIn<QComboBox>(window, "cmbTiempo").currentText(), QStringLiteral("3"));
        EXPECT_EQ(widgetIn<QComboBox>(window, "cmbMedida").currentText(), QStringLiteral("Horas"));
        key(Qt::Key_A, Qt::AltModifier);
    });
    hands.expect("MsgBox", [](QWidget&) { key(Qt::Key_Return); });
    key(Qt::Key_Space);
    backTo(widget);
    EXPECT_EQ(focus(), "lvw");
    EXPECT_THAT(log(), ElementsAre("Se estableció llamada al 5512345678 Con éxito. Resumen: Volver a llamar"));
    EXPECT_NE(stored("uf_proxcontac"), "NULL");
}

TEST_F(CallingAtTheWindow, with_the_keys_of_its_buttons)
{
    clicksMaria();
    widgetIn<QWidget>(widget, "lvw").setFocus();
    key(Qt::Key_F8);
    key(Qt::Key_1, Qt::ControlModifier);
    hands.expect("InputBox", [](QWidget&) { key(Qt::Key_Escape); }); // no way out
    hands.expect("InputBox", [](QWidget&) {
        writes("habla otra lengua");
        key(Qt::Key_Return);
    });
    hands.expect("dlgQueH", [](QWidget& window) { window.close(); });
    key(Qt::Key_6, Qt::ControlModifier);
    EXPECT_THAT(log(), ElementsAre("Se estableció llamada al: 5512345678 pero no se pudo contactar al prospecto. "
                                   "<habla otra lengua>"));
    EXPECT_EQ(stored("uf_res_ultimointento"), "16");
    backTo(widget);
    key(Qt::Key_F8);
    EXPECT_TRUE(widget.control().Call_Progress());
    hands.expect("dlgQueH", [](QWidget&) { key(Qt::Key_Escape); });
    key(Qt::Key_Escape);
    EXPECT_FALSE(widget.control().Call_Progress());
    EXPECT_EQ(log().size(), 1U);
    EXPECT_THAT(widgetIn<QWidget>(widget, "cmdCall").toolTip().toStdString(), HasSubstr("Llamar (F8)"));
}

TEST_F(CallingAtTheWindow, enter_on_a_row_asks_what_to_do_without_a_call)
{
    widgetIn<QWidget>(widget, "lvw").setFocus();
    hands.expect("dlgQueH", [](QWidget&) { key(Qt::Key_Escape); });
    key(Qt::Key_Return);
    EXPECT_THAT(log(), IsEmpty());
    backTo(widget);
    EXPECT_EQ(focus(), "lvw");
}

} // namespace
} // namespace dn::tests
