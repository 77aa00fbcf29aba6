// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Push buttons, option buttons, check boxes and labels under the mouse and the keyboard.

#include "screen/button.h"
#include "screen/label.h"
#include "screen/list_view.h"
#include "screen/qt/colours.h"
#include "screen/qt/label_view.h"
#include "tests/screen/qt/stage.h"

#include <QAccessible>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>

#include <stdexcept>

namespace dn::tests {
namespace {

using namespace dn::screen;

class ButtonViewTest : public StageTest {
protected:
    ButtonViewTest()
    {
        place(button, 10, 10, 100, 24);
        place(option1, 10, 50, 100, 20);
        place(option2, 10, 80, 100, 20);
        place(check, 10, 110, 100, 20);
        place(tab1, 200, 10, 100, 21);
        place(tab2, 300, 10, 100, 21);
        place(text, 200, 100, 100, 20);
        tab1.handPointer(true);
        tab2.handPointer(true);
        tab1.BackColor(0x8080FF);
        tab2.BackColor(0xC0FFFF);
        wires.push_back(button.Click.connect([this] { ++clicks; }));
        wires.push_back(option1.Click.connect([this] { ++clicks; }));
        wires.push_back(option2.Click.connect([this] { ++clicks; }));
        wires.push_back(check.Click.connect([this] { ++clicks; }));
        wires.push_back(tab1.Click.connect([this] { ++clicks; }));
        wires.push_back(tab2.Click.connect([this] { clicks += 100; }));
    }
    ~ButtonViewTest() override { view.reset(); }

