// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Keys that press buttons from anywhere on a screen, and arrows that go through options.

#include "screen/button.h"
#include "screen/text_box.h"
#include "tests/screen/qt/stage.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

namespace dn::tests {
namespace {

using namespace dn::screen;

class ShortcutsTest : public StageTest {
protected:
    ShortcutsTest()
    {
        place(box, 10, 10, 100, 21);
        place(panel, 0, 40, 300, 60);
        place(first, 10, 10, 100, 24);
        place(second, 10, 110, 100, 24);
        place(option1, 10, 150, 100, 20);
        place(option2, 10, 180, 100, 20);
        first.Caption("&Llamar");
        first.Shortcut("F8");
        second.Caption("Fin");
        second.Shortcut("F8");
        second.ToolTipText("Fin de la llamada");
        second.Enabled(false);
        wires.push_back(first.Click.connect([this] { pressed += "1"; }));
        wires.push_back(second.Click.connect([this] { pressed += "2"; }));
    }
    ~ShortcutsTest() override { view.reset(); }

    void key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    std::string pressed;
    TextBox box{&root, "txt"};
    PicturePanel panel{&root, "pic"};
    Button first{&panel, "cmd1"};
    Button second{&root, "cmd2"};
    OptionButton option1{&root, "Option1"};
    OptionButton option2{&root, "Option2"};
    Subscriptions wires;
};

TEST_F(ShortcutsTest, a_key_presses_the_one_of_its_buttons_that_can_be_used)
{
    show();
    widget<QLineEdit>("txt").setFocus();
    key(Qt::Key_F8);
    EXPECT_EQ(pressed, "1");
    panel.Visible(false);
    second.Enabled(true);
    key(Qt::Key_F8);
    EXPECT_EQ(pressed, "12");
}

TEST_F(ShortcutsTest, a_key_without_a_button_that_can_be_used_is_the_hosts)
{
    show();
    QShortcut hosts(QKeySequence(Qt::Key_F8), view.get());
    int taken = 0;
    QObject::connect(&hosts, &QShortcut::activated, view.get(), [&] { ++taken; });
    widget<QLineEdit>("txt").setFocus();
    panel.Enabled(false);
    key(Qt::Key_F8);
    EXPECT_EQ(taken, 1);
    EXPECT_EQ(pressed, "");
}

TEST_F(ShortcutsTest, a_button_that_ended_is_pressed_no_more)
{
    auto third = std::make_unique<Button>(&root, "cmd3");
    third->Shortcut("F9");
    show();
    widget<QLineEdit>("txt").setFocus();
    third.reset();
    panel.Visible(false);
    key(Qt::Key_F9);
    key(Qt::Key_F8);
    EXPECT_EQ(pressed, "");
}

TEST_F(ShortcutsTest, the_tool_tip_tells_the_key)
{
    show();
    EXPECT_TRUE(widget<QPushButton>("cmd1").toolTip().contains(QStringLiteral("Llamar (F8)")));
    EXPECT_TRUE(widget<QPushButton>("cmd2").toolTip().contains(QStringLiteral("Fin de la llamada (F8)")));
}

TEST_F(ShortcutsTest, enter_that_is_held_down_presses_no_button_again)
{
    show();
    auto& button = widget<QPushButton>("cmd1");
    button.setFocus();
    QKeyEvent once(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&button, &once);
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&button, &again);
    EXPECT_EQ(pressed, "1");
}

TEST_F(ShortcutsTest, arrows_choose_among_options)
{
    show();
    widget<QWidget>("Option1").setFocus();
    EXPECT_FALSE(option1.Value());
    key(Qt::Key_Down);
    EXPECT_TRUE(option2.Value());
    EXPECT_TRUE(option2.hasFocus());
    key(Qt::Key_Down); // there is no further one
    EXPECT_TRUE(option2.Value());
    key(Qt::Key_Up);
    EXPECT_TRUE(option1.Value());
    EXPECT_FALSE(option2.Value());
}

} // namespace
} // namespace dn::tests
