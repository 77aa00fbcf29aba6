// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Handing prospects over, at the real window of the agents.

#include "tests/stories/qt/window.h"

#include <QListView>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AssigningAtTheWindow : public AtTheWindow {
protected:
    std::vector<std::string> agents() { return inTheDatabase("SELECT uf_IEjecutivo FROM ut_icontact"); }

    static QPoint lineAt(const QListView& list, int line)
    {
        return list.visualRect(list.model()->index(line, 0)).center();
    }
};

TEST_F(AssigningAtTheWindow, an_agent_passes_one_on_with_the_keyboard_alone)
{
    database("INSERT INTO Agente (Sys_PK, Nombre) SELECT 100 + seq, CONCAT('Agente ', seq) FROM seq_1_to_40");
    prospect("Luz");
    opens(ana, false);
    hands.expect("dlgSelAgente", [&](QWidget& window) {
        isLegible(window);
        EXPECT_EQ(focus(), "cbAgente");
        EXPECT_THAT(tabOrder(window), ElementsAre("cbAgente", "Command1", "Command2"));
        key(Qt::Key_Return); // none is selected yet
        backTo(window);
        EXPECT_EQ(focus(), "cbAgente");
        writes("be");
        EXPECT_EQ(widgetIn<QListView>(window, "cbAgente").currentIndex().data().toString(),
                  QStringLiteral("Beto"));
        picture(window, "dlgSelAgente");
        key(Qt::Key_Return);
    });
    hands.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(boxText(box), "Seleccione un elemento");
        key(Qt::Key_Return);
    });
    widgetIn<QWidget>(widget, "cmdProsAsignPros").setFocus();
    key(Qt::Key_Space);
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_THAT(agents(), ElementsAre("9"));
}

TEST_F(AssigningAtTheWindow, the_only_agent_is_reached_by_the_first_key)
{
    database("DELETE FROM Agente WHERE Sys_PK = 9");
    prospect("Luz", {{"uf_IEjecutivo", "NULL"}});
    opens(0, true);
    clicks("chkProsSelPros");
    hands.expect("dlgSelAgente", [](QWidget&) {
        key(Qt::Key_Down);
        key(Qt::Key_Return);
    });
    clicks("cmdProsAsignPros");
    EXPECT_THAT(agents(), ElementsAre("7"));
}

TEST_F(AssigningAtTheWindow, a_double_click_chooses)
{
    prospect("Luz");
    opens(ana, false);
    hands.expect("dlgSelAgente", [](QWidget& window) {
        auto& list = widgetIn<QListView>(window, "cbAgente");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, lineAt(list, 1));
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, lineAt(list, 1));
    });
    clicks("cmdProsAsignPros");
    EXPECT_THAT(agents(), ElementsAre("9"));
}

TEST_F(AssigningAtTheWindow, escape_and_the_frame_give_up)
{
    prospect("Luz");
    opens(ana, false);
    hands.expect("dlgSelAgente", [](QWidget&) {
        key(Qt::Key_Down);
        key(Qt::Key_Escape);
    });
    clicks("cmdProsAsignPros");
    hands.expect("dlgSelAgente", [](QWidget& window) {
        key(Qt::Key_Down);
        window.close();
    });
    clicks("cmdProsAsignPros");
    EXPECT_THAT(agents(), ElementsAre("7"));
}

TEST_F(AssigningAtTheWindow, a_larger_window_shows_more_agents)
{
    prospect("Luz");
    opens(ana, false);
    hands.expect("dlgSelAgente", [](QWidget& window) {
        auto& list = widgetIn<QListView>(window, "cbAgente");
        const QSize before = list.size();
        window.resize(window.size() + QSize(60, 90));
        EXPECT_TRUE(QTest::qWaitFor([&] { return list.size() == before + QSize(60, 90); }, 5000));
        key(Qt::Key_Escape);
    });
    clicks("cmdProsAsignPros");
}

} // namespace
} // namespace dn::tests
