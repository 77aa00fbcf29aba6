// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/list_view_view.h"

#include "screen/qt/geometry.h"
#include "screen/qt/list_cell_painter.h"
#include "screen/qt/list_view_model.h"

#include <QHeaderView>
#include <QScrollBar>

namespace dn::screen::qt {
namespace {

constexpr int lineHeight = 20; // logical pixels: an icon of 16 and some air

} // namespace

ListViewView::ListViewView(screen::ListView& list, QWidget* parent, Guard& guard)
    : ListViewView(list, parent, guard, new ListViewModel(list, nullptr))
{
}

ListViewView::ListViewView(screen::ListView& list, QWidget* parent, Guard& guard, ListViewModel* model)
    : QTableView(parent), model_(model), bond_(list, *this, guard, [this](const auto& state) { mirror(state); })
{
    model_->setParent(this);
    // Ahead of the table's own listening, which gives the selection up.
    connect(model_, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this] { rememberPlace(); });
    setModel(model_);
    setItemDelegate(new ListCellPainter(this)); // owned by this as its parent
    arrange();
    connect(model_, &ListViewModel::published, this, &ListViewView::showPublished);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
        bond_.gesture([&](auto& it) { it.clickHeader(column); });
        model_->publish();
    });
    // A screen reader may move the table's own selection.
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& now) {
        if (!mirroring_ && now.isValid()) click(now.row());
    });
    revealed_ = list.revealed.connect([this](std::size_t position) {
        model_->publish(); // the row may have come in this very turn
        reveal(static_cast<int>(position));
    });
    cleared_ = list.cleared.connect([this] { rowsGone_.start(); });
    growing_ = list.growing.connect([this] { paintBeginning(); });
    model_->publish();
    bond_.refresh();
}

void ListViewView::arrange()
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setAutoScroll(false); // it would jump to the first column with each row
    setTabKeyNavigation(false);
    setFocusPolicy(Qt::StrongFocus);
    setShowGrid(false);
    QFont face = font();
    // Half the time of a repaint went into ligatures and the like; scripts that need shaping still get it.
    face.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferDefault | QFont::PreferNoShaping));
    setFont(face);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(lineHeight);
    verticalHeader()->setDefaultSectionSize(lineHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(16);
    horizontalHeader()->setSectionsMovable(true);
}

void ListViewView::mirror(const screen::ListView& list)
{
    mirrorSorting(list);
    horizontalHeader()->setSectionsClickable(list.ColumnClick.listeners() > 0);
    viewport()->update();
}

void ListViewView::mirrorSorting(const screen::ListView& list)
{
    horizontalHeader()->setSortIndicatorShown(list.Sorted());
    const auto order = list.SortOrder() == screen::ListView::descending ? Qt::DescendingOrder : Qt::AscendingOrder;
    if (list.Sorted()) horizontalHeader()->setSortIndicator(list.SortKey(), order);
}

void ListViewView::showPublished(bool columnsAreNew, bool rowsAreNew)
{
    if (model_->rowCount() > 0) rowsGone_.invalidate(); // a load may yield between the old rows and the new ones
    if (columnsAreNew) setColumnWidths();
    mirrorSelection();
    if (rowsAreNew && currentIndex().isValid()) takePlaceAgain();
}

// Whoever works down a list that is loaded again and again must not look for his row each time, nor scroll to see
// what comes behind it.
void ListViewView::rememberPlace()
{
    const int below = currentIndex().row() - verticalScrollBar()->value();
    const bool inView = currentIndex().isValid() && below >= 0 && below < verticalScrollBar()->pageStep();
    linesAbove_.reset();
    if (inView) linesAbove_ = below;
}

// A list that was built anew starts with its selected row in view, as far from the top as the one before.
void ListViewView::takePlaceAgain()
{
    if (linesAbove_) {
        executeDelayedItemsLayout(); // the bar must know of the rows
        verticalScrollBar()->setValue(currentIndex().row() - *linesAbove_);
    }
    reveal(currentIndex().row());
}

// A hundred thousand rows take a second or two; the first of them are there to be read much sooner.
void ListViewView::paintBeginning()
{
    if (!isVisible() || !rowsGone_.isValid() || rowsGone_.elapsed() < patience_.count()) return;
    if (const screen::ListView* const list = bond_.element(); list == nullptr || list->Sorted())
        return; // the first to come need not be the first in the end
    rowsGone_.invalidate();
    model_->publishBeginning();
    viewport()->repaint();
}

void ListViewView::mirrorSelection()
{
    const screen::ListView* const list = bond_.element();
    if (list == nullptr) return;
    const std::optional<std::size_t> position = list->selectedPosition();
    mirroring_ = true;
    if (!position || static_cast<int>(*position) >= model_->rowCount())
        selectionModel()->clear();
    else
        showSelected(static_cast<int>(*position));
    mirroring_ = false;
}

void ListViewView::showSelected(int row)
{
    const QModelIndex index = model_->index(row, 0);
    if (index != currentIndex() || !selectionModel()->isSelected(index))
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void ListViewView::setColumnWidths()
{
    Twips left = 0;
    int column = 0;
    for (const ColumnHeader& header : bond_.element()->ColumnHeaders()) {
        const Twips right = left + header.Width;
        setColumnWidth(column++, pixelEdge(right) - pixelEdge(left));
        left = right;
    }
}

// The horizontal place is the operator's.
void ListViewView::reveal(int row)
{
    const int column = horizontalScrollBar()->value();
    scrollTo(model_->index(row, 0), EnsureVisible);
    horizontalScrollBar()->setValue(column);
}

void ListViewView::click(int row)
{
    if (bond_.gesture([&](auto& it) { it.clickRow(static_cast<std::size_t>(row)); })) model_->publish();
}

} // namespace dn::screen::qt
