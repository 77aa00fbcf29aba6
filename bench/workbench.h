// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The control in its widget, as the benchmarks drive it.
#pragma once

#include "bench/alternatives.h"
#include "bench/bench_database.h"
#include "bench/frames.h"
#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "screen/qt/ctr_dn_contacts_widget.h"
#include "shell/ctr_dn_contacts.h"

#include <QAbstractItemView>

#include <cstddef>
#include <string>
#include <vector>

namespace dn::bench {

/// What a load cost.
struct Load {
    Cost cost;           ///< to the end of the first frame that shows all rows
    Cost whole;          ///< until the control is at rest: detail and timeline of the selected row, one frame more
    double firstRow = 0; ///< milliseconds by the clock to the end of the first paint that has rows
};

class Workbench {
public:
    /// @param tab the one whose list is measured first.
    explicit Workbench(desk::Tab tab = desk::prospectos);

    /// Binds the control to the database as that agent and shows the tab, which loads its list.
    void open(BenchDatabase& database, std::int32_t agent);
    /// Measures the list of another tab from now on, which the next load shows.
    void look(desk::Tab tab);
    /// Goes to the tab and loads its list.
    void goTo(desk::Tab tab);

    /// The load from its statement to the first painted frame, as a click on the tab runs it; for the projects, as
    /// a pick in their filter does, without the detail ahead of it.
    Load load();
    /// Fills the list with rows from memory, up to the first painted frame.
    Cost fill(const Texts& texts);
    void clear();
    /// One repaint of the whole list.
    Cost repaint();
    /// Finds a row by key, selects it and brings it into view, painted.
    Cost select(const std::string& key);
    /// A click on a header, painted.
    Cost sort(int column);
    /// What the search row does for a text, painted where it finds it.
    Cost search(const std::string& text);

    std::size_t rows();
    /// The rows that the view knows of.
    std::size_t shownRows() const;
    screen::ListView& list() { return *list_; }
    ctrDnContacts& control() { return widget_.control(); }
    QWidget& widget() { return widget_; }
    bool showsSelection() const;

private:
    void awaitRows();

    screen::qt::CtrDnContactsWidget widget_;
    desk::Tab tab_ = desk::none;
    screen::ListView* list_ = nullptr;
    QAbstractItemView* view_ = nullptr;
    PaintCounter* counter_ = nullptr;
};

/// The cells of a list, row by row in the order shown.
Texts textsOf(screen::ListView& list);

} // namespace dn::bench
