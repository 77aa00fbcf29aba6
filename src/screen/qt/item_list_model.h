// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The entries of a combo or list box as a model: read where they lie, never copied.
#pragma once

#include "screen/item_list.h"

#include <QAbstractListModel>

#include <functional>

namespace dn::screen::qt {

class ItemListModel : public QAbstractListModel {
public:
    /// For lists with check boxes; both are nothing for others.
    struct Checks {
        std::function<bool(int)> marked = {};
        std::function<void(int)> toggle = {};
    };

    ItemListModel(ItemList& list, QObject* parent, Checks checks);
    ItemListModel(ItemList& list, QObject* parent) : ItemListModel(list, parent, Checks()) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void follow();

    ItemList* list_;
    Checks checks_;
    int published_ = 0;
    Subscriptions wires_;
};

} // namespace dn::screen::qt
