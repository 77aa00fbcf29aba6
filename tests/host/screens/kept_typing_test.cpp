// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What was being typed when the server went away: the note, where it stood, and the place of the cursor.

#include "tests/host/screens/losing_the_server.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QTextCursor>

#include <utility>

namespace dn::host::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class TypingOn : public LosingTheServer {
protected:
    /// Luz is selected, and a note for her begun.
    void types(const char* text)
    {
        selects(elements().prospects.lvw, "K1");
        in("txtText").setFocus();
        presses(in("txtText"), text);
    }
    /// The server was away, and the operator is back.
    void losesAndFinds()
    {
        server->restart();
        ASSERT_TRUE(goesOn()) << bar();
    }
    QPlainTextEdit& note() { return in<QPlainTextEdit>("txtText"); }
};

TEST_F(TypingOn, goes_on_at_the_cursor_with_what_was_marked)
{
    opens(desk::prospectos);
    types("pide precios hoy");
    QTextCursor mark = note().textCursor();
    mark.setPosition(12);
    mark.setPosition(5, QTextCursor::KeepAnchor);
    note().setTextCursor(mark);
    losesAndFinds();
    EXPECT_EQ(focus(), "txtText");
    EXPECT_EQ(note().textCursor().anchor(), 12);
    EXPECT_EQ(note().textCursor().position(), 5);
    presses(*QApplication::focusWidget(), "planos");
    EXPECT_EQ(elements().detail.txtText.Text(), "pide planos hoy");
}

