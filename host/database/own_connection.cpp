// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/own_connection.h"

#include "data/failure_modes.h"
#include "host/database/schema.h"

namespace dn::host {

data::Connection& OwnConnection::connection()
{
    const bool usable = connection_ && (inTransaction_ || connection_->State() == data::Connection::open);
    if (!usable) {
        connection_.reset();
        connection_ = open_();
        engine_ = engineOf(*connection_);
    }
    return *connection_;
}

std::unique_ptr<data::Recordset> OwnConnection::run(const Statement& statement)
{
    data::Connection& to = connection();
    return to.execute(statement.text(engine_));
}

std::int32_t OwnConnection::insert(const Statement& statement)
{
    run(statement);
    return run(Statement("SELECT @@IDENTITY"))->value(0).toInt32(); // MySQL and MariaDB know it as well
}

Transaction::Transaction(OwnConnection& connection) : connection_(connection)
{
    data::Connection& to = connection_.connection();
    to.execute(connection_.engine_ == Engine::mariadb ? "START TRANSACTION" : "BEGIN TRANSACTION");
    connection_.inTransaction_ = true;
}

Transaction::~Transaction()
{
    if (!committed_) data::resumeNext([this] { connection_.connection().execute("ROLLBACK"); });
    connection_.inTransaction_ = false;
}

void Transaction::commit()
{
    connection_.connection().execute("COMMIT");
    committed_ = true;
}

} // namespace dn::host
