// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The containers as widgets: the control itself and the panels inside it.
#pragma once

#include "screen/panels.h"
#include "screen/qt/bond.h"

#include <QFrame>

#include <memory>

namespace dn::screen::qt {

class FocusKeeper;
class Shortcuts;

class PanelView : public QFrame {
public:
    PanelView(screen::PicturePanel& panel, QWidget* parent, Guard& guard);

private:
    void mirror(const screen::PicturePanel& panel);

    Bond<screen::PicturePanel> bond_;
};

/// The view of a whole control. It has the size that its layout gives it and tells the element.
class ControlView : public QWidget {
public:
    ControlView(screen::UserControl& control, QWidget* parent, Guard& guard);
    ~ControlView() override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    screen::UserControl* element_;
    Guard& guard_;
    std::unique_ptr<FocusKeeper> focus_;
    std::unique_ptr<Shortcuts> shortcuts_;
    Subscriptions wires_;
};

} // namespace dn::screen::qt
