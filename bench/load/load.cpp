// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/load/load.h"

#include "bench/load/agent.h"
#include "bench/report/percentiles.h"
#include "bench/report/report.h"

#include <atomic>
#include <latch>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <thread>

namespace dn::bench {
namespace {

using Time = std::chrono::steady_clock::time_point;

/// What the threads share.
class Run {
public:
    explicit Run(const LoadOptions& options)
        : options_(options), ready_(static_cast<std::ptrdiff_t>(options.agents.size()) + 1)
    {
    }

    LoadResult go()
    {
        std::vector<std::thread> threads;
        for (std::size_t number = 0; number < options_.agents.size(); ++number)
            threads.emplace_back([this, number] { work(number); });
        ready_.arrive_and_wait();
        const double start = wallNow();
        for (std::thread& thread : threads)
            thread.join();
        result_.seconds = (wallNow() - start) / 1000;
        if (!failure_.empty()) throw std::runtime_error(failure_);
        checkLog();
        return std::move(result_);
    }

private:
    void work(std::size_t number)
    {
        std::unique_ptr<Agent> agent;
        try {
            agent = std::make_unique<Agent>(options_, number);
        } catch (const std::exception& failure) {
            failed(failure.what());
        }
        ready_.arrive_and_wait(); // all together, or the first ones would have the server to themselves
        if (!agent || failed_) return;
        try {
            day(*agent);
        } catch (const std::exception& failure) {
            failed(failure.what());
        }
        collect(*agent);
    }

    void day(Agent& agent)
    {
        const Time end = std::chrono::steady_clock::now() + options_.duration;
        for (;;) {
            const Time next = std::chrono::steady_clock::now() + agent.thought();
            if (next >= end) return;
            std::this_thread::sleep_until(next);
            agent.act();
        }
    }

    void failed(const std::string& why)
    {
        const std::lock_guard lock(mutex_);
        if (failure_.empty()) failure_ = why;
        failed_ = true;
    }

    void collect(const Agent& agent)
    {
        const std::lock_guard lock(mutex_);
        result_.steps.insert(result_.steps.end(), agent.steps().begin(), agent.steps().end());
        result_.wrong.insert(result_.wrong.end(), agent.wrong().begin(), agent.wrong().end());
        result_.actions += agent.actions();
        result_.statements += agent.statements();
        result_.startMilliseconds = std::max(result_.startMilliseconds, agent.startMilliseconds());
        notes_ += agent.notes();
    }

    // Every note, summary and status is a line of the log, whoever wrote at the same time.
    void checkLog()
    {
        const auto connection = host::connect(options_.server);
        const auto lines =
            connection
                ->execute(std::string("SELECT COUNT(*) FROM xt_biticontact WHERE uf_Usuario LIKE '") +
                          Agent::userPrefix + "%' AND Sys_PK > " + std::to_string(lastLine_))
                ->value(0)
                .toWhole();
        if (lines != static_cast<std::int64_t>(notes_))
            result_.wrong.push_back("the log has " + std::to_string(lines) + " lines and not " +
                                    std::to_string(notes_));
    }

    std::int64_t lastLineNow() const
    {
        return host::connect(options_.server)
            ->execute("SELECT COALESCE(MAX(Sys_PK), 0) FROM xt_biticontact")
            ->value(0)
            .toWhole();
    }

    const LoadOptions& options_;
    std::int64_t lastLine_ = lastLineNow();
    std::latch ready_;
    std::mutex mutex_;
    std::atomic<bool> failed_ = false;
    std::string failure_;
    LoadResult result_;
    std::size_t notes_ = 0;
};

std::string cells(const std::vector<double>& values)
{
    return readable(percentile(values, 0.5)) + " | " + readable(percentile(values, 0.99)) + " | ";
}

} // namespace

LoadResult runLoad(const LoadOptions& options) { return Run(options).go(); }

std::string loadAsMarkdown(const LoadResult& result)
{
    std::string text =
        "| Action | Count | Whole p50 | p99 | Server p50 | p99 | Ours p50 | p99 | Our processor time p50 "
        "| p99 |\n|---|--:|--:|--:|--:|--:|--:|--:|--:|--:|\n";
    for (std::size_t i = 0; i <= actionNames.size(); ++i) {
        const bool all = i == actionNames.size();
        std::array<std::vector<double>, 4> values;
        for (const Step& step : result.steps) {
            if (!all && static_cast<std::size_t>(step.action) != i) continue;
            values[0].push_back(step.wall);
            values[1].push_back(step.server);
            values[2].push_back(ownShare(step));
            values[3].push_back(step.cpu);
        }
        if (values[0].empty()) continue;
        text +=
            std::string("| ") + (all ? "all" : actionNames[i]) + " | " + std::to_string(values[0].size()) + " | ";
        for (const auto& share : values)
            text += cells(share);
        text.pop_back();
        text += "\n";
    }
    return text;
}

} // namespace dn::bench
