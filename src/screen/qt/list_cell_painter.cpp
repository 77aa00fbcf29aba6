// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/list_cell_painter.h"

#include "screen/qt/colours.h"

#include <QApplication>

namespace dn::screen::qt {

void ListCellPainter::describe(QStyleOptionViewItem& option, const QModelIndex& index) const
{
    initStyleOption(&option, index);
}

bool ListCellPainter::isCutOff(const QStyleOptionViewItem& place, const QModelIndex& index) const
{
    QStyleOptionViewItem option = place;
    initStyleOption(&option, index);
    const QStyle& style = option.widget != nullptr ? *option.widget->style() : *QApplication::style();
    const QRect box = style.subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget);
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
    return option.fontMetrics.horizontalAdvance(option.text) > box.width() - 2 * margin;
}

void ListCellPainter::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->text.remove(u'\r').replace(QChar(QChar::LineSeparator), u' '); // one line a row
    option->state &= ~QStyle::State_HasFocus;                              // the row is selected, no cell of it is
    const QVariant foreground = index.data(Qt::ForegroundRole);
    if (!foreground.isValid()) return;
    const QColor colour = foreground.value<QBrush>().color();
    const QPalette& palette = option->palette;
    const QColor base = palette.color(QPalette::Base);
    const bool enabled = (option->state & QStyle::State_Enabled) != 0;
    const QColor ink = enabled ? legible(colour, base) : mixed(colour, base, 0.5F);
    const QColor selected = legible(colour, palette.color(QPalette::Highlight));
    option->palette.setColor(QPalette::Text, ink);
    option->palette.setColor(QPalette::HighlightedText, selected);
}

} // namespace dn::screen::qt
