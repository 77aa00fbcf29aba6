// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Push buttons, option buttons and check boxes as widgets.
#pragma once

#include "screen/button.h"
#include "screen/qt/bond.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

namespace dn::screen::qt {

class ButtonView : public QPushButton {
public:
    ButtonView(screen::Button& button, QWidget* parent, Guard& guard);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void mirror(const screen::Button& button);

    QColor swatch_; ///< invalid for an ordinary button
    Bond<screen::Button> bond_;
};

class OptionButtonView : public QRadioButton {
public:
    OptionButtonView(screen::OptionButton& option, QWidget* parent, Guard& guard);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void chooseNext(int step);

    Bond<screen::OptionButton> bond_;
};

class CheckBoxView : public QCheckBox {
public:
    CheckBoxView(screen::CheckBox& box, QWidget* parent, Guard& guard);

private:
    Bond<screen::CheckBox> bond_;
};

} // namespace dn::screen::qt
