// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/item_list_model.h"

#include "screen/qt/text.h"

namespace dn::screen::qt {

ItemListModel::ItemListModel(ItemList& list, QObject* parent, Checks checks)
    : QAbstractListModel(parent), list_(&list), checks_(std::move(checks)), published_(list.ListCount())
{
    wires_.push_back(list.entriesChanged.connect([this] { follow(); }));
    wires_.push_back(list.ended.connect([this] { list_ = nullptr; }));
}

int ItemListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : published_; }

QVariant ItemListModel::data(const QModelIndex& index, int role) const
{
    if (list_ == nullptr || index.row() >= list_->ListCount()) return {};
    if (role == Qt::DisplayRole || role == Qt::EditRole) return beginningOf(list_->List(index.row()));
    if (role == Qt::CheckStateRole && checks_.marked)
        return QVariant::fromValue(checks_.marked(index.row()) ? Qt::Checked : Qt::Unchecked);
    return {};
}

// The mark is the element's to set: the view reads it back after the gesture.
bool ItemListModel::setData(const QModelIndex& index, const QVariant&, int role)
{
    if (role != Qt::CheckStateRole || !checks_.toggle) return false;
    checks_.toggle(index.row());
    return true;
}

Qt::ItemFlags ItemListModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractListModel::flags(index);
    return checks_.toggle ? flags | Qt::ItemIsUserCheckable : flags;
}

void ItemListModel::follow()
{
    const int count = list_->ListCount();
    if (count > published_) {
        beginInsertRows({}, published_, count - 1);
        published_ = count;
        endInsertRows();
    } else if (count < published_) {
        beginResetModel();
        published_ = count;
        endResetModel();
    } else if (count > 0) {
        Q_EMIT dataChanged(index(0), index(count - 1));
    }
}

} // namespace dn::screen::qt
