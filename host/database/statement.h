// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A statement of the host's own with parameters.
//
//     Statement("UPDATE Persona SET Nombre = ?, ICiudad = ? WHERE Sys_PK = ?").bind(name).bind(city).bind(key)
//
// The connections take a text and know no prepared statements: the control wants its statements sent as they were
// built, and one interface carries libmariadb and ODBC alike. A second way into both drivers, only to prepare,
// would double what has to be kept right; so the values become literals here, by rules that leave no way out of
// them:
//
// - The fixed part is a literal of the source, read by the compiler: it holds no quotes, no backslashes, no
//   comments and no semicolon, so that a question mark in it is always a parameter. A text that was put together
//   when the program runs is no statement at all; it does not compile.
// - Numbers are written by this class, decimals are checked digit by digit.
// - Texts for MySQL and MariaDB stand in single quotes, doubled inside. Whether a backslash escapes depends on the
//   session (NO_BACKSLASH_ESCAPES), so a text that holds one, or a control character, goes out as hexadecimal
//   digits instead. The connections speak UTF-8, in which no letter holds a byte that looks like a quote.
// - Texts for SQL Server stand in N'...', quotes doubled; a NUL, at which drivers would stop reading, is joined in
//   as NCHAR(0).
#pragma once

#include "base/date_time.h"
#include "host/database/sql_text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dn::host {

/// The fixed part of a statement, with a question mark for each parameter.
class SqlText {
public:
    template <std::size_t size>
    consteval SqlText(const char (&text)[size]) // NOLINT(modernize-avoid-c-arrays): a literal is one
        : text_(text, size - 1)
    {
        for (std::size_t i = 0; i < text_.size(); ++i) {
            const char c = text_[i];
            if (c == '\'' || c == '"' || c == '`' || c == '\\' || c == ';' || c == '#') throw "a parameter is due";
            if (i > 0 && ((c == '-' && text_[i - 1] == '-') || (c == '*' && text_[i - 1] == '/'))) throw "comment";
            if (c == '?') ++parameters_;
        }
    }

    std::string_view text() const { return text_; }
    std::size_t parameters() const { return parameters_; }

private:
    std::string_view text_;
    std::size_t parameters_ = 0;
};

/// An exact number in decimal digits: "-1234.50".
class Decimal {
public:
    /// @throws RuntimeError for anything but an optional sign, digits, and a point with digits behind it.
    explicit Decimal(std::string text);
    const std::string& text() const { return text_; }

private:
    std::string text_;
};

class Statement {
public:
    explicit Statement(SqlText text) : fixed_(text) {}

    // The values, in the order of the question marks. Nothing is a null.
    Statement& bind(std::string_view text);
    Statement& bind(const std::string& text) { return bind(std::string_view(text)); }
    Statement& bind(const char* text) { return bind(std::string_view(text)); }
    Statement& bind(std::int32_t number);
    Statement& bind(const Decimal& number);
    Statement& bind(const DateTime& moment);
    template <class T>
    Statement& bind(const std::optional<T>& value)
    {
        return value ? bind(*value) : null();
    }
    Statement& bind(double) = delete; // it would be rounded
    Statement& bind(bool) = delete;   // engines differ
    Statement& null();

    /// No more than the first rows. On SQL Server the statement needs an ORDER BY.
    Statement& limit(std::int32_t rows);

    /// The whole text. @throws std::logic_error when not every parameter has its value.
    std::string text(Engine engine) const;

private:
    struct Bound {
        std::string text;
        bool quoted;
    };

    SqlText fixed_;
    std::vector<Bound> values_;
    std::optional<std::int32_t> limit_;
};

/// Nothing for an empty text: the tables hold a null for what nobody typed.
std::optional<std::string> textOrNull(std::string text);
/// Nothing for the key 0, by which callers say that there is none.
std::optional<std::int32_t> keyOrNull(std::int32_t key);

} // namespace dn::host
