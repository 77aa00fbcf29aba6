// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/report.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace dn::bench {
namespace {

std::string written(double value, const std::string& unit)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.2f %s", value, unit.c_str());
    return text.data();
}

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

void Report::figure(const std::string& what, double value, const std::string& unit)
{
    rows_.push_back({what, written(value, unit), "", ""});
}

void Report::bar(const std::string& what, double value, double largest, const std::string& unit)
{
    const bool kept = value <= largest;
    rows_.push_back({what, written(value, unit), "<= " + written(largest, unit), kept ? "kept" : "MISSED"});
    if (!kept) missed_.push_back(what);
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
        text += padded(row.what, 72) + "  " + padded(row.value, 16) + padded(row.bar, 16) + row.verdict + "\n";
    return text;
}

} // namespace dn::bench
