// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One call about a project at the real windows, from the row to the host's window of that project: with the mouse,
// with the keyboard alone, and from the queue of the day.

#include "tests/stories/qt/board.h"

#include <QLabel>
#include <QLineEdit>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class CallingAtTheBoard : public AtTheBoard {
protected:
    /// The host's window of a project comes: this happens in it, then it is closed with Escape.
    void opensProject(const char* name, std::function<void(QWidget&)> act = {})
    {
        hands.expect("EditarProyecto", [=, this](QWidget& window) {
            EXPECT_EQ(widgetIn<QLineEdit>(window, "Descripcion").text().toStdString(), name);
            EXPECT_FALSE(widget.control().Call_Progress()) << "the call has ended by then";
            if (act) act(window);
            key(Qt::Key_Escape);
        });
    }

    /// What a call writes into the project of that key, "-" for nothing.
    std::string stored(int project)
    {
        return inTheDatabase(
                   "SELECT CONCAT_WS('|', IFNULL(uf_res_ultimointento, '-'), IFNULL(uf_contactado, '-'), "
                   "uf_primercontac IS NOT NULL, uf_ultimocontac IS NOT NULL, uf_ultimointento IS NOT "
                   "NULL) FROM Proyecto WHERE Sys_PK = " +
                   std::to_string(project))
            .at(0);
    }

    void expectIdle()
    {
        EXPECT_FALSE(widget.control().Call_Progress());
        EXPECT_FALSE(widgetIn<QWidget>(widget, "picLlamada").isVisible());
        for (const char* usable : {"lvw", "lvwProy", "lvwHoy", "cmdCall"})
            EXPECT_TRUE(widgetIn<QWidget>(widget, usable).isEnabled()) << usable;
    }
};

TEST_F(CallingAtTheBoard, with_the_mouse)
{
    opens(ana, false);
    clicksTab(desk::proyectos);
    clicksRow("lvwProy", 1);
    EXPECT_EQ(widget.control().Call_Tel(), "5512345678") << "the third: the two ahead of it are null";
    clicks("cmdCall");
    EXPECT_EQ(widgetIn<QLabel>(widget, "lbltel").text(), QStringLiteral("55-12-34-56-78"));
    EXPECT_FALSE(widgetIn<QWidget>(widget, "lvwProy").isEnabled());
    picture(widget, "call-project-1-ringing");
    clicks("cmdContesta");
    clicks("cmdCallCon(6)");
    writes("Firman el lunes");
    opensProject("Molino", [&](QWidget& window) { picture(window, "call-project-2-window"); });
    clicks("cmdOkCall");
    expectIdle();
    EXPECT_THAT(log(),
                ElementsAre("0|32|Se estableció llamada al 5512345678 Con éxito. Resumen: Firman el lunes"));
    EXPECT_EQ(stored(32), "50|1|1|1|1");
    EXPECT_EQ(stored(31), "-|-|0|0|0");
    EXPECT_EQ(selectedRow("lvwProy"), 1);
    EXPECT_EQ(shown("lvwProy", 1, daysSinceContact), "0");
    EXPECT_EQ(shown("lvwProy", 0, daysSinceContact), "");
    EXPECT_THAT(text("txtBit"), StartsWith("ana ["));
    picture(widget, "call-project-3-over");
}

TEST_F(CallingAtTheBoard, with_the_keyboard_alone)
{
    const MouseWatch mouse;
    opens(ana, false);
    backTo(widget);
    tabsTo("lblItem(0)");
    key(Qt::Key_Right);
    EXPECT_EQ(focus(), "lblItem(1)");
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), "lblItem(1)");
    key(Qt::Key_Down);
    EXPECT_EQ(focus(), "lvwProy");
    key(Qt::Key_Home);
    key(Qt::Key_Down);
    EXPECT_EQ(shown("lvwProy", selectedRow("lvwProy"), description), "Molino");
    key(Qt::Key_F8);
    EXPECT_EQ(focus(), "cmdContesta");
    key(Qt::Key_Space);
    EXPECT_EQ(focus(), "cmdCallCon(6)");
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), "txtResCall");
    writes("Firman el lunes");
    key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "cmdOkCall");
    opensProject("Molino", [](QWidget&) { EXPECT_EQ(focus(), "Meta"); });
    key(Qt::Key_Return);
    backTo(widget);
    EXPECT_EQ(focus(), "lvwProy");
    expectIdle();
    EXPECT_THAT(log(),
                ElementsAre("0|32|Se estableció llamada al 5512345678 Con éxito. Resumen: Firman el lunes"));
    EXPECT_EQ(stored(32), "50|1|1|1|1");
    key(Qt::Key_Up);
    EXPECT_EQ(shown("lvwProy", selectedRow("lvwProy"), description), "Silo") << "on to the next one";
    EXPECT_EQ(mouse.seen, 0);
}

