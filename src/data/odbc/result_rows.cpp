// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/odbc/result_rows.h"

#include "base/text.h"
#include "data/driver_support.h"

#include <algorithm>
#include <array>

namespace dn::data::odbc {
namespace {

using Kind = Value::Kind;

constexpr SQLLEN longestBound = 4096; // bytes
constexpr SQLLEN bytesPerCharacter = 4;
constexpr std::size_t firstPiece = 16'384; // bytes

// SQL Server's own numbers, which the general headers do not have.
constexpr SQLLEN sqlServerTime = -154;
constexpr SQLLEN sqlServerTimestampOffset = -155;

bool isBinary(SQLLEN type) { return type == SQL_BINARY || type == SQL_VARBINARY || type == SQL_LONGVARBINARY; }

Kind kindOf(SQLLEN type)
{
    switch (type) {
    case SQL_BIT:
        return Kind::boolean;
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
        return Kind::whole;
    case SQL_DECIMAL:
    case SQL_NUMERIC:
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
        return Kind::number;
    case SQL_DATE:
    case SQL_TIME:
    case SQL_TIMESTAMP:
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIME:
    case SQL_TYPE_TIMESTAMP:
    case sqlServerTime:
    case sqlServerTimestampOffset:
        return Kind::dateTime;
    default:
        return Kind::text;
    }
}

// One driver delivers the digit, another the bare byte.
std::string_view digitOfBit(std::string_view raw) { return raw == "1" || raw == "\x01" ? "1" : "0"; }

std::size_t terminatorOf(SQLSMALLINT form) { return form == SQL_C_CHAR ? 1 : 0; }

} // namespace

ResultRows::ResultRows(Statement statement) : statement_(std::move(statement))
{
    const std::size_t count = statement_.columnCount();
    for (std::size_t i = 1; i <= count; ++i)
        cells_.push_back(describe(static_cast<SQLUSMALLINT>(i)));
    bind();
}

ResultRows::Cell ResultRows::describe(SQLUSMALLINT number) const
{
    std::array<SQLCHAR, 1024> name{};
    SQLSMALLINT size = 0;
    SQLSMALLINT type = 0;
    SQLSMALLINT scale = 0;
    SQLSMALLINT nullable = 0;
    SQLULEN width = 0;
    statement_.check(SQLDescribeCol(statement_.handle(), number, name.data(), SQLSMALLINT{name.size()}, &size,
                                    &type, &width, &scale, &nullable));
    Cell cell;
    cell.column = {reinterpret_cast<const char*>(name.data()), kindOf(type)};
    if (isBinary(type)) cell.form = SQL_C_BINARY;
    if (isBinary(type) && equalsNoCase(typeName(number), "BIT")) cell.column.kind = Kind::whole;
    const SQLLEN shown = attribute(number, SQL_DESC_DISPLAY_SIZE);
    cell.bound = shown > 0 && shown * bytesPerCharacter < longestBound;
    if (cell.bound) cell.buffer.resize(static_cast<std::size_t>(shown * bytesPerCharacter + 1));
    return cell;
}

SQLLEN ResultRows::attribute(SQLUSMALLINT number, SQLUSMALLINT which) const
{
    SQLLEN value = 0;
    statement_.check(SQLColAttribute(statement_.handle(), number, which, nullptr, 0, nullptr, &value));
    return value;
}

std::string ResultRows::typeName(SQLUSMALLINT number) const
{
    std::array<char, 128> name{};
    SQLSMALLINT size = 0;
    statement_.check(SQLColAttribute(statement_.handle(), number, SQL_DESC_TYPE_NAME, name.data(),
                                     SQLSMALLINT{name.size()}, &size, nullptr));
    return name.data();
}

void ResultRows::bind()
{
    const bool anyColumn = (statement_.session().getDataExtensions() & SQL_GD_ANY_COLUMN) != 0;
    bool longSeen = false;
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        Cell& cell = cells_[i];
        longSeen = longSeen || !cell.bound;
        cell.bound = cell.bound && (anyColumn || !longSeen);
        if (cell.bound)
            statement_.check(SQLBindCol(statement_.handle(), static_cast<SQLUSMALLINT>(i + 1), cell.form,
                                        cell.buffer.data(), static_cast<SQLLEN>(cell.buffer.size()),
                                        &cell.indicator));
    }
}

