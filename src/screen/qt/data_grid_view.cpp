// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/data_grid_view.h"

#include "screen/qt/list_cell_painter.h"
#include "screen/qt/list_view_model.h"
#include "screen/qt/text.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>

#include <algorithm>

namespace dn::screen::qt {
namespace {

constexpr int numbersWidth = 32; // logical pixels, of three figures with some air

/// The rows with their numbers; the cells may be changed unless the grid is for reading alone.
class Model : public ListViewModel {
public:
    explicit Model(screen::DataGrid& grid) : ListViewModel(grid, nullptr), grid_(&grid)
    {
        ended_ = grid.ended.connect([this] { grid_ = nullptr; });
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        const Qt::ItemFlags flags = ListViewModel::flags(index);
        return grid_ == nullptr || grid_->ReadOnly() ? flags : flags | Qt::ItemIsEditable;
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation == Qt::Horizontal) return ListViewModel::headerData(section, orientation, role);
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }

private:
    screen::DataGrid* grid_;
    Subscription ended_;
};

/// Paints the cells, the one with the keyboard in a frame, and lets the operator type into them.
class Editor : public ListCellPainter {
public:
    explicit Editor(DataGridView& view) : ListCellPainter(&view), view_(view) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override
    {
        auto* const field = new QLineEdit(parent);
        field->setObjectName(view_.objectName() + QStringLiteral(".cell"));
        field->setAccessibleName(view_.model()->headerData(index.column(), Qt::Horizontal).toString());
        field->setFrame(false);
        field->setAutoFillBackground(true);
        return field;
    }

    // The field must hold what is there, in whatever units it counts.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override
    {
        auto& field = *qobject_cast<QLineEdit*>(editor);
        const QString text = index.data(Qt::EditRole).toString();
        if (const screen::DataGrid* const grid = view_.grid(); grid != nullptr) {
            const auto room = grid->room(static_cast<std::size_t>(index.row()), index.column());
            field.setMaxLength(static_cast<int>(std::max(room, static_cast<std::size_t>(text.size()))));
        }
        field.setText(text);
    }

    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const override
    {
        const auto& field = *qobject_cast<QLineEdit*>(editor);
        if (field.isModified()) view_.commit(index, field.text());
    }

    // The style has a frame for the focus only after a key, and none that shows on a selected cell.
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        ListCellPainter::paint(painter, option, index);
        if (!view_.hasFocus() || index != view_.currentIndex()) return;
        const bool selected = (option.state & QStyle::State_Selected) != 0;
        painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Highlight));
        painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
    }

private:
    DataGridView& view_;
};

} // namespace

DataGridView::DataGridView(screen::DataGrid& grid, QWidget* parent, Guard& guard)
    : ListViewView(grid, parent, guard, new Model(grid))
{
    setItemDelegate(new Editor(*this)); // owned by this as its parent
    setSelectionBehavior(SelectItems);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setAutoScroll(true);
    setShowGrid(true);
    setCornerButtonEnabled(true);
    horizontalHeader()->setSectionsMovable(false); // the keys go from cell to cell in the columns' own order
    // A press on a caption sorts; the table's own answer would select its column and another row.
    disconnect(horizontalHeader(), &QHeaderView::sectionPressed, this, nullptr);
    disconnect(horizontalHeader(), &QHeaderView::sectionEntered, this, nullptr);
    verticalHeader()->show();
    verticalHeader()->setSectionsClickable(true);
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setMinimumWidth(numbersWidth);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    if (currentIndex().isValid())
        selectionModel()->setCurrentIndex(currentIndex(), QItemSelectionModel::ClearAndSelect);
}

screen::DataGrid* DataGridView::grid() const { return static_cast<screen::DataGrid*>(element()); }

void DataGridView::commit(const QModelIndex& cell, const QString& text)
{
    guard().run([&] {
        if (grid() != nullptr) grid()->edit(static_cast<std::size_t>(cell.row()), cell.column(), toUtf8(text));
    });
    shownRows().publish();
}

// The mouse and the keys go to the table's own cells, past the list's gestures, which are those of whole rows.
// NOLINTBEGIN(bugprone-parent-virtual-call)
void DataGridView::mousePressEvent(QMouseEvent* event)
{
    shownRows().publish();
    QTableView::mousePressEvent(event);
}

void DataGridView::mouseMoveEvent(QMouseEvent* event) { QTableView::mouseMoveEvent(event); }

void DataGridView::mouseReleaseEvent(QMouseEvent* event) { QTableView::mouseReleaseEvent(event); }

void DataGridView::mouseDoubleClickEvent(QMouseEvent* event)
{
    shownRows().publish();
    QTableView::mouseDoubleClickEvent(event);
}

void DataGridView::keyPressEvent(QKeyEvent* event)
{
    shownRows().publish();
    if (!handleKey(*event)) QTableView::keyPressEvent(event);
}

bool DataGridView::handleKey(const QKeyEvent& event)
{
    const QModelIndex cell = currentIndex();
    const bool open = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (event.matches(QKeySequence::Copy)) {
        copySelected();
    } else if (open && cell.isValid()) {
        // The key that closes a cell comes here too.
        if (state() != EditingState && (shownRows().flags(cell) & Qt::ItemIsEditable) != 0) edit(cell);
    } else if (event.key() == Qt::Key_Space && event.modifiers() == Qt::ShiftModifier && cell.isValid()) {
        selectionModel()->select(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    } else if (event.key() == Qt::Key_Space && event.modifiers() == Qt::ControlModifier && cell.isValid()) {
        selectionModel()->select(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Columns);
    } else {
        return false;
    }
    return true;
}

void DataGridView::keyboardSearch(const QString& text) { QTableView::keyboardSearch(text); }
// NOLINTEND(bugprone-parent-virtual-call)

// The cell that the operator stands on stays his: only another row takes it away.
void DataGridView::showSelected(int row)
{
    if (currentIndex().isValid() && currentIndex().row() == row) return;
    const int column = std::max(0, currentIndex().column());
    selectionModel()->setCurrentIndex(shownRows().index(row, column), QItemSelectionModel::ClearAndSelect);
}

void DataGridView::addCopying(QMenu& menu, const QModelIndex& /*cell*/)
{
    QAction* const copy = menu.addAction(QStringLiteral("Copiar"), QKeySequence(QKeySequence::Copy), this,
                                         [this] { copySelected(); });
    copy->setEnabled(selectionModel()->hasSelection());
    QAction* const all = menu.addAction(QStringLiteral("Seleccionar todo"), QKeySequence(QKeySequence::SelectAll),
                                        this, [this] { selectAll(); });
    all->setEnabled(shownRows().rowCount() > 0);
}

} // namespace dn::screen::qt
