// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/lists.h"

#include "bench/alternatives.h"
#include "bench/workbench.h"

#include <algorithm>
#include <cstdio>
#include <functional>

namespace dn::bench {
namespace {

constexpr std::size_t many = 100'000;
constexpr std::size_t most = 1'000'000;

int roundsFor(std::size_t rows)
{
    if (rows >= most) return 2; // the median of two is the worse one
    return rows >= many ? 3 : 7;
}

// The slow alternatives come less often, and at a million rows only for the prospects.
int modelRoundsFor(const List& list, std::size_t rows)
{
    if (rows < most) return rows >= many ? 1 : 3;
    return list.tab == desk::prospectos ? 1 : 0;
}

struct Rounds {
    std::vector<Cost> ours;
    std::vector<Cost> firstPainted;
    std::vector<Cost> firstRow;
    std::vector<Cost> bare;
    std::vector<Cost> driver;
    std::vector<Cost> server;
    std::vector<Cost> modelShown;
    std::vector<Cost> model;
    std::vector<Cost> tree;
};

/// One list of one agent, and the ways to read it.
class Race {
public:
    Race(BenchDatabase& database, Workbench& workbench, const List& list, const Scale& scale, Report& report)
        : database_(database),
          workbench_(workbench),
          list_(list),
          scale_(scale),
          report_(report),
          statements_(statementsOf(list.tab, ownerOf(list.tab, scale)))
    {
    }

    ListFigures run()
    {
        const int rounds = roundsFor(scale_.rows);
        for (int round = 0; round < rounds; ++round)
            loadAndFetch(round == 0 || scale_.rows < many);
        for (int round = 0; round < modelRoundsFor(list_, scale_.rows); ++round)
            others();
        ListFigures figures;
        figures.tab = list_.tab;
        figures.name = list_.name;
        figures.rows = scale_.rows;
        figures.ours = median(rounds_.ours);
        figures.firstPainted = median(rounds_.firstPainted).wall;
        figures.firstRow = median(rounds_.firstRow).wall;
        figures.bare = median(rounds_.bare);
        figures.driver = median(rounds_.driver);
        figures.serverCpu = median(rounds_.server).cpu;
        if (!rounds_.model.empty()) {
            figures.modelShown = median(rounds_.modelShown);
            figures.model = median(rounds_.model);
            figures.tree = median(rounds_.tree);
        }
        return figures;
    }

private:
    /// @param all the first row and the driver alone as well.
    void loadAndFetch(bool all)
    {
        const double serverBefore = database_.serverCpu();
        const Load load = workbench_.load();
        rounds_.server.push_back({database_.serverCpu() - serverBefore, 0});
        rounds_.ours.push_back(load.cost);
        rounds_.firstPainted.push_back({load.firstRow, load.firstRow});
        if (!all && scale_.rows >= most) return;
        const Fetched bare = bareFetch(database_, statements_);
        rounds_.bare.push_back(bare.cost);
        if (!all) return;
        const double first = bareFirstRow(database_, statements_.front());
        rounds_.firstRow.push_back({first, first});
        const Fetched driver = driverFetch(database_, statements_);
        rounds_.driver.push_back(driver.cost);
        check(bare, driver);
    }

    void check(const Fetched& bare, const Fetched& driver)
    {
        if (workbench_.rows() != scale_.rows || workbench_.shownRows() != scale_.rows)
            wrong("the list has " + std::to_string(workbench_.rows()) + " rows");
        if (bare.rows != driver.rows || bare.cells != driver.cells || bare.firstKey != driver.firstKey)
            wrong("bare fetch and driver read different rows");
        const std::string_view key = workbench_.list().ListItems()(1).Key();
        if (key.substr(key.find_first_of("0123456789")) != bare.firstKey) wrong("another row is the first");
        fetchedRows_ = bare.rows;
    }

