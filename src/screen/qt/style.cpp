// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/style.h"

#include "screen/qt/colours.h"
#include "screen/qt/icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include <algorithm>

namespace dn::screen::qt {
namespace {

constexpr qreal rounding = 3;

/// What an option says of its widget's state.
struct Looks {
    explicit Looks(const QStyleOption& option)
        : enabled((option.state & QStyle::State_Enabled) != 0),
          hover(enabled && (option.state & QStyle::State_MouseOver) != 0),
          focus(enabled && (option.state & QStyle::State_HasFocus) != 0),
          down((option.state & QStyle::State_Sunken) != 0),
          on((option.state & QStyle::State_On) != 0),
          accent(option.palette.color(QPalette::Highlight)),
          line(option.palette.color(QPalette::Mid))
    {
    }

    QColor edge() const { return focus ? accent : hover ? mixed(line, accent, 0.5F) : line; }

    bool enabled, hover, focus, down, on;
    QColor accent, line;
};

class SmoothPainter {
public:
    explicit SmoothPainter(QPainter& painter) : painter_(painter)
    {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    SmoothPainter(const SmoothPainter&) = delete;
    SmoothPainter& operator=(const SmoothPainter&) = delete;
    ~SmoothPainter() { painter_.restore(); }

private:
    QPainter& painter_;
};

void drawBox(QPainter& painter, const QRect& place, const QColor& edge, const QBrush& fill)
{
    const SmoothPainter smooth(painter);
    painter.setPen(edge);
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), rounding, rounding);
}

/// A flat face with a thin edge; the pointer, the focus and a press each show.
void drawButtonFace(const QStyleOption& option, QPainter& painter)
{
    const Looks looks(option);
    QColor face = option.palette.color(looks.enabled ? QPalette::Button : QPalette::Window);
    if (looks.hover) face = mixed(face, looks.accent, 0.12F);
    if (looks.down || looks.on) face = mixed(face, looks.accent, 0.28F);
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool isDefault = button != nullptr && (button->features & QStyleOptionButton::DefaultButton) != 0;
    drawBox(painter, option.rect, isDefault && looks.enabled ? looks.accent : looks.edge(), face);
}

void drawField(const QStyleOption& option, QPainter& painter)
{
    const QColor base = option.palette.color(QPalette::Base);
    const Looks looks(option);
    drawBox(painter, option.rect, looks.edge(),
            looks.enabled ? base : mixed(base, option.palette.color(QPalette::Window), 0.6F));
}

/// Sets the colours of a mark that is set, or of one that is not. @return what the sign in it is drawn with.
QColor setMarkColours(QPainter& painter, const QStyleOption& option, const Looks& looks)
{
    const QColor base = option.palette.color(QPalette::Base);
    const QColor edge = mixed(looks.line, option.palette.color(QPalette::WindowText), 0.25F);
    const QColor full = looks.enabled ? looks.accent : looks.line;
    painter.setPen(looks.on ? full : looks.hover || looks.focus ? looks.accent : edge);
    painter.setBrush(looks.on ? full : base);
    return inkOn(full);
}

void drawCheckMark(const QStyleOption& option, QPainter& painter)
{
    const Looks looks(option);
    const SmoothPainter smooth(painter);
    const QRectF box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    const QColor sign = setMarkColours(painter, option, looks);
    painter.drawRoundedRect(box, 2.5, 2.5);
    if (!looks.on) return;
    QPainterPath tick(box.topLeft() + QPointF(box.width() * 0.22, box.height() * 0.52));
    tick.lineTo(box.topLeft() + QPointF(box.width() * 0.42, box.height() * 0.72));
    tick.lineTo(box.topLeft() + QPointF(box.width() * 0.78, box.height() * 0.30));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(sign, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(tick);
}

void drawOptionMark(const QStyleOption& option, QPainter& painter)
{
    const Looks looks(option);
    const SmoothPainter smooth(painter);
    const QRectF box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    const QColor sign = setMarkColours(painter, option, looks);
    painter.drawEllipse(box);
    if (!looks.on) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(sign);
    painter.drawEllipse(box.center(), box.width() * 0.2, box.height() * 0.2);
}

/// The edge of lists and text boxes, which scroll.
void drawFrame(const QStyleOption& option, QPainter& painter)
{
    painter.save();
    painter.setPen(Looks(option).edge());
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

constexpr float grooveShare = 0.06F; // of the ink in the ground

float handleShare(const QStyleOptionSlider& option)
{
    const Looks looks(option);
    const bool touched = (option.activeSubControls & QStyle::SC_ScrollBarSlider) != 0;
    if (!looks.enabled) return 0.25F;
    return touched && looks.down ? 0.85F : touched && looks.hover ? 0.7F : 0.55F;
}

void drawArrow(QPainter& painter, const QRect& place, Qt::ArrowType arrow)
{
    constexpr qreal reach = 3; // logical pixels from the middle
    QPolygonF triangle({{-reach, reach / 2}, {reach, reach / 2}, {0, -reach / 2}});
    QTransform turn;
    turn.rotate(arrow == Qt::UpArrow ? 0 : arrow == Qt::RightArrow ? 90 : arrow == Qt::DownArrow ? 180 : 270);
    painter.drawPolygon(turn.map(triangle).translated(QRectF(place).center()));
}

/// A flat groove with a handle that stands out from it in every theme.
void drawScrollBar(const QStyleOptionSlider& option, QPainter& painter, const QStyle& style, const QWidget* widget)
{
    const QColor ground = option.palette.color(QPalette::Window);
    const QColor ink = option.palette.color(QPalette::WindowText);
    const auto place = [&](QStyle::SubControl part) {
        return style.subControlRect(QStyle::CC_ScrollBar, &option, part, widget);
    };
    painter.fillRect(option.rect, mixed(ground, ink, grooveShare));
    const SmoothPainter smooth(painter);
    painter.setPen(Qt::NoPen);
    const bool moves = option.maximum > option.minimum;
    painter.setBrush(mixed(ground, ink, moves ? 0.7F : 0.25F));
    const bool across = option.orientation == Qt::Horizontal;
    const bool mirrored = across && option.direction == Qt::RightToLeft;
    const Qt::ArrowType back = !across ? Qt::UpArrow : mirrored ? Qt::RightArrow : Qt::LeftArrow;
    const Qt::ArrowType forth = !across ? Qt::DownArrow : mirrored ? Qt::LeftArrow : Qt::RightArrow;
    drawArrow(painter, place(QStyle::SC_ScrollBarSubLine), back);
    drawArrow(painter, place(QStyle::SC_ScrollBarAddLine), forth);
    if (!moves) return;
    constexpr int air = 3; // on either side of the handle
    const QRectF handle = QRectF(place(QStyle::SC_ScrollBarSlider))
                              .adjusted(across ? 0 : air, across ? air : 0, across ? 0 : -air, across ? -air : 0);
    painter.setBrush(mixed(ground, ink, handleShare(option)));
    painter.drawRoundedRect(handle, rounding, rounding);
}

bool turnsTheMonth(const QWidget& widget)
{
    return widget.objectName() == QLatin1String("qt_calendar_prevmonth") ||
           widget.objectName() == QLatin1String("qt_calendar_nextmonth");
}

/// Of a calendar, on the bar of the month, which is in the colour of what is selected.
void drawMonthArrow(const QStyleOptionToolButton& button, QPainter& painter)
{
    const SmoothPainter smooth(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(button.palette.color(QPalette::HighlightedText));
    drawArrow(painter, button.rect, button.arrowType);
}

/// A field as all others, with two arrows on its right.
void drawSpinBox(const QStyleOptionSpinBox& option, QPainter& painter, const QStyle& style, const QWidget* widget)
{
    if (option.frame) drawField(option, painter);
    if (option.buttonSymbols == QAbstractSpinBox::NoButtons) return;
    const QColor ink = option.palette.color(QPalette::Text);
    const QColor ground = option.palette.color(QPalette::Base);
    const SmoothPainter smooth(painter);
    painter.setPen(Qt::NoPen);
    const auto arrow = [&](QStyle::SubControl part, QAbstractSpinBox::StepEnabledFlag step, Qt::ArrowType shape) {
        const bool lively = Looks(option).enabled && (option.stepEnabled & step) != 0;
        const bool touched = lively && (option.activeSubControls & part) != 0;
        const QRect place = style.subControlRect(QStyle::CC_SpinBox, &option, part, widget);
        if (touched) painter.fillRect(place.adjusted(0, 1, -1, -1), mixed(ground, Looks(option).accent, 0.2F));
        painter.setBrush(mixed(ground, ink, lively ? 0.7F : 0.25F));
        drawArrow(painter, place, shape);
    };
    arrow(QStyle::SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, Qt::UpArrow);
    arrow(QStyle::SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, Qt::DownArrow);
}

/// The drawing of a message box, nothing for other pictures.
QIcon messageDrawing(QStyle::StandardPixmap picture)
{
    switch (picture) {
    case QStyle::SP_MessageBoxInformation:
        return drawing("message-information");
    case QStyle::SP_MessageBoxWarning:
        return drawing("message-warning");
    case QStyle::SP_MessageBoxCritical:
        return drawing("message-critical");
    case QStyle::SP_MessageBoxQuestion:
        return drawing("message-question");
    default:
        return {};
    }
}

} // namespace

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) {}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        drawButtonFace(*option, *painter);
        return;
    case PE_FrameLineEdit:
    case PE_PanelLineEdit:
        break;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        drawCheckMark(*option, *painter);
        return;
    case PE_IndicatorRadioButton:
        drawOptionMark(*option, *painter);
        return;
    case PE_Frame:
        drawFrame(*option, *painter);
        return;
    case PE_FrameFocusRect: // the edge of a button shows it
        if (widget != nullptr && widget->inherits("QPushButton")) return;
        break;
    default:
        break;
    }
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    const bool field =
        element == PE_FrameLineEdit || (element == PE_PanelLineEdit && frame != nullptr && frame->lineWidth > 0);
    if (field)
        drawField(*option, *painter);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

template <class Option>
Option Style::withKnownPalette(const Option& option) const
{
    Option result = option;
    result.palette = palettes_.of(option.palette);
    return result;
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const
{
    const auto* const header = qstyleoption_cast<const QStyleOptionHeaderV2*>(option);
    if (element != CE_HeaderSection || header == nullptr) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    const QStyleOptionHeaderV2 section = withKnownPalette(*header);
    QProxyStyle::drawControl(element, &section, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        control == CC_ScrollBar && bar != nullptr) {
        drawScrollBar(*bar, *painter, *this, widget);
        return;
    }
    if (const auto* const spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
        control == CC_SpinBox && spin != nullptr) {
        drawSpinBox(*spin, *painter, *this, widget);
        return;
    }
    if (const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        control == CC_ComboBox && combo != nullptr) {
        const QStyleOptionComboBox box = withKnownPalette(*combo);
        QProxyStyle::drawComplexControl(control, &box, painter, widget);
        return;
    }
    const auto* const button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
    if (button != nullptr && widget != nullptr && turnsTheMonth(*widget)) {
        drawMonthArrow(*button, *painter);
        return;
    }
    const bool month = widget != nullptr && widget->objectName() == QLatin1String("qt_calendar_monthbutton");
    if (control != CC_ToolButton || button == nullptr || !month) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    QStyleOptionToolButton plain = *button; // there is no room for the arrow of its menu: it would lie on the name
    plain.features &= ~QStyleOptionToolButton::HasMenu;
    QProxyStyle::drawComplexControl(control, &plain, painter, widget);
}

QIcon Style::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const
{
    const QIcon own = messageDrawing(picture);
    return own.isNull() ? QProxyStyle::standardIcon(picture, option, widget) : own;
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_ButtonMargin:
        return 6;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
        return 16;
    case PM_MessageBoxIconSize:
        return 32;
    case PM_ScrollBarExtent:
        return 13;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 14;
    case PM_HeaderMargin:
        return 3;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const
{
    constexpr int beside = 12; // each side of a caption; a picture takes the place of one
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (type == CT_PushButton && button != nullptr && button->icon.isNull())
        size.setWidth(std::max(size.width(), contents.width() + 2 * beside));
    return size;
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* data) const
{
    switch (hint) {
    case SH_ComboBox_Popup:
        return 0; // a list below the box, with a scroll bar
    case SH_ItemView_ShowDecorationSelected:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

// The drawings keep their colours in a selected row: some of their meaning is in them.
QPixmap Style::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const
{
    return mode == QIcon::Selected ? pixmap : QProxyStyle::generatedIconPixmap(mode, pixmap, option);
}

} // namespace dn::screen::qt
