// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The benchmarks: one run on the same rows and the same server, in client CPU, each checking its own answer.
//
//     dn_bench [--check] [--only loading|projects|directory|memory|filling|growth|commands|export] [--rows N]
//     [--rounds N]
//              [--folder DIR]
//
// With --check the program ends with 1 and names the rows of the table that missed their bar.

#include "bench/alternatives.h"
#include "bench/bench_database.h"
#include "bench/commands.h"
#include "bench/export.h"
#include "bench/measure.h"
#include "bench/project_rows.h"
#include "bench/report.h"
#include "bench/workbench.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include <cstdio>
#include <exception>

namespace {

using namespace dn::bench;

struct Options {
    bool check = false;
    std::size_t rows = 100'000;
    int rounds = 5;
    std::string folder;
    QString only; ///< one benchmark alone; empty for all

    bool runs(const char* benchmark) const { return only.isEmpty() || only == benchmark; }
};

Options readOptions(const QApplication& application)
{
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption check("check", "End with 1 when a bar is missed.");
    const QCommandLineOption rows("rows", "Prospects.", "number", "100000");
    const QCommandLineOption rounds("rounds", "Rounds; the one in the middle counts.", "number", "5");
    const QCommandLineOption folder("folder", "Where the server keeps its rows between runs.", "folder",
                                    QDir::tempPath() + "/dn-bench");
    const QCommandLineOption only(
        "only", "One benchmark: loading, projects, directory, memory, filling, growth, commands or export.",
        "benchmark");
    parser.addOptions({check, rows, rounds, folder, only});
    parser.process(application);
    const QStringList benchmarks{"",        "loading", "projects", "directory", "memory",
                                 "filling", "growth",  "commands", "export"};
    if (!benchmarks.contains(parser.value(only)))
        throw std::runtime_error("no such benchmark: " + parser.value(only).toStdString());
    const qulonglong count = parser.value(rows).toULongLong();
    if (count < 1000) throw std::runtime_error("--rows takes 1,000 and more");
    const int times = parser.value(rounds).toInt();
    if (times < 1) throw std::runtime_error("--rounds takes 1 and more");
    return {parser.isSet(check), count, times, (parser.value(folder) + "-" + parser.value(rows)).toStdString(),
            parser.value(only)};
}

// ---- Loading the prospects -------------------------------------------------------------------------------------

void benchLoading(BenchDatabase& database, int rounds, Report& report)
{
    Workbench workbench;
    workbench.open(database);
    std::vector<Cost> ours;
    std::vector<Cost> bare;
    std::vector<Cost> queryModel;
    std::vector<Cost> queryModelRead;
    std::size_t cells = 0;
    std::size_t modelRows = 0;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(workbench.load());
        bare.push_back(bareFetch(database, {database.statement()}, cells));
        queryModel.push_back(sqlQueryModel(database, Reading::shownCells, modelRows));
        queryModelRead.push_back(sqlQueryModel(database, Reading::everyCell, modelRows));
    }
    if (workbench.rows() != database.rows()) report.wrong("LoadProspectos", "rows are missing in the list");
    if (modelRows != database.rows()) report.wrong("QSqlQueryModel", "rows are missing in the model");
    const auto columns = database.connection().execute(database.statement())->names().size();
    if (cells != database.rows() * columns) report.wrong("bare fetch", "cells are missing");

    const double load = median(ours).cpu;
    report.figure("LoadProspectos to the first frame, client CPU", load, "ms");
    report.figure("LoadProspectos to the first frame, wall", median(ours).wall, "ms");
    report.figure("bare libmariadb store_result, every cell read, client CPU", median(bare).cpu, "ms");
    report.figure("QSqlQueryModel, QTableView, all rows fetched, shown cells read", median(queryModel).cpu, "ms");
    report.figure("QSqlQueryModel, QTableView, all rows fetched, every cell read", median(queryModelRead).cpu,
                  "ms");
    report.bar("LoadProspectos against the bare fetch", load / median(bare).cpu, 3, "times");
    report.bar("LoadProspectos against QSqlQueryModel, every cell read", load / median(queryModelRead).cpu,
               1.0 / 6, "times");
}

