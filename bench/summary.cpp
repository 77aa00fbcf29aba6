// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/summary.h"

#include "bench/processes.h"
#include "bench/report/percentiles.h"

#include <QByteArray>
#include <QtGlobal>

#include <mysql.h>

#include <array>
#include <ctime>

namespace dn::bench {
namespace {

std::string today()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%d", &local);
    return text.data();
}

std::string head(const Results& results)
{
    std::string text = "Measured on " + today() + (results.revision.empty() ? "" : " at " + results.revision) +
                       ", in " + readable(results.seconds / 60) + " minutes, on: " + machine() + ".\n";
    text += std::string("GCC ") + __VERSION__ + ", Qt " + qVersion() + ", libmariadb " + mysql_get_client_info() +
            ", server " + results.serverVersion + ", platform \"" + qgetenv("QT_QPA_PLATFORM").toStdString() +
            "\".\n\n";
    const auto missed = results.report.missed().size();
    return text + (missed == 0 ? "All bars were kept.\n" : std::to_string(missed) + " rows missed their bar.\n");
}

std::string load(const Results& results)
{
    if (!results.load) return {};
    const LoadResult& load = *results.load;
    return "\n### " + std::to_string(results.agents) + " agents at once\n\n" + std::to_string(load.steps.size()) +
           " actions with " + std::to_string(load.statements) + " statements in " + readable(load.seconds) +
           " seconds, all on this machine; the server used " +
           readable(results.loadServerCpu / load.seconds / 10) +
           " % of a processor. The slowest of the controls, which all started at once, took " +
           readable(load.startMilliseconds) + " ms. Milliseconds:\n\n" + loadAsMarkdown(load);
}

} // namespace

void judgeLoad(const LoadResult& load, Report& report)
{
    for (std::size_t i = 0; i < actionNames.size(); ++i) {
        std::vector<double> own;
        for (const Step& step : load.steps)
            if (static_cast<std::size_t>(step.action) == i) own.push_back(ownShare(step));
        const std::string what = std::string("agents at once, ") + actionNames[i] + " (" +
                                 std::to_string(own.size()) + "): our own share beside the server's, p99";
        if (own.empty())
            report.notMeasured(what);
        else
            report.bar(what, percentile(own, 0.99), 20, "ms");
    }
    for (const std::string& wrong : load.wrong)
        report.wrong("agents at once", wrong);
}

std::string figuresOf(const Results& results, const std::string& picture)
{
    return head(results) + "\n### Bars\n\n" + results.report.barsAsMarkdown() +
           "\n### Lists to the first painted frame\n\n![Time over rows](" + picture +
           ")\n\nMilliseconds of client CPU where nothing else is said, medians.\n\n" +
           listsAsMarkdown(results.lists) +
           "\n### By the clock\n\nMilliseconds: first rows by their own median, all else of the round whose CPU "
           "is the median.\n\n" +
           wallAsMarkdown(results.lists) +
           "\n### Who takes the time\n\nMilliseconds of CPU of one load: the server, in steps of 10, our driver "
           "reading every cell, and the rest of ours up to the frame.\n\n" +
           sharesAsMarkdown(results.lists) + load(results) + "\n### Other figures\n\n" +
           results.report.figuresAsMarkdown();
}

} // namespace dn::bench
