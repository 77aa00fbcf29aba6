// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/copied_text.h"

#include <algorithm>

namespace dn::screen {
namespace {

// A quote at the beginning would be taken for one of such a pair.
void appendCell(std::string& out, std::string_view text)
{
    if (text.find_first_of("\t\r\n") == std::string_view::npos && !text.starts_with('"')) {
        out += text;
        return;
    }
    out += '"';
    for (const char byte : text) {
        if (byte == '"') out += '"';
        out += byte;
    }
    out += '"';
}

bool has(const CellRange& range, std::size_t column)
{
    return range.firstColumn <= column && column <= range.lastColumn;
}

bool haveColumn(const std::vector<CellRange>& ranges, std::size_t column)
{
    return std::any_of(ranges.begin(), ranges.end(), [&](const CellRange& range) { return has(range, column); });
}

std::vector<std::size_t> columnsOf(const std::vector<CellRange>& ranges, const CopyForm& form, std::size_t count)
{
    std::vector<std::size_t> columns = form.order;
    for (std::size_t column = 0; column < count && form.order.empty(); ++column)
        columns.push_back(column);
    std::erase_if(columns, [&](std::size_t column) { return column >= count || !haveColumn(ranges, column); });
    return columns;
}

std::string captions(const ListView& list, const std::vector<std::size_t>& columns)
{
    std::string out;
    for (const std::size_t column : columns) {
        if (column != columns.front()) out += '\t';
        appendCell(out, list.ColumnHeaders()[column].Text);
    }
    return out + '\n';
}

} // namespace

// Row by row, with the ranges that reach into the present one at hand: both rows and ranges may be many.
std::string copiedText(const ListView& list, std::vector<CellRange> ranges, const CopyForm& form)
{
    const ListRows& rows = list.rows();
    const std::vector<std::size_t> columns = columnsOf(ranges, form, list.ColumnHeaders().size());
    std::sort(ranges.begin(), ranges.end(),
              [](const CellRange& left, const CellRange& right) { return left.firstRow < right.firstRow; });
    std::string out;
    if (form.headers && !columns.empty()) out = captions(list, columns);
    std::vector<CellRange> here;
    auto next = ranges.begin();
    for (std::size_t position = 0;; ++position) {
        std::erase_if(here, [&](const CellRange& range) { return range.lastRow < position; });
        if (here.empty() && next != ranges.end()) position = next->firstRow;
        for (; next != ranges.end() && next->firstRow == position; ++next)
            here.push_back(*next);
        if (here.empty() || position >= rows.count()) return out;
        if (position > ranges.front().firstRow) out += '\n';
        for (const std::size_t column : columns) {
            if (column != columns.front()) out += '\t';
            if (haveColumn(here, column)) appendCell(out, rows.cell(rows.rowAt(position), column));
        }
    }
}

} // namespace dn::screen