// ---- Loading the projects --------------------------------------------------------------------------------------

void benchProjects(BenchDatabase& database, int rounds, Report& report)
{
    const ProjectRows rows(database);
    Workbench workbench(dn::desk::proyectos);
    workbench.open(database);
    std::vector<Cost> ours;
    std::vector<Cost> bare;
    std::size_t cells = 0;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(workbench.load());
        bare.push_back(bareFetch(database, rows.statements(), cells));
    }
    if (workbench.rows() != ProjectRows::projects)
        report.wrong("RefreshProyectos", "rows are missing in the list");
    if (cells != rows.cells()) report.wrong("bare fetch of the projects", "cells are missing");
    for (int row = 1; row <= workbench.list().ListItems().Count(); ++row)
        if (workbench.list().ListItems()(row).ListSubItems().Count() != 14)
            report.wrong("RefreshProyectos", "a project is not shown by its activity");
    report.figure("RefreshProyectos to the first frame, client CPU", median(ours).cpu, "ms");
    report.figure("RefreshProyectos to the first frame, wall", median(ours).wall, "ms");
    report.figure("bare libmariadb store_result of both statements, every cell read, client CPU", median(bare).cpu,
                  "ms");
    report.bar("RefreshProyectos against the bare fetch", median(ours).cpu / median(bare).cpu, 3, "times");
}

// ---- Loading the persons ---------------------------------------------------------------------------------------

void benchDirectory(BenchDatabase& database, int rounds, Report& report)
{
    Workbench workbench(dn::desk::contactos);
    workbench.open(database);
    std::vector<Cost> ours;
    std::vector<Cost> bare;
    std::vector<Cost> jumps;
    std::size_t cells = 0;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(workbench.load());
        bare.push_back(bareFetch(database, {database.personStatement()}, cells));
        const int last = workbench.list().ListItems().Count();
        jumps.push_back(workbench.select(std::string(workbench.list().ListItems()(last).Key())));
    }
    if (workbench.rows() != database.rows()) report.wrong("LoadContactos", "rows are missing in the list");
    const auto columns = database.connection().execute(database.personStatement())->names().size();
    if (cells != database.rows() * columns) report.wrong("bare fetch of the persons", "cells are missing");
    const double load = median(ours).cpu;
    report.figure("LoadContactos to the first frame, client CPU", load, "ms");
    report.figure("LoadContactos to the first frame, wall", median(ours).wall, "ms");
    report.figure("bare libmariadb store_result of the persons, client CPU", median(bare).cpu, "ms");
    report.figure("a jump from the first person to the last, painted", median(jumps).cpu, "ms");
    report.bar("LoadContactos against the bare fetch", load / median(bare).cpu, 3, "times");
}

// ---- Rows in memory --------------------------------------------------------------------------------------------

Texts textsOf(dn::screen::ListView& list)
{
    const dn::screen::ListRows& rows = list.rows();
    Texts texts(rows.count());
    for (std::size_t position = 0; position < rows.count(); ++position)
        for (std::size_t cell = 0; cell < rows.cellCount(rows.rowAt(position)); ++cell)
            texts[position].emplace_back(rows.cell(rows.rowAt(position), cell));
    return texts;
}

void benchFilling(const Texts& texts, int rounds, Report& report)
{
    Workbench workbench;
    workbench.list().Visible(true);
    QCoreApplication::processEvents();
    std::vector<Cost> ours;
    std::vector<Cost> tree;
    for (int round = 0; round < rounds; ++round) {
        workbench.clear();
        ours.push_back(workbench.fill(texts));
        tree.push_back(treeWidget(texts));
    }
    if (workbench.rows() != texts.size()) report.wrong("filling from memory", "rows are missing in the list");
    report.figure("rows in memory to the first frame, client CPU", median(ours).cpu, "ms");
    report.figure("QTreeWidget filled row by row to the first frame, client CPU", median(tree).cpu, "ms");
    report.bar("rows in memory to the first frame against QTreeWidget", median(ours).cpu / median(tree).cpu,
               1.0 / 8, "times");
}

// ---- Memory ----------------------------------------------------------------------------------------------------

