// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// That the search for controls without a name finds them.

#include "tests/screen/qt/accessible_tree.h"

#include <QCheckBox>
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

} // namespace
} // namespace dn::tests
