// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Typing in a prospect and correcting one, at the real windows.

#include "tests/stories/qt/window.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QScrollBar>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class EnteringAtTheWindow : public AtTheWindow {
protected:
    EnteringAtTheWindow()
    {
        for (const char* table : {"ut_InteresContacto", "ut_OrigenContacto", "ut_ReferenciaContacto"})
            database(std::string("DELETE FROM ") + table);
        database("INSERT INTO ut_InteresContacto (uf_Interes) VALUES ('Netoria'), ('Curso de ventas')");
        database("INSERT INTO ut_OrigenContacto (uf_Origen) VALUES ('Llamada'), ('Feria')");
        database("INSERT INTO ut_ReferenciaContacto (uf_Referencia) VALUES ('Un amigo'), ('Radio')");
    }

    /// Writes into the field with the focus and goes on to the next one.
    static void fills(const char* field, const char* text)
    {
        EXPECT_EQ(focus(), field);
        writes(text);
        key(Qt::Key_Tab);
    }
};

TEST_F(EnteringAtTheWindow, a_prospect_is_typed_in_with_the_keyboard_alone)
{
    opens(ana, false);
    hands.expect("dlgNuevoPros", [&](QWidget& window) {
        isLegible(window);
        fills("txtNombre", "María Ñúñez");
        fills("txtTelefono", "961 111 1111");
        fills("txtCorreo", "maria@example.com");
        fills("txtEmpresa", "Acme del Sureste");
        fills("txtPuesto", "Compras");
        fills("cPais", "");
        fills("cEdo", "Mich");
        fills("cCiudad", "Morelia");
        EXPECT_EQ(focus(), "cInteres");
        key(Qt::Key_Down); // the first of the list
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), "chk1");
        key(Qt::Key_Space);
        key(Qt::Key_Tab);
        fills("cObtencion", "Visita");
        fills("cReferencia", "Un amigo");
        EXPECT_EQ(focus(), "cNotas");
        writes("Pide precios");
        key(Qt::Key_Return);
        writes("por volumen.");
        EXPECT_EQ(focus(), "cNotas") << "Enter breaks the line";
        picture(window, "dlgNuevoPros");
        key(Qt::Key_Tab);
        EXPECT_EQ(focus(), "cmdOk");
        key(Qt::Key_Return);
    });
    widgetIn<QWidget>(widget, "cmdProsNewPros").setFocus();
    key(Qt::Key_Space);
    EXPECT_THAT(listed(), ElementsAre("María Ñúñez"));
    EXPECT_THAT(inTheDatabase("SELECT CONCAT_WS('|', uf_Nombre, uf_Telefono, uf_EMail, uf_Empresa, uf_Puesto, "
                              "uf_Pais, uf_Estado, uf_Ciudad, uf_Interes, uf_Comentarios) FROM ut_icontact"),
                ElementsAre("María Ñúñez|961 111 1111|maria@example.com|Acme del Sureste|Compras|MX|"
                            "Michoacán de Ocampo|Morelia|Curso de ventas|Obtenido: Visita\r\nReferencia: Un "
                            "amigo\r\nPide precios\r\npor volumen. "));
}

TEST_F(EnteringAtTheWindow, the_key_tab_goes_through_the_fields_in_order)
{
    opens(ana, false);
    hands.expect("dlgNuevoPros", [&](QWidget& window) {
        EXPECT_THAT(tabOrder(window), ElementsAre("txtNombre", "txtTelefono", "txtCorreo", "txtEmpresa",
                                                  "txtPuesto", "cPais", "cEdo", "cCiudad", "cInteres", "chk1",
                                                  "cObtencion", "cReferencia", "cNotas", "cmdOk", "cmdCancel"));
        key(Qt::Key_Escape);
    });
    clicks("cmdProsNewPros");
}

