// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The menu of a list's context: the commands for its row, what can be copied, and the columns to sort by. It
// offers nothing that the screen does not offer elsewhere.

#include "screen/copied_text.h"
#include "screen/qt/colours.h"
#include "screen/qt/icons.h"
#include "screen/qt/list_view_model.h"
#include "screen/qt/list_view_view.h"
#include "screen/qt/text.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>

#include <algorithm>
#include <utility>

namespace dn::screen::qt {
namespace {

/// A button without a caption is called by its tool tip.
QString commandName(const screen::Button& button)
{
    const QString caption = fromUtf8(button.Caption().empty() ? button.ToolTipText() : button.Caption());
    return button.Caption().empty() ? QString(caption).replace(u'&', QLatin1String("&&")) : caption;
}

/// The button's picture, on its colour where it stands for one. @param scale of the screen that it shows on.
const QIcon& commandIcon(const screen::Button& button, qreal scale)
{
    if (!button.BackColor()) return drawing(button.Picture());
    return drawingOn(fromColour(*button.BackColor()), button.Picture(), scale);
}

QKeySequence keyOf(const screen::Button& button)
{
    return QKeySequence(fromUtf8(button.Shortcut()), QKeySequence::PortableText);
}

/// All rows of a list, or those that are checked, in as few ranges as they make.
std::vector<CellRange> runsOf(const screen::ListView& list, bool checkedOnly)
{
    const ListRows& rows = list.rows();
    const std::size_t lastColumn = list.ColumnHeaders().size(); // one beyond does no harm
    std::vector<CellRange> runs;
    for (std::size_t position = 0; position < rows.count(); ++position) {
        if (checkedOnly && !rows.checked(rows.rowAt(position))) continue;
        if (!runs.empty() && runs.back().lastRow + 1 == position)
            runs.back().lastRow = position;
        else
            runs.push_back({position, position, 0, lastColumn});
    }
    return runs;
}

} // namespace

void ListViewView::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    QMenu* const menu = contextMenu(byKey ? QModelIndex() : indexAt(event->pos()));
    const QRect row = visualRect(currentIndex());
    const bool atRow = byKey && currentIndex().isValid() && viewport()->rect().intersects(row);
    menu->popup(atRow ? viewport()->mapToGlobal(QPoint(0, row.bottom() + 1)) : event->globalPos());
}

QMenu* ListViewView::contextMenu(const QModelIndex& cell)
{
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addCommands(*menu);
    if (!menu->isEmpty()) menu->addSeparator();
    addCopying(*menu, cell);
    menu->addSeparator();
    addSorting(*menu);
    return menu;
}

// The keys stand beside the commands to be learned; the screen itself takes them. A command may take the list's
// rows away, and the menu with the window.
void ListViewView::addCommands(QMenu& menu)
{
    const Container* panel = nullptr;
    for (screen::Button* const button : commands_) {
        if (!button->shown()) continue;
        if (panel != nullptr && panel != button->parent()) menu.addSeparator();
        panel = button->parent();
        QAction* const action = menu.addAction(commandIcon(*button, devicePixelRatioF()), commandName(*button));
        action->setShortcut(keyOf(*button));
        action->setShortcutContext(Qt::WidgetShortcut);
        action->setEnabled(button->usable());
        connect(action, &QAction::triggered, this, [this, button] { guard().run([&] { button->press(); }); });
    }
}

void ListViewView::addCopying(QMenu& menu, const QModelIndex& cell)
{
    const screen::ListView* const list = bond_.element();
    if (list == nullptr) return;
    QAction* const row = menu.addAction(QStringLiteral("Copiar el renglón"), this, [this] { copySelected(); });
    row->setShortcut(QKeySequence::Copy);
    row->setShortcutContext(Qt::WidgetShortcut);
    row->setEnabled(currentIndex().isValid());
    if (cell.isValid())
        menu.addAction(QStringLiteral("Copiar la celda"), this, [text = cell.data(Qt::EditRole).toString()] {
            QGuiApplication::clipboard()->setText(text);
        });
    if (list->CheckBoxes())
        menu.addAction(QStringLiteral("Copiar los renglones marcados"), this, [this] { copyRows(true); })
            ->setEnabled(!runsOf(*list, true).empty());
    menu.addAction(QStringLiteral("Copiar toda la lista"), this, [this] { copyRows(false); })
        ->setEnabled(list->rows().count() > 0);
}

// The headers for who works with the keyboard, where a list can be sorted.
void ListViewView::addSorting(QMenu& menu)
{
    const screen::ListView* const list = bond_.element();
    if (list == nullptr || list->ColumnClick.listeners() == 0) return;
    QMenu* const columns = menu.addMenu(QStringLiteral("&Ordenar por"));
    for (const ColumnHeader& header : list->ColumnHeaders())
        columns->addAction(
            QStringLiteral("«%1»").arg(fromUtf8(header.Text)), this,
            [this, column = header.Index - 1] { bond_.gesture([&](auto& it) { it.clickHeader(column); }); });
}

void ListViewView::copySelected() const
{
    const screen::ListView* const list = bond_.element();
    if (list == nullptr) return;
    std::vector<CellRange> ranges;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        ranges.push_back({static_cast<std::size_t>(range.top()), static_cast<std::size_t>(range.bottom()),
                          static_cast<std::size_t>(range.left()), static_cast<std::size_t>(range.right())});
    if (ranges.empty()) return;
    QGuiApplication::clipboard()->setText(fromUtf8(copiedText(*list, std::move(ranges), {columnOrder(), false})));
}

void ListViewView::copyRows(bool checkedOnly) const
{
    const screen::ListView* const list = bond_.element();
    if (list == nullptr) return;
    const std::string text = copiedText(*list, runsOf(*list, checkedOnly), {columnOrder(), true});
    QGuiApplication::clipboard()->setText(fromUtf8(text));
}

std::vector<std::size_t> ListViewView::columnOrder() const
{
    std::vector<std::size_t> order;
    order.reserve(static_cast<std::size_t>(horizontalHeader()->count()));
    for (int place = 0; place < horizontalHeader()->count(); ++place)
        order.push_back(static_cast<std::size_t>(horizontalHeader()->logicalIndex(place)));
    return order;
}

} // namespace dn::screen::qt
