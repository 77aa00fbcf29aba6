// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/measure.h"

#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <ctime>

namespace dn::bench {

double processCpuNow()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

Cost measure(const std::function<void()>& work)
{
    malloc_trim(0); // or the work would pay for tidying up what ran before it left behind
    const auto wallBefore = std::chrono::steady_clock::now();
    const double cpuBefore = processCpuNow();
    work();
    const double cpu = processCpuNow() - cpuBefore;
    const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - wallBefore;
    return {cpu, wall.count()};
}

Cost median(std::vector<Cost> costs)
{
    std::sort(costs.begin(), costs.end(),
              [](const Cost& left, const Cost& right) { return left.cpu < right.cpu; });
    return costs[costs.size() / 2];
}

std::size_t heapBytes()
{
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

} // namespace dn::bench