TEST_F(EnteringAtTheWindow, what_is_missing_is_told_and_the_keyboard_goes_there)
{
    opens(ana, false);
    hands.expect("dlgNuevoPros", [&](QWidget& window) {
        writes("Luz");
        key(Qt::Key_Return); // in a field of one line Enter accepts
        backTo(window);
        EXPECT_EQ(focus(), "txtNombre");
        writes(" Luna");
        key(Qt::Key_A, Qt::AltModifier); // the accelerator too; the button shows itself pressed for a while
        const QWidget* const phone = &widgetIn<QLineEdit>(window, "txtTelefono");
        EXPECT_TRUE(QTest::qWaitFor([&] { return window.focusWidget() == phone; }, 5000));
        backTo(window);
        EXPECT_EQ(focus(), "txtTelefono");
        EXPECT_EQ(widgetIn<QLineEdit>(window, "txtNombre").text(), QStringLiteral("Luz Luna"));
        key(Qt::Key_C, Qt::AltModifier);
    });
    hands.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(boxText(box), "Indique el nombre completo");
        key(Qt::Key_Return);
    });
    hands.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(boxText(box), "Indique el teléfono con clave LADA");
        key(Qt::Key_Return);
    });
    clicks("cmdProsNewPros");
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(EnteringAtTheWindow, a_refused_prospect_stays_in_its_window)
{
    opens(ana, false);
    cnn->refuses = [](std::string_view statement) { return statement.rfind("INSERT", 0) == 0; };
    hands.expect("dlgNuevoPros", [&](QWidget& window) {
        for (const char* text : {"María Ñúñez", "961 111 1111", "maria@example.com", "", "", "Perú"}) {
            writes(text);
            key(Qt::Key_Tab);
        }
        EXPECT_EQ(widgetIn<QComboBox>(window, "cEdo").currentText(), QStringLiteral("<No aplica>"));
        key(Qt::Key_Tab);
        fills("cCiudad", "Lima");
        fills("cInteres", "x");
        key(Qt::Key_Tab);
        fills("cObtencion", "x");
        writes("x");
        key(Qt::Key_Return);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(widgetIn<QLineEdit>(window, "cCiudad").text(), QStringLiteral("Lima"));
        pressButton(window, "Cancelar");
    });
    hands.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(boxText(box), "Lock wait timeout exceeded");
        pressButton(box, "Aceptar");
    });
    clicks("cmdProsNewPros");
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(EnteringAtTheWindow, long_notes_take_a_larger_window_and_a_bar_to_scroll_by)
{
    opens(ana, false);
    hands.expect("dlgNuevoPros", [&](QWidget& window) {
        auto& notes = widgetIn<QPlainTextEdit>(window, "cNotas");
        const QSize before = notes.size();
        notes.setFocus();
        for (int line = 0; line < 20; ++line) {
            writes("línea");
            key(Qt::Key_Return);
        }
        EXPECT_TRUE(notes.verticalScrollBar()->isVisible());
        const QSize smallest = window.size();
        window.resize(smallest + QSize(100, 200));
        EXPECT_TRUE(QTest::qWaitFor([&] { return notes.height() == before.height() + 200; }, 5000));
        EXPECT_EQ(notes.width(), before.width() + 100);
        EXPECT_EQ(widgetIn<QLineEdit>(window, "txtNombre").width(), before.width() + 100);
        picture(window, "dlgNuevoPros-larger");
        window.resize(100, 100);
        EXPECT_TRUE(QTest::qWaitFor([&] { return notes.size() == before; }, 5000)) << "no smaller than it came";
        EXPECT_EQ(window.size(), smallest);
        key(Qt::Key_Escape);
    });
    clicks("cmdProsNewPros");
}

TEST_F(EnteringAtTheWindow, a_drop_down_shows_what_was_learnt)
{
    opens(ana, false);
    hands.expect("dlgNuevoPros", [&](QWidget& window) {
        auto& combo = widgetIn<QComboBox>(window, "cInteres");
        EXPECT_EQ(combo.count(), 2);
        QTest::mouseClick(&combo, Qt::LeftButton, {}, {combo.width() - 8, combo.height() / 2});
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }, 5000));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() == nullptr; }, 5000));
        pressButton(window, "Cancelar");
    });
    clicks("cmdProsNewPros");
}

// ---- Correcting

TEST_F(EnteringAtTheWindow, a_prospect_is_corrected_with_the_keyboard_alone)
{
    prospect("Maria Nunes", {{"uf_EMail", "'maria@example.com'"},
                             {"uf_Telefono", "'961 111 1111'"},
                             {"uf_Empresa", "'Comercializadora Acme del Sureste, S.A. de C.V.'"},
                             {"uf_Puesto", "'Jefa de compras'"}});
    opens(ana, false);
    hands.expect("dlgCorregir", [&](QWidget& window) {
        isLegible(window);
        picture(window, "dlgCorregir");
        EXPECT_THAT(tabOrder(window), ElementsAre("txtNombre", "txtTelefono", "txtCorreo", "txtEmpresa",
                                                  "txtPuesto", "cmdHistorial", "cmdOk", "cmdCancel"));
        key(Qt::Key_A, Qt::ControlModifier);
        writes("María Ñúñez");
        key(Qt::Key_Return);
    });
    widgetIn<QWidget>(widget, "cmdEditC").setFocus();
    key(Qt::Key_Space);
    EXPECT_THAT(listed(), ElementsAre("María Ñúñez"));
    EXPECT_THAT(inTheDatabase("SELECT uf_Puesto FROM ut_icontact"), ElementsAre("Jefa de compras"));
}

TEST_F(EnteringAtTheWindow, escape_gives_a_correction_up_and_so_does_the_frame)
{
    prospect("Luz");
    opens(ana, false);
    hands.expect("dlgCorregir", [&](QWidget&) {
        writes("X");
        key(Qt::Key_Escape);
    });
    clicks("cmdEditC");
    hands.expect("dlgCorregir", [&](QWidget& window) {
        EXPECT_EQ(widgetIn<QLineEdit>(window, "txtNombre").text(), QStringLiteral("Luz"));
        window.close();
    });
    clicks("cmdEditC");
    EXPECT_THAT(listed(), ElementsAre("Luz"));
}

TEST_F(EnteringAtTheWindow, an_apostrophe_in_a_correction_is_told_over_its_window)
{
    prospect("Juana");
    opens(ana, false);
    hands.expect("dlgCorregir", [&](QWidget& window) {
        key(Qt::Key_End);
        writes(" d'Arc");
        key(Qt::Key_Return);
        backTo(window);
        EXPECT_EQ(widgetIn<QLineEdit>(window, "txtNombre").text(), QStringLiteral("Juana d'Arc"));
        key(Qt::Key_Escape);
    });
    hands.expect("MsgBox", [](QWidget& box) {
        EXPECT_THAT(boxText(box), testing::HasSubstr("SQL syntax"));
        EXPECT_EQ(box.parentWidget()->objectName(), QStringLiteral("dlgCorregir"));
        key(Qt::Key_Return);
    });
    clicks("cmdEditC");
    EXPECT_THAT(listed(), ElementsAre("Juana"));
}

} // namespace
} // namespace dn::tests
