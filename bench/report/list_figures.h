// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What was measured of the five lists: the verdicts, the tables and the lines of the picture.
#pragma once

#include "bench/measure.h"
#include "bench/report/plot.h"
#include "bench/report/report.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace dn::bench {

/// Ends of the scale: the bars of growth lie between them.
constexpr std::size_t manyRows = 100'000;
constexpr std::size_t mostRows = 1'000'000;

/// A list at a number of rows. Costs are medians.
struct ListFigures {
    std::string name;
    std::size_t rows = 0;
    Cost ours;                        ///< to the frame that shows all rows
    double firstPainted = 0;          ///< milliseconds by the clock
    double firstRow = 0;              ///< likewise, at a bare client that streams
    Cost bare;                        ///< libmariadb, stored
    Cost driver;                      ///< the control's own
    double serverCpu = 0;             ///< milliseconds of the server's processor for one load
    std::optional<Cost> modelFetched; ///< QSqlQueryModel, all rows fetched, the cells that show decoded
    std::optional<Cost> modelColumns; ///< QSqlQueryModel, as many columns of all rows read as the list has
    std::optional<Cost> model;        ///< QSqlQueryModel, every cell read
    std::optional<Cost> tree;         ///< QTreeWidget, rows in memory
};

/// The bars of the lists, from what was measured at all numbers of rows. What was not measured keeps no bar.
void judgeLists(const std::vector<ListFigures>& all, Report& report);

std::string listsAsMarkdown(const std::vector<ListFigures>& all);
std::string wallAsMarkdown(const std::vector<ListFigures>& all);
std::string sharesAsMarkdown(const std::vector<ListFigures>& all);
std::vector<Panel> panelsOf(const std::vector<ListFigures>& all);

} // namespace dn::bench
