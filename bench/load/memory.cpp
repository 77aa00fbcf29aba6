// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/load/memory.h"

#include <malloc.h>
#include <unistd.h>

#include <stdexcept>

namespace dn::bench {
namespace {

double residentKilobytes()
{
    double whole = 0;
    double resident = 0;
    std::ifstream("/proc/self/statm") >> whole >> resident; // in pages
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

double usedKilobytes()
{
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd) / 1024;
}

} // namespace

MemoryWatch::MemoryWatch(const std::string& file, std::chrono::milliseconds every) : file_(file), every_(every)
{
    if (!file_) throw std::runtime_error("cannot write " + file);
    file_ << "seconds,resident_kb,in_use_kb\n";
    thread_ = std::thread([this] { watch(); });
}

MemoryWatch::~MemoryWatch() { stop(); }

void MemoryWatch::stop()
{
    {
        const std::lock_guard lock(mutex_);
        ended_ = true;
    }
    ending_.notify_all();
    if (thread_.joinable()) thread_.join();
}

void MemoryWatch::watch()
{
    std::unique_lock lock(mutex_);
    do
        take();
    while (!ending_.wait_for(lock, every_, [this] { return ended_; }));
}

void MemoryWatch::take()
{
    const double now = std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    resident_.push_back({now, residentKilobytes()});
    inUse_.push_back({now, usedKilobytes()});
    file_ << now << ',' << resident_.back().value << ',' << inUse_.back().value << std::endl; // to be followed
}

} // namespace dn::bench