// Everything that the process holds for the loaded list, view and model included, beside the texts themselves.
void benchMemory(BenchDatabase& database, Report& report)
{
    Workbench workbench;
    workbench.open(database);
    workbench.clear();
    const std::size_t before = heapBytes();
    workbench.load();
    const std::size_t held = heapBytes() - before;
    std::size_t text = 0;
    const dn::screen::ListRows& rows = workbench.list().rows();
    for (std::size_t row = 0; row < rows.count(); ++row) {
        const auto number = static_cast<dn::screen::ListRows::RowNumber>(row);
        text += rows.key(number).size() + rows.toolTip(number).size();
        for (std::size_t cell = 0; cell < rows.cellCount(number); ++cell)
            text += rows.cell(number, cell).size();
    }
    const auto count = static_cast<double>(rows.count());
    if (rows.count() != database.rows()) report.wrong("memory of a row", "rows are missing in the list");
    report.figure("text of a row", static_cast<double>(text) / count, "bytes");
    report.bar("memory of a row above its text", (static_cast<double>(held) - static_cast<double>(text)) / count,
               130, "bytes");
}

// ---- What must not grow ----------------------------------------------------------------------------------------

struct Constant {
    double repaint = 0;
    double select = 0;
};

Constant constantWork(const Texts& texts, std::size_t count, int rounds)
{
    Workbench workbench;
    workbench.list().Visible(true);
    workbench.fill(Texts(texts.begin(), texts.begin() + static_cast<std::ptrdiff_t>(count)));
    constexpr int times = 20; // one alone is too short to be measured well
    std::vector<Cost> repaints;
    std::vector<Cost> selections;
    for (int round = 0; round < rounds; ++round) {
        Cost repaint;
        Cost selection;
        for (int i = 0; i < times; ++i) {
            repaint.cpu += workbench.repaint().cpu;
            const std::size_t row = 1 + (static_cast<std::size_t>(round * times + i) * 7919U) % count;
            selection.cpu += workbench.select("K" + std::to_string(row)).cpu;
        }
        repaints.push_back(repaint);
        selections.push_back(selection);
    }
    return {median(repaints).cpu / times, median(selections).cpu / times};
}

void benchGrowth(const Texts& texts, int rounds, Report& report)
{
    const std::size_t few = texts.size() / 100;
    const Constant small = constantWork(texts, few, rounds);
    const Constant large = constantWork(texts, texts.size(), rounds);
    report.figure("repaint of the list", large.repaint, "ms");
    report.figure("selection by key, painted", large.select, "ms");
    // A list a hundred times as long may cost what the measuring itself varies by, and no more.
    report.bar("repaint, a hundred times the rows", large.repaint / small.repaint, 1.5, "times");
    report.bar("selection by key, a hundred times the rows", large.select / small.select, 1.5, "times");
}

void benchOnTheDatabase(const Options& options, Report& report)
{
    BenchDatabase database(options.folder, options.rows);
    if (options.runs("loading")) benchLoading(database, options.rounds, report);
    if (options.runs("projects")) benchProjects(database, options.rounds, report);
    if (options.runs("directory")) benchDirectory(database, options.rounds, report);
    if (options.runs("memory")) benchMemory(database, report);
    if (options.runs("commands")) benchCommands(database, options.rounds, report);
    Texts texts;
    if (options.runs("filling") || options.runs("growth")) {
        Workbench workbench;
        workbench.open(database);
        texts = textsOf(workbench.list());
    }
    if (options.runs("filling")) benchFilling(texts, options.rounds, report);
    if (options.runs("growth")) benchGrowth(texts, options.rounds, report);
}

int run(const QApplication& application)
{
    const Options options = readOptions(application);
    Report report;
    if (options.runs("export")) benchExport(options.rounds, report);
    if (options.only != "export") benchOnTheDatabase(options, report);
    std::printf("%zu prospects, the middle of %d rounds\n\n%s", options.rows, options.rounds,
                report.table().c_str());
    if (!options.check) return 0;
    for (const std::string& row : report.missed())
        std::printf("missed: %s\n", row.c_str());
    return report.missed().empty() ? 0 : 1;
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
