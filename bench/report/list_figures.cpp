// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/report/list_figures.h"

#include <algorithm>
#include <functional>

namespace dn::bench {
namespace {

std::string titleOf(const std::string& name, std::size_t rows)
{
    return name + ", " + readable(static_cast<double>(rows)) + " rows: ";
}

void judgeModel(const ListFigures& figures, const std::string& what, const std::optional<Cost>& model,
                Report& report)
{
    const std::string title =
        titleOf(figures.name, figures.rows) + "against QSqlQueryModel with QTableView, " + what + ", client CPU";
    if (model)
        report.bar(title, figures.ours.cpu / model->cpu, 1.0 / 8, "times");
    else
        report.notMeasured(title);
}

void judgeOne(const ListFigures& figures, Report& report)
{
    const std::string what = titleOf(figures.name, figures.rows);
    report.bar(what + "load to the first frame against the bare store_result fetch, client CPU",
               figures.ours.cpu / figures.bare.cpu, 2.5, "times");
    judgeModel(figures, "all rows read, as many columns", figures.modelColumns, report);
    judgeModel(figures, "all rows fetched and hardly any read", figures.modelFetched, report);
    report.bar(what + "first row painted against first row at use_result, wall",
               figures.firstPainted / figures.firstRow, 2, "times");
}

const ListFigures* find(const std::vector<ListFigures>& all, const std::string& name, std::size_t rows)
{
    const auto found = std::find_if(all.begin(), all.end(), [&](const ListFigures& figures) {
        return figures.name == name && figures.rows == rows;
    });
    return found == all.end() ? nullptr : &*found;
}

std::vector<std::string> namesOf(const std::vector<ListFigures>& all)
{
    std::vector<std::string> names;
    for (const ListFigures& figures : all)
        if (std::find(names.begin(), names.end(), figures.name) == names.end()) names.push_back(figures.name);
    return names;
}

using Column = std::function<std::string(const ListFigures&)>;

std::string tableOf(const std::vector<ListFigures>& all,
                    const std::vector<std::pair<std::string, Column>>& columns)
{
    std::string text = "| List | Rows |";
    std::string rule = "|---|--:|";
    for (const auto& [caption, value] : columns) {
        text += " " + caption + " |";
        rule += "--:|";
    }
    text += "\n" + rule + "\n";
    for (const ListFigures& figures : all) {
        text += "| " + figures.name + " | " + readable(static_cast<double>(figures.rows)) + " |";
        for (const auto& [caption, value] : columns)
            text += " " + value(figures) + " |";
        text += "\n";
    }
    return text;
}

Column cpu(Cost ListFigures::*cost)
{
    return [cost](const ListFigures& figures) { return readable((figures.*cost).cpu); };
}

Column cpu(std::optional<Cost> ListFigures::*cost)
{
    return [cost](const ListFigures& figures) {
        return figures.*cost ? readable((figures.*cost)->cpu) : "not measured";
    };
}

Column wall(Cost ListFigures::*cost)
{
    return [cost](const ListFigures& figures) { return readable((figures.*cost).wall); };
}

Column wall(std::optional<Cost> ListFigures::*cost)
{
    return [cost](const ListFigures& figures) {
        return figures.*cost ? readable((figures.*cost)->wall) : "not measured";
    };
}

Line lineOf(const std::vector<ListFigures>& all, const std::string& list, const std::string& name,
            const std::function<double(const ListFigures&)>& value)
{
    Line line{name, {}};
    for (const ListFigures& figures : all)
        if (figures.name == list) line.points.emplace_back(figures.rows, value(figures));
    return line;
}

double cpuOf(const std::optional<Cost>& cost) { return cost ? cost->cpu : 0; }

} // namespace

void judgeLists(const std::vector<ListFigures>& all, Report& report)
{
    for (const ListFigures& figures : all)
        judgeOne(figures, report);
    for (const std::string& name : namesOf(all)) {
        const std::string what = name + ": growth of the load from 100,000 to 1,000,000 rows, client CPU";
        const ListFigures* const many = find(all, name, manyRows);
        const ListFigures* const most = find(all, name, mostRows);
        if (many != nullptr && most != nullptr)
            report.bar(what, most->ours.cpu / many->ours.cpu, mostGrowth, "times");
        else
            report.notMeasured(what);
    }
}

std::string listsAsMarkdown(const std::vector<ListFigures>& all)
{
    return tableOf(all, {{"Ours", cpu(&ListFigures::ours)},
                         {"Bare fetch", cpu(&ListFigures::bare)},
                         {"Times", [](const auto& it) { return readable(it.ours.cpu / it.bare.cpu); }},
                         {"QSqlQueryModel, fetched", cpu(&ListFigures::modelFetched)},
                         {"QSqlQueryModel, as many columns read", cpu(&ListFigures::modelColumns)},
                         {"QSqlQueryModel, every cell read", cpu(&ListFigures::model)},
                         {"QTreeWidget, filling alone", cpu(&ListFigures::tree)}});
}

std::string wallAsMarkdown(const std::vector<ListFigures>& all)
{
    return tableOf(all, {{"Ours", wall(&ListFigures::ours)},
                         {"Ours, first row painted", [](const auto& it) { return readable(it.firstPainted); }},
                         {"First row at use_result", [](const auto& it) { return readable(it.firstRow); }},
                         {"Bare fetch", wall(&ListFigures::bare)},
                         {"QSqlQueryModel, fetched", wall(&ListFigures::modelFetched)},
                         {"QSqlQueryModel, as many columns read", wall(&ListFigures::modelColumns)},
                         {"QTreeWidget, filling alone", wall(&ListFigures::tree)}});
}

std::string sharesAsMarkdown(const std::vector<ListFigures>& all)
{
    return tableOf(all, {{"Server", [](const auto& it) { return readable(it.serverCpu); }},
                         {"Driver", cpu(&ListFigures::driver)},
                         {"Ours beside the driver",
                          [](const auto& it) { return readable(std::max(0.0, it.ours.cpu - it.driver.cpu)); }}});
}

std::vector<Panel> panelsOf(const std::vector<ListFigures>& all)
{
    const std::vector<std::string> names = namesOf(all);
    if (names.empty()) return {};
    const auto firstOf = [&](const char* name, const std::function<double(const ListFigures&)>& value) {
        return lineOf(all, names.front(), name, value);
    };
    Panel ways{names.front() + ": client CPU to the first frame", {}};
    ways.lines.push_back(firstOf("ours", [](const auto& it) { return it.ours.cpu; }));
    ways.lines.push_back(firstOf("model, columns read", [](const auto& it) { return cpuOf(it.modelColumns); }));
    ways.lines.push_back(firstOf("model, fetched", [](const auto& it) { return cpuOf(it.modelFetched); }));
    ways.lines.push_back(firstOf("bare fetch, no list", [](const auto& it) { return it.bare.cpu; }));
    ways.lines.push_back(firstOf("QTreeWidget, no fetch", [](const auto& it) { return cpuOf(it.tree); }));
    Panel lists{"Our five lists: client CPU to the first frame", {}};
    for (const std::string& name : names)
        lists.lines.push_back(lineOf(all, name, name, [](const auto& it) { return it.ours.cpu; }));
    return {ways, lists};
}

} // namespace dn::bench
