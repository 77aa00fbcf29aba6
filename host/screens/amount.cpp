// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/amount.h"

#include "base/text.h"

#include <algorithm>

namespace dn::host {
namespace {

constexpr std::size_t longest = 15; // digits ahead of the point, as the column holds them

bool areDigits(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// The digits ahead of the point without their commas.
std::optional<std::string> joinGroups(std::string_view text)
{
    std::size_t comma = text.find(',');
    if (comma == std::string_view::npos) return std::string(text);
    if (comma == 0 || comma > 3) return std::nullopt;
    std::string digits(text.substr(0, comma));
    while (comma != std::string_view::npos) {
        text.remove_prefix(comma + 1);
        comma = text.find(',');
        const std::string_view group = text.substr(0, comma);
        if (group.size() != 3) return std::nullopt;
        digits += group;
    }
    return digits;
}

} // namespace

std::optional<std::string> readAmount(std::string_view text)
{
    text = trimmed(text);
    if (text.starts_with('$')) text = trimmed(text.substr(1));
    const std::size_t point = text.find('.');
    const bool hasPoint = point != std::string_view::npos;
    const std::string_view decimals = hasPoint ? text.substr(point + 1) : std::string_view();
    auto whole = joinGroups(text.substr(0, point));
    if (!whole || !areDigits(*whole) || !areDigits(decimals) || decimals.size() > 2) return std::nullopt;
    if (whole->empty() && decimals.empty()) return std::nullopt;
    whole->erase(0, whole->find_first_not_of('0'));
    if (whole->size() > longest) return std::nullopt;
    if (whole->empty()) *whole = "0";
    return decimals.empty() ? *whole : *whole + "." + std::string(decimals);
}

} // namespace dn::host
