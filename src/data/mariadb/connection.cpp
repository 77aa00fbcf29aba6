// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/mariadb/connection.h"

#include "data/driver_support.h"
#include "data/mariadb/result_rows.h"
#include "data/mariadb/session.h"
#include "data/streamed_recordset.h"

namespace dn::data::mariadb {

Connection::Connection(const Options& options) : session_(std::make_unique<Session>(options)) {}

Connection::~Connection() { session_->wire().cut(); }

int Connection::State() const { return session_->lost() || session_->hungUp() ? closed : open; }

std::unique_ptr<Recordset> Connection::execute(std::string_view statement)
{
    requireText(statement);
    session_->wire().clear();
    if (session_->lost()) throw connectionClosed();
    session_->send(statement);
    if (mysql_field_count(session_->handle()) == 0) {
        session_->drainResults();
        return nullptr;
    }
    auto rows = std::make_unique<ResultRows>(*session_);
    const auto reading = mysql_more_results(session_->handle()) != 0 ? StreamedRecordset::Reading::whole
                                                                     : StreamedRecordset::Reading::batches;
    const std::vector<Column> columns = rows->columns();
    return std::make_unique<StreamedRecordset>(columns, std::move(rows), session_->wire(), reading);
}

} // namespace dn::data::mariadb
