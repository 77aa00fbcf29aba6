// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The files of the export, read back by readers of their own that take nothing for granted.

#include "tables/html_document.h"
#include "tables/workbook.h"

#include "base/text.h"
#include "tests/fuzz/input.h"
#include "tests/fuzz/targets.h"
#include "tests/support/table_files.h"

#include <array>
#include <stdexcept>
#include <vector>

namespace dn::fuzz {
namespace {

using Texts = std::vector<std::string>;

struct SomeTable {
    std::vector<tables::Column> columns;
    std::vector<Texts> cells;
};

SomeTable someTable(Input& input)
{
    SomeTable table;
    const std::size_t columns = input.choice(3) + 1;
    const std::size_t repeats = input.choice(4) == 0 ? 1'000 : 1; // a long cell goes on in further records
    for (std::size_t column = 0; column < columns; ++column)
        table.columns.push_back({"c" + input.text(), 100});
    while (!input.empty()) {
        Texts& row = table.cells.emplace_back();
        for (std::size_t column = 0; column < columns; ++column) {
            const std::string piece = input.text();
            std::string& cell = row.emplace_back();
            for (std::size_t i = 0; i < repeats && cell.size() < 70'000; ++i)
                cell += piece;
        }
    }
    return table;
}

bool isStorable(char32_t c)
{
    if (c < 0x20) return c == U'\t' || c == U'\n';
    return !(c >= 0x7F && c < 0xA0) && !(c >= 0xD800 && c < 0xE000) && !(c >= 0xFDD0 && c < 0xFDF0) &&
           (c & 0xFFFE) != 0xFFFE;
}

/// What a file may hold of a text, in characters.
std::u32string storable(std::string_view text)
{
    std::u32string result;
    while (!text.empty()) {
        const char32_t c = takeCharacter(text);
        if (c == U'\r') {
            if (text.starts_with('\n')) text.remove_prefix(1);
            result += U'\n';
        } else {
            result += isStorable(c) ? c : U'\xFFFD';
        }
    }
    return result;
}

/// The texts of a table as a file holds them, captions first.
template <class Text, class Convert>
std::vector<Text> wanted(const SomeTable& table, bool empties, Convert convert)
{
    std::vector<Text> all;
    for (const tables::Column& column : table.columns)
        all.push_back(convert(column.caption));
    for (const Texts& row : table.cells)
        for (const std::string& cell : row)
            if (empties || !cell.empty()) all.push_back(convert(cell));
    return all;
}

std::string fileOf(void (*write)(const std::string&, const std::string&, const tables::Table&),
                   const SomeTable& table)
{
    const tests::OutputFolder folder;
    write(folder.file("lista"), "Correos", tests::MadeTable(table.columns, table.cells));
    return tests::contentsOf(folder.file("lista"));
}

// ---- HTML

/// Reads a document of elements, of which it takes nothing but that they are closed in order.
class Reader {
public:
    explicit Reader(std::string_view document) : rest_(document) {}

    /// The texts of all cells, captions among them.
    std::vector<std::u32string> cells()
    {
        skip("<!DOCTYPE html>\n");
        std::vector<std::u32string> result;
        while (!rest_.empty()) {
            const std::u32string text = upToTag();
            if (tag() && (closed_ == "td" || closed_ == "th")) result.push_back(text);
        }
        require(open_.empty(), "every element is closed");
        return result;
    }

private:
    void skip(std::string_view expected)
    {
        require(rest_.starts_with(expected), "a document has its signs in their places");
        rest_.remove_prefix(expected.size());
    }

    std::u32string upToTag()
    {
        std::u32string text;
        while (!rest_.empty() && rest_.front() != '<') {
            require(rest_.front() != '>', "no sign of a tag stands in a text");
            if (rest_.front() == '&') {
                text += entity();
                continue;
            }
            const char32_t c = takeCharacter(rest_);
            require(isStorable(c), "a document holds nothing but characters");
            text += c;
        }
        return text;
    }

    char32_t entity()
    {
        struct Known {
            std::string_view name;
            char32_t character;
        };
        constexpr std::array known{Known{"&amp;", U'&'}, Known{"&lt;", U'<'}, Known{"&gt;", U'>'},
                                   Known{"&quot;", U'"'}, Known{"&#39;", U'\''}};
        for (const Known& one : known)
            if (rest_.starts_with(one.name)) {
                rest_.remove_prefix(one.name.size());
                return one.character;
            }
        throw std::logic_error("an entity is one of five");
    }

    /// Whether the tag closes an element, which is `closed_` then.
    bool tag()
    {
        if (rest_.empty()) return false;
        skip("<");
        const std::size_t end = rest_.find('>');
        require(end != std::string_view::npos, "a tag has an end");
        const std::string_view inside = rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
        if (inside.ends_with('/')) return false;
        if (!inside.starts_with('/')) {
            open_.emplace_back(inside.substr(0, inside.find(' ')));
            return false;
        }
        require(!open_.empty() && open_.back() == inside.substr(1), "elements are closed in order");
        closed_ = open_.back();
        open_.pop_back();
        return true;
    }

    std::string_view rest_;
    Texts open_;
    std::string closed_;
};

// ---- The workbook

class Bytes {
public:
    explicit Bytes(const std::string& bytes) : bytes_(bytes) {}

    std::uint32_t u8(std::size_t at) const
    {
        require(at < bytes_.size(), "a workbook is whole");
        return static_cast<unsigned char>(bytes_[at]);
    }
    std::uint32_t u16(std::size_t at) const { return u8(at) + 256U * u8(at + 1); }
    std::uint32_t u32(std::size_t at) const { return u16(at) + 65'536U * u16(at + 2); }

private:
    const std::string& bytes_;
};

/// The table of texts and the cells that refer to it.
class WorkbookReader {
public:
    explicit WorkbookReader(const std::string& file) : bytes_(file) {}

    std::vector<std::u16string> cells()
    {
        int streams = 0;
        const std::size_t end = streamEnd();
        for (at_ = sector; at_ < end && bytes_.u16(at_) != 0; at_ = next()) {
            require(bytes_.u16(at_ + 2) <= 8224, "a record is no longer than programs read");
            streams += bytes_.u16(at_) == 0x0809 ? 1 : bytes_.u16(at_) == 0x000A ? -1 : 0;
            if (bytes_.u16(at_) == 0x00FC) readTexts();
            if (bytes_.u16(at_) == 0x00FD) cells_.push_back(texts_.at(bytes_.u32(at_ + 10)));
        }
        require(streams == 0, "what begins ends");
        return cells_;
    }

private:
    static constexpr std::size_t sector = 512; // as long as the header
    static constexpr std::size_t head = 4;

    /// The stream begins behind the header; how long it is, the second entry of the directory says.
    std::size_t streamEnd() const
    {
        const std::size_t directory = sector * (1 + bytes_.u32(48));
        constexpr std::size_t entry = 128;
        return sector + bytes_.u32(directory + entry + 120);
    }

    std::size_t next() const { return at_ + head + bytes_.u16(at_ + 2); }

    void goOn()
    {
        at_ = next();
        require(bytes_.u16(at_) == 0x003C, "texts go on in a continuation");
        place_ = at_ + head;
    }

    void readTexts()
    {
        const std::uint32_t count = bytes_.u32(at_ + 8);
        place_ = at_ + 12;
        for (std::uint32_t i = 0; i < count; ++i) {
            if (place_ == next()) goOn();
            require(place_ + 3 < next(), "the head of a text is not torn from it");
            const std::uint32_t length = bytes_.u16(place_);
            readText(length);
        }
        require(place_ == next(), "the table of texts holds nothing but texts");
    }

    void readText(std::uint32_t length)
    {
        bool wide = bytes_.u8(place_ + 2) == 1;
        place_ += 3;
        std::u16string& text = texts_.emplace_back();
        while (text.size() < length) {
            if (place_ == next()) {
                require(text.empty() || (text.back() & 0xFC00) != 0xD800,
                        "both halves of a character stay together");
                goOn();
                wide = bytes_.u8(place_++) == 1;
            }
            text += static_cast<char16_t>(wide ? bytes_.u16(place_) : bytes_.u8(place_));
            place_ += wide ? 2 : 1;
            require(place_ <= next(), "a text ends where its record ends");
        }
    }

    Bytes bytes_;
    std::size_t at_ = 0;    // of the record
    std::size_t place_ = 0; // in it
    std::vector<std::u16string> texts_;
    std::vector<std::u16string> cells_;
};

/// As a cell holds it: in units of UTF-16, and no more of them than there is room for.
std::u16string ofCell(std::string_view text)
{
    constexpr std::size_t most = 32'767;
    std::u16string units;
    for (const char32_t c : storable(text)) {
        if (c < 0x10000) {
            units += static_cast<char16_t>(c);
        } else if (units.size() + 1 == most) {
            units += u' '; // half a character would be none
        } else {
            units += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10U));
            units += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FFU));
        }
        if (units.size() >= most) break;
    }
    return units;
}

} // namespace

void documents(Input& input)
{
    const SomeTable table = someTable(input);
    const std::string file = fileOf(tables::writeHtml, table);
    require(Reader(file).cells() == wanted<std::u32string>(table, true, storable), "every cell reads back");
}

void workbooks(Input& input)
{
    const SomeTable table = someTable(input);
    const std::string file = fileOf(tables::writeWorkbook, table);
    require(WorkbookReader(file).cells() == wanted<std::u16string>(table, false, ofCell), "every cell reads back");
}

} // namespace dn::fuzz
