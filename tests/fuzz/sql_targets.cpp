// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Statements that were tampered with, texts as literals, and the texts that name a database.

#include "base/runtime_error.h"
#include "base/text.h"
#include "data/odbc/connection_string.h"
#include "data/odbc/one_statement.h"
#include "host/database/host_error.h"
#include "host/database/mariadb_text.h"
#include "host/database/odbc_text.h"
#include "host/database/sql_text.h"
#include "host/database/statement.h"
#include "host/screens/entity_statements.h"
#include "tests/fuzz/input.h"
#include "tests/fuzz/targets.h"

#include <algorithm>
#include <array>
#include <optional>
#include <regex>
#include <stdexcept>
#include <utility>
#include <vector>

namespace dn::fuzz {
namespace {

std::string replaced(std::string_view text, std::string_view part, std::string_view by)
{
    std::string result;
    while (!text.empty()) {
        const bool here = text.starts_with(part);
        result += here ? by : text.substr(0, 1);
        text.remove_prefix(here ? part.size() : 1);
    }
    return result;
}

/// A Transact-SQL text with blanks for its literals, names in quotes and comments; nothing where one does not end.
std::optional<std::string> masked(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        std::size_t end = 1;
        const char c = text.front();
        if (c == '\'' || c == '"' || c == '[') {
            const char close = c == '[' ? ']' : c;
            end = text.find(close, 1);
            while (end != std::string_view::npos && text.substr(end + 1).starts_with(close))
                end = text.find(close, end + 2);
            if (end == std::string_view::npos) return std::nullopt;
            ++end;
            result += '_'; // something stands there
        } else if (text.starts_with("--")) {
            end = text.find('\n');
            if (end == std::string_view::npos) return std::nullopt;
            result += ' ';
        } else if (text.starts_with("/*")) {
            int depth = 1;
            for (end = 2; depth > 0; ++end) {
                if (end + 1 >= text.size()) return std::nullopt;
                const std::string_view two = text.substr(end, 2);
                depth += two == "/*" ? 1 : two == "*/" ? -1 : 0;
                end += two == "/*" || two == "*/" ? 1 : 0;
            }
            result += ' ';
        } else {
            result += c;
        }
        text.remove_prefix(end);
    }
    return result;
}

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// Whether a word stands in a text as a whole, between blanks and signs.
bool hasWord(const std::string& text, std::string_view word)
{
    constexpr std::string_view ofNames = "0123456789_@#$";
    const auto divides = [&](std::size_t at) {
        return at >= text.size() || (!isLetter(text[at]) && ofNames.find(text[at]) == std::string_view::npos);
    };
    const std::string folded = toLower(text);
    if (folded.size() != text.size()) return false;
    for (std::size_t at = folded.find(word); at != std::string::npos; at = folded.find(word, at + 1))
        if (divides(at - 1) && divides(at + word.size()))
            return true; // one ahead of the first is far behind the last
    return false;
}

/// Whether a text whose literals are blanks holds a second statement, as far as that is plain to see.
bool isPlainlyStacked(const std::string& text)
{
    const std::size_t end = text.find(';');
    if (end != std::string::npos && std::any_of(text.begin() + static_cast<std::ptrdiff_t>(end), text.end(),
                                                [](char c) { return isLetter(c) || c == '_'; }))
        return true;
    if (text.find_first_of("(.") != std::string::npos) return false; // the word may be a name there
    constexpr std::array starters{"drop", "delete", "insert", "exec", "truncate", "shutdown", "grant", "waitfor"};
    return std::any_of(starters.begin(), starters.end(), [&](const char* word) { return hasWord(text, word); });
}

/// The text behind a literal of MySQL and MariaDB, which must be the whole of what is given.
std::string readMariadb(std::string_view literal)
{
    require(literal.size() >= 2 && literal.front() == '\'' && literal.back() == '\'',
            "a literal stands in quotes");
    literal = literal.substr(1, literal.size() - 2);
    std::string text;
    for (; !literal.empty(); literal.remove_prefix(1)) {
        if (literal.front() == '\'' || literal.front() == '\\') {
            require(literal.size() > 1 && literal[1] == literal.front(), "quotes and backslashes are doubled");
            literal.remove_prefix(1);
        }
        text += literal.front();
    }
    return text;
}

/// The same of SQL Server, which may be several literals that are joined.
std::string readSqlServer(std::string_view literals)
{
    std::string text;
    while (true) {
        require(literals.starts_with("N'"), "a literal begins with its sign");
        literals.remove_prefix(2);
        for (; !literals.starts_with('\'') || literals.starts_with("''"); literals.remove_prefix(1)) {
            require(!literals.empty(), "a literal has an end");
            if (literals.starts_with('\'')) literals.remove_prefix(1);
            require(!literals.starts_with("\\\n") && !literals.starts_with("\\\r"),
                    "no line end is taken away by a backslash");
            text += literals.front();
        }
        literals.remove_prefix(1);
        if (literals.empty()) return text;
        require(literals.starts_with(" + "), "literals are joined");
        literals.remove_prefix(3);
    }
}

int hexadecimalFigure(char c)
{
    constexpr std::string_view all = "0123456789ABCDEF";
    const std::size_t at = all.find(c);
    require(at != std::string_view::npos, "figures are hexadecimal");
    return static_cast<int>(at);
}

std::string_view taken(std::string_view& statement, std::size_t size)
{
    const std::string_view piece = statement.substr(0, size);
    statement.remove_prefix(piece.size());
    return piece;
}

void skip(std::string_view& statement, std::string_view expected)
{
    require(taken(statement, expected.size()) == expected, "a statement keeps its fixed words");
}

/// What stands between a quote and the next one that is not doubled.
std::string takeQuoted(std::string_view& statement)
{
    skip(statement, "'");
    std::string text;
    while (true) {
        require(!statement.empty(), "a literal has an end");
        const char c = taken(statement, 1).front();
        if (c == '\'') {
            if (!statement.starts_with('\'')) return text;
            taken(statement, 1);
        }
        text += c;
    }
}

/// The text of a parameter for MariaDB, which must read alike whether a backslash escapes or not.
std::string takeMariadbText(std::string_view& statement)
{
    constexpr std::string_view hexadecimal = "_utf8mb4 X";
    if (!statement.starts_with(hexadecimal)) {
        std::string text = takeQuoted(statement);
        require(text.find('\\') == std::string::npos, "no backslash stands in quotes");
        return text;
    }
    skip(statement, hexadecimal);
    const std::string figures = takeQuoted(statement);
    require(figures.size() % 2 == 0, "a byte has two figures");
    std::string text;
    for (std::size_t at = 0; at < figures.size(); at += 2)
        text += static_cast<char>(hexadecimalFigure(figures[at]) * 16 + hexadecimalFigure(figures[at + 1]));
    return text;
}

/// The same for SQL Server, pieces and NUL characters joined.
std::string takeSqlServerText(std::string_view& statement)
{
    constexpr std::string_view nul = "NCHAR(0)";
    constexpr std::string_view join = " + ";
    std::string text;
    while (true) {
        if (statement.starts_with(nul)) {
            skip(statement, nul);
            text += '\0';
        } else {
            skip(statement, "N");
            const std::string piece = takeQuoted(statement);
            require(piece.find("\\\n") == std::string::npos && piece.find("\\\r") == std::string::npos,
                    "no line end is taken away by a backslash");
            text += piece;
        }
        if (!statement.starts_with(join)) return text;
        skip(statement, join);
    }
}

std::string takeText(std::string_view& statement, host::Engine engine)
{
    return engine == host::Engine::mariadb ? takeMariadbText(statement) : takeSqlServerText(statement);
}

bool isDecimalText(std::string_view text)
{
    static const std::regex form(R"(-?\d+(\.\d+)?)");
    return std::regex_match(text.begin(), text.end(), form);
}

/// Whether a text fits a pattern for LIKE with "!" as the sign that takes a wildcard's power.
bool fits(std::string_view text, std::string_view pattern)
{
    std::vector<bool> reached(text.size() + 1, false); // with the pattern so far
    reached[0] = true;
    for (; !pattern.empty(); pattern.remove_prefix(1)) {
        std::vector<bool> next(text.size() + 1, false);
        const bool escaped = pattern.front() == '!';
        if (escaped) pattern.remove_prefix(1);
        require(!pattern.empty(), "a sign stands behind each \"!\"");
        require(escaped || (pattern.front() != '[' && pattern.front() != '_'),
                "no sign of the text is a wildcard");
        for (std::size_t at = 0; at <= text.size(); ++at) {
            if (!escaped && pattern.front() == '%')
                next[at] = reached[at] || (at > 0 && next[at - 1]);
            else if (at > 0)
                next[at] = reached[at - 1] && text[at - 1] == pattern.front();
        }
        reached = std::move(next);
    }
    return reached.back();
}

/// Whether a text begins with the first word, and has the others with their blanks behind it in that order.
bool holdsWords(std::string_view text, std::string_view words)
{
    const std::size_t first = std::min(words.find(' '), words.size());
    if (!text.starts_with(words.substr(0, first))) return false;
    text.remove_prefix(first);
    words.remove_prefix(first);
    while (!words.empty()) {
        const std::size_t end = std::min(words.find(' ', 1), words.size());
        const std::size_t at = text.find(words.substr(0, end));
        if (at == std::string_view::npos) return false;
        text.remove_prefix(at + end);
        words.remove_prefix(end);
    }
    return true;
}

std::string percentEncoded(std::string_view text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (isLetter(c))
            result += c;
        else
            result.append({'%', digits[byte / 16U], digits[byte % 16U]});
    }
    return result;
}

