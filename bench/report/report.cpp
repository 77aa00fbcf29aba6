// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/report/report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace dn::bench {
namespace {

std::string written(double value, const std::string& unit) { return readable(value) + " " + unit; }

std::string fraction(double value) { return "1/" + readable(1 / value); }

// Pads by characters and not by bytes; all texts here are ASCII or Latin.
std::string padded(std::string text, std::size_t width)
{
    const auto continuation = std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; });
    const std::size_t length = text.size() - static_cast<std::size_t>(continuation);
    if (length < width) text.append(width - length, ' ');
    return text;
}

} // namespace

std::string readable(double value)
{
    int digits = 0;
    if (std::abs(value) < 10)
        digits = 2;
    else if (std::abs(value) < 100)
        digits = 1;
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.*f", digits, value);
    std::string result = text.data();
    const std::size_t whole = std::min(result.find('.'), result.size());
    for (std::size_t at = whole; at > (value < 0 ? 4U : 3U); at -= 3)
        result.insert(at - 3, ",");
    return result;
}

void Report::figure(const std::string& what, double value, const std::string& unit)
{
    rows_.push_back({what, written(value, unit), "", ""});
}

void Report::bar(const std::string& what, double value, double largest, const std::string& unit)
{
    const bool kept = value <= largest;
    const bool asFraction = unit == "times" && largest < 1 && value > 0 && value < 1;
    rows_.push_back({what, asFraction ? fraction(value) : written(value, unit),
                     "at most " + (unit == "times" && largest < 1 ? fraction(largest) : written(largest, unit)),
                     kept ? "kept" : "MISSED"});
    if (!kept) missed_.push_back(what);
}

void Report::growth(const std::string& of, std::size_t few, std::size_t many, double small, double large,
                    double most)
{
    const std::string what = of + ": growth from " + readable(static_cast<double>(few)) + " to " +
                             readable(static_cast<double>(many)) + " rows";
    if (few == many)
        notMeasured(what);
    else
        bar(what, large / small, most, "times");
}

void Report::notMeasured(const std::string& what)
{
    rows_.push_back({what, "-", "", "NOT MEASURED"});
    missed_.push_back(what + " (not measured)");
}

void Report::wrong(const std::string& what, const std::string& why)
{
    rows_.push_back({what, "-", "", "WRONG ANSWER: " + why});
    missed_.push_back(what + " (wrong answer: " + why + ")");
}

std::string Report::table() const
{
    std::string text;
    for (const Row& row : rows_)
        text += padded(row.what, 84) + "  " + padded(row.value, 16) + padded(row.bar, 20) + row.verdict + "\n";
    return text;
}

std::string Report::barsAsMarkdown() const
{
    std::string text = "| What | Measured | Bar | |\n|---|--:|--:|---|\n";
    for (const Row& row : rows_)
        if (!row.verdict.empty())
            text += "| " + row.what + " | " + row.value + " | " + row.bar + " | " + row.verdict + " |\n";
    return text;
}

std::string Report::figuresAsMarkdown() const
{
    std::string text = "| What | Measured |\n|---|--:|\n";
    for (const Row& row : rows_)
        if (row.verdict.empty()) text += "| " + row.what + " | " + row.value + " |\n";
    return text;
}

} // namespace dn::bench
