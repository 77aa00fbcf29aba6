// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// That the search for controls without a name finds them.

#include "tests/screen/qt/accessible_tree.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(AccessibleTree, finds_what_has_no_name_and_what_no_key_leads_to)
{
    QWidget window;
    window.setWindowTitle("Prueba");
    QLineEdit line(&window);
    line.setObjectName("txtSinNombre");
    QTableView table(&window);
    table.setObjectName("lvwProgramador");
    table.setAccessibleName("lvwProgramador");
    QPushButton button("Con nombre", &window);
    button.setObjectName("cmd");
    button.setFocusPolicy(Qt::NoFocus);
    QCheckBox hidden(&window);
    hidden.hide();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_THAT(unnamed(window), ElementsAre("EditableText (txtSinNombre)", "Table (lvwProgramador)"));
    EXPECT_THAT(unreached(window), ElementsAre("Button (cmd)"));
    line.setAccessibleName("Nombre");
    table.setAccessibleName("Personas");
    button.setFocusPolicy(Qt::StrongFocus);
    EXPECT_THAT(unnamed(window), IsEmpty());
    EXPECT_THAT(unreached(window), IsEmpty());
}

TEST(AccessibleTree, finds_the_texts_that_are_cut_off_by_their_width_or_by_an_edge)
{
    QWidget window;
    window.resize(300, 100);
    const auto label = [&window](const char* name, const QRect& place) {
        auto* const made = new QLabel("Un texto que necesita su lugar", &window);
        made->setObjectName(name);
        made->setGeometry(place);
        return made;
    };
    label("whole", {0, 0, 280, 20});
    label("narrow", {0, 20, 60, 20});
    label("beyondTheEdge", {240, 40, 280, 20});
    label("outside", {400, 60, 280, 20});
    label("hidden", {0, 80, 10, 20})->hide();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_THAT(cutOff(window), ElementsAre("narrow", "beyondTheEdge"));
}

} // namespace
} // namespace dn::tests
