// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/button_view.h"

#include "screen/qt/colours.h"
#include "screen/qt/icons.h"
#include "screen/qt/text.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <vector>

namespace dn::screen::qt {
namespace {

QString tipWithKey(const screen::Button& button)
{
    const QString key =
        QKeySequence(fromUtf8(button.Shortcut()), QKeySequence::PortableText).toString(QKeySequence::NativeText);
    const QString text =
        button.ToolTipText().empty() ? withoutMnemonic(button.Caption()) : fromUtf8(button.ToolTipText());
    return asToolTip(toUtf8(QStringLiteral("%1 (%2)").arg(text, key)));
}

} // namespace

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
    if (!button.Shortcut().empty()) setToolTip(tipWithKey(button));
    swatch_ = button.BackColor() ? fromColour(*button.BackColor()) : QColor();
    update();
}

// A key that is held down presses what has the focus once, and not also what gets it next.
void ButtonView::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || !event->isAutoRepeat()) QPushButton::keyPressEvent(event);
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
    // A screen reader chooses without a click. The widget has come to an end with that by then: the gesture may
    // end it.
    const auto follow = [this](auto& it) {
        if (isChecked() && !it.Value()) it.choose();
    };
    connect(
        this, &QRadioButton::toggled, this, [this, follow] { bond_.gesture(follow); }, Qt::QueuedConnection);
    bond_.refresh();
}

// The arrows go through the options that exclude each other, and choose.
void OptionButtonView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        chooseNext(-1);
        break;
    case Qt::Key_Down:
    case Qt::Key_Right:
        chooseNext(1);
        break;
    default:
        QRadioButton::keyPressEvent(event);
    }
}

void OptionButtonView::chooseNext(int step)
{
    const screen::OptionButton* const own = bond_.element();
    if (own == nullptr || own->parent() == nullptr) return;
    std::vector<screen::OptionButton*> options;
    for (Element* sibling : own->parent()->children())
        if (auto* option = dynamic_cast<screen::OptionButton*>(sibling); option != nullptr && option->usable())
            options.push_back(option);
    const auto place = std::find(options.begin(), options.end(), own) - options.begin() + step;
    if (place < 0 || place >= static_cast<std::ptrdiff_t>(options.size())) return;
    screen::OptionButton& next = *options[static_cast<std::size_t>(place)];
    bond_.guard().run([&] {
        next.SetFocus();
        next.choose();
    });
}

CheckBoxView::CheckBoxView(screen::CheckBox& box, QWidget* parent, Guard& guard)
    : QCheckBox(parent), bond_(box, *this, guard, [this](const auto& state) {
          setText(fromUtf8(state.Caption()));
          setChecked(state.Value() != 0);
      })
{
    connect(this, &QCheckBox::clicked, this, [this] { bond_.gesture([](auto& it) { it.toggle(); }); });
    const auto follow = [this](auto& it) { // as above
        if (isChecked() != (it.Value() != 0)) it.toggle();
    };
    connect(
        this, &QCheckBox::toggled, this, [this, follow] { bond_.gesture(follow); }, Qt::QueuedConnection);
    bond_.refresh();
}

} // namespace dn::screen::qt
