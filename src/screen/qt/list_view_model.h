// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The rows of a list view as a model: read where they lie, never copied.
//
// The element only marks what changed. The model publishes it once a turn of the event loop, so that a load of
// 100,000 rows is one insertion; rows that go away are taken back at once, before anything can be painted. The
// code may yield to the event loop in the middle of a load: a position that the element does not have at that
// moment has no data.
#pragma once

#include "screen/list_view.h"

#include <QAbstractTableModel>

namespace dn::screen::qt {

class ListViewModel : public QAbstractTableModel {
    Q_OBJECT

public:
    ListViewModel(ListView& list, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Makes the model what the element is now; does nothing when it is so already.
    void publish();

    /// Shows the rows that there are in the middle of a load: no selection, no place in the list follows yet.
    void publishBeginning();

Q_SIGNALS:
    /// Rows and columns are up to date; selection and scrolling may follow.
    /// @param rowsAreNew there were none before, since they were cleared or never there.
    void published(bool columnsAreNew, bool rowsAreNew);

private:
    void schedule();
    void takeRowsBack();
    void publishColumns();
    void publishRows();
    QVariant cellData(ListRows::RowNumber row, std::size_t cell, int role) const;
    QVariant decoration(ListRows::RowNumber row, std::size_t cell) const;

    ListView* list_;
    int rows_ = 0;
    int columns_ = 0;
    bool scheduled_ = false;
    bool columnsChanged_ = true;
    bool rowsWereGone_ = true;
    Subscriptions wires_;
};

} // namespace dn::screen::qt
