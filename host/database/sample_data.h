// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Sample data: a sales force at work, for whoever tries the program out and for measuring.
#pragma once

#include "base/date_time.h"
#include "data/connection.h"
#include "host/database/host_error.h"
#include "host/database/sql_text.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace dn::host {

struct SampleOptions {
    std::size_t prospects = 3000;
    std::uint64_t seed = 20'250'101;
    std::optional<DateTime> now{}; ///< all dates lie about this moment; without it, the server's present one
};

/// Writes agents, cities, a directory, projects, prospects and their log into empty tables, in one transaction.
/// The same options give the same rows. From 3,000 prospects on the rest grows with them, slowly.
/// @throws data::Error; nothing is written then.
void writeSampleData(data::Connection& connection, Engine engine, const SampleOptions& options,
                     const Progress& progress = {});

} // namespace dn::host
