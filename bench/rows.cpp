// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/rows.h"

#include "bench/alternatives.h"
#include "bench/measure.h"
#include "bench/order.h"
#include "bench/workbench.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace dn::bench {
namespace {

constexpr double mostAboveText = 130; // bytes a row

std::string rowsOf(const Scale& scale) { return readable(static_cast<double>(scale.rows)) + " rows"; }

// A longer list may cost what the measuring itself varies by, and no more.
constexpr double noGrowth = 1.5;

std::vector<Cost> ourSorts(Workbench& workbench, std::size_t columns, Report& report)
{
    std::vector<Cost> costs;
    for (std::size_t column = 0; column < columns; ++column) {
        costs.push_back(workbench.sort(static_cast<int>(column)));
        if (!isInOrder(workbench.list().rows(), column, false))
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

/// Bytes of the heap that a list and its view hold with their rows, above what they held without.
double loadedMemory(BenchDatabase& database, const Scale& scale, Report& report)
{
    Workbench workbench;
    workbench.open(database, scale.agent); // loads other lists as well
    workbench.clear();                     // a list that is emptied gives all of its memory back
    const std::size_t before = heapBytes();
    workbench.load();
    const auto held = static_cast<double>(heapBytes() - before);
    const screen::ListRows& rows = workbench.list().rows();
    if (rows.count() != scale.rows) report.wrong("memory of a row", "rows are missing in the list");
    const double text = textOf(rows);
    const auto count = static_cast<double>(rows.count());
    report.figure("text of a row of the prospects, " + rowsOf(scale), text / count, "bytes");
    report.bar("memory of a loaded row above its text, " + rowsOf(scale), (held - text) / count, mostAboveText,
               "bytes");
    return held;
}

/// Seventeen cells and a key, 190 bytes together.
std::vector<std::string> rowOf190Bytes(std::size_t number)
{
    constexpr std::size_t columns = 17;
    constexpr std::size_t bytes = 190;
    const std::string key = "K" + std::to_string(number + 1);
    std::vector<std::string> cells(columns, std::string(10, 'x'));
    cells.front() = std::to_string(10'000'000 + number);
    cells.back() = std::string(bytes - key.size() - cells.front().size() - (columns - 2) * 10, 'z');
    return cells;
}

void filledMemory(std::size_t count, Report& report)
{
    Texts texts;
    texts.reserve(count);
    for (std::size_t row = 0; row < count; ++row)
        texts.push_back(rowOf190Bytes(row));
    Workbench workbench;
    workbench.list().Visible(true);
    QCoreApplication::processEvents();
    const std::size_t before = heapBytes();
    workbench.fill(texts);
    const auto held = static_cast<double>(heapBytes() - before);
    const double text = textOf(workbench.list().rows());
    const auto rows = static_cast<double>(count);
    if (text != 190 * rows) report.wrong("memory of a row of 190 bytes", "the text has other bytes");
    report.bar("memory of a row of 190 bytes above its text, " + readable(rows) + " rows", (held - text) / rows,
               mostAboveText, "bytes");
}

struct Finding {
    std::vector<double> searches; ///< by pattern
    double repaint = 0;
    double select = 0;
};

/// What is searched for: the text in the last cell of the last row, and what somebody types for it.
struct Pattern {
    const char* name;
    const char* cell;
    const char* typed; ///< in other letters
};

// None of it stands in another row. Accents, rare letters, frequent ones and what dates begin with go different
// ways through the search.
constexpr std::array<Pattern, 5> patterns{{{"accents", "el último ñandú", "ÚLTIMO ÑANDÚ"},
                                           {"rare letters", "kiwi y wok", "KIWI Y WOK"},
                                           {"frequent letters", "a ea ea ea", "A EA EA EA"},
                                           {"letters with a third case", "kiikkik", "KIIKKIK"},
                                           {"digits", "2026 77 007", "2026 77 007"}}};

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

double search(Workbench& workbench, const Pattern& pattern, std::size_t rows, int rounds, Report& report)
{
    screen::ListItems items = workbench.list().ListItems();
    const std::size_t lastCell = workbench.list().ColumnHeaders().size() - 1;
    items(items.Count()).cell(lastCell, pattern.cell);
    if (static_cast<std::size_t>(items.Count()) != rows)
        report.wrong(std::string("search, ") + pattern.name, "rows are missing in the list");
    const std::size_t expected = rows - 1;
    std::vector<Cost> searches;
    for (int round = 0; round < rounds; ++round) {
        workbench.list().clickRow(0);
        searches.push_back(workbench.search(pattern.typed));
        if (workbench.list().selectedPosition() != expected)
            report.wrong(std::string("search, ") + pattern.name, "another row is selected");
    }
    return median(searches).cpu;
}

Finding finding(BenchDatabase& database, const Scale& scale, int rounds, Report& report)
{
    Workbench workbench;
    workbench.open(database, scale.agent);
    Finding result;
    for (const Pattern& pattern : patterns)
        result.searches.push_back(search(workbench, pattern, scale.rows, rounds, report));
    std::vector<Cost> repaints;
    std::vector<Cost> selections;
    for (int round = 0; round < rounds; ++round)
        shortOnes(workbench, scale.rows, round, repaints, selections);
    result.repaint = median(repaints).cpu / times;
    result.select = median(selections).cpu / times;
    return result;
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
        const Filled tree = treeWidget(texts);
        treeFills.push_back(tree.cost);
        if (!tree.holdsAll || textsOf(workbench.list()) != texts)
            report.wrong("filling from memory", "list or tree hold other texts");
        sorts.push_back(ourSorts(workbench, texts.front().size(), report));
        treeSorts.push_back(treeWidgetSorts(texts));
    }
    report.figure("end of fetch to the first frame, ours, client CPU", median(fills).cpu, "ms");
    report.figure("end of fetch to the first frame, QTreeWidget, client CPU", median(treeFills).cpu, "ms");
    report.bar("end of fetch to the first frame, " + rowsOf(scale) + ", against QTreeWidget filled row by row",
               median(fills).cpu / median(treeFills).cpu, 1.0 / 8, "times");
    judgeSorts(sorts, treeSorts, workbench.list(), report);
}

void benchSortGrowth(BenchDatabase& database, const Scale& few, const Scale& many, Report& report)
{
    std::vector<std::vector<Cost>> costs;
    for (const Scale* scale : {&few, &many}) {
        Workbench workbench;
        workbench.open(database, scale->agent);
        // A click on the present column would turn the order round.
        workbench.list().SortKey(static_cast<int>(workbench.list().ColumnHeaders().size()) - 1);
        if (workbench.rows() != scale->rows) report.wrong("sort", "rows are missing in the list");
        costs.push_back(ourSorts(workbench, workbench.list().ColumnHeaders().size(), report));
    }
    const auto sumOf = [](const std::vector<Cost>& sorts) {
        double sum = 0;
        for (const Cost& sort : sorts)
            sum += sort.cpu;
        return sum;
    };
    report.figure("sort by all columns, " + rowsOf(few) + ", client CPU", sumOf(costs[0]), "ms");
    report.figure("sort by all columns, " + rowsOf(many) + ", client CPU", sumOf(costs[1]), "ms");
    report.growth("sort", few.rows, many.rows, sumOf(costs[0]), sumOf(costs[1]), mostGrowth);
}

void benchMemory(BenchDatabase& database, const Scale& few, const Scale& many, Report& report)
{
    const double small = loadedMemory(database, few, report);
    const double large = loadedMemory(database, many, report);
    report.growth("memory of the loaded prospects", few.rows, many.rows, small, large, mostGrowth);
    filledMemory(few.rows, report);
    filledMemory(many.rows, report);
}

void benchRefresh(BenchDatabase& database, const Scale& few, const Scale& many, int rounds, Report& report)
{
    const double small = refresh(database, few, rounds, report);
    const double large = refresh(database, many, rounds, report);
    report.figure("refresh with the selection restored, " + rowsOf(few) + ", client CPU", small, "ms");
    report.figure("refresh with the selection restored, " + rowsOf(many) + ", client CPU", large, "ms");
    report.growth("refresh with the selection restored", few.rows, many.rows, small, large, mostGrowth);
}

void benchFinding(BenchDatabase& database, const Scale& few, const Scale& many, int rounds, Report& report)
{
    const Finding small = finding(database, few, rounds, report);
    const Finding large = finding(database, many, rounds, report);
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        const std::string what = std::string("search, ") + patterns[i].name;
        report.figure(what + ", " + rowsOf(few) + " x 17 cells, client CPU", small.searches[i], "ms");
        const std::string most = what + ", 1,000,000 rows x 17 cells, without regard to case, client CPU";
        if (many.rows == 1'000'000)
            report.bar(most, large.searches[i], 600, "ms");
        else
            report.notMeasured(most);
        report.growth(what, few.rows, many.rows, small.searches[i], large.searches[i], mostGrowth);
    }
    report.figure("selection by key, painted, " + rowsOf(few), small.select, "ms");
    report.figure("selection by key, painted, " + rowsOf(many), large.select, "ms");
    report.figure("repaint of the list, " + rowsOf(few), small.repaint, "ms");
    report.figure("repaint of the list, " + rowsOf(many), large.repaint, "ms");
    report.growth("selection by key", few.rows, many.rows, small.select, large.select, noGrowth);
    report.growth("repaint", few.rows, many.rows, small.repaint, large.repaint, noGrowth);
}

} // namespace dn::bench
