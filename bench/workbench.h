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

class Workbench {
public:
    /// @param tab the one whose list is measured: the prospects, the projects or the persons.
    explicit Workbench(desk::Tab tab = desk::prospectos);

    /// Binds the control to the database and shows the tab, which loads its list.
    void open(BenchDatabase& database);

    /// The load from its statement to the first painted frame, as a click on the tab runs it; for the projects, as
    /// a pick in their filter does, without the detail ahead of it.
    Cost load();
    /// Fills the list with rows from memory, up to the first painted frame.
    Cost fill(const Texts& texts);
    void clear();
    /// One repaint of the whole list.
    Cost repaint();
    /// Finds a row by key, selects it and brings it into view, painted.
    Cost select(const std::string& key);

    std::size_t rows();
    /// The rows that the view knows of.
    std::size_t shownRows() const;
    screen::ListView& list() { return *list_; }

private:
    void awaitRows();

    screen::qt::CtrDnContactsWidget widget_;
    desk::Tab tab_;
    screen::ListView* list_;
    QAbstractItemView* view_ = nullptr;
    PaintCounter* counter_ = nullptr;
};

} // namespace dn::bench
