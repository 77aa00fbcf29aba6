// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the control is measured against, on the same rows: the bare client library, and what a Qt developer would
// write instead.
#pragma once

#include "bench/bench_database.h"
#include "bench/measure.h"

#include <string>
#include <vector>

namespace dn::bench {

using Statements = std::vector<std::string>;

/// What a fetch brought, for the check of the answers.
struct Fetched {
    Cost cost;
    std::size_t rows = 0;
    std::size_t cells = 0;
    std::string firstKey; ///< the first row's Sys_PK
};

/// Fetches the rows of statements with libmariadb, buffered on the client (`mysql_store_result`), and reads every
/// cell.
Fetched bareFetch(const BenchDatabase& database, const Statements& statements);

/// Milliseconds by the clock from the statement to its first row, at a client that streams (`mysql_use_result`).
double bareFirstRow(const BenchDatabase& database, const std::string& statement);

/// Fetches the same with the control's own driver, and asks for every cell once.
Fetched driverFetch(const BenchDatabase& database, const Statements& statements);

/// What a `QSqlQueryModel` reads of its rows ahead of the first frame.
enum class Reading {
    shownCells, ///< what the frame shows; the rest lies undecoded in the client library's buffer
    everyCell,  ///< all cells once, as for sorting by a header or searching, which the control's list can do at
                ///< once
};

/// `QSqlQueryModel` on QMYSQL with a `QTableView`: all rows fetched, to the first painted frame. A model for each
/// statement; the view shows the first.
/// @param rows takes the number of rows in the models.
Cost sqlQueryModel(const BenchDatabase& database, const Statements& statements, Reading reading,
                   std::size_t& rows);

/// Rows of texts in memory, as a loader would hold them.
using Texts = std::vector<std::vector<std::string>>;

/// A `QTreeWidget` filled item by item from the rows, to the first painted frame.
Cost treeWidget(const Texts& texts);

/// The same tree sorted by each of its columns, one after the other, to the painted frame.
std::vector<Cost> treeWidgetSorts(const Texts& texts);

} // namespace dn::bench
