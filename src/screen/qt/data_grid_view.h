// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A data grid as a widget. Unlike in a list the operator selects cells: one, several, whole rows by their numbers,
// or all of them. He copies what he selected, and changes a cell in its place.
//
// F2, Enter, a double click or simply typing opens the cell; Enter keeps the text, Tab keeps it and opens the next
// cell, Escape leaves it as it was.
#pragma once

#include "screen/data_grid.h"
#include "screen/qt/list_view_view.h"

namespace dn::screen::qt {

class DataGridView : public ListViewView {
public:
    DataGridView(screen::DataGrid& grid, QWidget* parent, Guard& guard);

    void keyboardSearch(const QString& text) override;

    /// Nothing once the element has ended.
    screen::DataGrid* grid() const;
    /// Writes what was typed into a cell.
    void commit(const QModelIndex& cell, const QString& text);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showSelected(int row) override;
    void addCopying(QMenu& menu, const QModelIndex& cell) override;

private:
    bool handleKey(const QKeyEvent& event);
};

} // namespace dn::screen::qt
