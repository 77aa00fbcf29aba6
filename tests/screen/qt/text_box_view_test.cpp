// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Typing into text boxes: what the element gets, what it may cancel, and line ends on their way.

#include "screen/qt/text.h"
#include "screen/text_box.h"
#include "tests/screen/qt/stage.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace dn::tests {
namespace {

using namespace dn::screen;

class TextBoxViewTest : public StageTest {
protected:
    TextBoxViewTest()
    {
        place(line, 10, 10, 200, 19);
        place(area, 10, 40, 300, 200);
        area.MultiLine(true);
        wires.push_back(line.KeyPress.connect([this](int& code) { pressed(code); }));
        wires.push_back(area.KeyPress.connect([this](int& code) { pressed(code); }));
        wires.push_back(area.Change.connect([this] { ++changes; }));
    }
    ~TextBoxViewTest() override { view.reset(); }

    void pressed(int& code)
    {
        codes.push_back(code);
        if (code == cancelled) code = replacement;
    }

    std::vector<int> codes;
    int cancelled = -1;
    int replacement = 0;
    int changes = 0;
    TextBox line{&root, "txtLine"};
    TextBox area{&root, "txtArea"};
    Subscriptions wires;
};

TEST_F(TextBoxViewTest, typing_reaches_the_element_key_by_key)
{
    show();
    auto& edit = widget<QLineEdit>("txtLine");
    QTest::keyClicks(&edit, QStringLiteral("A"));
    QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_Ntilde, QStringLiteral("ñ"), Qt::NoModifier);
    QTest::keyClicks(&edit, QStringLiteral("o"));
    EXPECT_EQ(line.Text(), "Año");
    EXPECT_THAT(codes, testing::ElementsAre('A', 0xF1, 'o'));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(line.Text(), "Añ");
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(codes.back(), TextBox::keyEnter);
    EXPECT_EQ(line.Text(), "Añ");
}

TEST_F(TextBoxViewTest, code_0_cancels_the_key_and_another_code_types_another_character)
{
    show();
    auto& edit = widget<QLineEdit>("txtLine");
    cancelled = 'x';
    QTest::keyClicks(&edit, QStringLiteral("axb"));
    EXPECT_EQ(line.Text(), "ab");
    replacement = 'X';
    QTest::keyClicks(&edit, QStringLiteral("x"));
    EXPECT_EQ(line.Text(), "abX");
    cancelled = TextBox::keyEnter;
    replacement = 0;
    auto& lines = widget<QPlainTextEdit>("txtArea");
    QTest::keyClicks(&lines, QStringLiteral("uno"));
    QTest::keyClick(&lines, Qt::Key_Return);
    EXPECT_EQ(area.Text(), "uno");
}

TEST_F(TextBoxViewTest, an_input_method_types_through_the_element_too)
{
    show();
    cancelled = 'x';
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("axé"));
    QApplication::sendEvent(&widget<QLineEdit>("txtLine"), &event);
    EXPECT_EQ(line.Text(), "aé");
    EXPECT_THAT(codes, testing::ElementsAre('a', 'x', 0xE9));
}

TEST_F(TextBoxViewTest, commands_of_the_keyboard_are_no_characters)
{
    line.Text("uno");
    show();
    auto& edit = widget<QLineEdit>("txtLine");
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Left);
    EXPECT_THAT(codes, testing::IsEmpty());
    EXPECT_EQ(line.Text(), "uno");
}

TEST_F(TextBoxViewTest, a_text_by_code_shows_and_a_text_that_is_there_keeps_cursor_and_undo)
{
    show();
    auto& edit = widget<QLineEdit>("txtLine");
    line.Text("abc");
    EXPECT_EQ(edit.text(), QStringLiteral("abc"));
    QTest::mouseClick(&edit, Qt::LeftButton);
    edit.setCursorPosition(1);
    QTest::keyClicks(&edit, QStringLiteral("X"));
    EXPECT_EQ(edit.cursorPosition(), 2);
    line.ToolTipText("algo cambió"); // the state is read anew, the text is the same
    EXPECT_EQ(edit.cursorPosition(), 2);
    EXPECT_TRUE(edit.isUndoAvailable());
    edit.undo();
    EXPECT_EQ(edit.text(), QStringLiteral("abc"));
}

