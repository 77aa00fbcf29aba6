// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The focus on both sides, the key Tab, accelerators and the names that a screen reader says.

#include "screen/button.h"
#include "screen/combo_box.h"
#include "screen/label.h"
#include "screen/text_box.h"
#include "tests/screen/qt/stage.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>

namespace dn::tests {
namespace {

using namespace dn::screen;

class FocusTest : public StageTest {
protected:
    FocusTest()
    {
        place(label, 10, 10, 60, 20);
        label.Caption("&Buscar:");
        place(box, 80, 10, 100, 20);
        place(panel, 0, 40, 300, 100);
        place(first, 10, 10, 80, 24);
        place(second, 100, 10, 80, 24);
        first.Caption("Uno");
        second.Picture("edit");
        second.ToolTipText("Corregir");
        place(combo, 10, 160, 100, 21);
        combo.AccessibleName("Estado");
    }
    ~FocusTest() override { view.reset(); }

    static QString focused() { return QApplication::focusWidget()->objectName(); }
    static QString spoken(QWidget& widget)
    {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    }
    QString walk(int steps)
    {
        QStringList names{focused()};
        for (int i = 0; i < steps; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            names += focused();
        }
        return names.join(u' ');
    }

    ComboBox combo{&root, "cb"};
    PicturePanel panel{&root, "pic"};
    Button second{&panel, "cmd2"};
    Button first{&panel, "cmd1"};
    TextBox box{&root, "txt"};
    Label label{&root, "lbl"};
};

TEST_F(FocusTest, tab_goes_by_place_where_no_index_is_set)
{
    show();
    widget<QWidget>("txt").setFocus();
    EXPECT_EQ(walk(4), QStringLiteral("txt cmd1 cmd2 cb txt"));
}

TEST_F(FocusTest, a_label_that_shows_data_shows_its_ampersands_and_leads_nowhere)
{
    label.UseMnemonic(false);
    label.Caption("García &Hijos 55");
    show();
    EXPECT_EQ(widget<QLabel>("lbl").text(), QStringLiteral("García &Hijos 55"));
    EXPECT_EQ(widget<QLabel>("lbl").buddy(), nullptr) << "else it would be drawn as a key";
    EXPECT_NE(spoken(widget<QLineEdit>("txt")), QStringLiteral("García Hijos 55"));
    label.Caption("1 && 2");
    EXPECT_EQ(widget<QLabel>("lbl").text(), QStringLiteral("1 && 2"));
}

TEST_F(FocusTest, tab_goes_by_index_over_all_containers)
{
    second.TabIndex(0);
    box.TabIndex(1);
    first.TabIndex(2);
    show();
    widget<QWidget>("cmd2").setFocus();
    EXPECT_EQ(walk(4), QStringLiteral("cmd2 txt cmd1 cb cmd2"));
}

TEST_F(FocusTest, tab_passes_over_what_is_hidden_or_disabled)
{
    show();
    first.Enabled(false);
    combo.Visible(false);
    widget<QWidget>("txt").setFocus();
    EXPECT_EQ(walk(2), QStringLiteral("txt cmd2 txt"));
}

TEST_F(FocusTest, the_element_hears_where_the_operator_goes_and_the_widget_what_the_code_says)
{
    show();
    QTest::mouseClick(&widget<QLineEdit>("txt"), Qt::LeftButton);
    EXPECT_TRUE(box.hasFocus());
    second.SetFocus();
    EXPECT_EQ(focused(), QStringLiteral("cmd2"));
    EXPECT_TRUE(second.hasFocus());
    EXPECT_FALSE(box.hasFocus());
    QTest::keyClick(&widget<QWidget>("cmd2"), Qt::Key_Tab);
    EXPECT_TRUE(combo.hasFocus());
}

TEST_F(FocusTest, the_focus_comes_back_from_a_widget_of_the_hosts)
{
    show();
    box.SetFocus();
    QLineEdit ofTheHost(view->window());
    ofTheHost.show();
    ofTheHost.setFocus();
    EXPECT_EQ(QApplication::focusWidget(), &ofTheHost);
    box.Text("algo cambió"); // no reason to take the focus from the host
    EXPECT_EQ(QApplication::focusWidget(), &ofTheHost);
    box.SetFocus(); // it has it already, as far as the control knows
    EXPECT_EQ(focused(), QStringLiteral("txt"));
}

TEST_F(FocusTest, the_accelerator_of_a_label_leads_to_what_follows_it)
{
    show();
    widget<QWidget>("cb").setFocus();
    QTest::keyClick(view.get(), Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(focused(), QStringLiteral("txt"));
}

TEST_F(FocusTest, a_focused_element_that_is_disabled_passes_the_focus_on)
{
    show();
    first.SetFocus();
    first.Enabled(false);
    EXPECT_EQ(focused(), QStringLiteral("cmd2"));
    EXPECT_TRUE(second.hasFocus());
}

TEST_F(FocusTest, every_control_has_a_name_that_can_be_spoken)
{
    show();
    EXPECT_EQ(spoken(widget<QWidget>("cmd1")), QStringLiteral("Uno"));
    EXPECT_EQ(spoken(widget<QWidget>("cmd2")), QStringLiteral("Corregir"));
    EXPECT_EQ(spoken(widget<QWidget>("txt")), QStringLiteral("Buscar"));
    EXPECT_EQ(spoken(widget<QWidget>("cb")), QStringLiteral("Estado"));
}

} // namespace
} // namespace dn::tests
