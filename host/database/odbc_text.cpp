// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/odbc_text.h"

#include "base/text.h"

#include <algorithm>
#include <vector>

namespace dn::host {
namespace {

struct Attribute {
    std::string_view key, value; ///< the value as written, with its braces
};

/// Of a value in braces. "}}" inside them is a brace of the value.
std::size_t closingBrace(std::string_view text)
{
    std::size_t at = 1;
    while ((at = text.find('}', at)) != std::string_view::npos && text.substr(at + 1).starts_with('}'))
        at += 2;
    return at;
}

bool isLeftOpen(const Attribute& attribute)
{
    return attribute.value.starts_with('{') && closingBrace(attribute.value) == std::string_view::npos;
}

/// Where a value ends: at a semicolon, one inside braces left aside.
std::size_t valueEnd(std::string_view text)
{
    const std::size_t inside = text.starts_with('{') ? closingBrace(text) : 0;
    return inside == std::string_view::npos ? text.size() : std::min(text.find(';', inside), text.size());
}

std::vector<Attribute> attributes(std::string_view text)
{
    std::vector<Attribute> all;
    while (!text.empty()) {
        const std::size_t equals = std::min(text.find('='), text.size());
        std::string_view key = text.substr(0, equals);
        key.remove_prefix(key.rfind(';') == std::string_view::npos ? 0 : key.rfind(';') + 1);
        text.remove_prefix(std::min(equals + 1, text.size()));
        const std::size_t end = valueEnd(text);
        all.push_back({trimmed(key), text.substr(0, end)});
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return all;
}

bool isPassword(const Attribute& attribute)
{
    return equalsNoCase(attribute.key, "PWD") || equalsNoCase(attribute.key, "PASSWORD");
}

std::string unbraced(std::string_view value)
{
    if (!value.starts_with('{') || !value.ends_with('}')) return std::string(value);
    std::string plain;
    for (value = value.substr(1, value.size() - 2); !value.empty(); value.remove_prefix(1)) {
        plain += value.front();
        if (value.starts_with("}}")) value.remove_prefix(1);
    }
    return plain;
}

} // namespace

std::string odbcPassword(std::string_view text)
{
    const std::vector<Attribute> all = attributes(text);
    const auto found = std::find_if(all.begin(), all.end(), isPassword);
    return found == all.end() ? std::string() : unbraced(found->value);
}

bool odbcValuesEnd(std::string_view text)
{
    const std::vector<Attribute> all = attributes(text);
    return std::none_of(all.begin(), all.end(), isLeftOpen);
}

std::string odbcWithoutPassword(std::string_view text)
{
    std::string shown;
    for (const Attribute& attribute : attributes(text))
        shown +=
            std::string(attribute.key) + "=" +
            (isPassword(attribute) || isLeftOpen(attribute) ? std::string("***") : std::string(attribute.value)) +
            ";";
    return shown;
}

} // namespace dn::host
