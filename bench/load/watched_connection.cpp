// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/load/watched_connection.h"

#include <time.h>

#include <chrono>
#include <fstream>
#include <stdexcept>

namespace dn::bench {
namespace {

/// Adds what passes during its life.
class Watch {
public:
    explicit Watch(Spent& spent) : spent_(spent) {}
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch()
    {
        spent_.wall += wallNow() - wall_;
        spent_.cpu += threadCpuNow() - cpu_;
    }

private:
    Spent& spent_;
    double wall_ = wallNow();
    double cpu_ = threadCpuNow();
};

class WatchedRecordset final : public data::Recordset {
public:
    WatchedRecordset(std::unique_ptr<data::Recordset> real, Spent& spent)
        : data::Recordset(real->names()), real_(std::move(real)), spent_(spent)
    {
    }
    WatchedRecordset(const WatchedRecordset&) = delete;
    WatchedRecordset& operator=(const WatchedRecordset&) = delete;
    ~WatchedRecordset() override
    {
        const Watch watch(spent_); // what is left of the result is read off
        real_.reset();
    }

    bool Eof() const override { return real_->Eof(); }
    bool Bof() const override { return real_->Bof(); }
    void MoveNext() override
    {
        const Watch watch(spent_);
        real_->MoveNext();
    }
    data::Value value(std::size_t column) const override { return real_->value(column); }

private:
    std::unique_ptr<data::Recordset> real_;
    Spent& spent_;
};

} // namespace

double wallNow()
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double threadCpuNow()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double threadQueuedNow()
{
    std::ifstream file("/proc/thread-self/schedstat");
    double ran = 0;
    double queued = 0;
    if (!(file >> ran >> queued)) throw std::runtime_error("the system keeps no schedstat");
    return queued / 1e6;
}

std::unique_ptr<data::Recordset> WatchedConnection::execute(std::string_view statement)
{
    const Watch watch(spent);
    ++spent.statements;
    try {
        auto records = real_->execute(statement);
        if (!records) return nullptr;
        return std::make_unique<WatchedRecordset>(std::move(records), spent);
    } catch (const std::exception& failure) {
        spent.failures.push_back(std::string(failure.what()) + " on: " + std::string(statement.substr(0, 200)));
        throw;
    }
}

} // namespace dn::bench