std::string braced(const std::string& value) { return "{" + replaced(value, "}", "}}") + "}"; }

} // namespace

void statements(Input& input)
{
    const std::string text = input.rest();
    const std::string head = "UPDATE ut_icontact SET uf_NotaStatus = '";
    const std::string tail = "' WHERE Sys_PK = 12";
    require(!data::odbc::isStacked(head + replaced(text, "'", "''") + tail),
            "what stands in a literal is no statement");
    const std::string sent = head + text + tail;
    const bool stacked = data::odbc::isStacked(sent);
    if (const auto plain = masked(sent)) {
        require(stacked || !isPlainlyStacked(*plain), "a second statement is refused");
        require(data::odbc::isStacked(sent + "; DROP TABLE x"), "a statement that was hung on is refused");
        if (plain->find('(') == std::string::npos) // an open parenthesis makes no statement at all
            require(data::odbc::isStacked(sent + "\nDROP TABLE x"), "so is one without a semicolon");
    }
    static_cast<void>(data::odbc::isStacked(text));
}

void literals(Input& input)
{
    const std::string text = input.rest();
    std::string literal;
    host::appendText(literal, text, host::Engine::mariadb);
    require(readMariadb(literal) == text, "MariaDB reads the text back");
    literal.clear();
    host::appendText(literal, text, host::Engine::sqlServer);
    require(readSqlServer(literal) == text, "SQL Server reads the text back");
    require(!data::odbc::isStacked("INSERT INTO t VALUES (" + literal + ")"), "a literal is no statement");
}

