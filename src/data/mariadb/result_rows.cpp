// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/mariadb/result_rows.h"

#include "data/driver_support.h"

namespace dn::data::mariadb {
namespace {

using Kind = Value::Kind;

Kind kindOf(const MYSQL_FIELD& field)
{
    switch (field.type) {
    case MYSQL_TYPE_BIT:
        return field.length == 1 ? Kind::boolean : Kind::whole;
    case MYSQL_TYPE_TINY:
    case MYSQL_TYPE_SHORT:
    case MYSQL_TYPE_INT24:
    case MYSQL_TYPE_LONG:
    case MYSQL_TYPE_LONGLONG:
    case MYSQL_TYPE_YEAR:
        return Kind::whole;
    case MYSQL_TYPE_DECIMAL:
    case MYSQL_TYPE_NEWDECIMAL:
    case MYSQL_TYPE_FLOAT:
    case MYSQL_TYPE_DOUBLE:
        return Kind::number;
    case MYSQL_TYPE_DATE:
    case MYSQL_TYPE_NEWDATE:
    case MYSQL_TYPE_DATETIME:
    case MYSQL_TYPE_DATETIME2:
    case MYSQL_TYPE_TIMESTAMP:
    case MYSQL_TYPE_TIMESTAMP2:
    case MYSQL_TYPE_TIME:
    case MYSQL_TYPE_TIME2:
        return Kind::dateTime;
    default:
        return Kind::text;
    }
}

} // namespace

ResultRows::ResultRows(Session& session) : session_(session), result_(mysql_use_result(session.handle()))
{
    if (!result_) session_.fail();
    const MYSQL_FIELD* const fields = mysql_fetch_fields(result_.get());
    for (std::size_t i = 0; i < mysql_num_fields(result_.get()); ++i)
        if (fields[i].type == MYSQL_TYPE_BIT) bits_.push_back(i);
}

std::vector<Column> ResultRows::columns() const
{
    std::vector<Column> columns;
    const MYSQL_FIELD* const fields = mysql_fetch_fields(result_.get());
    for (std::size_t i = 0; i < mysql_num_fields(result_.get()); ++i)
        columns.push_back({std::string(fields[i].name, fields[i].name_length), kindOf(fields[i])});
    return columns;
}

bool ResultRows::fetch(RowMemory& rows)
{
    const MYSQL_ROW row = mysql_fetch_row(result_.get());
    if (row == nullptr) {
        if (mysql_errno(session_.handle()) != 0) session_.fail();
        session_.drainResults();
        return false;
    }
    const unsigned long* const lengths = mysql_fetch_lengths(result_.get());
    if (bits_.empty())
        rows.append([=](std::size_t i) { return std::string_view(row[i], lengths[i]); });
    else
        appendWithBits(rows, row, lengths);
    return true;
}

void ResultRows::appendWithBits(RowMemory& rows, MYSQL_ROW row, const unsigned long* lengths)
{
    std::vector<std::string_view> cells;
    for (std::size_t i = 0; i < mysql_num_fields(result_.get()); ++i)
        cells.emplace_back(row[i], lengths[i]);
    bitTexts_.assign(bits_.size(), {});
    for (std::size_t i = 0; i < bits_.size(); ++i) {
        std::string_view& cell = cells[bits_[i]];
        if (cell.data() == nullptr) continue;
        bitTexts_[i] = digitsOfBits(cell);
        cell = bitTexts_[i];
    }
    rows.append([&](std::size_t i) { return cells[i]; });
}

} // namespace dn::data::mariadb
