// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The benchmarks: one run on the same rows and the same server, each checking its own answer.
//
//     dn_bench [--check] [--only lists|rows|commands|export|program|load] [--largest N] [--agents N]
//              [--folder DIR] [--document FILE] [--revision TEXT]
//
// With --check the program ends with 1 and names the rows of the table that missed their bar. A whole run writes
// its figures into the document and its picture beside it.

#include "bench/bench_database.h"
#include "bench/commands.h"
#include "bench/export.h"
#include "bench/lists.h"
#include "bench/program.h"
#include "bench/report/document.h"
#include "bench/rows.h"
#include "bench/summary.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>

namespace {

using namespace dn::bench;

const QStringList groups{"lists", "rows", "commands", "export", "program", "load"};

struct Options {
    bool check = false;
    std::size_t largest = 0;
    std::size_t agents = 0;
    std::string folder;
    std::string document;
    std::string revision;
    QString only; ///< one group alone; empty for all

    bool runs(const char* group) const { return only.isEmpty() || only == group; }
    bool needsDatabase() const { return only != "export" && only != "program"; }
};

std::size_t numberOf(const QCommandLineParser& parser, const QCommandLineOption& option, qulonglong least)
{
    const qulonglong number = parser.value(option).toULongLong();
    if (number >= least) return number;
    throw std::runtime_error("--" + option.names().constFirst().toStdString() + " takes " + std::to_string(least) +
                             " and more");
}

Options readOptions(const QApplication& application)
{
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption check("check", "End with 1 when a bar is missed.");
    const QCommandLineOption largest("largest", "Rows of the largest lists.", "number", "1000000");
    const QCommandLineOption agents("agents", "Agents at once.", "number", "200");
    const QCommandLineOption folder("folder", "Where the server keeps its rows between runs.", "folder",
                                    QDir::tempPath() + "/dn-bench");
    const QCommandLineOption document("document", "Takes the figures of a whole run.", "file");
    const QCommandLineOption revision("revision", "Of the sources, for the document.", "text");
    const QCommandLineOption only("only", "One group: " + groups.join(", ") + ".", "group");
    parser.addOptions({check, largest, agents, folder, document, revision, only});
    parser.process(application);
    if (parser.isSet(only) && !groups.contains(parser.value(only)))
        throw std::runtime_error("no such group: " + parser.value(only).toStdString());
    return {parser.isSet(check),
            numberOf(parser, largest, 100'000),
            numberOf(parser, agents, 1),
            parser.value(folder).toStdString(),
            parser.value(document).toStdString(),
            parser.value(revision).toStdString(),
            parser.value(only)};
}

void tell(const std::string& what) { std::fprintf(stderr, "%s\n", what.c_str()); }

/// A group that breaks off is missed, and the others are measured all the same; the figures are shown and do not
/// go into the document.
void attempt(const std::string& group, Results& results, const std::function<void()>& work)
{
    try {
        work();
    } catch (const std::exception& failure) {
        tell(group + ": " + failure.what());
        results.report.wrong(group, failure.what());
        results.brokenOff = true;
    }
}

void benchAllLists(BenchDatabase& database, Results& results)
{
    for (const Scale& scale : database.scales())
        attempt("lists of " + std::to_string(scale.rows) + " rows", results, [&] {
            for (ListFigures& figures : benchLists(database, scale, results.report))
                results.lists.push_back(std::move(figures));
        });
    judgeLists(results.lists, results.report);
}

void benchRows(BenchDatabase& database, Results& results)
{
    constexpr int rounds = 3;
    const Scale& many = database.scale(manyRows);
    const Scale& most = database.scales().back();
    tell("memory, filling and sorting");
    benchMemory(database, many, most, results.report);
    benchFilling(database, many, rounds, results.report);
    benchSortGrowth(database, many, most, results.report);
    tell("refresh and finding");
    benchRefresh(database, many, most, rounds, results.report);
    benchFinding(database, many, most, rounds, results.report);
}

void benchLoad(BenchDatabase& database, std::size_t agents, Results& results)
{
    tell("agents at once");
    LoadOptions options;
    options.server = database.target();
    for (std::size_t i = 0; i < agents; ++i)
        options.agents.push_back(firstLoadAgent + static_cast<std::int32_t>(i));
    options.duration = std::chrono::seconds(120);
    const double before = database.serverCpu();
    results.load = runLoad(options);
    results.loadServerCpu = database.serverCpu() - before;
    results.agents = agents;
    judgeLoad(*results.load, results.report);
}

void benchOnTheDatabase(const Options& options, Results& results)
{
    BenchDatabase database(options.folder, options.largest, options.agents);
    results.serverVersion = database.version();
    if (options.runs("lists")) benchAllLists(database, results);
    if (options.runs("rows")) attempt("rows", results, [&] { benchRows(database, results); });
    if (options.runs("commands"))
        attempt("commands", results, [&] {
            tell("commands");
            benchCommands(database, database.scale(manyRows), database.scales().back(), 3, results.report);
        });
    if (options.runs("load")) attempt("load", results, [&] { benchLoad(database, options.agents, results); });
}

void writeDocument(const Options& options, const Results& results)
{
    const std::filesystem::path document = options.document;
    const std::string picture = document.stem().string() + ".svg";
    writeFigures(document.string(), figuresOf(results, picture));
    std::ofstream file(document.parent_path() / picture, std::ios::binary);
    file << svgOf(panelsOf(results.lists));
    file.close();
    if (!file) throw std::runtime_error("cannot write " + picture);
}

int run(const QApplication& application)
{
    const Options options = readOptions(application);
    const auto start = std::chrono::steady_clock::now();
    Results results;
    results.revision = options.revision;
    if (options.runs("export")) attempt("export", results, [&] { benchExport(5, results.report); });
    if (options.runs("program"))
        attempt("program", results, [&] {
            tell("the program, starting and idle");
            const std::string program =
                (QCoreApplication::applicationDirPath() + "/../host/dncontacts").toStdString();
            benchProgram(program, options.folder + "-program", results.report);
        });
    if (options.needsDatabase()) attempt("database", results, [&] { benchOnTheDatabase(options, results); });
    results.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (!results.lists.empty())
        std::printf("%s\n%s\n", listsAsMarkdown(results.lists).c_str(), wallAsMarkdown(results.lists).c_str());
    if (results.load) std::printf("%s\n", loadAsMarkdown(*results.load).c_str());
    std::printf("%s", results.report.table().c_str());
    if (options.only.isEmpty() && !options.document.empty() && !results.brokenOff) writeDocument(options, results);
    if (!options.check) return results.brokenOff ? 2 : 0;
    for (const std::string& row : results.report.missed())
        std::printf("missed: %s\n", row.c_str());
    return results.report.status();
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    try {
        return run(application);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 2;
    }
}
