// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/held_keys.h"

#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace dn::screen::qt {
namespace {

class HeldKeys : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress) return false;
        const auto& pressed = static_cast<const QKeyEvent&>(*event);
        if (!pressed.isAutoRepeat()) return false;
        const bool enter = pressed.key() == Qt::Key_Return || pressed.key() == Qt::Key_Enter;
        return pressed.key() == Qt::Key_Escape || (enter && !takesLines(*watched));
    }

private:
    static bool takesLines(const QObject& watched)
    {
        return qobject_cast<const QPlainTextEdit*>(&watched) != nullptr ||
               qobject_cast<const QTextEdit*>(&watched) != nullptr;
    }
};

} // namespace

// Not on the window alone: a button that has the focus takes Enter before its window sees it.
void ignoreHeldKeys(QWidget& window)
{
    auto* const held = new HeldKeys(&window);
    window.installEventFilter(held);
    for (QWidget* part : window.findChildren<QWidget*>())
        part->installEventFilter(held);
}

} // namespace dn::screen::qt
