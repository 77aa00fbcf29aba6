// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What a piece of work costs this process, without the server that runs beside it.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace dn::bench {

struct Cost {
    double cpu = 0;  ///< milliseconds of this process, all threads
    double wall = 0; ///< milliseconds
};

/// Milliseconds of processor that this process has used, all threads.
double processCpuNow();

/// Runs the work once.
Cost measure(const std::function<void()>& work);

/// The cost that stands in the middle, by CPU.
Cost median(std::vector<Cost> costs);

/// Bytes that the program holds on its heap at present.
std::size_t heapBytes();

} // namespace dn::bench
