// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the operator's commands cost: those that work on many rows, and the click that fills the detail.
#pragma once

#include "bench/bench_database.h"
#include "bench/report/report.h"

namespace dn::bench {

/// Checks all rows of both agents; of the one with few, clicks one, opens a long timeline, discards and assigns
/// the thousand rows of the agent who has as many. Leaves the rows open and assigned as it found them.
void benchCommands(BenchDatabase& database, const Scale& few, const Scale& many, int rounds, Report& report);

} // namespace dn::bench
