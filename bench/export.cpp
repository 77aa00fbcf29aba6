// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/export.h"

#include "tables/html_document.h"
#include "tables/workbook.h"

#include "bench/measure.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace dn::bench {
namespace {

constexpr std::size_t rowCount = 200'000;
constexpr std::size_t columnCount = 4;

/// Rows in memory, which may watch the heap while they are read.
class Rows : public tables::Table {
public:
    Rows()
    {
        for (std::size_t row = 0; row < rowCount; ++row) {
            const std::string number = std::to_string(row);
            cells_.push_back("José María Ñúñez " + number);
            cells_.push_back(row % 3 == 0 ? "" : "Comercializadora \"El Sol\", S.A. " + number);
            cells_.push_back("persona" + number + "@example.com;ventas" + number + "@example.com");
            cells_.push_back("961 " + number + ";55 " + number);
        }
    }

    const std::vector<tables::Column>& columns() const override { return columns_; }
    std::size_t rows() const override { return rowCount; }
    std::string_view cell(std::size_t row, std::size_t column) const override
    {
        if (watching && column == 0 && row % 1000 == 0) mostHeap = std::max(mostHeap, heapBytes());
        return cells_[row * columnCount + column];
    }

    std::size_t filled() const
    {
        return static_cast<std::size_t>(
            std::count_if(cells_.begin(), cells_.end(), [](const std::string& cell) { return !cell.empty(); }));
    }

    bool watching = false;
    mutable std::size_t mostHeap = 0;

private:
    std::vector<tables::Column> columns_{{"Nombre", 200}, {"Empresa", 200}, {"Correos", 150}, {"Telefonos", 150}};
    std::vector<std::string> cells_;
};

/// The least that a file of the same rows takes.
void writeCsv(const std::string& path, const Rows& rows)
{
    std::ofstream file(path, std::ios::binary);
    std::string line;
    for (std::size_t row = 0; row < rows.rows(); ++row) {
        line.clear();
        for (std::size_t column = 0; column < columnCount; ++column) {
            if (column > 0) line += ',';
            line += '"';
            for (const char byte : rows.cell(row, column)) {
                if (byte == '"') line += '"';
                line += byte;
            }
            line += '"';
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

std::size_t rowsOfHtml(const std::string& file)
{
    std::size_t rows = 0;
    for (std::size_t at = file.find("<tr><td>"); at != std::string::npos; at = file.find("<tr><td>", at + 1))
        ++rows;
    return rows;
}

/// What the heap holds at most while a file is written, above what it held before.
template <class Writer>
double extraMemory(Rows& rows, const Writer& write)
{
    const std::size_t before = heapBytes();
    rows.watching = true;
    rows.mostHeap = before;
    write();
    rows.watching = false;
    return static_cast<double>(rows.mostHeap - before) / 1024;
}

} // namespace

void benchExport(int rounds, Report& report)
{
    Rows rows;
    const auto folder = std::filesystem::temp_directory_path();
    const std::string csv = folder / "dn-bench.csv";
    const std::string workbook = folder / "dn-bench.xls";
    const std::string html = folder / "dn-bench.html";
    const auto writeWorkbook = [&] { tables::writeWorkbook(workbook, "Correos", rows); };
    const auto writeHtml = [&] { tables::writeHtml(html, "Correos", rows); };
    std::vector<Cost> plain;
    std::vector<Cost> asWorkbook;
    std::vector<Cost> asHtml;
    for (int round = 0; round < rounds; ++round) {
        plain.push_back(measure([&] { writeCsv(csv, rows); }));
        asWorkbook.push_back(measure(writeWorkbook));
        asHtml.push_back(measure(writeHtml));
    }
    const std::size_t captions = columnCount * ((rowCount + tables::rowsOfSheet - 1) / tables::rowsOfSheet);
    if (cellsOfWorkbook(contentsOf(workbook)) != rows.filled() + captions)
        report.wrong("export to a workbook", "cells are missing in the file");
    if (rowsOfHtml(contentsOf(html)) != rowCount) report.wrong("export to HTML", "rows are missing in the file");

    report.figure("200,000 rows as comma-separated values, CPU", median(plain).cpu, "ms");
    report.figure("200,000 rows as a workbook, CPU", median(asWorkbook).cpu, "ms");
    report.figure("200,000 rows as HTML, CPU", median(asHtml).cpu, "ms");
    report.bar("workbook against comma-separated values", median(asWorkbook).cpu / median(plain).cpu, 2, "times");
    report.bar("HTML against comma-separated values", median(asHtml).cpu / median(plain).cpu, 2, "times");
    report.bar("memory beside the rows, workbook", extraMemory(rows, writeWorkbook), 256, "KB");
    report.bar("memory beside the rows, HTML", extraMemory(rows, writeHtml), 256, "KB");
    for (const std::string& file : {csv, workbook, html})
        std::filesystem::remove(file);
}

} // namespace dn::bench
