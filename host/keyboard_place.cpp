// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/keyboard_place.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>

#include <algorithm>

namespace dn::host {
namespace {

int anchorOf(const QLineEdit& line)
{
    if (!line.hasSelectedText()) return line.cursorPosition();
    return line.cursorPosition() == line.selectionStart() ? line.selectionEnd() : line.selectionStart();
}

void mark(QPlainTextEdit& text, int anchor, int cursor)
{
    const int end = text.document()->characterCount() - 1; // it counts the end of the last line
    QTextCursor place = text.textCursor();
    place.setPosition(std::min(anchor, end));
    place.setPosition(std::min(cursor, end), QTextCursor::KeepAnchor);
    text.setTextCursor(place);
}

void mark(QLineEdit& line, int anchor, int cursor)
{
    if (anchor == cursor)
        line.setCursorPosition(cursor);
    else
        line.setSelection(anchor, cursor - anchor); // backwards too
}

} // namespace

KeyboardPlace::KeyboardPlace(const QWidget& window) : field_(window.focusWidget())
{
    if (const auto* const text = qobject_cast<QPlainTextEdit*>(field_); text != nullptr) {
        anchor_ = text->textCursor().anchor();
        cursor_ = text->textCursor().position();
    } else if (const auto* const line = qobject_cast<QLineEdit*>(field_); line != nullptr) {
        anchor_ = anchorOf(*line);
        cursor_ = line->cursorPosition();
    }
}

void KeyboardPlace::restore() const
{
    if (field_.isNull() || !field_->isEnabled() || !field_->isVisible()) return;
    field_->setFocus(Qt::OtherFocusReason);
    if (auto* const text = qobject_cast<QPlainTextEdit*>(field_); text != nullptr)
        mark(*text, anchor_, cursor_);
    else if (auto* const line = qobject_cast<QLineEdit*>(field_); line != nullptr)
        mark(*line, anchor_, cursor_);
}

} // namespace dn::host