    void others()
    {
        std::size_t shownRows = 0;
        std::size_t allRows = 0;
        rounds_.modelShown.push_back(sqlQueryModel(database_, statements_, Reading::shownCells, shownRows));
        rounds_.model.push_back(sqlQueryModel(database_, statements_, Reading::everyCell, allRows));
        if (shownRows != fetchedRows_ || allRows != fetchedRows_) wrong("rows are missing in the model");
        rounds_.tree.push_back(treeWidget(textsOf(workbench_.list())));
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
    Statements statements_;
    Rounds rounds_;
    std::size_t fetchedRows_ = 0;
};

void judgeOne(const ListFigures& figures, Report& report)
{
    const std::string what = figures.name + ", " + readable(static_cast<double>(figures.rows)) + " rows: ";
    report.bar(what + "load to the first frame against the bare store_result fetch, client CPU",
               figures.ours.cpu / figures.bare.cpu, 2.5, "times");
    if (figures.model)
        report.bar(what + "against QSqlQueryModel with QTableView, all rows read, client CPU",
                   figures.ours.cpu / figures.model->cpu, 1.0 / 8, "times");
    report.bar(what + "first row painted against first row at use_result, wall",
               figures.firstPainted / figures.firstRow, 2, "times");
}

const ListFigures* find(const std::vector<ListFigures>& all, desk::Tab tab, std::size_t rows)
{
    const auto found = std::find_if(all.begin(), all.end(), [&](const ListFigures& figures) {
        return figures.tab == tab && figures.rows == rows;
    });
    return found == all.end() ? nullptr : &*found;
}

std::string cell(const std::optional<Cost>& cost) { return cost ? readable(cost->cpu) : ""; }

Line lineOf(const std::vector<ListFigures>& all, desk::Tab tab, const std::string& name,
            const std::function<double(const ListFigures&)>& value)
{
    Line line{name, {}};
    for (const ListFigures& figures : all)
        if (figures.tab == tab) line.points.emplace_back(figures.rows, value(figures));
    return line;
}

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
        std::fprintf(stderr, "%s, %zu rows: %s ms, bare %s ms, every cell of a model %s ms\n", list.name,
                     scale.rows, readable(figures.ours.cpu).c_str(), readable(figures.bare.cpu).c_str(),
                     cell(figures.model).c_str());
        workbench.clear();
    }
    return all;
}

// With fewer rows the frame itself, some milliseconds whatever it shows, is most of the time.
void judgeLists(const std::vector<ListFigures>& all, Report& report)
{
    for (const ListFigures& figures : all)
        if (figures.rows >= many) judgeOne(figures, report);
    for (const ListFigures& figures : all) {
        const ListFigures* const tenth = find(all, figures.tab, many);
        if (figures.rows == most && tenth != nullptr)
            report.bar(figures.name + ": growth of the load from 100,000 to 1,000,000 rows, client CPU",
                       figures.ours.cpu / tenth->ours.cpu, 11, "times");
    }
}

std::string listsAsMarkdown(const std::vector<ListFigures>& all)
{
    std::string text = "| List | Rows | Ours | Bare fetch | Times | QSqlQueryModel, shown cells | QSqlQueryModel, "
                       "every cell | QTreeWidget, filling alone | Ours, wall | Bare fetch, wall |\n"
                       "|---|--:|--:|--:|--:|--:|--:|--:|--:|--:|\n";
    for (const ListFigures& figures : all)
        text += "| " + figures.name + " | " + readable(static_cast<double>(figures.rows)) + " | " +
                readable(figures.ours.cpu) + " | " + readable(figures.bare.cpu) + " | " +
                readable(figures.ours.cpu / figures.bare.cpu) + " | " + cell(figures.modelShown) + " | " +
                cell(figures.model) + " | " + cell(figures.tree) + " | " + readable(figures.ours.wall) + " | " +
                readable(figures.bare.wall) + " |\n";
    return text;
}

std::string sharesAsMarkdown(const std::vector<ListFigures>& all)
{
    std::string text =
        "| List | Rows | Server | Driver | Ours beside the driver | First row at use_result, wall | "
        "First row painted, wall |\n|---|--:|--:|--:|--:|--:|--:|\n";
    for (const ListFigures& figures : all)
        text += "| " + figures.name + " | " + readable(static_cast<double>(figures.rows)) + " | " +
                readable(figures.serverCpu) + " | " + readable(figures.driver.cpu) + " | " +
                readable(std::max(0.0, figures.ours.cpu - figures.driver.cpu)) + " | " +
                readable(figures.firstRow) + " | " + readable(figures.firstPainted) + " |\n";
    return text;
}

std::vector<Panel> panelsOf(const std::vector<ListFigures>& all)
{
    const auto cpuOf = [](const std::optional<Cost>& cost) { return cost ? cost->cpu : 0; };
    const auto prospects = [&](const char* name, const std::function<double(const ListFigures&)>& value) {
        return lineOf(all, desk::prospectos, name, value);
    };
    Panel ways{"Prospects, client CPU to the first frame", {}};
    ways.lines.push_back(prospects("ours", [](const auto& it) { return it.ours.cpu; }));
    ways.lines.push_back(prospects("QSqlQueryModel", [&](const auto& it) { return cpuOf(it.model); }));
    ways.lines.push_back(prospects("bare fetch, no list", [](const auto& it) { return it.bare.cpu; }));
    ways.lines.push_back(prospects("QTreeWidget, no fetch", [&](const auto& it) { return cpuOf(it.tree); }));
    Panel lists{"Our five lists, client CPU to the first frame", {}};
    for (const List& list : allLists())
        lists.lines.push_back(lineOf(all, list.tab, list.name, [](const auto& it) { return it.ours.cpu; }));
    return {ways, lists};
}

} // namespace dn::bench
