// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The five lists at every number of rows, beside what else reads the same rows.
#pragma once

#include "bench/bench_database.h"
#include "bench/measure.h"
#include "bench/report/plot.h"
#include "bench/report/report.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace dn::bench {

/// A list at a number of rows. Costs are medians.
struct ListFigures {
    desk::Tab tab{};
    std::string name;
    std::size_t rows = 0;
    Cost ours;                      ///< to the frame that shows all rows
    double firstPainted = 0;        ///< milliseconds by the clock
    double firstRow = 0;            ///< likewise, at a bare client that streams
    Cost bare;                      ///< libmariadb, stored
    Cost driver;                    ///< the control's own
    double serverCpu = 0;           ///< milliseconds of the server's processor for one load
    std::optional<Cost> modelShown; ///< QSqlQueryModel, the cells that show
    std::optional<Cost> model;      ///< QSqlQueryModel, every cell
    std::optional<Cost> tree;       ///< QTreeWidget, rows in memory
};

/// Measures the five lists of an agent; checks that every way gives the same rows.
std::vector<ListFigures> benchLists(BenchDatabase& database, const Scale& scale, Report& report);

/// The bars of the lists, from what was measured at all numbers of rows.
void judgeLists(const std::vector<ListFigures>& all, Report& report);

std::string listsAsMarkdown(const std::vector<ListFigures>& all);
std::string sharesAsMarkdown(const std::vector<ListFigures>& all);
std::vector<Panel> panelsOf(const std::vector<ListFigures>& all);

} // namespace dn::bench
