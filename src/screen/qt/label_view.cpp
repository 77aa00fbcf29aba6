// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/label_view.h"

#include "screen/qt/colours.h"
#include "screen/qt/hourglass.h"
#include "screen/qt/list_view_view.h"
#include "screen/qt/text.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

namespace dn::screen::qt {
namespace {

Qt::Alignment horizontal(TextAlignment alignment)
{
    if (alignment == TextAlignment::right) return Qt::AlignRight;
    return alignment == TextAlignment::centre ? Qt::AlignHCenter : Qt::AlignLeft;
}

void setBold(QWidget& widget, bool bold)
{
    if (widget.font().bold() == bold) return;
    QFont font = widget.font();
    font.setBold(bold);
    widget.setFont(font);
}

/// The colour of a tab as it is drawn. In a dark window the pale ones would be brighter than any text.
QColor tabColour(const QColor& given, const QPalette& palette, bool inFront)
{
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    if (!dark || isStark(palette)) return given;
    return mixed(given, palette.color(QPalette::Window), inFront ? 0.4F : 0.75F);
}

QPainterPath tabShape(const QRectF& box)
{
    constexpr qreal radius = 5;
    QPainterPath path(box.bottomLeft());
    path.lineTo(box.left(), box.top() + radius);
    path.quadTo(box.topLeft(), {box.left() + radius, box.top()});
    path.lineTo(box.right() - radius, box.top());
    path.quadTo(box.topRight(), {box.right(), box.top() + radius});
    path.lineTo(box.bottomRight());
    return path;
}

} // namespace

LabelView::LabelView(screen::Label& label, QWidget* parent, Guard& guard)
    : QLabel(parent), bond_(label, *this, guard, [this](const auto& state) { mirror(state); })
{
    setTextFormat(Qt::PlainText); // telephone numbers and counters come from data
    parent->installEventFilter(this);
    bond_.refresh();
}

void LabelView::stepTo(QWidget* buddy)
{
    setBuddy(buddy);
    bond_.refresh();
}

void LabelView::mirror(const screen::Label& label)
{
    setBold(*this, label.FontBold());
    const bool asItIs = buddy() != nullptr || !label.UseMnemonic();
    setText(asItIs ? fromUtf8(label.Caption()) : withoutMnemonic(label.Caption()));
    setAlignment(horizontal(label.Alignment()) | Qt::AlignVCenter);
    setFrameShape(label.BorderStyle() != 0 ? QFrame::Box : QFrame::NoFrame);
    setAutoFillBackground(label.BackColor().has_value());
    dressInColour(*this, label.BackColor());
    if (label.AutoSize()) fit(label);
}

int LabelView::room() const { return parentWidget()->width() - x(); }

void LabelView::fit(const screen::Label& label)
{
    constexpr int narrowest = 76; // percent of the letters' own width
    QFont face = font();
    for (int stretch = QFont::Unstretched; stretch >= narrowest; stretch -= 2) {
        face.setStretch(stretch);
        if (QFontMetrics(face).size(Qt::TextShowMnemonic, text()).width() <= room()) break;
    }
    if (face.stretch() != font().stretch()) setFont(face);
    resize(sizeHint());
    setToolTip(width() > room() ? text() : asToolTip(label.ToolTipText()));
}

void LabelView::paintEvent(QPaintEvent* event)
{
    const screen::Label* const label = bond_.element();
    if (label == nullptr || !label->AutoSize() || width() <= room() || room() <= 0) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawItemText(&painter, {0, 0, room(), height()}, static_cast<int>(alignment()), palette(),
                          isEnabled(), fontMetrics().elidedText(text(), Qt::ElideRight, room()), foregroundRole());
}

void LabelView::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange && bond_.element() != nullptr && bond_.element()->AutoSize())
        fit(*bond_.element());
}

