// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A list view as a widget: the table itself knows how to paint and scroll; every click and key is handled here
// and becomes a gesture, and the selection that it shows is only ever the element's.
#pragma once

#include "screen/list_view.h"
#include "screen/qt/bond.h"

#include <QTableView>

#include <optional>

namespace dn::screen::qt {

class ListViewModel;

class ListViewView : public QTableView {
public:
    ListViewView(screen::ListView& list, QWidget* parent, Guard& guard);

    /// Where the check box of a row is drawn; empty for a list without check boxes.
    QRect checkRect(int row) const;

    void keyboardSearch(const QString& text) override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void arrange();
    void mirror(const screen::ListView& list);
    void mirrorSelection();
    void mirrorSorting(const screen::ListView& list);
    void showPublished(bool columnsAreNew, bool rowsAreNew);
    void setColumnWidths();
    void rememberPlace();
    void takePlaceAgain();
    void reveal(int row);
    void click(int row);
    void copySelected() const;
    bool handleKey(const QKeyEvent& event);
    void pressSpace(int row);
    std::optional<int> target(int key) const;
    QString tipAt(const QModelIndex& index) const;

    ListViewModel* model_; // owned by this as its parent
    int pressedCheck_ = -1;
    std::optional<int> linesAbove_; ///< those above the selected row, if it was in view when the rows went away
    bool mirroring_ = false;
    Bond<screen::ListView> bond_;
    Subscription revealed_;
};

} // namespace dn::screen::qt