TEST_F(TextBoxViewTest, a_locked_box_shows_and_takes_nothing)
{
    line.Text("fijo");
    line.Locked(true);
    area.Text("fijo");
    area.Locked(true);
    show();
    QTest::keyClicks(&widget<QLineEdit>("txtLine"), QStringLiteral("x"));
    QTest::keyClicks(&widget<QPlainTextEdit>("txtArea"), QStringLiteral("x"));
    EXPECT_EQ(line.Text(), "fijo");
    EXPECT_EQ(area.Text(), "fijo");
    EXPECT_EQ(widget<QLineEdit>("txtLine").text(), QStringLiteral("fijo"));
    EXPECT_EQ(widget<QPlainTextEdit>("txtArea").toPlainText(), QStringLiteral("fijo"));
    area.Locked(false);
    QTest::keyClicks(&widget<QPlainTextEdit>("txtArea"), QStringLiteral("x"));
    EXPECT_EQ(area.Text(), "xfijo");
}

TEST_F(TextBoxViewTest, every_line_end_that_is_typed_or_pasted_is_a_carriage_return_and_a_line_feed)
{
    show();
    auto& edit = widget<QPlainTextEdit>("txtArea");
    QTest::keyClicks(&edit, QStringLiteral("uno"));
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClicks(&edit, QStringLiteral("dos"));
    QTest::keyClick(&edit, Qt::Key_Return, Qt::ShiftModifier);
    QGuiApplication::clipboard()->setText(QStringLiteral("tres\ncuatro"));
    edit.paste();
    EXPECT_EQ(area.Text(), "uno\r\ndos\r\ntres\r\ncuatro");
}

TEST_F(TextBoxViewTest, a_line_end_pasted_into_a_single_line_becomes_a_blank)
{
    show();
    QGuiApplication::clipboard()->setText(QStringLiteral("uno\ndos"));
    widget<QLineEdit>("txtLine").paste();
    EXPECT_EQ(line.Text(), "uno dos");
    EXPECT_EQ(widget<QLineEdit>("txtLine").text(), QStringLiteral("uno dos"));
}

TEST_F(TextBoxViewTest, line_ends_survive_the_editing_of_what_lies_around_them)
{
    struct Case {
        const char* byCode;
        const char* afterTyping; // "x" at the end
        int blocks;
    };
    show();
    auto& edit = widget<QPlainTextEdit>("txtArea");
    for (const Case& one : {Case{"a\r\nb", "a\r\nbx", 2}, Case{"a\nb", "a\nbx", 1},
                            Case{"a\r\n\nb\n", "a\r\n\nb\nx", 2}, Case{"\r\n\r\n", "\r\n\r\nx", 3},
                            Case{"a\xC2\xA0"
                                 "b",
                                 "a\xC2\xA0"
                                 "bx",
                                 1}}) {
        area.Text(one.byCode);
        EXPECT_EQ(edit.blockCount(), one.blocks) << one.byCode;
        EXPECT_EQ(area.Text(), one.byCode);
        edit.moveCursor(QTextCursor::End);
        QTest::keyClicks(&edit, QStringLiteral("x"));
        EXPECT_EQ(area.Text(), one.afterTyping);
    }
}

TEST_F(TextBoxViewTest, a_change_is_raised_once_for_each_edit)
{
    show();
    auto& edit = widget<QPlainTextEdit>("txtArea");
    QTest::keyClicks(&edit, QStringLiteral("ab"));
    EXPECT_EQ(changes, 2);
    area.Text("otro");
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(edit.toPlainText(), QStringLiteral("otro"));
}

TEST_F(TextBoxViewTest, the_handler_of_enter_may_empty_the_box)
{
    show();
    wires.push_back(area.KeyPress.connect([this](int& code) {
        if (code != TextBox::keyEnter) return;
        code = 0;
        area.Text("");
    }));
    auto& edit = widget<QPlainTextEdit>("txtArea");
    QTest::keyClicks(&edit, QStringLiteral("nota"));
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(area.Text(), "");
    EXPECT_TRUE(edit.toPlainText().isEmpty());
}

} // namespace
} // namespace dn::tests
