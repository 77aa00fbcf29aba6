// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What is done to rows that are there: filling from memory, sorting, searching, finding by key, loading again.
#pragma once

#include "bench/bench_database.h"
#include "bench/report/report.h"

namespace dn::bench {

/// End of fetch to the first frame, and a sort by each column, against `QTreeWidget`; the agent's prospects.
void benchFilling(BenchDatabase& database, const Scale& scale, int rounds, Report& report);

/// A sort by each column at both numbers of rows.
void benchSortGrowth(BenchDatabase& database, const Scale& few, const Scale& many, Report& report);

/// What the process holds for a list of rows from memory with 190 bytes of text each, and for the loaded
/// prospects, view and model included, beside the texts themselves.
void benchMemory(BenchDatabase& database, const Scale& few, const Scale& many, Report& report);

/// A load with a row in the middle selected, which must be the selected one again, and in view.
void benchRefresh(BenchDatabase& database, const Scale& few, const Scale& many, int rounds, Report& report);

/// Search over all cells, selection by key and repaint, of few rows and of many.
void benchFinding(BenchDatabase& database, const Scale& few, const Scale& many, int rounds, Report& report);

} // namespace dn::bench