std::vector<Column> ResultRows::columns() const
{
    std::vector<Column> columns;
    for (const Cell& cell : cells_)
        columns.push_back(cell.column);
    return columns;
}

bool ResultRows::fetch(RowMemory& rows)
{
    if (!statement_.check(SQLFetch(statement_.handle()))) {
        statement_.drainResults();
        return false;
    }
    for (std::size_t i = 0; i < cells_.size(); ++i)
        takeCell(cells_[i], static_cast<SQLUSMALLINT>(i + 1));
    rows.append([this](std::size_t i) { return cells_[i].view; });
    return true;
}

void ResultRows::takeCell(Cell& cell, SQLUSMALLINT number)
{
    readCell(cell, number);
    if (cell.view.data() == nullptr) return;
    if (cell.column.kind == Kind::boolean) cell.view = digitOfBit(cell.view);
    if (cell.column.kind == Kind::dateTime) readMoment(cell);
    if (cell.column.kind != Kind::whole || cell.form != SQL_C_BINARY) return;
    cell.text = digitsOfBits(cell.view);
    cell.view = cell.text;
}

// A moment with an offset keeps the date and the hour that it was written with. One driver writes the years ahead
// of 1000 without their zeros.
void ResultRows::readMoment(Cell& cell)
{
    constexpr std::size_t digits = 4;
    const std::size_t time = cell.view.find(' ');
    if (time != std::string_view::npos) cell.view = cell.view.substr(0, cell.view.find(' ', time + 1));
    const std::size_t year = cell.view.find('-');
    if (year == 0 || year >= digits) return; // a span of time, or nothing is missing
    cell.text = std::string(digits - year, '0') + std::string(cell.view);
    cell.view = cell.text;
}

void ResultRows::readCell(Cell& cell, SQLUSMALLINT number)
{
    if (!cell.bound) return readLong(cell, number);
    const std::size_t room = cell.buffer.size() - terminatorOf(cell.form);
    if (cell.indicator == SQL_NULL_DATA)
        cell.view = {};
    else if (cell.indicator >= 0 && static_cast<std::size_t>(cell.indicator) <= room)
        cell.view = std::string_view(cell.buffer).substr(0, static_cast<std::size_t>(cell.indicator));
    else
        readLong(cell, number); // wider than the driver announced
}

void ResultRows::readLong(Cell& cell, SQLUSMALLINT number)
{
    cell.text.clear();
    cell.view = std::string_view("");
    while (readPiece(cell, number)) {
    }
    if (cell.view.data() != nullptr) cell.view = cell.text;
}

// Appends what the driver has of the value; all of it when its length is known, which the first piece tells.
bool ResultRows::readPiece(Cell& cell, SQLUSMALLINT number)
{
    const std::size_t have = cell.text.size();
    const std::size_t room = have == 0 ? firstPiece : std::max(cell.expected, have);
    cell.text.resize(have + room, '\0');
    SQLLEN left = 0;
    const bool more = statement_.check(SQLGetData(statement_.handle(), number, cell.form, cell.text.data() + have,
                                                  static_cast<SQLLEN>(room), &left));
    if (left == SQL_NULL_DATA) cell.view = {};
    const std::size_t fits = room - terminatorOf(cell.form);
    const bool whole = left >= 0 && static_cast<std::size_t>(left) <= fits;
    cell.text.resize(!more || left == SQL_NULL_DATA ? have
                                                    : have + (whole ? static_cast<std::size_t>(left) : fits));
    // A driver that does not break a character ends a piece early, and with zeros.
    if (!whole && cell.form == SQL_C_CHAR)
        while (cell.text.size() > have && cell.text.back() == '\0')
            cell.text.pop_back();
    cell.expected = left > 0 ? static_cast<std::size_t>(left) : 0;
    return more && !whole && left != SQL_NULL_DATA;
}

} // namespace dn::data::odbc
