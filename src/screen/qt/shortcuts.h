// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The keys that press buttons from anywhere on a screen. A key is taken only while one of its buttons can be used,
// and only while the focus lies on the screen, or in that part of it where it counts: otherwise it is the host's.
#pragma once

#include "screen/button.h"
#include "screen/qt/focus_keeper.h"
#include "screen/qt/guard.h"

#include <QKeySequence>
#include <QShortcut>

#include <map>
#include <utility>
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

    void bind(screen::Button& button, QWidget& reach);
    void press(const Key& key);
    void refresh();

    Guard& guard_;
    std::map<std::pair<QWidget*, QKeySequence>, Key> keys_; ///< by where they count, and what they are
    Subscriptions wires_;
};

} // namespace dn::screen::qt
