// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/export.h"

#include "tables/html_document.h"
#include "tables/workbook.h"

#include "bench/measure.h"
#include "dialogs/shown_rows.h"
#include "screen/list_view.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace dn::bench {
namespace {

constexpr std::size_t rowCount = 200'000;
constexpr std::size_t columnCount = 4;

/// Rows in memory, as a program would hold them for a file of comma-separated values.
class Rows {
public:
    Rows()
    {
        cells_.reserve(rowCount * columnCount);
        for (std::size_t row = 0; row < rowCount; ++row) {
            const std::string number = std::to_string(row);
            cells_.push_back("José María Ñúñez " + number);
            cells_.push_back(row % 3 == 0 ? "" : "Comercializadora \"El Sol\", S.A. " + number);
            cells_.push_back("persona" + number + "@example.com;ventas" + number + "@example.com");
            cells_.push_back("961 " + number + ";55 " + number);
        }
    }

    std::string_view cell(std::size_t row, std::size_t column) const { return cells_[row * columnCount + column]; }

    std::size_t companies() const { return filled() - (columnCount - 1) * rowCount; }

    std::size_t filled() const
    {
        return static_cast<std::size_t>(
            std::count_if(cells_.begin(), cells_.end(), [](const std::string& cell) { return !cell.empty(); }));
    }

private:
    std::vector<std::string> cells_;
};

/// The same in a list, as the window that exports has them.
void fill(screen::ListView& list, const Rows& rows)
{
    constexpr screen::Twips width = 3000;
    for (const char* caption : {"Nombre", "Empresa", "Correos", "Telefonos"})
        list.AddColumn(caption, width, caption);
    for (std::size_t row = 0; row < rowCount; ++row) {
        screen::ListSubItems subItems = list.ListItems().Add({}, rows.cell(row, 0)).ListSubItems();
        for (std::size_t column = 1; column < columnCount; ++column)
            subItems.Add(rows.cell(row, column));
    }
}

/// A table that watches the heap while it is read.
class WatchedTable : public tables::Table {
public:
    explicit WatchedTable(const tables::Table& table) : table_(table) {}

    const std::vector<tables::Column>& columns() const override { return table_.columns(); }
    std::size_t rows() const override { return table_.rows(); }
    std::string_view cell(std::size_t row, std::size_t column) const override
    {
        if (column == 0 && row % 1000 == 0) most_ = std::max(most_, heapBytes());
        return table_.cell(row, column);
    }

    /// KB that the heap held at most, above what it held at the beginning.
    double extra() const { return static_cast<double>(most_ - before_) / 1024; }

private:
    const tables::Table& table_;
    std::size_t before_ = heapBytes();
    mutable std::size_t most_ = before_;
};

/// The least that a file of the same rows takes: a cell without a quote is written as it is.
void writeCsv(const std::string& path, const Rows& rows)
{
    std::ofstream file(path, std::ios::binary);
    std::string line;
    for (std::size_t row = 0; row < rowCount; ++row) {
        line.clear();
        for (std::size_t column = 0; column < columnCount; ++column) {
            if (column > 0) line += ',';
            line += '"';
            std::string_view rest = rows.cell(row, column);
            for (std::size_t quote = rest.find('"'); quote != std::string_view::npos; quote = rest.find('"')) {
                line.append(rest.substr(0, quote + 1)) += '"';
                rest.remove_prefix(quote + 1);
            }
            line.append(rest) += '"';
        }
        file << (line += '\n');
    }
}

std::string contentsOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The cells of a workbook, record by record.
std::size_t cellsOfWorkbook(const std::string& file)
{
    constexpr std::size_t header = 512;
    constexpr unsigned labelSst = 0x00FD;
    const auto number = [&](std::size_t at) {
        return static_cast<unsigned char>(file[at]) + 256U * static_cast<unsigned char>(file[at + 1]);
    };
    std::size_t cells = 0;
    for (std::size_t at = header; at + 4 <= file.size() && number(at) != 0; at += 4 + number(at + 2))
        if (number(at) == labelSst) ++cells;
    return cells;
}

std::size_t linesOf(const std::string& file)
{
    return static_cast<std::size_t>(std::count(file.begin(), file.end(), '\n'));
}

std::size_t countOf(const std::string& file, std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t at = file.find(text); at != std::string::npos; at = file.find(text, at + 1))
        ++count;
    return count;
}

constexpr std::string_view lastName = "Jos\xE9 Mar\xED"
                                      "a \xD1\xFA\xF1"
                                      "ez 199999"; // a byte for each sign

} // namespace

void benchExport(int rounds, Report& report)
{
    const Rows rows;
    screen::ListView list(nullptr, "dxGrid");
    fill(list, rows);
    const dialogs::ShownRows shown(list);
    const auto folder = std::filesystem::temp_directory_path();
    const std::string csv = folder / "dn-bench.csv";
    const std::string workbook = folder / "dn-bench.xls";
    const std::string html = folder / "dn-bench.html";
    std::vector<Cost> plain;
    std::vector<Cost> asWorkbook;
    std::vector<Cost> asHtml;
    for (int round = 0; round < rounds; ++round) {
        plain.push_back(measure([&] { writeCsv(csv, rows); }));
        asWorkbook.push_back(measure([&] { tables::writeWorkbook(workbook, "Correos", shown); }));
        asHtml.push_back(measure([&] { tables::writeHtml(html, "Correos", shown); }));
    }
    const std::size_t captions = columnCount * ((rowCount + tables::rowsOfSheet - 1) / tables::rowsOfSheet);
    const std::string cells = contentsOf(workbook);
    if (cellsOfWorkbook(cells) != rows.filled() + captions)
        report.wrong("export to a workbook", "cells are missing in the file");
    if (cells.find(lastName) == std::string::npos ||
        countOf(cells, "El Sol") < rowCount / 2) // some are torn between two records
        report.wrong("export to a workbook", "the file has other texts");
    if (linesOf(contentsOf(csv)) != rowCount)
        report.wrong("comma-separated values", "rows are missing in the file");
    const std::string page = contentsOf(html);
    if (countOf(page, "<tr><td>") != rowCount) report.wrong("export to HTML", "rows are missing in the file");
    if (countOf(page, "&quot;El Sol&quot;, S.A. ") != rows.companies() ||
        countOf(page, "<td>José María Ñúñez ") != rowCount)
        report.wrong("export to HTML", "the file has other texts");

    report.figure("200,000 rows as comma-separated values, CPU", median(plain).cpu, "ms");
    report.figure("200,000 rows as a workbook, CPU", median(asWorkbook).cpu, "ms");
    report.figure("200,000 rows as HTML, CPU", median(asHtml).cpu, "ms");
    report.bar("workbook against comma-separated values", median(asWorkbook).cpu / median(plain).cpu, 2, "times");
    report.bar("HTML against comma-separated values", median(asHtml).cpu / median(plain).cpu, 2, "times");
    const WatchedTable forWorkbook(shown);
    tables::writeWorkbook(workbook, "Correos", forWorkbook);
    report.bar("memory beside the rows, workbook", forWorkbook.extra(), 256, "KB");
    const WatchedTable forHtml(shown);
    tables::writeHtml(html, "Correos", forHtml);
    report.bar("memory beside the rows, HTML", forHtml.extra(), 256, "KB");
    for (const std::string& file : {csv, workbook, html})
        std::filesystem::remove(file);
}

} // namespace dn::bench
