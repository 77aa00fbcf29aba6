// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// That the search for controls without a name finds them.

#include "tests/screen/qt/accessible_tree.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
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
    label("covered", {0, 60, 280, 20});
    QWidget panel(&window);
    panel.setGeometry(0, 60, 300, 20);
    panel.setAutoFillBackground(true);
    QLineEdit field(&window);
    field.setObjectName("field");
    field.setGeometry(280, 80, 40, 20);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_THAT(cutOff(window), ElementsAre("narrow", "beyondTheEdge", "outside", "field"));
    field.setGeometry(220, 80, 40, 20);
    window.resize(560, 100);
    EXPECT_THAT(cutOff(window), ElementsAre("narrow", "outside")) << "still half of it";
}

TEST(AccessibleTree, what_scrolls_into_view_is_not_cut_off)
{
    QScrollArea window;
    window.resize(100, 100);
    auto* const inner = new QWidget;
    inner->resize(400, 100);
    auto* const label = new QLabel("Un texto que necesita su lugar", inner);
    label->setGeometry(150, 0, 250, 20);
    window.setWidget(inner);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_THAT(cutOff(window), IsEmpty());
}

TEST(AccessibleTree, of_options_that_exclude_each_other_the_keyboard_reaches_one_and_the_arrows_the_rest)
{
    QWidget window;
    window.setWindowTitle("Prueba");
    QRadioButton one("Uno", &window);
    QRadioButton other("Otro", &window);
    one.setObjectName("uno");
    other.setObjectName("otro");
    one.setChecked(true);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_THAT(unreached(window), IsEmpty());
    other.setFocusPolicy(Qt::NoFocus);
    EXPECT_THAT(unreached(window), ElementsAre("RadioButton (otro)"));
    one.setFocusPolicy(Qt::NoFocus);
    EXPECT_THAT(unreached(window), ElementsAre("RadioButton (uno)", "RadioButton (otro)"));
    other.setFocusPolicy(Qt::ClickFocus);
    EXPECT_THAT(unreached(window), ElementsAre("RadioButton (uno)", "RadioButton (otro)"));
}

} // namespace
} // namespace dn::tests