    int clicks = 0;
    Button button{&root, "cmdOk"};
    OptionButton option1{&root, "opt1"};
    OptionButton option2{&root, "opt2"};
    CheckBox check{&root, "chk"};
    Label tab1{&root, "lblItem(0)"};
    Label tab2{&root, "lblItem(1)"};
    Label text{&root, "lblText"};
    Subscriptions wires;
};

TEST_F(ButtonViewTest, a_button_mirrors_its_element)
{
    button.Caption("&Aceptar");
    button.Picture("accept");
    show();
    auto& widget = this->widget<QPushButton>("cmdOk");
    EXPECT_EQ(widget.text(), QStringLiteral("&Aceptar"));
    EXPECT_FALSE(widget.icon().isNull());
    EXPECT_EQ(widget.geometry(), QRect(10, 10, 100, 24));
    EXPECT_TRUE(widget.isVisible());

    button.Caption("Otra");
    button.Visible(false);
    button.Enabled(false);
    button.ToolTipText("a < b");
    EXPECT_EQ(widget.text(), QStringLiteral("Otra"));
    EXPECT_FALSE(widget.isVisible());
    EXPECT_FALSE(widget.isEnabled());
    EXPECT_TRUE(widget.toolTip().contains(QStringLiteral("a &lt; b"))) << widget.toolTip().toStdString();
}

TEST_F(ButtonViewTest, mouse_space_and_enter_press_a_button)
{
    show();
    auto& widget = this->widget<QPushButton>("cmdOk");
    QTest::mouseClick(&widget, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(widget.hasFocus());
    QTest::keyClick(&widget, Qt::Key_Space);
    QTest::keyClick(&widget, Qt::Key_Return);
    EXPECT_EQ(clicks, 3);
}

TEST_F(ButtonViewTest, what_is_disabled_or_lies_in_a_disabled_screen_is_not_pressed)
{
    show();
    button.Enabled(false);
    QTest::mouseClick(&widget<QPushButton>("cmdOk"), Qt::LeftButton);
    button.Enabled(true);
    root.Enabled(false);
    QTest::mouseClick(&widget<QPushButton>("cmdOk"), Qt::LeftButton);
    QTest::mouseClick(&widget<QCheckBox>("chk"), Qt::LeftButton, {}, {8, 10});
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(check.Value(), 0);
}

TEST_F(ButtonViewTest, a_screen_reader_sets_marks_and_options_as_a_click_does)
{
    show();
    const auto sets = [this](const char* name) {
        QAccessible::queryAccessibleInterface(&widget<QWidget>(name))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::toggleAction());
        settle();
    };
    sets("chk");
    EXPECT_EQ(check.Value(), 1);
    sets("opt2");
    EXPECT_TRUE(option2.Value());
    EXPECT_EQ(clicks, 2);
    sets("opt2");
    EXPECT_TRUE(widget<QRadioButton>("opt2").isChecked()) << "an option is not taken back";
    sets("opt1");
    EXPECT_FALSE(option2.Value());
    EXPECT_EQ(clicks, 3);
    wires.push_back(check.Click.connect([this] { check.Value(1); }));
    sets("chk");
    EXPECT_EQ(check.Value(), 1);
    EXPECT_TRUE(widget<QCheckBox>("chk").isChecked()) << "it shows what the element made of it";
}

TEST_F(ButtonViewTest, an_exception_of_a_click_goes_to_the_handler_and_no_further)
{
    show();
    errorsExpected = true;
    wires.push_back(button.Click.connect([] { throw std::runtime_error("se rompió"); }));
    QTest::mouseClick(&widget<QPushButton>("cmdOk"), Qt::LeftButton);
    EXPECT_THAT(errors, testing::ElementsAre("se rompió"));
    QTest::mouseClick(&widget<QCheckBox>("chk"), Qt::LeftButton, {}, {8, 10});
    EXPECT_EQ(check.Value(), 1);
}

TEST_F(ButtonViewTest, a_swatch_is_filled_with_its_colour)
{
    button.BackColor(0x004080); // red 0x80, green 0x40
    show();
    EXPECT_EQ(colourAt(widget<QPushButton>("cmdOk"), {20, 12}), QColor(0x80, 0x40, 0));
    button.BackColor(0x0000FF);
    EXPECT_EQ(colourAt(widget<QPushButton>("cmdOk"), {20, 12}), QColor(0xFF, 0, 0));
}

TEST_F(ButtonViewTest, option_buttons_follow_the_elements_that_exclude_each_other)
{
    show();
    auto& first = widget<QRadioButton>("opt1");
    auto& second = widget<QRadioButton>("opt2");
    QTest::mouseClick(&first, Qt::LeftButton, {}, {8, 10});
    EXPECT_TRUE(option1.Value());
    QTest::mouseClick(&second, Qt::LeftButton, {}, {8, 10});
    EXPECT_FALSE(first.isChecked());
    EXPECT_TRUE(second.isChecked());
    EXPECT_EQ(clicks, 2);
    QTest::mouseClick(&second, Qt::LeftButton, {}, {8, 10}); // choosing the marked one again takes no mark off
    EXPECT_TRUE(second.isChecked());
    EXPECT_EQ(clicks, 2);
    option1.Value(true);
    EXPECT_TRUE(first.isChecked());
    EXPECT_FALSE(second.isChecked());
}

TEST_F(ButtonViewTest, a_check_box_goes_both_ways)
{
    show();
    auto& widget = this->widget<QCheckBox>("chk");
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {8, 10});
    EXPECT_EQ(check.Value(), 1);
    EXPECT_EQ(clicks, 1);
    check.Value(0);
    EXPECT_FALSE(widget.isChecked());
    EXPECT_EQ(clicks, 2);
    QTest::keyClick(&widget, Qt::Key_Space);
    EXPECT_EQ(check.Value(), 1);
}

TEST_F(ButtonViewTest, a_tab_is_clicked_by_mouse_and_keyboard_and_shows_the_colour_of_its_element)
{
    show();
    auto& first = widget<qt::ClickLabelView>("lblItem(0)");
    auto& second = widget<qt::ClickLabelView>("lblItem(1)");
    EXPECT_EQ(colourAt(first, {6, 10}), QColor(0xFF, 0x80, 0x80));
    EXPECT_EQ(colourAt(second, {6, 10}), QColor(0xFF, 0xFF, 0xC0));
    EXPECT_EQ(first.cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseClick(&first, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    QTest::keyClick(&first, Qt::Key_Right);
    EXPECT_TRUE(second.hasFocus());
    QTest::keyClick(&second, Qt::Key_Return);
    EXPECT_EQ(clicks, 101);
    QTest::keyClick(&second, Qt::Key_Left);
    EXPECT_TRUE(first.hasFocus());
    QTest::keyClick(&first, Qt::Key_Space);
    EXPECT_EQ(clicks, 102);
}

TEST_F(ButtonViewTest, down_leads_from_a_tab_to_the_list_that_shows)
{
    ListView hidden{&root, "lvwHidden"};
    hidden.Visible(false);
    ListView list{&root, "lvw"};
    place(list, 10, 140, 200, 80);
    show();
    auto& tab = widget<qt::ClickLabelView>("lblItem(1)");
    tab.setFocus();
    QTest::keyClick(&tab, Qt::Key_Down);
    EXPECT_TRUE(widget<QTableView>("lvw").hasFocus());
    EXPECT_TRUE(list.hasFocus());
    list.Enabled(false);
    tab.setFocus();
    QTest::keyClick(&tab, Qt::Key_Down);
    EXPECT_TRUE(tab.hasFocus());
    EXPECT_EQ(clicks, 0);
}

TEST_F(ButtonViewTest, a_label_shows_its_text_as_it_stands)
{
    text.Caption("<b>1 & 2</b>");
    text.Alignment(TextAlignment::right);
    text.FontBold(true);
    show();
    auto& label = widget<QLabel>("lblText");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_TRUE(label.alignment().testFlag(Qt::AlignRight));
    EXPECT_TRUE(label.font().bold());
    text.Caption("Otra cosa");
    text.AutoSize(true);
    EXPECT_EQ(label.text(), QStringLiteral("Otra cosa"));
    EXPECT_EQ(label.width(), label.sizeHint().width());
    text.BackColor(0x800000); // dark blue: the text turns white
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::white));
}

} // namespace
} // namespace dn::tests
