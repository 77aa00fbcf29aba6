// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the control is measured against, on the same rows: the bare client library, and what a Qt developer would
// write instead.
#pragma once

#include "bench/bench_database.h"
#include "bench/measure.h"
#include "bench/seen_rows.h"

#include <string>
#include <vector>

namespace dn::bench {

using Statements = std::vector<std::string>;

/// The statements of a list, and the column whose text tells its rows apart for the check of the answers.
struct Query {
    Statements statements;
    std::string textField;
};

/// What a fetch brought.
struct Fetched {
    Cost cost;
    std::size_t rows = 0;
    std::size_t bytes = 0; ///< of all cells, and the value of the first byte of each
};

/// Fetches the rows of statements with libmariadb, buffered on the client (`mysql_store_result`), and looks at
/// every cell.
Fetched bareFetch(const BenchDatabase& database, const Statements& statements);

/// What a client sees that streams (`mysql_use_result`).
struct Streamed {
    double firstRow = 0; ///< milliseconds by the clock from the statement to its first row
    std::size_t fetched = 0;
    std::size_t bytes = 0; ///< as in Fetched
    SeenRows seen;
};

/// Streams the rows of the statements; only the first row is timed.
Streamed bareStream(const BenchDatabase& database, const Query& query);

/// Fetches the same with the control's own driver, and asks for every cell once.
Fetched driverFetch(const BenchDatabase& database, const Statements& statements);

/// What a `QSqlQueryModel` reads of its rows ahead of the first frame.
enum class Reading {
    shownCells,  ///< what the frame shows; the rest lies undecoded in the client library's buffer
    someColumns, ///< of all rows as many cells as ours shows, as for sorting by a header or searching
    everyCell,   ///< all of them
};

/// `QSqlQueryModel` on QMYSQL with a `QTableView`: all rows fetched, to the first painted frame. A model for each
/// statement; the view shows the first.
/// @param columns that someColumns reads, the first ones. @param seen takes the rows in the models.
Cost sqlQueryModel(const BenchDatabase& database, const Query& query, Reading reading, std::size_t columns,
                   SeenRows& seen);

/// Rows of texts in memory, as a loader would hold them.
using Texts = std::vector<std::vector<std::string>>;

struct Filled {
    Cost cost;
    bool holdsAll = false; ///< whether every item has its row's texts
};

/// A `QTreeWidget` filled item by item from the rows, to the first painted frame.
Filled treeWidget(const Texts& texts);

/// The same tree sorted by each of its columns, one after the other, to the painted frame.
std::vector<Cost> treeWidgetSorts(const Texts& texts);

} // namespace dn::bench