void binds(Input& input)
{
    const std::string first = input.text();
    const std::int64_t number = input.number();
    const std::string decimal = input.text();
    const std::string last = input.rest();
    bool read = true;
    try {
        static_cast<void>(host::Decimal(decimal));
    } catch (const RuntimeError&) {
        read = false;
    }
    require(read == isDecimalText(decimal), "a decimal is figures with a sign and a point, and nothing else");
    const auto whole = static_cast<std::int32_t>(number);
    for (const host::Engine engine : {host::Engine::mariadb, host::Engine::sqlServer}) {
        host::Statement statement("UPDATE t SET a = ?, b = ?, c = ?, d = ?, e = ? WHERE f = ? AND g = ?");
        statement.bind(first).bind(whole).bind(host::Decimal(read ? decimal : "0")).null();
        statement.bind(DateTime{2026, 3, 14, 9, 30, 5}).bind(last).bind(std::optional<std::string>());
        const std::string text = statement.text(engine);
        std::string_view rest = text;
        skip(rest, "UPDATE t SET a = ");
        require(takeText(rest, engine) == first, "a text reads back");
        skip(rest, ", b = " + std::to_string(whole) + ", c = " + (read ? decimal : "0") +
                       ", d = NULL, e = '2026-03-14T09:30:05' WHERE f = ");
        require(takeText(rest, engine) == last, "a text reads back");
        require(rest == " AND g = NULL", "a statement ends with its fixed words");
        require(engine == host::Engine::mariadb || !data::odbc::isStacked(text), "a value is no statement");
    }
}

