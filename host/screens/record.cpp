// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/record.h"

#include <QUuid>

#include <charconv>

namespace dn::host {
namespace {

std::int32_t numberIn(const std::string& digits)
{
    std::int32_t number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

void bind(Statement& statement, ColumnType type, const std::string& value)
{
    if (value.empty())
        statement.null();
    else if (type == ColumnType::number)
        statement.bind(numberIn(value));
    else if (type == ColumnType::amount)
        statement.bind(Decimal(value));
    else if (type == ColumnType::moment)
        statement.bind(parseIso(value)); // a null for a day that no calendar has
    else
        statement.bind(value);
}

void bindAll(Statement& statement, const RecordKind& kind, const Values& values)
{
    for (std::size_t i = 0; i < kind.columns.size(); ++i)
        bind(statement, kind.columns[i], values.at(i));
}

/// Moments without the fractions that some engines add.
std::string cellOf(const data::Recordset& row, std::size_t column, ColumnType type)
{
    const std::string raw(row.value(column).raw());
    return type == ColumnType::moment ? raw.substr(0, raw.find('.')) : raw;
}

} // namespace

Values valuesOf(const data::Recordset& row, const RecordKind& kind, std::size_t first)
{
    Values values;
    for (const ColumnType type : kind.columns)
        values.push_back(cellOf(row, first++, type));
    return values;
}

Values readRecord(OwnConnection& database, const RecordKind& kind, std::int32_t key)
{
    const auto row = database.run(Statement(kind.select).bind(key));
    if (row->Eof()) throw RowGone();
    return valuesOf(*row, kind);
}

std::int32_t insertRecord(OwnConnection& database, const RecordKind& kind, const Values& values)
{
    Statement statement(kind.insert);
    bindAll(statement, kind, values);
    if (kind.identified) statement.bind(newGuid());
    return database.insert(statement);
}

std::vector<Clash> updateRecord(OwnConnection& database, const RecordKind& kind, std::int32_t key,
                                const Values& base, const Values& mine)
{
    database.run(Statement(kind.hold).bind(key));
    const Values theirs = readRecord(database, kind, key);
    std::vector<Clash> clashes;
    Values merged = theirs;
    for (std::size_t i = 0; i < merged.size(); ++i) {
        if (mine.at(i) == base.at(i)) continue;
        if (theirs[i] != base[i] && theirs[i] != mine[i]) clashes.push_back({i, theirs[i]});
        merged[i] = mine[i];
    }
    if (!clashes.empty() || merged == theirs) return clashes;
    Statement statement(kind.update);
    bindAll(statement, kind, merged);
    database.run(statement.bind(key));
    return clashes;
}

std::string newGuid() { return QUuid::createUuid().toString(QUuid::Id128).toStdString(); }

} // namespace dn::host
