// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The keys that press buttons from anywhere on a screen. A key is taken only while one of its buttons can be used,
// and only while the focus lies on the screen: otherwise it is the host's.
#pragma once

#include "screen/button.h"
#include "screen/qt/focus_keeper.h"
#include "screen/qt/guard.h"

#include <QKeySequence>
#include <QShortcut>

#include <map>
#include <vector>

namespace dn::screen::qt {

class Shortcuts {
public:
    /// @param root the widget of the whole screen; it owns the shortcuts.
    /// @param views all its views, whose buttons have their keys already.
    Shortcuts(QWidget& root, const std::vector<View>& views, Guard& guard);

private:
    struct Key {
        QShortcut* shortcut;
        std::vector<screen::Button*> buttons;
    };

    void bind(screen::Button& button, QWidget& root);
    void press(const Key& key);
    void refresh();

    Guard& guard_;
    std::map<QKeySequence, Key> keys_;
    Subscriptions wires_;
};

} // namespace dn::screen::qt
