// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/list_box_view.h"

#include "screen/qt/item_list_model.h"

#include <QMouseEvent>

namespace dn::screen::qt {

ListBoxView::ListBoxView(screen::ListBox& list, QWidget* parent, Guard& guard)
    : QListView(parent), bond_(list, *this, guard, [this](const auto& state) { mirror(state); })
{
    ItemListModel::Checks checks;
    if (list.checkBoxes()) {
        checks.marked = [&list](int row) { return list.Selected(row); };
        checks.toggle = [this](int row) { bond_.gesture([&](auto& it) { it.toggle(row); }); };
    }
    setModel(new ItemListModel(list, this, std::move(checks))); // owned by this as its parent
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    entriesChanged_ = list.entriesChanged.connect([this] { bond_.refresh(); });
    bond_.refresh();
}

void ListBoxView::mirror(const screen::ListBox& list)
{
    mirroring_ = true;
    if (list.ListIndex() >= 0) // the selection too: a click with Ctrl takes it off the current line
        selectionModel()->setCurrentIndex(model()->index(list.ListIndex(), 0),
                                          QItemSelectionModel::ClearAndSelect);
    else if (!list.checkBoxes()) // there the current line is the one that Space marks
        selectionModel()->clear();
    mirroring_ = false;
}

void ListBoxView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return; // the toolkit selects by any button
    QListView::mousePressEvent(event);
    const int row = indexAt(event->pos()).row();
    if (row >= 0) bond_.gesture([&](auto& it) { it.pick(row); });
    bond_.refresh();
}

// No selecting by dragging: a pick is a click.
void ListBoxView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton) QListView::mouseMoveEvent(event);
}

void ListBoxView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return;
    const QModelIndex index = indexAt(event->pos());
    bond_.gesture([&](auto& it) { index.isValid() ? it.doubleClick(index.row()) : it.doubleClickEmpty(); });
}

void ListBoxView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && currentIndex().isValid()) {
        bond_.gesture([row = currentIndex().row()](auto& it) { it.toggle(row); });
        return;
    }
    // The toolkit steps into the first line with the focus; where none is selected, that is to be the first key's.
    const ListBox* const list = bond_.element();
    if (list != nullptr && !list->checkBoxes() && list->ListIndex() < 0) selectionModel()->clearCurrentIndex();
    const QPersistentModelIndex before = currentIndex();
    QListView::keyPressEvent(event);
    if (QPersistentModelIndex(currentIndex()) != before) pickCurrent();
}

void ListBoxView::pickCurrent()
{
    const int row = currentIndex().row();
    if (!mirroring_ && row >= 0) bond_.gesture([&](auto& it) { it.pick(row); });
}

} // namespace dn::screen::qt
