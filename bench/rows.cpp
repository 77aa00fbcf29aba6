// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/rows.h"

#include "base/collation.h"
#include "bench/alternatives.h"
#include "bench/measure.h"
#include "bench/workbench.h"

#include <QCoreApplication>

#include <algorithm>

namespace dn::bench {
namespace {

std::string rowsOf(const Scale& scale) { return readable(static_cast<double>(scale.rows)) + " rows"; }

/// Whether the rows stand in the order of a column.
bool ordered(screen::ListView& list, std::size_t column)
{
    const screen::ListRows& rows = list.rows();
    for (std::size_t position = 1; position < rows.count(); ++position)
        if (compareSpanish(rows.cell(rows.rowAt(position - 1), column), rows.cell(rows.rowAt(position), column)) >
            0)
            return false;
    return true;
}

std::vector<Cost> ourSorts(Workbench& workbench, std::size_t columns, Report& report)
{
    std::vector<Cost> costs;
    for (std::size_t column = 0; column < columns; ++column) {
        costs.push_back(workbench.sort(static_cast<int>(column)));
        if (!ordered(workbench.list(), column))
            report.wrong("sort by column " + std::to_string(column), "the order is wrong");
    }
    return costs;
}

/// For each column the cost that stands in the middle of the rounds.
double middle(const std::vector<std::vector<Cost>>& rounds, std::size_t column)
{
    std::vector<Cost> costs;
    for (const auto& round : rounds)
        costs.push_back(round[column]);
    return median(costs).cpu;
}

void judgeSorts(const std::vector<std::vector<Cost>>& ours, const std::vector<std::vector<Cost>>& trees,
                screen::ListView& list, Report& report)
{
    std::vector<double> sums(2);
    for (std::size_t column = 0; column < ours.front().size(); ++column) {
        const double own = middle(ours, column);
        const double tree = middle(trees, column);
        sums[0] += own;
        sums[1] += tree;
        const std::string header = list.ColumnHeaders()[column].Text;
        report.figure("sort by \"" + header + "\", ours / QTreeWidget's " + readable(tree) + " ms, client CPU",
                      own, "ms");
        report.bar("sort by \"" + header + "\" against QTreeWidget, client CPU", own / tree, 1.0 / 10, "times");
    }
    report.bar("sort by all columns, one after the other, against QTreeWidget, client CPU", sums[0] / sums[1],
               1.0 / 10, "times");
}

double textOf(const screen::ListRows& rows)
{
    std::size_t text = 0;
    for (std::size_t row = 0; row < rows.count(); ++row) {
        const auto number = static_cast<screen::ListRows::RowNumber>(row);
        text += rows.key(number).size() + rows.toolTip(number).size();
        for (std::size_t cell = 0; cell < rows.cellCount(number); ++cell)
            text += rows.cell(number, cell).size();
    }
    return static_cast<double>(text);
}

struct Finding {
    double search = 0;
    double repaint = 0;
    double select = 0;
};

// One of these alone is too short to be measured well.
constexpr int times = 20;

void shortOnes(Workbench& workbench, std::size_t count, int round, std::vector<Cost>& repaints,
               std::vector<Cost>& selections)
{
    Cost repaint;
    Cost selection;
    for (int i = 0; i < times; ++i) {
        repaint.cpu += workbench.repaint().cpu;
        const std::size_t row = (static_cast<std::size_t>(round * times + i) * 7919U) % count;
        const std::string key(workbench.list().ListItems()(static_cast<int>(row) + 1).Key());
        selection.cpu += workbench.select(key).cpu;
    }
    repaints.push_back(repaint);
    selections.push_back(selection);
}

// The text stands in the last cell of the last row and nowhere else, in other letters than those asked for.
Finding finding(BenchDatabase& database, const Scale& scale, int rounds, Report& report)
{
    Workbench workbench;
    workbench.open(database, scale.agent);
    const int last = workbench.list().ListItems().Count();
    const std::size_t lastCell = workbench.list().ColumnHeaders().size() - 1;
    workbench.list().ListItems()(last).cell(lastCell, "el último ñandú");
    std::vector<Cost> searches;
    std::vector<Cost> repaints;
    std::vector<Cost> selections;
    for (int round = 0; round < rounds; ++round) {
        workbench.list().clickRow(0);
        searches.push_back(workbench.search("ÚLTIMO ÑANDÚ"));
        const auto found = workbench.list().selectedPosition();
        if (!found || *found + 1 != static_cast<std::size_t>(last))
            report.wrong("search", "the row was not found");
        shortOnes(workbench, scale.rows, round, repaints, selections);
    }
    return {median(searches).cpu, median(repaints).cpu / times, median(selections).cpu / times};
}

double refresh(BenchDatabase& database, const Scale& scale, int rounds, Report& report)
{
    Workbench workbench;
    workbench.open(database, scale.agent);
    const std::string key(workbench.list().ListItems()(static_cast<int>(scale.rows / 2)).Key());
    workbench.select(key);
    std::vector<Cost> loads;
    for (int round = 0; round < rounds; ++round) {
        loads.push_back(workbench.load().cost);
        const auto selected = workbench.list().SelectedItem();
        if (!selected || selected->Key() != key || !workbench.showsSelection())
            report.wrong("refresh, " + rowsOf(scale), "the selected row is not the one before, or out of view");
    }
    return median(loads).cpu;
}

} // namespace

void benchFilling(BenchDatabase& database, const Scale& scale, int rounds, Report& report)
{
    Texts texts;
    {
        Workbench source;
        source.open(database, scale.agent);
        texts = textsOf(source.list());
    }
    Workbench workbench;
    workbench.list().Visible(true);
    QCoreApplication::processEvents();
    std::vector<Cost> fills;
    std::vector<Cost> treeFills;
    std::vector<std::vector<Cost>> sorts;
    std::vector<std::vector<Cost>> treeSorts;
    for (int round = 0; round < rounds; ++round) {
        workbench.clear();
        workbench.list().Sorted(false);
        workbench.list().SortKey(static_cast<int>(texts.front().size()) - 1);
        workbench.list().SortOrder(screen::ListView::ascending);
        fills.push_back(workbench.fill(texts));
        treeFills.push_back(treeWidget(texts));
        sorts.push_back(ourSorts(workbench, texts.front().size(), report));
        treeSorts.push_back(treeWidgetSorts(texts));
    }
    if (workbench.rows() != texts.size()) report.wrong("filling from memory", "rows are missing in the list");
    report.figure("end of fetch to the first frame, ours, client CPU", median(fills).cpu, "ms");
    report.figure("end of fetch to the first frame, QTreeWidget, client CPU", median(treeFills).cpu, "ms");
    report.bar("end of fetch to the first frame, " + rowsOf(scale) + ", against QTreeWidget filled row by row",
               median(fills).cpu / median(treeFills).cpu, 1.0 / 8, "times");
    judgeSorts(sorts, treeSorts, workbench.list(), report);
}

void benchMemory(BenchDatabase& database, const Scale& scale, Report& report)
{
    Workbench workbench;
    workbench.open(database, scale.agent);
    workbench.clear();
    const std::size_t before = heapBytes();
    workbench.load();
    const auto held = static_cast<double>(heapBytes() - before);
    const screen::ListRows& rows = workbench.list().rows();
    if (rows.count() != scale.rows) report.wrong("memory of a row", "rows are missing in the list");
    const double text = textOf(rows);
    const auto count = static_cast<double>(rows.count());
    report.figure("text of a row of the prospects", text / count, "bytes");
    report.bar("memory of a row above its text, " + rowsOf(scale), (held - text) / count, 130, "bytes");
}

void benchRefresh(BenchDatabase& database, const Scale& few, const Scale& many, int rounds, Report& report)
{
    const double small = refresh(database, few, rounds, report);
    const double large = refresh(database, many, 1, report);
    report.figure("refresh with the selection restored, " + rowsOf(few) + ", client CPU", small, "ms");
    report.figure("refresh with the selection restored, " + rowsOf(many) + ", client CPU", large, "ms");
    report.bar("refresh with the selection restored: growth from " + rowsOf(few) + " to " + rowsOf(many),
               large / small, 11, "times");
}

void benchFinding(BenchDatabase& database, const Scale& few, const Scale& many, int rounds, Report& report)
{
    const Finding small = finding(database, few, rounds, report);
    const Finding large = finding(database, many, rounds, report);
    report.figure("search over all cells, " + rowsOf(few) + ", client CPU", small.search, "ms");
    report.bar("search over " + rowsOf(many) + " x 17 cells, without regard to case, client CPU", large.search,
               600, "ms");
    report.bar("search: growth from " + rowsOf(few) + " to " + rowsOf(many), large.search / small.search, 11,
               "times");
    report.figure("selection by key, painted, " + rowsOf(few), small.select, "ms");
    report.figure("selection by key, painted, " + rowsOf(many), large.select, "ms");
    report.figure("repaint of the list, " + rowsOf(many), large.repaint, "ms");
    // A longer list may cost what the measuring itself varies by, and no more.
    report.bar("selection by key: growth from " + rowsOf(few) + " to " + rowsOf(many), large.select / small.select,
               1.5, "times");
    report.bar("repaint: growth from " + rowsOf(few) + " to " + rowsOf(many), large.repaint / small.repaint, 1.5,
               "times");
}

} // namespace dn::bench
