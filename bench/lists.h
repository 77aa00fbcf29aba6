// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The five lists at every number of rows, beside what else reads the same rows.
#pragma once

#include "bench/bench_database.h"
#include "bench/report/list_figures.h"
#include "bench/report/report.h"

#include <vector>

namespace dn::bench {

/// Measures the five lists of an agent; checks that every way gives the same rows.
std::vector<ListFigures> benchLists(BenchDatabase& database, const Scale& scale, Report& report);

} // namespace dn::bench
