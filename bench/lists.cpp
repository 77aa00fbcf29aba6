// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/lists.h"

#include "bench/alternatives.h"
#include "bench/workbench.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace dn::bench {
namespace {

// Always an odd number, so that the median is one of them.
int roundsFor(std::size_t rows)
{
    if (rows >= mostRows) return 3;
    return rows >= manyRows ? 5 : 7;
}

int modelRoundsFor(std::size_t rows) { return rows >= manyRows ? 1 : 3; }

struct Rounds {
    std::vector<Cost> ours;
    std::vector<Cost> firstPainted;
    std::vector<Cost> firstRow;
    std::vector<Cost> bare;
    std::vector<Cost> driver;
    std::vector<Cost> server;
    std::vector<Cost> modelFetched;
    std::vector<Cost> modelColumns;
    std::vector<Cost> model;
    std::vector<Cost> tree;
};

/// The rows of the list, each key once, in the order in which they were added.
SeenRows seenIn(const screen::ListView& list, std::size_t textCell)
{
    SeenRows seen;
    const screen::ListRows& rows = list.rows();
    for (std::size_t i = 0; i < rows.count(); ++i) {
        const auto row = static_cast<screen::ListRows::RowNumber>(i);
        const std::string key(rows.key(row));
        const std::size_t digits = std::min(key.find_first_of("0123456789"), key.size());
        seen.add(std::strtoll(key.c_str() + digits, nullptr, 10), rows.cell(row, textCell));
    }
    return seen;
}

/// One list of one agent, and the ways to read it.
class Race {
public:
    Race(BenchDatabase& database, Workbench& workbench, const List& list, const Scale& scale, Report& report)
        : database_(database),
          workbench_(workbench),
          list_(list),
          scale_(scale),
          report_(report),
          query_{statementsOf(list.tab, ownerOf(list.tab, scale)), list.textField}
    {
    }

    ListFigures run()
    {
        for (int round = 0; round < roundsFor(scale_.rows); ++round)
            loadAndFetch();
        for (int round = 0; round < modelRoundsFor(scale_.rows); ++round)
            others();
        ListFigures figures;
        figures.name = list_.name;
        figures.rows = scale_.rows;
        figures.ours = median(rounds_.ours);
        figures.firstPainted = median(rounds_.firstPainted).wall;
        figures.firstRow = median(rounds_.firstRow).wall;
        figures.bare = median(rounds_.bare);
        figures.driver = median(rounds_.driver);
        figures.serverCpu = median(rounds_.server).cpu;
        figures.modelFetched = median(rounds_.modelFetched);
        figures.modelColumns = median(rounds_.modelColumns);
        figures.model = median(rounds_.model);
        figures.tree = median(rounds_.tree);
        return figures;
    }

private:
    void loadAndFetch()
    {
        const double serverBefore = database_.serverCpu();
        database_.connection().forget();
        const Load load = workbench_.load();
        rounds_.server.push_back({database_.serverCpu() - serverBefore, 0});
        rounds_.ours.push_back(load.cost);
        rounds_.firstPainted.push_back({load.firstRow, load.firstRow});
        for (const std::string& statement : query_.statements)
            if (!database_.connection().sent(statement)) wrong("the control did not send: " + statement);
        const Fetched bare = bareFetch(database_, query_.statements);
        rounds_.bare.push_back(bare.cost);
        const Streamed streamed = bareStream(database_, query_);
        rounds_.firstRow.push_back({streamed.firstRow, streamed.firstRow});
        const Fetched driver = driverFetch(database_, query_.statements);
        rounds_.driver.push_back(driver.cost);
        check(bare, driver, streamed);
    }

    void check(const Fetched& bare, const Fetched& driver, const Streamed& streamed)
    {
        if (workbench_.rows() != scale_.rows || workbench_.shownRows() != scale_.rows)
            wrong("the list has " + std::to_string(workbench_.rows()) + " rows");
        if (bare.rows != streamed.fetched || bare.bytes != streamed.bytes)
            wrong("the bare fetches read different rows");
        if (driver.rows != streamed.fetched || driver.bytes != streamed.bytes)
            wrong("the driver read other rows than the bare fetch");
        if (!(seenIn(workbench_.list(), list_.textCell) == streamed.seen))
            wrong("the list shows other rows than the bare fetch");
        streamed_ = streamed.seen;
    }

    void others()
    {
        const std::size_t columns = workbench_.list().ColumnHeaders().size();
        rounds_.modelFetched.push_back(model(Reading::shownCells, columns));
        rounds_.modelColumns.push_back(model(Reading::someColumns, columns));
        rounds_.model.push_back(model(Reading::everyCell, columns));
        const Texts texts = textsOf(workbench_.list());
        const Filled tree = treeWidget(texts);
        rounds_.tree.push_back(tree.cost);
        if (!tree.holdsAll) wrong("the tree shows other texts than the list");
    }

    Cost model(Reading reading, std::size_t columns)
    {
        SeenRows seen;
        const Cost cost = sqlQueryModel(database_, query_, reading, columns, seen);
        if (!(seen == streamed_)) wrong("the model shows other rows than the bare fetch");
        return cost;
    }

    void wrong(const std::string& why)
    {
        report_.wrong(std::string(list_.name) + ", " + readable(static_cast<double>(scale_.rows)) + " rows", why);
    }

    BenchDatabase& database_;
    Workbench& workbench_;
    const List& list_;
    const Scale& scale_;
    Report& report_;
    Query query_;
    Rounds rounds_;
    SeenRows streamed_;
};

} // namespace

std::vector<ListFigures> benchLists(BenchDatabase& database, const Scale& scale, Report& report)
{
    std::vector<ListFigures> all;
    Workbench workbench;
    workbench.open(database, scale.agent);
    for (const List& list : allLists()) {
        if (list.tab == desk::proyectos) {
            workbench.control().SelAgente(ownerOf(list.tab, scale));
            workbench.goTo(list.tab);
        }
        workbench.look(list.tab);
        all.push_back(Race(database, workbench, list, scale, report).run());
        const ListFigures& figures = all.back();
        std::fprintf(stderr, "%s, %zu rows: %s ms, bare %s ms, as many columns of a model %s ms\n", list.name,
                     scale.rows, readable(figures.ours.cpu).c_str(), readable(figures.bare.cpu).c_str(),
                     readable(figures.modelColumns->cpu).c_str());
        workbench.clear();
    }
    return all;
}

} // namespace dn::bench
