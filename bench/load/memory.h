// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Looks at the memory of this process while it works.
#pragma once

#include "bench/report/growth.h"

#include <chrono>
#include <condition_variable>
#include <fstream>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace dn::bench {

/// From now to its end takes a sample at regular times, in kilobytes: what the process has of the machine's
/// memory, and what of it is asked for and not given back.
class MemoryWatch {
public:
    /// @param file takes each sample as a line: seconds, resident, in use.
    /// @throws std::runtime_error when the file cannot be written.
    MemoryWatch(const std::string& file, std::chrono::milliseconds every);
    MemoryWatch(const MemoryWatch&) = delete;
    MemoryWatch& operator=(const MemoryWatch&) = delete;
    ~MemoryWatch();

    /// No more samples.
    void stop();

    /// Once it was stopped.
    const std::vector<Sample>& resident() const { return resident_; }
    const std::vector<Sample>& inUse() const { return inUse_; }

private:
    void watch();
    void take();

    std::ofstream file_;
    std::chrono::milliseconds every_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    std::vector<Sample> resident_;
    std::vector<Sample> inUse_;
    std::mutex mutex_;
    std::condition_variable ending_;
    bool ended_ = false;
    std::thread thread_; // last: it uses the others
};

} // namespace dn::bench
