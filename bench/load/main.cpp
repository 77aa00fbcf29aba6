// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The load generator: many agents at work at once on one MariaDB.
//
//     dn_load [--agents N] [--seconds S] [--think MILLISECONDS] [--seed N] [--soak FILE] [--connect TEXT |
//     --folder DIR]
//
// Without --connect it starts a server of its own on the folder and gives each agent rows of his own. With it, the
// agents of that database work who have prospects, each at most once: they write notes and calls into it, so it
// must be one for the purpose. Ends with 1 when an answer was wrong, and with
// --soak when its memory grew: what it had every ten seconds stands in the file.

#include "bench/load/load.h"
#include "bench/load/memory.h"
#include "bench/report/growth.h"
#include "bench/scale_rows.h"
#include "host/database/database.h"

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <map>
#include <optional>
#include <stdexcept>

namespace {

using namespace dn;
using namespace dn::bench;

using Arguments = std::map<std::string, std::string>;

Arguments readArguments(int argc, char** argv)
{
    Arguments arguments{{"--agents", "200"}, {"--seconds", "60"}, {"--think", "4000"}, {"--seed", "1"},
                        {"--connect", ""},   {"--folder", ""},    {"--soak", ""}};
    for (int i = 1; i < argc; i += 2) {
        const auto found = arguments.find(argv[i]);
        if (found == arguments.end() || i + 1 == argc)
            throw std::runtime_error("usage: dn_load [--agents N] [--seconds S] [--think MILLISECONDS] [--seed N] "
                                     "[--soak FILE] [--connect TEXT | --folder DIR]");
        found->second = argv[i + 1];
    }
    return arguments;
}

long numberOf(const Arguments& arguments, const std::string& name)
{
    const std::string& text = arguments.at(name);
    long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 1)
        throw std::runtime_error(name + " takes a number from 1 on");
    return number;
}

/// A server of our own, with rows for the agents.
host::Database ownServer(const std::string& folder, std::size_t agents)
{
    host::DatabaseOptions options;
    options.demoRows = 3000;
    options.server.folder =
        folder.empty() ? std::filesystem::temp_directory_path() / "dn-load" : std::filesystem::path(folder);
    options.server.bufferPoolMegabytes = 1024;
    host::Database database = host::openDatabase(options);
    database.connection().execute("SET GLOBAL max_connections = " + std::to_string(agents + 50));
    makeLoadRows(database.connection(), agents);
    return database;
}

std::vector<std::int32_t> agentsOf(const host::MariadbTarget& target, std::size_t count)
{
    std::vector<std::int32_t> keys;
    const auto connection = host::connect(target);
    const auto rows =
        connection->execute("SELECT DISTINCT a.Sys_PK FROM Agente AS a INNER JOIN ut_icontact AS c ON "
                            "c.uf_IEjecutivo = a.Sys_PK AND c.uf_Status = 0 ORDER BY a.Sys_PK");
    for (; !rows->Eof(); rows->MoveNext())
        keys.push_back(rows->value(0).toInt32());
    // Two at the desk of one agent would see each other's rows come and go, and take that for a wrong answer.
    if (keys.size() < count)
        throw std::runtime_error("agents with prospects in this database: " + std::to_string(keys.size()) +
                                 "; --agents takes no more");
    keys.resize(count);
    return keys;
}

/// Runs the load and looks at the memory. @return whether it stayed where it was.
bool staysFlat(LoadOptions& options, const std::string& file, LoadResult& result)
{
    // The timelines of the prospects that are worked on grow with their logs, and the allocator settles slowly.
    constexpr double share = 0.02;
    options.stepsKept = 1000;
    MemoryWatch memory(file, std::chrono::seconds(10));
    result = runLoad(options);
    memory.stop();
    const Growth growth = growthOf(memory.resident());
    std::printf("Memory from %.0f s on: %.0f KB, %+.0f KB by the end (%+.1f %%). In use: %.0f KB, %+.0f KB.\n\n",
                growth.from, growth.level, growth.gain, 100 * growth.gain / growth.level,
                growthOf(memory.inUse()).level, growthOf(memory.inUse()).gain);
    if (!growth.isFlat(share)) std::printf("wrong: the memory grows\n");
    return growth.isFlat(share);
}

int run(const Arguments& arguments)
{
    LoadOptions options;
    const auto count = static_cast<std::size_t>(numberOf(arguments, "--agents"));
    options.duration = std::chrono::seconds(numberOf(arguments, "--seconds"));
    options.thinking = std::chrono::milliseconds(numberOf(arguments, "--think"));
    options.seed = static_cast<std::uint64_t>(numberOf(arguments, "--seed"));
    std::optional<host::Database> own;
    if (arguments.at("--connect").empty()) {
        own.emplace(ownServer(arguments.at("--folder"), count));
        options.server = std::get<host::MariadbTarget>(own->choice());
        for (std::size_t i = 0; i < count; ++i)
            options.agents.push_back(firstLoadAgent + static_cast<std::int32_t>(i));
    } else {
        const auto choice = host::parseDatabaseChoice(arguments.at("--connect"));
        if (!std::holds_alternative<host::MariadbTarget>(choice))
            throw std::runtime_error("--connect takes mariadb://...");
        options.server = std::get<host::MariadbTarget>(choice);
        options.agents = agentsOf(options.server, count);
    }
    const std::string& samples = arguments.at("--soak");
    LoadResult result;
    bool flat = true;
    if (samples.empty())
        result = runLoad(options);
    else
        flat = staysFlat(options, samples, result);
    std::printf("%zu agents, %zu actions, %zu statements in %.1f s. Milliseconds:\n\n%s", options.agents.size(),
                result.actions, result.statements, result.seconds, loadAsMarkdown(result).c_str());
    for (const std::string& wrong : result.wrong)
        std::printf("wrong: %s\n", wrong.c_str());
    return flat && result.wrong.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(readArguments(argc, argv));
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 2;
    }
}