TEST_F(TypingOn, a_note_that_is_longer_than_the_server_takes_stays_with_its_operator)
{
    reach(*server)->execute("SET GLOBAL max_allowed_packet = 65536");
    opens(desk::prospectos);
    selects(elements().prospects.lvw, "K1");
    note().setFocus();
    const std::string longer(100'000, 'x');
    note().setPlainText(QString::fromStdString(longer));
    operatorAt.expect("MsgBox", [](QWidget& box) { dn::tests::pressButton(box, "Aceptar"); });
    QTest::keyClick(&note(), Qt::Key_Return);
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(elements().detail.txtText.Text(), longer);
    EXPECT_THAT(notes(), IsEmpty());
}

TEST_F(TypingOn, goes_on_in_the_search)
{
    opens(desk::prospectos);
    QLineEdit& search = line(*window, "txtBuscar");
    search.setFocus();
    presses(search, "rita");
    search.setSelection(3, -2);
    losesAndFinds();
    EXPECT_EQ(focus(), "txtBuscar");
    EXPECT_EQ(search.text(), "rita");
    EXPECT_EQ(search.cursorPosition(), 1);
    EXPECT_EQ(search.selectedText(), "it");
}

TEST_F(TypingOn, goes_on_in_the_list)
{
    opens(desk::prospectos);
    selects(elements().prospects.lvw, "K1");
    in("lvw").setFocus();
    losesAndFinds();
    EXPECT_EQ(focus(), "lvw");
}

TEST_F(TypingOn, the_button_that_connects_takes_the_keyboard_from_nobody)
{
    opens(desk::prospectos, once());
    types("pide precios");
    server->kill();
    ASSERT_TRUE(tells("Nuevo intento")) << bar();
    server->restart();
    clicks("cmdReconectar");
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(focus(), "txtText");
    clicks("cmdCerrarAviso");
    EXPECT_EQ(focus(), "txtText");
}

TEST_F(TypingOn, a_tab_that_is_clicked_meanwhile_takes_no_note_away)
{
    opens(desk::prospectos);
    types("pide precios");
    server->kill();
    elements().top.lblItem(desk::prospectos).click();
    ASSERT_EQ(elements().detail.txtText.Text(), "");
    server->restart();
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(selected(elements().prospects.lvw), "K1");
    EXPECT_EQ(elements().detail.txtText.Text(), "pide precios");
    EXPECT_EQ(keptNote(), "");
}

TEST_F(TypingOn, another_tab_does_not_either)
{
    opens(desk::prospectos);
    types("pide precios");
    server->kill();
    elements().top.lblItem(desk::proyectos).click();
    server->restart();
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(elements().detail.txtText.Text(), "") << "it is for nobody here";
    EXPECT_EQ(keptNote(), "La nota que no se guardó dice: «pide precios»");
}

TEST_F(TypingOn, a_note_for_another_row_goes_beside_that_row)
{
    opens(desk::prospectos, once());
    types("pide");
    server->kill();
    ASSERT_TRUE(tells("Nuevo intento")) << bar();
    selects(elements().prospects.lvw, "K2");
    elements().detail.txtText.edit("no pide nada");
    elements().top.lblItem(desk::prospectos).click();
    server->restart();
    clicks("cmdReconectar");
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(selected(elements().prospects.lvw), "K2");
    EXPECT_EQ(elements().detail.txtText.Text(), "no pide nada");
    EXPECT_EQ(keptNote(), "La nota que no se guardó dice: «pide»");
}

TEST_F(TypingOn, a_note_that_was_stored_is_not_told_to_be_lost)
{
    opens(desk::prospectos);
    types("pide precios");
    QTest::keyClick(&note(), Qt::Key_Return);
    losesAndFinds();
    EXPECT_EQ(elements().detail.txtText.Text(), "");
    EXPECT_EQ(keptNote(), "");
    EXPECT_THAT(notes(), ElementsAre("1 pide precios"));
}

class ANoteWithoutItsRow : public TypingOn {
protected:
    void SetUp() override
    {
        opens(desk::prospectos, once());
        types("pide precios");
        reach(*server)->execute("UPDATE ut_icontact SET uf_IEjecutivo = 9 WHERE Sys_PK = 1");
        server->restart();
        ASSERT_TRUE(goesOn()) << bar();
    }

    const std::string told = "La nota que no se guardó dice: «pide precios»";
};

TEST_F(ANoteWithoutItsRow, is_told)
{
    EXPECT_EQ(elements().detail.txtText.Text(), "") << "not beside another prospect";
    EXPECT_EQ(keptNote(), told);
    clicks("cmdCerrarAviso");
    EXPECT_EQ(bar(), "");
    server->kill();
    ASSERT_TRUE(tells("Se perdió"));
    EXPECT_EQ(keptNote(), "") << "it was read";
}

TEST_F(ANoteWithoutItsRow, is_told_on_through_another_loss_and_beside_another_note)
{
    elements().prospects.lvw.clickRow(0);
    elements().detail.txtText.edit("llamar el lunes");
    server->kill();
    ASSERT_TRUE(tells("Nuevo intento")) << bar();
    clicks("cmdReconectar");
    ASSERT_TRUE(QTest::qWaitFor([&] { return in<QLabel>("lblMotivo").isVisible(); }, 20'000));
    EXPECT_THAT(in<QLabel>("lblMotivo").text().toStdString(), HasSubstr("No se pudo abrir"));
    EXPECT_EQ(keptNote(), told);
    server->restart();
    reach(*server)->execute("UPDATE ut_icontact SET uf_IEjecutivo = 9");
    clicks("cmdReconectar");
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(keptNote(), told + "\nLa nota que no se guardó dice: «llamar el lunes»");
    server->restart();
    ASSERT_TRUE(tells("Nuevo intento")) << bar();
    EXPECT_FALSE(in("lblMotivo").isVisible()) << "that was the reason of an earlier loss";
}

TEST_F(TypingOn, a_long_note_that_is_told_leaves_the_control_its_room)
{
    opens(desk::prospectos, once());
    types("x");
    QString lines;
    for (int line = 1; line <= 300; ++line)
        lines += QString("línea %1\n").arg(line);
    note().setPlainText(lines);
    reach(*server)->execute("UPDATE ut_icontact SET uf_IEjecutivo = 9 WHERE Sys_PK = 1");
    const QSize before = window->size();
    server->restart();
    ASSERT_TRUE(goesOn()) << bar();
    QApplication::processEvents();
    EXPECT_EQ(window->size(), before);
    EXPECT_LT(in("BarraDeConexion").height(), window->height() / 2);
    EXPECT_THAT(keptNote(), testing::EndsWith("línea 300\n»")) << "it is scrolled to";
    EXPECT_EQ(focus(), "txtText") << "what is told takes the keyboard from nobody";
}

TEST_F(TypingOn, a_note_that_grew_since_a_start_that_came_to_nothing_is_told)
{
    opens(desk::prospectos, once());
    types("pide");
    bool again = false;
    const auto standing = elements().detail.txtText.Change.connect([&] {
        if (elements().detail.txtText.Text() == "pide" && !std::exchange(again, true)) server->kill();
    });
    server->restart();
    ASSERT_TRUE(tells("Nuevo intento en 60 s.")) << bar();
    ASSERT_TRUE(again);
    EXPECT_FALSE(window->ready());
    presses(note(), " precios");
    ASSERT_EQ(elements().detail.txtText.Text(), "pide precios");
    server->restart();
    clicks("cmdReconectar");
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(elements().detail.txtText.Text(), "pide");
    EXPECT_EQ(keptNote(), "La nota que no se guardó dice: «pide precios»");
}

TEST_F(TypingOn, a_note_is_told_where_the_control_cannot_be_started_anew)
{
    opens(desk::prospectos, once());
    types("pide precios");
    server->kill();
    ASSERT_TRUE(tells("Nuevo intento")) << bar();
    server->restart();
    reach(*server)->execute("RENAME TABLE agente TO agente_fuera");
    operatorAt.expect("", [&](QWidget& box) {
        EXPECT_THAT(boxText(box), HasSubstr("agente"));
        EXPECT_EQ(keptNote(), "La nota que no se guardó dice: «pide precios»") << "he can read it already";
        dn::tests::pressButton(box, "Aceptar");
    });
    clicks("cmdReconectar");
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(keptNote(), "La nota que no se guardó dice: «pide precios»");
}

TEST_F(TypingOn, a_loss_before_the_box_that_tells_of_a_failed_start_is_made_good_behind_it)
{
    opens(desk::prospectos, once());
    types("pide precios");
    server->kill();
    ASSERT_TRUE(tells("Nuevo intento")) << bar();
    server->restart();
    reach(*server)->execute("RENAME TABLE agente TO agente_fuera");
    operatorAt.expect("", [&](QWidget& box) {
        reach(*server)->execute("RENAME TABLE agente_fuera TO agente");
        server->kill();
        EXPECT_TRUE(tells("Nuevo intento")) << bar();
        server->restart();
        reach(*server)->execute("INSERT INTO ut_icontact (Sys_PK, uf_Nombre, uf_IEjecutivo, uf_Fecha) VALUES "
                                "(4, 'Noé', 7, '2026-03-04')");
        clicks("cmdReconectar");
        EXPECT_TRUE(tells("Conexión restablecida")) << bar();
        EXPECT_FALSE(window->ready());
        dn::tests::pressButton(box, "Aceptar");
    });
    clicks("cmdReconectar");
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(elements().top.cbAgente.Text(), "Ana");
    EXPECT_EQ(elements().prospects.lvw.ListItems().Count(), 3) << "what has come since is there";
    EXPECT_EQ(keptNote(), "La nota que no se guardó dice: «pide precios»");
}

TEST_F(TypingOn, the_summary_of_a_call_that_ends_meanwhile_is_there_to_be_registered)
{
    const std::string summary = "Se estableció llamada al 961 Con éxito. Resumen: quiere una visita";
    opens(desk::prospectos);
    selects(elements().prospects.lvw, "K1");
    clicks("cmdCall");
    server->kill();
    clicks("cmdContesta");
    clicks("cmdCallCon(6)");
    elements().call.txtResCall.edit("quiere una visita");
    operatorAt.expect("MsgBox", [](QWidget& box) { dn::tests::pressButton(box, "Aceptar"); });
    operatorAt.expect("dlgQueH", [](QWidget& question) { question.close(); });
    clicks("cmdOkCall");
    server->restart();
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(selected(elements().prospects.lvw), "K1");
    EXPECT_EQ(elements().detail.txtText.Text(), summary);
    clicks("cmdIntro");
    EXPECT_THAT(notes(), ElementsAre("1 " + summary));
}

TEST_F(TypingOn, a_dictated_note_is_there_to_be_registered)
{
    opens(desk::prospectos);
    elements().top.lblItem(desk::hoy).click();
    selects(elements().today.lvwHoy, "K1");
    operatorAt.expect("InputBox", [&](QWidget& box) {
        box.findChild<QLineEdit*>()->setText("pide precios");
        server->kill();
        dn::tests::pressButton(box, "Aceptar");
    });
    operatorAt.expect("MsgBox", [](QWidget& box) { dn::tests::pressButton(box, "Aceptar"); });
    clicks("cmdNote");
    server->restart();
    ASSERT_TRUE(goesOn()) << bar();
    EXPECT_EQ(selected(elements().today.lvwHoy), "K1");
    EXPECT_EQ(elements().detail.txtText.Text(), "pide precios");
}

} // namespace
} // namespace dn::host::tests
