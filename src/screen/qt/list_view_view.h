// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A list view as a widget: the table itself knows how to paint and scroll; every click and key is handled here
// and becomes a gesture, and the selection that it shows is only ever the element's.
#pragma once

#include "screen/button.h"
#include "screen/list_view.h"
#include "screen/qt/bond.h"

#include <QElapsedTimer>
#include <QTableView>

#include <chrono>
#include <optional>
#include <vector>

class QMenu;

namespace dn::screen::qt {

class ListViewModel;

class ListViewView : public QTableView {
    Q_OBJECT

public:
    ListViewView(screen::ListView& list, QWidget* parent, Guard& guard);

    /// Where the check box of a row is drawn; empty for a list without check boxes.
    QRect checkRect(int row) const;

    /// Offers buttons in the menu of the context: those that show, enabled as they are.
    /// @param commands those of one panel together. They outlive this view.
    void offer(std::vector<screen::Button*> commands) { commands_ = std::move(commands); }

    /// How long the rows may be gone before a load shows the first new ones while the others come.
    void paintBeginningAfter(std::chrono::milliseconds pause) { patience_ = pause; }

    void keyboardSearch(const QString& text) override;

protected:
    /// @param model of the list; this takes it over.
    ListViewView(screen::ListView& list, QWidget* parent, Guard& guard, ListViewModel* model);

    ListViewModel& shownRows() const { return *model_; }
    screen::ListView* element() const { return bond_.element(); }
    Guard& guard() const { return bond_.guard(); }
    /// Shows a row as the list's selected one.
    virtual void showSelected(int row);
    /// Adds what can be copied to the menu of the context.
    /// @param cell on which the menu came up; not valid where the keyboard called it.
    virtual void addCopying(QMenu& menu, const QModelIndex& cell);
    /// Copies the cells that are selected, as a spreadsheet takes them.
    void copySelected() const;
    void reveal(int row);

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
    void paintBeginning();
    void click(int row);
    bool handleKey(const QKeyEvent& event);
    void pressSpace(int row);
    std::optional<int> target(int key) const;
    QString tipAt(const QModelIndex& index) const;
    QMenu* contextMenu(const QModelIndex& cell);
    void addCommands(QMenu& menu);
    void addSorting(QMenu& menu);
    void copyRows(bool checkedOnly) const;
    std::vector<std::size_t> columnOrder() const;

    ListViewModel* model_; // owned by this as its parent
    int pressedCheck_ = -1;
    std::optional<int> linesAbove_; ///< those above the selected row, if it was in view when the rows went away
    bool mirroring_ = false;
    std::chrono::milliseconds patience_{100}; // what comes sooner is taken for at once
    QElapsedTimer rowsGone_;                  // runs until the new ones are on the screen
    std::vector<screen::Button*> commands_;
    Bond<screen::ListView> bond_;
    Subscription revealed_;
    Subscription cleared_;
    Subscription growing_;
};

} // namespace dn::screen::qt
