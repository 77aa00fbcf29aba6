// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What programs that are not ours read from the files, cell by cell.

#include "tables/html_document.h"
#include "tables/workbook.h"

#include "tests/support/table_files.h"

#include <gmock/gmock.h>

#include <array>
#include <cstdlib>
#include <sstream>

namespace dn::tests {
namespace {

using testing::ElementsAre;

using Cells = std::vector<std::string>; ///< a line for each: sheet, row, column, UTF-8 in hexadecimal digits

std::string hex(std::string_view bytes)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += digits[value / 16U];
        text += digits[value % 16U];
    }
    return text;
}

std::string line(std::size_t sheet, std::size_t row, std::size_t column, std::string_view text)
{
    return std::to_string(sheet) + " " + std::to_string(row) + " " + std::to_string(column) + " " + hex(text);
}

/// The cells of a table in sheets of so many rows below their captions.
Cells expected(const tables::Table& table, std::size_t rowsOfSheet)
{
    Cells cells;
    const std::size_t columns = table.columns().size();
    for (std::size_t row = 0; row < table.rows() || row == 0; ++row) {
        const std::size_t sheet = row / rowsOfSheet;
        for (std::size_t column = 0; row % rowsOfSheet == 0 && column < columns; ++column)
            cells.push_back(line(sheet, 0, column, table.columns()[column].caption));
        for (std::size_t column = 0; row < table.rows() && column < columns; ++column)
            if (const std::string_view text = table.cell(row, column); !text.empty())
                cells.push_back(line(sheet, row % rowsOfSheet + 1, column, text));
    }
    return cells;
}

class Readers : public testing::Test {
protected:
    Cells read(const char* reader, const std::string& file)
    {
        const std::string out = folder.file("celdas");
        const std::string command = "HOME=/nonexistent /usr/bin/python3 " DN_SOURCE_DIR
                                    "/tests/tables/readers/cells.py " +
                                    std::string(reader) + " '" + file + "' >'" + out + "' 2>'" + out + ".err'";
        EXPECT_EQ(std::system(command.c_str()), 0) << contentsOf(out + ".err");
        std::istringstream lines(contentsOf(out));
        Cells cells;
        for (std::string text; std::getline(lines, text);)
            cells.push_back(text);
        return cells;
    }

    void expectSame(const char* reader, const Cells& found, const Cells& wanted)
    {
        ASSERT_EQ(found.size(), wanted.size()) << reader;
        for (std::size_t i = 0; i < found.size(); ++i)
            ASSERT_TRUE(found[i] == wanted[i]) << reader << ": " << wanted[i].substr(0, 100);
    }

    /// Writes both files, has them read, and compares.
    void expectReadBack(const tables::Table& table)
    {
        tables::writeWorkbook(folder.file("a.xls"), "Correos", table);
        for (const char* reader : {"xlrd", "gnumeric"})
            expectSame(reader, read(reader, folder.file("a.xls")), expected(table, tables::rowsOfSheet));
        tables::writeHtml(folder.file("a.html"), "Listas", table);
        expectSame("html", read("html", folder.file("a.html")), expected(table, table.rows() + 1));
    }

    OutputFolder folder;
};

const std::vector<tables::Column> columns{{"Nombre", 200}, {"Empresa", 200}, {"Correos", 150}, {"Telefonos", 150}};

