// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/sql_text.h"

#include <array>

namespace dn::host {
namespace {

/// Two digits or more, zeros in front.
void appendDigits(std::string& text, int number, int width)
{
    std::array<char, 4> digits{};
    for (int i = width - 1; i >= 0; --i, number /= 10)
        digits.at(static_cast<std::size_t>(i)) = static_cast<char>('0' + number % 10);
    text.append(digits.data(), static_cast<std::size_t>(width));
}

void appendDay(std::string& text, const DateTime& day)
{
    appendDigits(text, day.year, 4);
    appendDigits(text += '-', day.month, 2);
    appendDigits(text += '-', day.day, 2);
}

} // namespace

void appendText(std::string& statement, std::string_view text, Engine engine)
{
    statement += engine == Engine::sqlServer ? "N'" : "'";
    for (const char c : text) {
        if (c == '\'' || (c == '\\' && engine == Engine::mariadb)) statement += c;
        // SQL Server takes a backslash at the end of a line as the sign that the text goes on in the next one.
        if (engine == Engine::sqlServer && (c == '\r' || c == '\n') && statement.ends_with('\\'))
            statement += "' + N'";
        statement += c;
    }
    statement += '\'';
}

void appendDate(std::string& statement, const DateTime& day)
{
    appendDay(statement += '\'', day);
    statement += '\'';
}

void appendMoment(std::string& statement, const DateTime& moment)
{
    appendDay(statement += '\'', moment);
    appendDigits(statement += 'T', moment.hour, 2);
    appendDigits(statement += ':', moment.minute, 2);
    appendDigits(statement += ':', moment.second, 2);
    statement += '\'';
}

} // namespace dn::host
