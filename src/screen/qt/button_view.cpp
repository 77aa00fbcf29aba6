// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/button_view.h"

#include "screen/qt/colours.h"
#include "screen/qt/icons.h"
#include "screen/qt/text.h"

#include <QPainter>
#include <QStyle>

namespace dn::screen::qt {

ButtonView::ButtonView(screen::Button& button, QWidget* parent, Guard& guard)
    : QPushButton(parent), bond_(button, *this, guard, [this](const auto& state) { mirror(state); })
{
    setAutoDefault(true); // Enter presses the button that has the focus, in the control as in a dialog
    connect(this, &QPushButton::clicked, this, [this] { bond_.gesture([](auto& it) { it.press(); }); });
    bond_.refresh();
}

void ButtonView::mirror(const screen::Button& button)
{
    setText(fromUtf8(button.Caption()));
    setIcon(drawing(button.Picture()));
    setDefault(button.Default());
    swatch_ = button.BackColor() ? fromColour(*button.BackColor()) : QColor();
    update();
}

// A colour button is a swatch: its picture tells it apart for who does not tell colours apart.
void ButtonView::paintEvent(QPaintEvent* event)
{
    if (!swatch_.isValid()) {
        QPushButton::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool lively = underMouse() || hasFocus();
    painter.setPen(QPen(palette().color(lively ? QPalette::Highlight : QPalette::Mid), lively ? 2 : 1));
    painter.setBrush(isEnabled() ? swatch_ : palette().color(QPalette::Window));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 3, 3);
    const int side = qMin(16, qMin(width(), height()) - 4);
    const QRect place = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, {side, side}, rect());
    icon().paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

OptionButtonView::OptionButtonView(screen::OptionButton& option, QWidget* parent, Guard& guard)
    : QRadioButton(parent), bond_(option, *this, guard, [this](const auto& state) {
          setText(fromUtf8(state.Caption()));
          setChecked(state.Value());
      })
{
    setAutoExclusive(false); // the elements exclude each other themselves
    connect(this, &QRadioButton::clicked, this, [this] { bond_.gesture([](auto& it) { it.choose(); }); });
    bond_.refresh();
}

CheckBoxView::CheckBoxView(screen::CheckBox& box, QWidget* parent, Guard& guard)
    : QCheckBox(parent), bond_(box, *this, guard, [this](const auto& state) {
          setText(fromUtf8(state.Caption()));
          setChecked(state.Value() != 0);
      })
{
    connect(this, &QCheckBox::clicked, this, [this] { bond_.gesture([](auto& it) { it.toggle(); }); });
    bond_.refresh();
}

} // namespace dn::screen::qt
