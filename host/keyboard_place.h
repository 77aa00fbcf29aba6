// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Where in a window the operator's keys go: the field with the focus, and in its text the cursor and what is
// marked. A field that is disabled for a moment loses all of that.
#pragma once

#include <QPointer>
#include <QWidget>

namespace dn::host {

class KeyboardPlace {
public:
    KeyboardPlace() = default;
    /// As it is now.
    explicit KeyboardPlace(const QWidget& window);

    /// Takes the keyboard back there, unless that field cannot take it any more.
    void restore() const;

private:
    QPointer<QWidget> field_;
    int anchor_ = 0; // where the mark begins; the cursor itself without a mark
    int cursor_ = 0;
};

} // namespace dn::host
