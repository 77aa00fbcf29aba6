// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/list_view_model.h"

#include "screen/qt/colours.h"
#include "screen/qt/icons.h"
#include "screen/qt/text.h"

#include <QBrush>
#include <QFont>

#include <algorithm>

namespace dn::screen::qt {

ListViewModel::ListViewModel(ListView& list, QObject* parent) : QAbstractTableModel(parent), list_(&list)
{
    wires_.push_back(list.cleared.connect([this] { takeRowsBack(); }));
    wires_.push_back(list.dirty.connect([this] { schedule(); }));
    wires_.push_back(list.changed.connect([this] { schedule(); })); // the selection among others
    wires_.push_back(list.columnsChanged.connect([this] {
        columnsChanged_ = true;
        schedule();
    }));
    wires_.push_back(list.ended.connect([this] {
        list_ = nullptr;
        takeRowsBack();
    }));
}

int ListViewModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int ListViewModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns_; }

QVariant ListViewModel::data(const QModelIndex& index, int role) const
{
    if (list_ == nullptr || !index.isValid()) return {};
    const auto position = static_cast<std::size_t>(index.row());
    const ListRows& rows = list_->rows();
    if (position >= rows.count()) return {};
    return cellData(rows.rowAt(position), static_cast<std::size_t>(index.column()), role);
}

QVariant ListViewModel::cellData(ListRows::RowNumber row, std::size_t cell, int role) const
{
    const ListRows& rows = list_->rows();
    switch (role) {
    case Qt::DisplayRole:
        return beginningOf(rows.cell(row, cell));
    case Qt::EditRole:
        return fromUtf8(rows.cell(row, cell));
    case Qt::DecorationRole:
        return decoration(row, cell);
    case Qt::ToolTipRole:
        return beginningOf(rows.toolTip(row));
    case Qt::CheckStateRole:
        if (cell != 0 || !list_->CheckBoxes()) return {};
        return QVariant::fromValue(rows.checked(row) ? Qt::Checked : Qt::Unchecked);
    case Qt::ForegroundRole: {
        const Colour colour = rows.colour(row, cell);
        return colour == 0 ? QVariant() : QBrush(fromColour(colour)); // 0 is the palette's own text colour
    }
    case Qt::FontRole: {
        if (!rows.bold(row)) return {};
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    default:
        return {};
    }
}

// A row without an image keeps its place free, so that all rows begin at the same edge.
QVariant ListViewModel::decoration(ListRows::RowNumber row, std::size_t cell) const
{
    if (list_->SmallIcons() == nullptr) return {};
    const ListRows& rows = list_->rows();
    const int number = cell == 0 ? rows.smallIcon(row) : rows.reportIcon(row, cell);
    const std::string& image = list_->SmallIcons()->image(number);
    if (image.empty()) return cell == 0 ? QVariant(blank()) : QVariant();
    return drawing(image);
}

QVariant ListViewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (list_ == nullptr || orientation != Qt::Horizontal) return {};
    const auto& headers = list_->ColumnHeaders();
    const auto column = static_cast<std::size_t>(section);
    if (column >= headers.size()) return {};
    if (role == Qt::DisplayRole) return fromUtf8(headers[column].Text);
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags ListViewModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool checkable = index.column() == 0 && list_ != nullptr && list_->CheckBoxes();
    return checkable ? flags | Qt::ItemIsUserCheckable : flags;
}

void ListViewModel::schedule()
{
    if (scheduled_) return;
    scheduled_ = true;
    QMetaObject::invokeMethod(
        this, [this] { publish(); }, Qt::QueuedConnection);
}

void ListViewModel::takeRowsBack()
{
    rowsWereGone_ = true;
    if (rows_ == 0) return;
    beginRemoveRows({}, 0, rows_ - 1);
    rows_ = 0;
    endRemoveRows();
}

void ListViewModel::publish()
{
    scheduled_ = false;
    if (list_ == nullptr) return;
    const bool columnsAreNew = std::exchange(columnsChanged_, false);
    if (columnsAreNew) publishColumns();
    publishRows();
    const bool anew = rowsWereGone_ && rows_ > 0;
    if (anew) rowsWereGone_ = false;
    Q_EMIT published(columnsAreNew, anew);
}

void ListViewModel::publishBeginning()
{
    if (list_ != nullptr && !columnsChanged_) publishRows();
}

void ListViewModel::publishColumns()
{
    beginResetModel();
    columns_ = static_cast<int>(list_->ColumnHeaders().size());
    endResetModel();
}

void ListViewModel::publishRows()
{
    const ListChanges changes = list_->takeChanges();
    const int known = rows_;
    const int count = static_cast<int>(list_->rows().count());
    if (count > known) {
        beginInsertRows({}, known, count - 1);
        rows_ = count;
        endInsertRows();
    }
    if (known == 0 || columns_ == 0) return;
    const int first = changes.order ? 0 : static_cast<int>(changes.firstChanged);
    const int behind = std::min(known, changes.order ? known : static_cast<int>(changes.behindLastChanged));
    if (first < behind) Q_EMIT dataChanged(index(first, 0), index(behind - 1, columns_ - 1));
}

} // namespace dn::screen::qt
