// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What was being typed when the server went away: the note, where it stood, and the place of the cursor.

#include "tests/host/screens/losing_the_server.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QTextCursor>

namespace dn::host::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

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

} // namespace
} // namespace dn::host::tests