void patterns(Input& input)
{
    const std::string typed = input.text();
    const std::string name = input.rest();
    for (const host::Engine engine : {host::Engine::mariadb, host::Engine::sqlServer}) {
        const std::string text = host::personsFrom(host::patternOf(typed)).text(engine);
        std::string_view rest = text;
        rest.remove_prefix(std::min(rest.find(" LIKE "), rest.size()));
        skip(rest, " LIKE ");
        const std::string pattern = takeText(rest, engine);
        require(rest.starts_with(engine == host::Engine::mariadb ? " ESCAPE '!' " : " ESCAPE N'!' "),
                "the sign that takes a wildcard's power is told");
        require(fits(name, pattern) == holdsWords(name, typed),
                "a search finds what holds its words, and no other");
        require(fits(typed + name, pattern), "a search finds what begins with its text");
    }
}

void mariadbTexts(Input& input)
{
    // Each begins with letters, so that none is empty and the messages' own words hold none of them.
    const std::array<std::string, 4> parts{"zqu" + input.text(), "zqp" + input.text(), "zqh" + input.text(),
                                           "zqd" + input.text()};
    const auto& [user, password, server, database] = parts;
    const std::string rest = input.rest();
    try {
        const host::MariadbTarget target =
            host::parseMariadbText("mariadb://" + user + ":" + password + "@" + rest);
        require(!target.user.empty() && !target.database.empty(), "a database has a user and a name");
        require(!target.host.empty() || !target.socket.empty(), "a database has a place");
        require(target.port > 0 && target.port < 65'536, "a port is one");
        require(target.connectTimeout > 0 && target.readTimeout > 0, "a wait ends");
    } catch (const host::HostError& error) {
        require(std::string_view(error.what()).find(password) == std::string_view::npos, "no password is told");
    }
    const auto hasNone = [](const std::string& text, std::string_view signs) {
        return text.find_first_of(signs) == std::string::npos && text.find('\0') == std::string::npos;
    };
    if (!hasNone(user + password, "") || !hasNone(server, " \t\r\n") || !hasNone(database, "/")) return;
    const host::MariadbTarget target =
        host::parseMariadbText("mariadb://" + percentEncoded(user) + ":" + percentEncoded(password) + "@" +
                               percentEncoded(server) + "/" + percentEncoded(database));
    require(target.user == user && target.password == password && target.host == server &&
                target.database == database,
            "what is written with percent signs reads back");
}

void odbcTexts(Input& input)
{
    const std::string user = input.text();
    const std::string password = "zqp" + input.text();
    const std::string rest = input.rest();
    const std::string login = "DRIVER={FreeTDS};UID=" + braced(user) + ";PWD=" + braced(password) + ";";
    require(host::odbcPassword(login + rest) == password, "a password reads back");
    if ((user + rest).find("zqp") == std::string::npos)
        require(host::odbcWithoutPassword(login + rest).find("zqp") == std::string::npos, "no password is shown");
    if (!host::odbcPassword(rest).empty())
        require(host::odbcPassword(host::odbcWithoutPassword(rest)) == "***", "a password is told by its stars");
    const data::odbc::TimeOuts waits;
    const std::string whole = data::odbc::completed(login, waits);
    require(whole.starts_with(login) && data::odbc::completed(whole, waits) == whole,
            "what is there is not added");
    require(host::odbcPassword(data::odbc::completed(rest, waits)) == host::odbcPassword(rest) ||
                rest.find_first_of("{=") != std::string::npos,
            "what is added leaves the rest alone");
    for (const char* keyword : {"CONN_TIMEOUT", "READ_TIMEOUT", "WRITE_TIMEOUT", "CHARSET", "ClientCharset"})
        require(data::odbc::hasKeyword(whole, keyword), "what is missing is added");
    const bool named = data::odbc::hasKeyword(rest, "PWD") || data::odbc::hasKeyword(rest, "PASSWORD");
    require(named || host::odbcPassword(rest).empty(), "both readers find the same keywords");
}

} // namespace dn::fuzz
