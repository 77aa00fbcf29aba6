// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the operator's commands cost: those that work on many rows, and the click that fills the detail.
#pragma once

#include "bench/bench_database.h"
#include "bench/report.h"

namespace dn::bench {

/// Sorts and checks all rows, clicks one, opens a long timeline, discards and assigns a thousand.
/// Leaves the rows open and assigned as it found them, without the reasons of earlier discards.
void benchCommands(BenchDatabase& database, int rounds, Report& report);

} // namespace dn::bench
