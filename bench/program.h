// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The whole program, as a process of its own: how long it takes to its first screen, and what it does while nobody
// works with it.
#pragma once

#include "bench/report/report.h"

#include <string>

namespace dn::bench {

/// Starts the program on a data folder of its own: for the first time, again, and with its files thrown out of the
/// system's cache, as far as nobody else uses them. Then lets it stand idle for ten seconds.
/// @param program its path. @param folder is emptied first.
void benchProgram(const std::string& program, const std::string& folder, Report& report);

} // namespace dn::bench
