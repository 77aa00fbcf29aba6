// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/odbc/connection.h"

#include "data/driver_support.h"
#include "data/odbc/one_statement.h"
#include "data/odbc/result_rows.h"
#include "data/odbc/session.h"
#include "data/streamed_recordset.h"

namespace dn::data::odbc {

Connection::Connection(std::string_view connectionString, TimeOuts timeOuts)
    : session_(std::make_unique<Session>(connectionString, timeOuts))
{
}

Connection::~Connection() { session_->wire().cut(); }

int Connection::State() const { return session_->lost() ? closed : open; }

std::unique_ptr<Recordset> Connection::execute(std::string_view statement)
{
    requireText(statement);
    session_->wire().clear();
    if (session_->lost()) throw connectionClosed();
    if (session_->runsStacked()) requireOneStatement(statement);
    Statement running(*session_);
    running.execute(statement);
    if (running.columnCount() == 0) {
        if (!session_->endsWithoutColumns()) running.drainResults();
        return nullptr;
    }
    auto rows = std::make_unique<ResultRows>(std::move(running));
    const std::vector<Column> columns = rows->columns();
    return std::make_unique<StreamedRecordset>(columns, std::move(rows), session_->wire(),
                                               StreamedRecordset::Reading::batches);
}

} // namespace dn::data::odbc