TEST_F(CallingAtTheBoard, that_nobody_answers_and_that_is_cancelled_open_the_project_too)
{
    const MouseWatch mouse;
    opens(ana, false);
    backTo(widget);
    tabsTo("lblItem(0)");
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    key(Qt::Key_Down);
    EXPECT_EQ(focus(), "lvwProy");
    key(Qt::Key_End);
    key(Qt::Key_F8);
    EXPECT_EQ(focus(), "cmdContesta");
    opensProject("Granero");
    key(Qt::Key_3, Qt::ControlModifier);
    backTo(widget);
    EXPECT_EQ(focus(), "lvwProy");
    EXPECT_EQ(stored(33), "2|-|0|0|1");
    EXPECT_THAT(log(), ElementsAre("0|33|No se pudo establecer llamada al: 5512345678 No contestan"));
    key(Qt::Key_F8);
    opensProject("Granero");
    key(Qt::Key_Escape);
    backTo(widget);
    EXPECT_EQ(focus(), "lvwProy");
    expectIdle();
    EXPECT_EQ(log().size(), 1U) << "a cancelled call leaves no trace";
    EXPECT_EQ(mouse.seen, 0);
}

TEST_F(CallingAtTheBoard, from_the_queue_of_the_day_with_the_keyboard_alone)
{
    const MouseWatch mouse;
    const std::string luz = std::to_string(prospect("Luz", {{"uf_Telefono", "'961'"}}));
    opens(ana, false);
    backTo(widget);
    tabsTo("lblItem(0)");
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    EXPECT_EQ(focus(), "lblItem(2)");
    key(Qt::Key_Return);
    key(Qt::Key_Down);
    EXPECT_EQ(focus(), "lvwHoy");
    key(Qt::Key_End);
    ASSERT_EQ(shown("lvwHoy", selectedRow("lvwHoy"), 0), "Proyecto");
    key(Qt::Key_F8);
    EXPECT_EQ(focus(), "cmdContesta");
    EXPECT_EQ(widget.control().Call_Tabla(), "Proyecto");
    opensProject("Granero");
    key(Qt::Key_2, Qt::ControlModifier);
    backTo(widget);
    EXPECT_EQ(focus(), "lvwHoy");
    EXPECT_EQ(stored(33), "1|-|0|0|1");
    ASSERT_EQ(shown("lvwHoy", selectedRow("lvwHoy"), 0), "Proyecto") << "the row is still in the queue";

    while (shown("lvwHoy", selectedRow("lvwHoy"), 0) != "Contacto" && selectedRow("lvwHoy") > 0)
        key(Qt::Key_Up);
    ASSERT_EQ(shown("lvwHoy", selectedRow("lvwHoy"), 0), "Contacto");
    key(Qt::Key_F8);
    EXPECT_EQ(focus(), "cmdContesta");
    EXPECT_EQ(widget.control().Call_Tabla(), "ut_icontact");
    key(Qt::Key_Space);
    EXPECT_EQ(focus(), "cmdCallCon(6)");
    hands.expect("dlgQueH", [](QWidget&) { key(Qt::Key_Escape); });
    key(Qt::Key_3, Qt::AltModifier);
    backTo(widget);
    EXPECT_EQ(focus(), "lvwHoy");
    expectIdle();
    EXPECT_THAT(log(),
                ElementsAre("0|33|No se pudo establecer llamada al: 5512345678 Línea ocupada",
                            luz +
                                "|-|Se estableció llamada al: 961 pero no se pudo contactar al prospecto. <Número "
                                "equivocado>"));
    EXPECT_THAT(inTheDatabase("SELECT uf_res_ultimointento FROM ut_icontact"), ElementsAre("13"));
    EXPECT_EQ(mouse.seen, 0);
}

} // namespace
} // namespace dn::tests
