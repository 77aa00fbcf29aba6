// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Texts on the screen: plain ones, and those that the operator clicks, drawn as tabs where they have a colour.
#pragma once

#include "screen/label.h"
#include "screen/qt/bond.h"

#include <QAbstractButton>
#include <QLabel>

namespace dn::screen::qt {

/// A label that takes the size of its text (`AutoSize`) has the room that its container leaves: where that is too
/// little, the letters are set narrower, as far as they can be read, and what is still too long is cut off by
/// three dots and stands in the tool tip.
class LabelView : public QLabel {
public:
    LabelView(screen::Label& label, QWidget* parent, Guard& guard);

    /// The widget that the label's accelerator gives the focus to.
    void stepTo(QWidget* buddy);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void mirror(const screen::Label& label);
    int room() const;
    void fit(const screen::Label& label);

    Bond<screen::Label> bond_;
};

/// A label with the hand pointer. It is reached by Tab, pressed by Space and Enter, and the arrow keys move
/// between those of one container.
class ClickLabelView : public QAbstractButton {
public:
    ClickLabelView(screen::Label& label, QWidget* parent, Guard& guard);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    void mirror(const screen::Label& label);
    void moveFocus(int step);
    void goToList();

    QColor back_;
    bool raised_ = false;
    Qt::Alignment alignment_ = Qt::AlignLeft;
    Bond<screen::Label> bond_;
};

} // namespace dn::screen::qt
