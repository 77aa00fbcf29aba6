// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/text_box_view.h"

#include "screen/qt/text.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include <optional>

namespace dn::screen::qt {
namespace {

/// The code of a key that makes a character, or that is Enter.
std::optional<int> characterOf(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return TextBox::keyEnter;
    const Qt::KeyboardModifiers command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (command == Qt::ControlModifier || command == Qt::AltModifier) return std::nullopt; // both are AltGr
    const QList<uint> characters = event.text().toUcs4();
    if (characters.size() != 1 || !QChar::isPrint(characters.front())) return std::nullopt;
    return static_cast<int>(characters.front());
}

/// Asks the element for a key. @return the code that is left, nothing when the widget has gone.
std::optional<int> press(Bond<screen::TextBox>& bond, int code)
{
    int left = 0;
    const bool alive = bond.gesture([&](TextBox& box) { left = box.pressKey(code); });
    return alive ? std::optional(left) : std::nullopt;
}

QString textOf(int code)
{
    const auto character = static_cast<char32_t>(code);
    return QString::fromUcs4(&character, 1);
}

/// Passes a key on as it is, as another character, or not at all.
template <class Pass, class Type>
void handleKey(Bond<screen::TextBox>& bond, const QKeyEvent& event, const Pass& pass, const Type& type)
{
    const std::optional<int> code = characterOf(event);
    if (!code) {
        pass();
        return;
    }
    const std::optional<int> left = press(bond, *code);
    if (left == code)
        pass();
    else if (left && *left != 0)
        type(textOf(*left));
}

/// What an input method delivers, character by character through the element.
std::optional<QString> passedOn(Bond<screen::TextBox>& bond, const QString& typed)
{
    QString passed;
    for (const uint character : typed.toUcs4()) {
        const std::optional<int> left = press(bond, static_cast<int>(character));
        if (!left) return std::nullopt;
        if (*left != 0) passed += textOf(*left);
    }
    return passed;
}

} // namespace

LineBoxView::LineBoxView(screen::TextBox& box, QWidget* parent, Guard& guard)
    : QLineEdit(parent), bond_(box, *this, guard, [this](const auto& state) { mirror(state); })
{
    setTextMargins(2, 0, 2, 0); // the text begins where that of a combo does
    connect(this, &QLineEdit::textEdited, this, [this](QString text) {
        text.replace(u'\r', u' ').replace(u'\n', u' '); // a line end that was pasted
        bond_.gesture([&](auto& it) { it.edit(toUtf8(text)); });
    });
    bond_.refresh();
}

void LineBoxView::mirror(const screen::TextBox& box)
{
    setReadOnly(box.Locked());
    const QString text = fromUtf8(box.Text());
    if (text == this->text()) return;
    const int cursor = cursorPosition();
    setText(text);
    setCursorPosition(hasFocus() ? cursor : 0);
}

void LineBoxView::keyPressEvent(QKeyEvent* event)
{
    handleKey(
        bond_, *event, [&] { QLineEdit::keyPressEvent(event); },
        [&](const QString& other) {
            if (isReadOnly()) return;
            insert(other);
            Q_EMIT textEdited(text());
        });
}

void LineBoxView::inputMethodEvent(QInputMethodEvent* event)
{
    const std::optional<QString> passed = passedOn(bond_, event->commitString());
    if (!passed) return;
    event->setCommitString(*passed, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(event);
}

MultiLineBoxView::MultiLineBoxView(screen::TextBox& box, QWidget* parent, Guard& guard)
    : QPlainTextEdit(parent), bond_(box, *this, guard, [this](const auto& state) { mirror(state); })
{
    setTabChangesFocus(true);
    connect(document(), &QTextDocument::contentsChanged, this, [this] { edited(); });
    bond_.refresh();
}

void MultiLineBoxView::mirror(const screen::TextBox& box)
{
    setVerticalScrollBarPolicy(box.ScrollBars() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setReadOnly(box.Locked());
    // A locked box is read with the keyboard too.
    if (box.Locked()) setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    if (box.Text() == shown_) return;
    mirroring_ = true;
    setPlainText(toDocument(box.Locked() ? readablePart(box.Text()) : box.Text()));
    mirroring_ = false;
    shown_ = box.Text();
}

void MultiLineBoxView::edited()
{
    if (mirroring_) return;
    std::string text = fromDocument(document()->toRawText());
    if (text == shown_) return;
    shown_ = text;
    bond_.gesture([&](auto& it) { it.edit(std::move(text)); });
}

// Enter with a shift key is Enter: the toolkit would break the line within its block, as a lone line feed.
void MultiLineBoxView::keyPressEvent(QKeyEvent* event)
{
    const auto pass = [&] {
        const bool enter = characterOf(*event) == TextBox::keyEnter;
        if (enter) event->setModifiers(Qt::NoModifier);
        QPlainTextEdit::keyPressEvent(event);
    };
    handleKey(bond_, *event, pass, [&](const QString& other) {
        if (!isReadOnly()) insertPlainText(other);
    });
}

void MultiLineBoxView::inputMethodEvent(QInputMethodEvent* event)
{
    const std::optional<QString> passed = passedOn(bond_, event->commitString());
    if (!passed) return;
    event->setCommitString(*passed, event->replacementStart(), event->replacementLength());
    QPlainTextEdit::inputMethodEvent(event);
}

// Line breaks within a block leave as line ends like the others.
QMimeData* MultiLineBoxView::createMimeDataFromSelection() const
{
    auto* const copied = new QMimeData; // the clipboard takes it over
    copied->setText(textCursor().selection().toPlainText());
    return copied;
}

} // namespace dn::screen::qt
