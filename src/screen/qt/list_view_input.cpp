// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the operator does on a list view: clicks, keys, and the pointer that rests on a cell.

#include "screen/qt/list_cell_painter.h"
#include "screen/qt/list_view_model.h"
#include "screen/qt/list_view_view.h"
#include "screen/qt/text.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace dn::screen::qt {

QRect ListViewView::checkRect(int row) const
{
    const screen::ListView* const list = bond_.element();
    if (list == nullptr || !list->CheckBoxes()) return {};
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QModelIndex index = model_->index(row, 0);
    option.rect = visualRect(index);
    static_cast<const ListCellPainter*>(itemDelegate())->describe(option, index);
    return style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this);
}

// A check box is pressed and released; elsewhere a row is clicked as soon as the button goes down. The menu of the
// context is that of the row below the pointer, which is clicked unless it is in hand already.
void ListViewView::mousePressEvent(QMouseEvent* event)
{
    pressedCheck_ = -1;
    const bool right = event->button() == Qt::RightButton;
    if (event->button() != Qt::LeftButton && !right) return;
    model_->publish();
    const int row = rowAt(event->pos().y());
    if (row < 0) return;
    if (!right && checkRect(row).contains(event->pos()))
        pressedCheck_ = row;
    else if (columnAt(event->pos().x()) >= 0 && !(right && row == currentIndex().row()))
        click(row);
}

// Nothing is selected by dragging.
void ListViewView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton) QTableView::mouseMoveEvent(event);
}

void ListViewView::mouseReleaseEvent(QMouseEvent* event)
{
    const int row = std::exchange(pressedCheck_, -1);
    if (row < 0 || !checkRect(row).contains(event->pos())) return;
    bond_.gesture([&](auto& it) { it.toggleCheck(static_cast<std::size_t>(row)); });
}

void ListViewView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return;
    model_->publish();
    const QModelIndex index = indexAt(event->pos());
    if (!index.isValid())
        bond_.gesture([](auto& it) { it.doubleClickEmpty(); });
    else if (checkRect(index.row()).contains(event->pos()))
        pressedCheck_ = index.row(); // two quick clicks on a check box are two clicks
    else
        bond_.gesture([&](auto& it) { it.doubleClickRow(static_cast<std::size_t>(index.row())); });
}

void ListViewView::keyPressEvent(QKeyEvent* event)
{
    model_->publish();
    if (event->matches(QKeySequence::Copy)) {
        copySelected();
        return;
    }
    if (handleKey(*event)) return;
    const QString text = event->text();
    if (!text.isEmpty() && text.front().isPrint() &&
        event->modifiers() == (event->modifiers() & Qt::ShiftModifier))
        keyboardSearch(text);
    else
        event->ignore();
}

bool ListViewView::handleKey(const QKeyEvent& event)
{
    constexpr int step = 40;
    const int row = currentIndex().row();
    switch (event.key()) {
    case Qt::Key_Left:
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - step);
        return true;
    case Qt::Key_Right:
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + step);
        return true;
    case Qt::Key_Space:
        if (row >= 0) pressSpace(row);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: // held down it opens nothing a second time
        if (row >= 0 && !event.isAutoRepeat())
            bond_.gesture([&](auto& it) { it.doubleClickRow(static_cast<std::size_t>(row)); });
        return true;
    default:
        break;
    }
    const std::optional<int> goal = target(event.key());
    if (!goal) return false;
    if (*goal >= 0 && *goal != row) click(*goal);
    if (currentIndex().isValid()) reveal(currentIndex().row());
    return true;
}

// A list selects its first row by itself, and clicks nothing: without check boxes this is the click that is
// missing.
void ListViewView::pressSpace(int row)
{
    const screen::ListView* const list = bond_.element();
    if (list == nullptr) return;
    if (list->CheckBoxes())
        bond_.gesture([&](auto& it) { it.toggleCheck(static_cast<std::size_t>(row)); });
    else
        click(row);
}

/// The row that a key leads to, -1 in an empty list; nothing for other keys.
std::optional<int> ListViewView::target(int key) const
{
    const int last = model_->rowCount() - 1;
    const int row = currentIndex().row();
    const int page = std::max(1, viewport()->height() / std::max(1, rowHeight(0)) - 1);
    switch (key) {
    case Qt::Key_Up:
        return std::clamp(row - 1, std::min(0, last), std::max(0, last));
    case Qt::Key_Down:
        return std::min(row + 1, last);
    case Qt::Key_PageUp:
        return std::min(std::max(row - page, 0), last);
    case Qt::Key_PageDown:
        return std::min(row + page, last);
    case Qt::Key_Home:
        return std::min(0, last);
    case Qt::Key_End:
        return last;
    default:
        return std::nullopt;
    }
}

// Typed letters lead to the next row whose own text begins with them.
void ListViewView::keyboardSearch(const QString& text)
{
    const QPersistentModelIndex before = currentIndex();
    mirroring_ = true; // the gesture comes when the search has ended
    QTableView::keyboardSearch(text);
    mirroring_ = false;
    const QModelIndex found = currentIndex();
    if (QPersistentModelIndex(found) == before) return;
    reveal(found.row());
    click(found.row());
}

bool ListViewView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QTableView::viewportEvent(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    QToolTip::showText(help->globalPos(), tipAt(index), viewport(), visualRect(index));
    return true;
}

// The cell's whole text where the column cuts it off, then the row's own tool tip.
QString ListViewView::tipAt(const QModelIndex& index) const
{
    if (!index.isValid()) return {};
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    const auto* const painter = static_cast<const ListCellPainter*>(itemDelegate());
    QStringList parts;
    if (painter->isCutOff(option, index)) parts += index.data().toString();
    const QString ofRow = index.data(Qt::ToolTipRole).toString();
    if (!ofRow.trimmed().isEmpty()) parts += ofRow;
    return asToolTip(toUtf8(parts.join(QLatin1String("\n"))));
}

} // namespace dn::screen::qt
