// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tables/html_document.h"

#include "tables/new_file.h"
#include "tables/storable_text.h"

#include "base/text.h"

#include <array>
#include <string_view>

namespace dn::tables {
namespace {

constexpr std::string_view head = R"(<!DOCTYPE html>
<html xmlns="http://www.w3.org/1999/xhtml" lang="es">
<head>
<meta charset="utf-8" />
<title>)";

constexpr std::string_view style = R"(</title>
<style>
body { font-family: sans-serif; font-size: 10pt; }
table { border-collapse: collapse; }
th, td { border: 1px solid #999; padding: 2px 6px; text-align: left; vertical-align: top; white-space: pre-line; }
th { background: #eee; }
</style>
</head>
<body>
<table>
)";

constexpr std::string_view foot = "</tbody>\n</table>\n</body>\n</html>\n";

constexpr std::string_view entity(char byte)
{
    switch (byte) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&#39;";
    default:
        return {};
    }
}

constexpr std::size_t byteValues = 256;

// Every byte of a document is asked for, so the answers lie ready.
constexpr std::array<bool, byteValues> bytesThatStandForThemselves()
{
    std::array<bool, byteValues> answers{};
    for (std::size_t value = 0; value < answers.size(); ++value) {
        const char byte = static_cast<char>(static_cast<unsigned char>(value));
        answers[value] = isPlain(byte) && entity(byte).empty();
    }
    return answers;
}

bool standsForItself(char byte)
{
    static constexpr std::array<bool, byteValues> answers = bytesThatStandForThemselves();
    return answers[static_cast<unsigned char>(byte)];
}

void appendEscaped(std::string& out, std::string_view text)
{
    while (!text.empty()) {
        std::size_t plain = 0;
        while (plain < text.size() && standsForItself(text[plain]))
            ++plain;
        out += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty()) return;
        if (isPlain(text.front())) {
            out += entity(text.front());
            text.remove_prefix(1);
        } else {
            appendCharacter(out, takeStorable(text));
        }
    }
}

std::string headRow(const Table& table)
{
    std::string row = "<thead>\n<tr>";
    for (const Column& column : table.columns()) {
        row += "<th scope=\"col\">";
        appendEscaped(row, column.caption);
        row += "</th>";
    }
    return row + "</tr>\n</thead>\n<tbody>\n";
}

} // namespace

void writeHtml(const std::string& path, const std::string& title, const Table& table)
{
    NewFile file(path);
    std::string out(head);
    appendEscaped(out, title);
    file.write(out.append(style).append(headRow(table)));
    for (std::size_t row = 0; row < table.rows(); ++row) {
        out = "<tr>";
        for (std::size_t column = 0; column < table.columns().size(); ++column) {
            out += "<td>";
            appendEscaped(out, table.cell(row, column));
            out += "</td>";
        }
        file.write(out += "</tr>\n");
    }
    file.write(foot);
    file.keep();
}

} // namespace dn::tables
