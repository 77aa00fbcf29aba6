// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Projects are picked, marked, opened and made at the real windows, with the keyboard alone.

#include "tests/stories/qt/board.h"

#include <QLabel>
#include <QLineEdit>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class WorkingTheBoard : public AtTheBoard {
protected:
    void SetUp() override
    {
        opens(ana, false);
        backTo(widget);
        tabsTo("lblItem(0)");
        key(Qt::Key_Right);
        EXPECT_EQ(focus(), "lblItem(1)");
        key(Qt::Key_Return);
    }
    void TearDown() override { EXPECT_EQ(mouse.seen, 0); }

    const MouseWatch mouse;
};

TEST_F(WorkingTheBoard, a_project_is_found_and_read)
{
    EXPECT_EQ(shown("lvwProy", 0, subject), "Enseñar los planos");
    key(Qt::Key_Down);
    EXPECT_EQ(focus(), "lvwProy");
    key(Qt::Key_Home);
    EXPECT_THAT(text("txtInfo"), StartsWith("15/03/2026 09:30:15\nVisita\nEnseñar los planos\n"));
    key(Qt::Key_End);
    EXPECT_THAT(text("txtInfo"), StartsWith("\n< Ninguna >\nRevise el estado del proyecto\n"));
    EXPECT_EQ(focus(), "lvwProy");
    hands.expect("InputBox", [](QWidget&) {
        writes("pide planos");
        key(Qt::Key_Return);
    });
    key(Qt::Key_F6);
    backTo(widget);
    EXPECT_THAT(log(), ElementsAre("0|33|pide planos"));
    EXPECT_THAT(text("txtBit"), testing::HasSubstr("pide planos"));
}

TEST_F(WorkingTheBoard, one_status_at_a_time)
{
    tabsTo("cbProjStatusProj");
    key(Qt::Key_End);
    EXPECT_EQ(shown("lvwProy", 0, description), "");
    key(Qt::Key_Up);
    EXPECT_EQ(shown("lvwProy", 0, description), "Granero");
    key(Qt::Key_Home);
    EXPECT_EQ(shown("lvwProy", 2, description), "Granero");
    EXPECT_EQ(focus(), "cbProjStatusProj");
}

TEST_F(WorkingTheBoard, a_mark_is_put_and_taken_off)
{
    key(Qt::Key_Down);
    EXPECT_EQ(focus(), "lvwProy");
    key(Qt::Key_Home);
    key(Qt::Key_Down);
    tabsTo("bColor(4)");
    key(Qt::Key_Space);
    EXPECT_EQ(focus(), "bColor(4)");
    EXPECT_THAT(inTheDatabase("SELECT IFNULL(UF_Color, '-') FROM Proyecto ORDER BY Sys_PK"),
                ElementsAre("-", "4", "-"));
    tabsTo("bColor(0)");
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), "bColor(0)");
    EXPECT_THAT(inTheDatabase("SELECT IFNULL(UF_Color, '-') FROM Proyecto ORDER BY Sys_PK"),
                ElementsAre("-", "0", "-"));
    EXPECT_EQ(selectedRow("lvwProy"), 1);
}

TEST_F(WorkingTheBoard, enter_on_a_row_opens_the_project_and_its_change_shows)
{
    key(Qt::Key_Down);
    EXPECT_EQ(focus(), "lvwProy");
    key(Qt::Key_Home);
    hands.expect("EditarProyecto", [&](QWidget&) {
        EXPECT_EQ(focus(), "Meta");
        key(Qt::Key_D, Qt::AltModifier);
        EXPECT_EQ(focus(), "Descripcion");
        key(Qt::Key_End);
        writes(" nuevo");
        key(Qt::Key_Return);
    });
    key(Qt::Key_Return);
    backTo(widget);
    EXPECT_EQ(focus(), "lvwProy");
    EXPECT_EQ(shown("lvwProy", 0, description), "Silo nuevo");
    EXPECT_THAT(text("txtInfo"), testing::HasSubstr("Silo nuevo"));
}

TEST_F(WorkingTheBoard, a_new_project_is_made_and_selected)
{
    tabsTo("cmdProjNewProj");
    hands.expect("CrearProyecto", [&](QWidget& window) { fillsProject(window, "café", "Bodega"); });
    key(Qt::Key_Space);
    backTo(widget);
    EXPECT_EQ(focus(), "cmdProjNewProj");
    EXPECT_EQ(shown("lvwProy", selectedRow("lvwProy"), description), "Bodega");
    EXPECT_THAT(
        inTheDatabase("SELECT CONCAT_WS('|', IMeta, IOrganizacion, IFNULL(IContacto, '-'), IEjecutivo) FROM "
                      "Proyecto WHERE Descripcion = 'Bodega'"),
        ElementsAre("1|1|-|7"));
}

TEST_F(WorkingTheBoard, a_new_project_given_up_leaves_the_row_in_hand)
{
    key(Qt::Key_Down);
    EXPECT_EQ(focus(), "lvwProy");
    key(Qt::Key_Down);
    tabsTo("cmdProjNewProj");
    hands.expect("CrearProyecto", [](QWidget&) {
        EXPECT_EQ(focus(), "Meta");
        key(Qt::Key_Escape);
    });
    key(Qt::Key_Space);
    backTo(widget);
    EXPECT_EQ(focus(), "cmdProjNewProj");
    EXPECT_EQ(selectedRow("lvwProy"), 1);
    EXPECT_THAT(inTheDatabase("SELECT COUNT(*) FROM Proyecto"), ElementsAre("3"));
}

TEST_F(WorkingTheBoard, the_directory_is_searched_and_entered)
{
    tabsTo("cmdProjSeekProj");
    hands.expect("BuscarEntidad", [&](QWidget& window) {
        EXPECT_EQ(focus(), "txtBuscar");
        writes("café");
        const auto& count = widgetIn<QLabel>(window, "lblResultados");
        EXPECT_TRUE(QTest::qWaitFor([&] { return count.text() == QStringLiteral("1 resultado"); }, 5000));
        key(Qt::Key_Return);
    });
    hands.expect("EditarOrganizacion", [](QWidget& window) {
        EXPECT_EQ(widgetIn<QLineEdit>(window, "Nombre").text(), QStringLiteral("Café «El Sol»"));
        key(Qt::Key_Escape);
    });
    key(Qt::Key_Space);
    backTo(widget);
    EXPECT_EQ(focus(), "cmdProjSeekProj");
    tabsTo("cmdProjNewContact");
    hands.expect("NuevaPersona", [](QWidget&) {
        EXPECT_EQ(focus(), "Nombre");
        writes("Tomás");
        key(Qt::Key_Return);
    });
    key(Qt::Key_Return);
    backTo(widget);
    EXPECT_EQ(focus(), "cmdProjNewContact");
    EXPECT_THAT(inTheDatabase("SELECT CONCAT(Nombre, IEjecutivo) FROM Persona WHERE Sys_PK > 2"),
                ElementsAre("Tomás7"));
}

} // namespace
} // namespace dn::tests
