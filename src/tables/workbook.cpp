// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tables/workbook.h"

#include "tables/compound_file.h"
#include "tables/little_endian.h"
#include "tables/records.h"
#include "tables/shared_strings.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace dn::tables {
namespace {

// The kinds of records, by their names in the descriptions of the format.
enum Kind : std::uint16_t {
    kindBof = 0x0809,
    kindEof = 0x000A,
    kindCodePage = 0x0042,
    kindWindow1 = 0x003D,
    kindDateMode = 0x0022,
    kindFont = 0x0031,
    kindXf = 0x00E0,
    kindStyle = 0x0293,
    kindBoundSheet = 0x0085,
    kindColInfo = 0x007D,
    kindDimensions = 0x0200,
    kindLabelSst = 0x00FD,
    kindWindow2 = 0x023E,
    kindPane = 0x0041,
};

constexpr std::uint32_t plainCell = 15; // numbers of formats: those ahead of them are styles
constexpr std::uint32_t boldCell = 16;

/// One run of the writer over one table.
class Workbook {
public:
    Workbook(CompoundFile& file, const std::string& sheet, const Table& table)
        : file_(file), records_(file), sheet_(sheet), table_(table), columns_(table.columns().size())
    {
    }

    void write()
    {
        writeGlobals();
        for (std::size_t sheet = 0; sheet < sheets(); ++sheet)
            writeSheet(sheet);
    }

private:
    // An empty table has a sheet too.
    std::size_t sheets() const
    {
        return std::max<std::size_t>(1, (table_.rows() + rowsOfSheet - 1) / rowsOfSheet);
    }

    std::size_t columns() const { return columns_; }

    void writeGlobals();
    void writeFonts();
    void writeFormats();
    void writeSheetNames();
    void writeTexts();
    void writeSheet(std::size_t number);
    void writeColumns();
    void writeWindow(std::size_t sheet);
    void writeCell(std::uint32_t row, std::size_t column, std::uint32_t format, std::uint32_t text);
    void beginStream(std::uint32_t what);
    void patch(std::uint64_t position, std::uint32_t number);

