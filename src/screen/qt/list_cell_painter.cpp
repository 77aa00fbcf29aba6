// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/list_cell_painter.h"

#include <QApplication>

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

} // namespace

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
    const QVariant foreground = index.data(Qt::ForegroundRole);
    if (!foreground.isValid()) return;
    const QColor colour = foreground.value<QBrush>().color();
    const QPalette& palette = option->palette;
    const bool second = (option->features & QStyleOptionViewItem::Alternate) != 0;
    const QColor paper = palette.color(second ? QPalette::AlternateBase : QPalette::Base);
    const bool enabled = (option->state & QStyle::State_Enabled) != 0;
    const QColor ink = enabled ? inks_.on(paper, colour) : mixed(colour, paper, 0.5F);
    const QColor selected = inks_.on(palette.color(QPalette::Highlight), colour);
    option->palette.setColor(QPalette::Text, ink);
    option->palette.setColor(QPalette::HighlightedText, selected);
}

} // namespace dn::screen::qt
