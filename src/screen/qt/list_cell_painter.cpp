// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/list_cell_painter.h"

#include "screen/qt/icons.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace dn::screen::qt {
namespace {

constexpr double closest = 0.88; // of a text's own width; closer still its figures would touch

/// The width that a cell leaves to its text.
int roomOf(const QStyleOptionViewItem& option)
{
    const QStyle& style = option.widget != nullptr ? *option.widget->style() : *QApplication::style();
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
    return style.subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget).width() - 2 * margin;
}

bool isFigures(const QString& text)
{
    return !text.isEmpty() && std::none_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

// A date or an amount without its end is another one. Where a little is missing, it is set closer.
void setCloser(QStyleOptionViewItem& option)
{
    if (option.rect.isEmpty() || !isFigures(option.text)) return;
    const int room = roomOf(option);
    const int needed = option.fontMetrics.horizontalAdvance(option.text);
    if (needed <= room || room < needed * closest) return;
    constexpr int air = 2; // the layout counts in fractions of a pixel
    option.font.setLetterSpacing(QFont::AbsoluteSpacing,
                                 static_cast<qreal>(room - air - needed) / static_cast<qreal>(option.text.size()));
    option.fontMetrics = QFontMetrics(option.font);
}

qreal scaleOf(const QStyleOptionViewItem& option)
{
    return option.widget != nullptr ? option.widget->devicePixelRatioF() : 1;
}

/// The drawings have colours of their own, which one or the other selection would swallow: on it they stand on a
/// plate of paper.
QIcon onPlate(const QStyleOptionViewItem& option)
{
    const qreal scale = scaleOf(option);
    const QRect place(QPoint(0, 0), option.decorationSize);
    QPixmap plate(place.size() * scale);
    plate.setDevicePixelRatio(scale);
    plate.fill(Qt::transparent);
    QPainter painter(&plate);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::Base));
    constexpr int rounding = 3;
    painter.drawRoundedRect(place, rounding, rounding);
    const bool enabled = (option.state & QStyle::State_Enabled) != 0;
    option.icon.paint(&painter, place, Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled);
    painter.end();
    QIcon icon(plate);
    icon.addPixmap(plate, QIcon::Disabled);
    return icon;
}

} // namespace

const QIcon& ListCellPainter::plated(const QStyleOptionViewItem& option) const
{
    constexpr std::size_t most = 64; // far more than there are drawings
    const Plate plate{option.icon.cacheKey(),
                      option.decorationSize.width(),
                      option.decorationSize.height(),
                      scaleOf(option),
                      option.palette.color(QPalette::Base).rgba(),
                      (option.state & QStyle::State_Enabled) != 0};
    if (const auto known = plates_.find(plate); known != plates_.end()) return known->second;
    if (plates_.size() >= most) plates_.clear();
    return plates_.emplace(plate, onPlate(option)).first->second;
}

void ListCellPainter::describe(QStyleOptionViewItem& option, const QModelIndex& index) const
{
    initStyleOption(&option, index);
}

bool ListCellPainter::isCutOff(const QStyleOptionViewItem& place, const QModelIndex& index) const
{
    QStyleOptionViewItem option = place;
    initStyleOption(&option, index);
    return option.fontMetrics.horizontalAdvance(option.text) > roomOf(option);
}

void ListCellPainter::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->text.remove(u'\r').replace(QChar(QChar::LineSeparator), u' '); // one line a row
    option->state &= ~QStyle::State_HasFocus;                              // the row is selected, no cell of it is
    setCloser(*option);
    const bool selected = (option->state & QStyle::State_Selected) != 0;
    const bool drawn = (option->features & QStyleOptionViewItem::HasDecoration) != 0;
    if (selected && drawn && option->icon.cacheKey() != blank().cacheKey()) option->icon = plated(*option);
    const QVariant foreground = index.data(Qt::ForegroundRole);
    if (!foreground.isValid()) return;
    const QColor colour = foreground.value<QBrush>().color();
    const QPalette& palette = option->palette;
    const bool second = (option->features & QStyleOptionViewItem::Alternate) != 0;
    const QColor paper = palette.color(second ? QPalette::AlternateBase : QPalette::Base);
    const bool enabled = (option->state & QStyle::State_Enabled) != 0;
    const double least = isStark(palette) ? starklyReadable : readable;
    const QColor ink =
        enabled ? inks_.on(paper, colour, least) : inks_.on(paper, mixed(colour, paper, 0.5F), faintlyReadable);
    const QColor onSelection = inks_.on(palette.color(QPalette::Highlight), colour, least);
    option->palette.setColor(QPalette::Text, ink);
    option->palette.setColor(QPalette::HighlightedText, onSelection);
}

} // namespace dn::screen::qt