    CompoundFile& file_;
    Records records_;
    const std::string& sheet_;
    const Table& table_;
    std::size_t columns_;
    std::vector<std::uint32_t> places_; // where each sheet's position is to be filled in
    std::uint32_t nextText_ = 0;        // number of the text of the next cell that is not empty
};

void Workbook::beginStream(std::uint32_t what)
{
    records_.begin(kindBof).u16(0x0600).u16(what).u16(0x0DBB).u16(0x07CC).u32(0).u32(6).end();
}

void Workbook::patch(std::uint64_t position, std::uint32_t number)
{
    std::string bytes;
    append32(bytes, number);
    file_.overwrite(position, bytes);
}

void Workbook::writeGlobals()
{
    beginStream(0x0005);
    records_.begin(kindCodePage).u16(1200).end(); // UTF-16
    records_.begin(kindWindow1).u16(0).u16(0).u16(16'000).u16(9'000).u16(0x38).u16(0).u16(0).u16(1).u16(600).end();
    records_.begin(kindDateMode).u16(0).end();
    writeFonts();
    writeFormats();
    writeSheetNames();
    writeTexts();
    records_.begin(kindEof).end();
}

// Programs take the first four for granted; the fifth, which they count as number 5, is the bold one.
void Workbook::writeFonts()
{
    constexpr std::string_view face = "Arial";
    for (const std::uint32_t weight : {400U, 400U, 400U, 400U, 700U})
        records_.begin(kindFont)
            .u16(200) // ten points
            .u16(0)
            .u16(0x7FFF) // the colour of texts
            .u16(weight)
            .u16(0)
            .u32(0)
            .u8(face.size())
            .u8(0)
            .bytes(face)
            .end();
}

// Fifteen styles, which every workbook must have, a plain cell and a bold one.
void Workbook::writeFormats()
{
    const auto format = [this](std::uint32_t font, std::uint32_t type, std::uint32_t sets) {
        records_.begin(kindXf)
            .u16(font)
            .u16(0)
            .u16(type)
            .u8(0x20)
            .u8(0)
            .u8(0)
            .u8(sets)
            .u32(0)
            .u32(0)
            .u16(0x20C0)
            .end();
    };
    constexpr std::uint32_t style = 0xFFF5;
    constexpr std::uint32_t cell = 0x0001;
    for (std::uint32_t number = 0; number < plainCell; ++number)
        format(0, style, number == 0 ? 0 : 0xF4);
    format(0, cell, 0);
    format(5, cell, 0x08);
    records_.begin(kindStyle).u16(0x8000).u8(0).u8(0xFF).end(); // the first one is "Normal"
}

void Workbook::writeSheetNames()
{
    for (std::size_t sheet = 0; sheet < sheets(); ++sheet) {
        constexpr std::uint32_t head = 4;
        places_.push_back(records_.position() + head);
        const std::string name = sheet == 0 ? sheet_ : sheet_ + " " + std::to_string(sheet + 1);
        records_.begin(kindBoundSheet).u32(0).u16(0).u8(static_cast<std::uint32_t>(name.size())).u8(0).bytes(name);
        records_.end();
    }
}

// The captions come first, once for all sheets, then the cells row by row.
void Workbook::writeTexts()
{
    constexpr std::uint32_t head = 4;
    const std::uint64_t counts = records_.position() + head;
    SharedStrings texts(records_);
    for (const Column& column : table_.columns())
        texts.add(column.caption);
    for (std::size_t row = 0; row < table_.rows(); ++row)
        for (std::size_t column = 0; column < columns(); ++column)
            if (const std::string_view text = table_.cell(row, column); !text.empty()) texts.add(text);
    texts.end();
    patch(counts, texts.count() + static_cast<std::uint32_t>(columns() * (sheets() - 1)));
    patch(counts + 4, texts.count());
    nextText_ = static_cast<std::uint32_t>(columns());
}

void Workbook::writeSheet(std::size_t number)
{
    patch(places_[number], records_.position());
    const std::size_t first = number * rowsOfSheet;
    const auto rows = static_cast<std::uint32_t>(std::min(rowsOfSheet, table_.rows() - first));
    beginStream(0x0010);
    writeColumns();
    records_.begin(kindDimensions)
        .u32(0)
        .u32(rows + 1)
        .u16(0)
        .u16(static_cast<std::uint32_t>(columns()))
        .u16(0)
        .end();
    for (std::size_t column = 0; column < columns(); ++column)
        writeCell(0, column, boldCell, static_cast<std::uint32_t>(column));
    for (std::uint32_t row = 0; row < rows; ++row)
        for (std::size_t column = 0; column < columns(); ++column)
            if (!table_.cell(first + row, column).empty()) writeCell(row + 1, column, plainCell, nextText_++);
    writeWindow(number);
    records_.begin(kindEof).end();
}

void Workbook::writeColumns()
{
    for (std::size_t i = 0; i < columns(); ++i) {
        constexpr int pixelsOfDigit = 7; // widths are in digits of the font, in 256th parts
        const auto number = static_cast<std::uint32_t>(i);
        const auto width = static_cast<std::uint32_t>(table_.columns()[i].width * 256 / pixelsOfDigit);
        records_.begin(kindColInfo).u16(number).u16(number).u16(width).u16(plainCell).u16(0).u16(0).end();
    }
}

// The captions stay in view while the rows scroll.
void Workbook::writeWindow(std::size_t sheet)
{
    constexpr std::uint32_t shown = 0x01BE; // grid, captions of rows and columns, zeros, a frozen part
    constexpr std::uint32_t selected = 0x0600;
    constexpr std::uint32_t lineColour = 0x40;
    records_.begin(kindWindow2).u16(shown | (sheet == 0 ? selected : 0)).u16(0).u16(0).u32(lineColour);
    records_.u16(0).u16(0).u32(0).end();
    records_.begin(kindPane).u16(0).u16(1).u16(1).u16(0).u8(2).u8(0).end();
}

// Made in place, for a list has hundreds of thousands of them.
void Workbook::writeCell(std::uint32_t row, std::size_t column, std::uint32_t format, std::uint32_t text)
{
    std::array<char, 14> record{};
    std::size_t at = 0;
    const auto put16 = [&](std::uint32_t number) {
        record[at++] = static_cast<char>(number & 0xFFU);
        record[at++] = static_cast<char>(number >> 8U & 0xFFU);
    };
    constexpr std::uint32_t contents = 10; // bytes
    for (const std::uint32_t number : {std::uint32_t{kindLabelSst}, contents, row,
                                       static_cast<std::uint32_t>(column), format, text, text >> 16U})
        put16(number);
    file_.write({record.data(), record.size()});
}

} // namespace

void writeWorkbook(const std::string& path, const std::string& sheet, const Table& table)
{
    CompoundFile file(path);
    Workbook(file, sheet, table).write();
    file.keep();
}

} // namespace dn::tables
