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

/// Fetches the rows of statements with libmariadb, buffered on the client (`mysql_store_result`), and reads every
/// cell.
/// @param cells takes the number of cells read, for the check of the answer.
Cost bareFetch(const BenchDatabase& database, const std::vector<std::string>& statements, std::size_t& cells);

/// What a `QSqlQueryModel` reads of its rows ahead of the first frame.
enum class Reading {
    shownCells, ///< what the frame shows; the rest lies undecoded in the client library's buffer
    everyCell,  ///< all cells once, as for sorting by a header or searching, which the control's list can do at
                ///< once
};

/// `QSqlQueryModel` on QMYSQL with a `QTableView`: all rows fetched, to the first painted frame.
/// @param rows takes the number of rows in the model.
Cost sqlQueryModel(const BenchDatabase& database, Reading reading, std::size_t& rows);

/// Rows of texts in memory, as a loader would hold them.
using Texts = std::vector<std::vector<std::string>>;

/// A `QTreeWidget` filled item by item from the rows, to the first painted frame.
Cost treeWidget(const Texts& texts);

} // namespace dn::bench
