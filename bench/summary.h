// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// All that a run measured, as the part of the document that is written by the program.
#pragma once

#include "bench/lists.h"
#include "bench/load/load.h"
#include "bench/report/report.h"

#include <optional>
#include <string>
#include <vector>

namespace dn::bench {

struct Results {
    Report report;
    std::vector<ListFigures> lists;
    std::optional<LoadResult> load;
    std::size_t agents = 0;   ///< of the load
    double loadServerCpu = 0; ///< milliseconds of the server's processor in it
    std::string serverVersion;
    std::string revision;   ///< of the sources, as the caller knows it
    double seconds = 0;     ///< of the whole run
    bool brokenOff = false; ///< a group ended ahead of its end
};

/// The bars of the load: what our own code adds to every action, and that every answer was right.
void judgeLoad(const LoadResult& load, Report& report);

/// @param picture the file name of the plot, beside the document.
std::string figuresOf(const Results& results, const std::string& picture);

} // namespace dn::bench
