// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/odbc/connection_string.h"

#include "base/text.h"

#include <algorithm>

namespace dn::data::odbc {
namespace {

// The length of a value: up to the semicolon, or behind the closing brace ("}}" stands for a brace in it).
std::size_t valueSize(std::string_view text)
{
    if (!text.starts_with('{')) return std::min(text.find(';'), text.size());
    std::size_t end = 1;
    while (end < text.size() && (text[end] != '}' || text.substr(end).starts_with("}}")))
        end += text[end] == '}' ? 2 : 1;
    return std::min(text.find(';', end), text.size());
}

} // namespace

bool hasKeyword(std::string_view connectionString, std::string_view keyword)
{
    while (!connectionString.empty()) {
        const std::size_t equals = connectionString.find('=');
        if (equals == std::string_view::npos) return false;
        std::string_view key = connectionString.substr(0, equals);
        key.remove_prefix(key.rfind(';') + 1); // a semicolon too many
        if (equalsNoCase(trimmed(key), keyword)) return true;
        connectionString.remove_prefix(equals + 1);
        connectionString.remove_prefix(std::min(valueSize(connectionString) + 1, connectionString.size()));
    }
    return false;
}

std::string completed(std::string_view connectionString, TimeOuts timeOuts)
{
    std::string text(connectionString);
    const auto add = [&](std::string_view keyword, const std::string& value) {
        if (hasKeyword(connectionString, keyword)) return;
        if (!text.empty() && !text.ends_with(';')) text += ';';
        text.append(keyword).append("=").append(value);
    };
    const std::string seconds = std::to_string(timeOuts.read.count());
    add("CONN_TIMEOUT", std::to_string(timeOuts.connect.count()));
    add("READ_TIMEOUT", seconds);
    add("WRITE_TIMEOUT", seconds);
    add("CHARSET", "utf8mb4");
    add("ClientCharset", "UTF-8");
    return text;
}

} // namespace dn::data::odbc
