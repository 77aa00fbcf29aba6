// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A list of lines, plain or with a check box on each, as a widget.
#pragma once

#include "screen/list_box.h"
#include "screen/qt/bond.h"

#include <QListView>

namespace dn::screen::qt {

class ListBoxView : public QListView {
public:
    ListBoxView(screen::ListBox& list, QWidget* parent, Guard& guard);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void mirror(const screen::ListBox& list);
    void pickCurrent();

    bool mirroring_ = false;
    Bond<screen::ListBox> bond_;
    Subscription entriesChanged_;
};

} // namespace dn::screen::qt
