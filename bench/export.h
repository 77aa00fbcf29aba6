// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What it costs to write mail lists to files.
#pragma once

#include "bench/report/report.h"

namespace dn::bench {

/// Writes 200,000 rows as a workbook and as an HTML document, against a plain writer of comma-separated values,
/// and looks at the memory that this takes beside the rows.
void benchExport(int rounds, Report& report);

} // namespace dn::bench
