// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A prospect becomes a project through the host's real windows: from the list and from the queue of the day, with
// the keyboard alone, and with each step failing in turn.

#include "tests/stories/qt/board.h"

#include <QLineEdit>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

class ConvertingAtTheWindow : public AtTheBoard {
protected:
    ConvertingAtTheWindow()
    {
        prospect("Luz",
                 {{"uf_Tipo", "1"}, {"uf_Telefono", "'961'"}, {"uf_EMail", "'luz@x.mx'"}, {"uf_Ciudad", "'San'"}});
    }

    /// Where a conversion begins: the list of the prospects, or the queue of the day.
    void goesTo(int tab)
    {
        opens(ana, false);
        widget.onError([this](const std::exception& error) { told.emplace_back(error.what()); });
        if (tab == desk::prospectos) return;
        clicksTab(tab);
        int row = 0; // behind the projects that are due
        while (row < 4 && shown("lvwHoy", row, 2) != "Luz")
            ++row;
        clicksRow("lvwHoy", row);
        ASSERT_EQ(shown("lvwHoy", selectedRow("lvwHoy"), 2), "Luz");
    }
    void presses(int tab) { clicks(tab == desk::hoy ? "geProyFromContacto" : "cmdProsNewProj"); }
    void makesTheProject()
    {
        hands.expect("CrearProyecto", [this](QWidget& window) { fillsProject(window, "café", "Bodega"); });
    }
    void isTold(const char* part)
    {
        hands.expect("Aviso", [part](QWidget& box) {
            EXPECT_THAT(boxText(box), testing::HasSubstr(part));
            key(Qt::Key_Return);
        });
    }

    std::vector<std::string> told; ///< what reached the host as an error
    const std::string untouched = "prospecto|Luz|0|-|0|-";
    const std::string person = "persona|Luz|Internal|Internal|4|961|-|luz@x.mx|-|7";
    const std::string project = "proyecto|Bodega|Luz|7";
    const std::string closed = "prospecto|Luz|1|Actualizado por creación de proyecto|1|-";
    const std::string line = "bitácora|>> Descartado: |ana|1|-";
};

TEST_F(ConvertingAtTheWindow, with_the_keyboard_alone)
{
    const MouseWatch mouse;
    opens(ana, false);
    backTo(widget);
    tabsTo("lblItem(0)");
    key(Qt::Key_Down);
    EXPECT_EQ(focus(), "lvw");
    key(Qt::Key_Home);
    tabsTo("cmdProsNewProj");
    hands.expect("CrearProyecto", [&](QWidget& window) {
        EXPECT_EQ(widgetIn<QLineEdit>(window, "txtPersona").text(), QStringLiteral("Luz"));
        fillsProject(window, "café", "Bodega");
    });
    key(Qt::Key_Space);
    backTo(widget);
    EXPECT_EQ(focus(), "cmdProsNewProj");
    EXPECT_THAT(listed(), testing::IsEmpty());
    EXPECT_THAT(everything(), ElementsAre(closed, person, project, line));
    tabsTo("lblItem(0)");
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    key(Qt::Key_Down);
    EXPECT_EQ(focus(), "lvwProy");
    key(Qt::Key_End);
    EXPECT_EQ(shown("lvwProy", selectedRow("lvwProy"), description), "Bodega");
    EXPECT_EQ(mouse.seen, 0);
}

class EachStepOfAConversion : public ConvertingAtTheWindow, public testing::WithParamInterface<int> {};

TEST_P(EachStepOfAConversion, that_fails_leaves_what_was_done_and_nothing_else)
{
    const int tab = GetParam();
    goesTo(tab);
    struct Case {
        const char* refused;
        bool opensProject;
        std::vector<std::string> left;
    };
    const std::vector<Case> cases{
        {"SELECT IFNULL(uf_Nombre", false, {untouched}},
        {"SELECT Sys_PK FROM Ciudad", false, {untouched}},
        {"UPDATE ut_icontact SET uf_Status=1", true, {untouched, person, project}},
        {"INSERT INTO xt_biticontact", true, {closed, person, project}},
    };
    for (const Case& each : cases) {
        database("DELETE FROM Persona WHERE Sys_PK > 2");
        database("DELETE FROM Proyecto WHERE Sys_PK > 33");
        told.clear();
        cnn->statements.clear();
        cnn->refuses = [&](std::string_view statement) { return statement.starts_with(each.refused); };
        if (each.opensProject) makesTheProject();
        presses(tab);
        EXPECT_THAT(told, ElementsAre("Lock wait timeout exceeded")) << each.refused;
        EXPECT_THAT(cnn->statements.back(), testing::StartsWith(each.refused)) << "nothing is sent behind it";
        EXPECT_THAT(everything(), ElementsAreArray(each.left)) << each.refused;
        backTo(widget);
    }
}

TEST_P(EachStepOfAConversion, that_the_host_refuses_is_told_there_and_leaves_the_prospect)
{
    const int tab = GetParam();
    goesTo(tab);
    hostRefuses = [](std::string_view statement) { return statement.starts_with("INSERT INTO Persona"); };
    isTold("Lock wait timeout");
    presses(tab);
    EXPECT_THAT(everything(), ElementsAre(untouched)) << "no person";
    backTo(widget);

    hostRefuses = [](std::string_view statement) { return statement.starts_with("INSERT INTO Proyecto"); };
    hands.expect("CrearProyecto", [this](QWidget& window) {
        fillsProject(window, "café", "Bodega");
        backTo(window);
        key(Qt::Key_Escape); // what was typed is still there, and is given up
    });
    isTold("Lock wait timeout");
    presses(tab);
    EXPECT_THAT(everything(), ElementsAre(untouched, person)) << "the person stays";
    backTo(widget);

    hostRefuses = nullptr;
    makesTheProject();
    presses(tab);
    EXPECT_THAT(everything(), ElementsAre(closed, person, person, project, line)) << "and a second one is made";
    EXPECT_THAT(told, testing::IsEmpty());
}

TEST_P(EachStepOfAConversion, is_left_out_for_a_prospect_that_is_gone)
{
    goesTo(GetParam());
    database("DELETE FROM ut_icontact");
    presses(GetParam());
    EXPECT_EQ(told.size(), 1U);
    EXPECT_THAT(everything(), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(FromWhere, EachStepOfAConversion, testing::Values(desk::prospectos, desk::hoy));

} // namespace
} // namespace dn::tests
