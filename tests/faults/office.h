// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A server with the books on it, traps in the tables that are worked on, and an account for who works.
#pragma once

#include "data/connection.h"
#include "tests/faults/books.h"
#include "tests/support/maria_server.h"

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace dn::tests {

class Office {
public:
    Office();

    /// The database that is worked on is the sample again.
    void reset() { books_.copySample("trabajo"); }
    /// A connection of the salespersons' account, which has no more rights than it needs.
    /// @param patience for an answer. A statement that is given up ahead of the server may run all the same, so it
    /// is longer than any wait for a lock, on a busy machine as well.
    std::unique_ptr<data::Connection> salesperson(std::chrono::seconds patience = std::chrono::seconds(30));
    /// An administrator's connection to the database that is worked on.
    std::unique_ptr<data::Connection> administrator(const std::string& database = "trabajo");
    /// The administrator of the tests.
    data::Connection& beside() { return books_.beside(); }

    MariaServer& server() { return server_; }
    /// After the server was killed: on its data again.
    void restart();

    /// Of the database that is worked on, and what the sample becomes by these statements.
    std::string contents() { return books_.contents("trabajo", beside()); }
    const std::string& contentsAfter(const std::vector<std::string>& statements)
    {
        return books_.contentsAfter(statements);
    }

    /// The table that a statement is about; for a list of the day the table behind the view. Empty for none.
    std::string tableOf(const std::string& statement) const;
    /// A column of that table that the statement names; empty for none.
    std::string columnOf(const std::string& table, const std::string& statement) const;

private:
    void addTraps();

    MariaServer server_{MariaServer::Network::socketOnly,
                        {"--innodb-flush-log-at-trx-commit=1", "--lock-wait-timeout=5"}};
    Books books_{[this](const std::string& database) { return administrator(database); }};
};

Office& office();

} // namespace dn::tests