TEST_F(Readers, find_what_people_write)
{
    const std::string longest(32'767, 'x');
    std::string longestAccented;
    for (int i = 0; i < 32'767; ++i)
        longestAccented += "ñ";
    std::string longestWide;
    for (int i = 0; i < 16'383; ++i)
        longestWide += "😀";
    expectReadBack(
        MadeTable(columns, {{"José Ñúñez Güiraldes", "Café «El Niño»", "josé@example.com", "+52 (961) 1"},
                            {"😀 emoji 👩‍👩‍👧", "日本語", "Ελληνικά", "עברית"},
                            {"=1+1", "=HYPERLINK(\"http://x\")", "+1", "@SUM(A1)"},
                            {"", "", "", ""},
                            {"", "sola", "", ""},
                            {longest, longestAccented, longestWide, "fin"},
                            {"dos\nlíneas", "a\n\nb", "con \"comillas\", y comas", "<b>&amp;</b>"},
                            {"123", "12.50", "2026-01-02", "TRUE"},
                            {" con blancos ", "tab\tulador", "'apóstrofo", "\xC2\xA0"}}));
}

TEST_F(Readers, find_70000_rows_in_two_sheets)
{
    expectReadBack(MadeTable(columns, 70'000, [](std::size_t row, std::size_t column) -> std::string {
        const std::string number = std::to_string(row);
        switch ((row + column) % 5) {
        case 0:
            return {};
        case 1:
            return "Señor Nº " + number;
        case 2:
            return "Łódź " + number; // two bytes a unit in the workbook
        default:
            return "fila" + number + "@example.com";
        }
    }));
}

TEST_F(Readers, find_every_text_whole_wherever_a_record_ends)
{
    // Texts of all lengths, so that every place of a text falls on the end of a record of 8,224 bytes.
    expectReadBack(MadeTable(columns, 3'000, [](std::size_t row, std::size_t column) {
        std::string text;
        for (std::size_t i = 0; i <= (row * 7 + column) % 61; ++i)
            text += column == 0 ? "a" : column == 1 ? "ł" : column == 2 ? "😀" : i % 2 == 0 ? "x" : "😀";
        return text;
    }));
}

TEST_F(Readers, find_an_empty_list_with_its_captions) { expectReadBack(MadeTable(columns, {})); }

TEST_F(Readers, find_the_captions_of_each_sheet_bold_and_nothing_else)
{
    tables::writeWorkbook(folder.file("a.xls"), "Correos",
                          MadeTable({{"Nombre", 200}}, 65'536, [](std::size_t, std::size_t) { return "x"; }));
    EXPECT_THAT(read("bold", folder.file("a.xls")), ElementsAre(line(0, 0, 0, "Nombre"), line(1, 0, 0, "Nombre")));
}

TEST_F(Readers, find_one_line_end_of_every_kind_and_a_mark_for_what_is_no_text)
{
    const MadeTable raw(columns, {{"a\r\nb", "a\rb",
                                   "a\xFF"
                                   "b",
                                   std::string("a\0b", 3)}});
    const MadeTable clean(columns, {{"a\nb", "a\nb",
                                     "a\xEF\xBF\xBD"
                                     "b",
                                     "a\xEF\xBF\xBD"
                                     "b"}});
    tables::writeWorkbook(folder.file("a.xls"), "Correos", raw);
    tables::writeHtml(folder.file("a.html"), "Listas", raw);
    for (const char* reader : {"xlrd", "gnumeric"})
        expectSame(reader, read(reader, folder.file("a.xls")), expected(clean, 10));
    expectSame("html", read("html", folder.file("a.html")), expected(clean, 10));
}

TEST_F(Readers, find_a_text_that_is_too_long_for_a_cell_cut_off_between_two_characters)
{
    std::string pairs = "x";
    for (int i = 0; i < 16'383; ++i)
        pairs += "😀";
    tables::writeWorkbook(folder.file("a.xls"), "Correos",
                          MadeTable({{"A", 1}, {"B", 1}}, {{std::string(40'000, 'y'), "z" + pairs + "😀"}}));
    const MadeTable cut({{"A", 1}, {"B", 1}},
                        {{std::string(32'767, 'y'), "zx" + pairs.substr(1, 16'382 * 4) + " "}});
    for (const char* reader : {"xlrd", "gnumeric"})
        expectSame(reader, read(reader, folder.file("a.xls")), expected(cut, 10));
}

} // namespace
} // namespace dn::tests
