// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/bulk_insert.h"

namespace dn::host {

BulkInsert::BulkInsert(data::Connection& connection, Engine engine, std::string_view table,
                       std::string_view columns)
    : connection_(connection),
      engine_(engine),
      head_("INSERT INTO " + std::string(table) + " (" + std::string(columns) + ") VALUES ")
{
    if (engine == Engine::sqlServer && columns.starts_with("Sys_PK,"))
        withKeys_ = "SET IDENTITY_INSERT " + std::string(table) + " ";
}

BulkInsert& BulkInsert::row()
{
    if (rows_ == rowsPerStatement) finish();
    statement_ += rows_ == 0 ? head_ + "(" : std::string("),(");
    ++rows_;
    firstValue_ = true;
    return *this;
}

std::string& BulkInsert::next()
{
    if (!firstValue_) statement_ += ',';
    firstValue_ = false;
    return statement_;
}

BulkInsert& BulkInsert::text(std::string_view value)
{
    appendText(next(), value, engine_);
    return *this;
}

BulkInsert& BulkInsert::number(std::int64_t value)
{
    next() += std::to_string(value);
    return *this;
}

BulkInsert& BulkInsert::moment(const DateTime& value)
{
    appendMoment(next(), value);
    return *this;
}

BulkInsert& BulkInsert::date(const DateTime& value)
{
    appendDate(next(), value);
    return *this;
}

BulkInsert& BulkInsert::null()
{
    next() += "NULL";
    return *this;
}

void BulkInsert::finish()
{
    if (rows_ == 0) return;
    statement_ += ')';
    if (!withKeys_.empty()) connection_.execute(withKeys_ + "ON");
    connection_.execute(statement_);
    if (!withKeys_.empty()) connection_.execute(withKeys_ + "OFF");
    statement_.clear();
    rows_ = 0;
}

} // namespace dn::host