bool LabelView::eventFilter(QObject* watched, QEvent* event)
{
    const screen::Label* const label = bond_.element();
    const bool fits = label != nullptr && label->AutoSize();
    if (fits && watched == parent() && event->type() == QEvent::Resize) {
        fit(*label);
        update();
    }
    // No room at all, as beside the marks in a window of 800 pixels: what it lies in tells its text.
    if (fits && watched == parent() && event->type() == QEvent::ToolTip && room() <= 0) {
        QToolTip::showText(static_cast<const QHelpEvent*>(event)->globalPos(), text(), parentWidget());
        return true;
    }
    return QLabel::eventFilter(watched, event);
}

void LabelView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        bond_.gesture([](auto& it) { it.click(); });
}

ClickLabelView::ClickLabelView(screen::Label& label, QWidget* parent, Guard& guard)
    : QAbstractButton(parent), bond_(label, *this, guard, [this](const auto& state) { mirror(state); })
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    // What a tab shows is read anew, which may take a while.
    connect(this, &QAbstractButton::clicked, this, [this] {
        bond_.gesture([](auto& it) {
            const Hourglass hourglass; // gone by the time that a failure is told
            it.click();
        });
    });
    bond_.refresh();
}

QSize ClickLabelView::sizeHint() const { return fontMetrics().size(Qt::TextShowMnemonic, text()) + QSize(12, 4); }

void ClickLabelView::mirror(const screen::Label& label)
{
    setText(fromUtf8(label.Caption()));
    setBold(*this, label.FontBold());
    setCursor(label.handPointer() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    alignment_ = horizontal(label.Alignment());
    back_ = label.BackColor() ? fromColour(*label.BackColor()) : QColor();
    raised_ = label.BorderStyle() != 0;
    if (label.AutoSize()) resize(sizeHint());
    update();
}

void ClickLabelView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor window = palette().color(QPalette::Window);
    const QColor back = back_.isValid() ? tabColour(back_, palette(), raised_) : back_;
    QColor ink = back.isValid() ? inkOn(back) : palette().color(QPalette::WindowText);
    if (!isEnabled()) ink.setAlphaF(0.5F);
    if (back.isValid()) {
        const QColor fill = underMouse() && isEnabled() ? back.lighter(104) : back;
        painter.setPen(raised_ ? back.darker(170) : back.darker(125));
        painter.setBrush(isEnabled() ? fill : window);
        painter.drawPath(tabShape(QRectF(rect()).adjusted(0.5, raised_ ? 0.5 : 2.5, -0.5, 0)));
    }
    if (hasFocus()) {
        painter.setPen(QPen(ink, 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(3.5, 4.5, -3.5, -2.5), 3, 3);
    }
    painter.setPen(ink);
    painter.drawText(rect().adjusted(2, raised_ || !back_.isValid() ? 0 : 2, -2, 0),
                     static_cast<int>(alignment_ | Qt::AlignVCenter) | Qt::TextShowMnemonic, text());
}

void ClickLabelView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    case Qt::Key_Left:
        moveFocus(-1);
        break;
    case Qt::Key_Right:
        moveFocus(1);
        break;
    case Qt::Key_Down:
        goToList();
        break;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

bool ClickLabelView::event(QEvent* event)
{
    const bool hover = event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave;
    if (hover) update();
    return QAbstractButton::event(event);
}

// To the nearest one of the container on that side.
void ClickLabelView::moveFocus(int step)
{
    ClickLabelView* nearest = nullptr;
    for (QObject* child : parent()->children()) {
        auto* const other = dynamic_cast<ClickLabelView*>(child);
        if (other == nullptr || other == this || !other->isVisible() || !other->isEnabled()) continue;
        const int distance = (other->x() - x()) * step;
        if (distance > 0 && (nearest == nullptr || distance < (nearest->x() - x()) * step)) nearest = other;
    }
    if (nearest != nullptr) nearest->setFocus(Qt::TabFocusReason);
}

// The list of a tab is the one that shows; it lies in the nearest container around both.
void ClickLabelView::goToList()
{
    for (const QWidget* around = parentWidget(); around != nullptr; around = around->parentWidget())
        for (auto* list : around->findChildren<ListViewView*>())
            if (list->isVisible() && list->isEnabled()) {
                list->setFocus(Qt::TabFocusReason);
                return;
            }
}

} // namespace dn::screen::qt
