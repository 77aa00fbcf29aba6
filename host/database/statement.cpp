// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/statement.h"

#include "base/runtime_error.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace dn::host {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool areDigits(std::string_view text) { return !text.empty() && std::all_of(text.begin(), text.end(), isDigit); }

bool isDecimal(std::string_view text)
{
    if (text.starts_with('-')) text.remove_prefix(1);
    const std::size_t point = text.find('.');
    if (point == std::string_view::npos) return areDigits(text);
    return areDigits(text.substr(0, point)) && areDigits(text.substr(point + 1));
}

bool needsHexadecimal(std::string_view text)
{
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return c == '\\' || static_cast<unsigned char>(c) < ' '; });
}

void appendHexadecimal(std::string& statement, std::string_view text)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    statement += "_utf8mb4 X'";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        statement += digits[byte >> 4U];
        statement += digits[byte & 15U];
    }
    statement += '\'';
}

void appendSplitAtNul(std::string& statement, std::string_view text)
{
    for (std::size_t nul = text.find('\0'); nul != std::string_view::npos; nul = text.find('\0')) {
        appendText(statement, text.substr(0, nul), Engine::sqlServer);
        statement += " + NCHAR(0) + ";
        text.remove_prefix(nul + 1);
    }
    appendText(statement, text, Engine::sqlServer);
}

void appendLiteral(std::string& statement, std::string_view text, Engine engine)
{
    if (engine == Engine::sqlServer)
        appendSplitAtNul(statement, text);
    else if (needsHexadecimal(text))
        appendHexadecimal(statement, text);
    else
        appendText(statement, text, engine);
}

} // namespace

Decimal::Decimal(std::string text) : text_(std::move(text))
{
    if (!isDecimal(text_)) throw RuntimeError::typeMismatch();
}

Statement& Statement::bind(std::string_view text)
{
    values_.push_back({std::string(text), true});
    return *this;
}

Statement& Statement::bind(std::int32_t number)
{
    values_.push_back({std::to_string(number), false});
    return *this;
}

Statement& Statement::bind(const Decimal& number)
{
    values_.push_back({number.text(), false});
    return *this;
}

Statement& Statement::bind(const DateTime& moment)
{
    std::string text;
    appendMoment(text, moment);
    values_.push_back({std::move(text), false});
    return *this;
}

Statement& Statement::null()
{
    values_.push_back({"NULL", false});
    return *this;
}

Statement& Statement::limit(std::int32_t rows)
{
    limit_ = rows;
    return *this;
}

std::string Statement::text(Engine engine) const
{
    if (values_.size() != fixed_.parameters())
        throw std::logic_error("parameters without values: " + std::string(fixed_.text()));
    std::string result;
    auto value = values_.begin();
    for (const char c : fixed_.text()) {
        if (c != '?')
            result += c;
        else if (const Bound& bound = *value++; bound.quoted)
            appendLiteral(result, bound.text, engine);
        else
            result += bound.text;
    }
    if (!limit_) return result;
    const std::string rows = std::to_string(*limit_);
    return result +
           (engine == Engine::mariadb ? " LIMIT " + rows : " OFFSET 0 ROWS FETCH NEXT " + rows + " ROWS ONLY");
}

std::optional<std::string> textOrNull(std::string text)
{
    if (text.empty()) return std::nullopt;
    return text;
}

std::optional<std::int32_t> keyOrNull(std::int32_t key)
{
    if (key == 0) return std::nullopt;
    return key;
}

} // namespace dn::host
