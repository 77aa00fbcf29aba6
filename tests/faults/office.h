// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A server with the books on it, traps in the tables that are worked on, and an account for who works.
#pragma once

#include "data/connection.h"
#include "tests/faults/books.h"
#include "tests/support/maria_server.h"
#include "tests/support/relay.h"

#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <utility>
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
    /// The same by way of a relay of the server.
    std::unique_ptr<data::Connection> salespersonOver(const Relay& relay);
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

    /// The tables that a statement is about, in the order of its text; for a list of the day those behind the
    /// view, for a call that of the procedure.
    std::vector<std::string> tablesOf(const std::string& statement) const;
    /// The columns of one of these tables that the statement names.
    std::vector<std::string> columnsOf(const std::string& table, const std::string& statement) const;

private:
    /// Columns by tables, in the order of the view's text.
    using View = std::vector<std::pair<std::string, std::vector<std::string>>>;

    void addTraps();
    View readView(const std::string& name);
    const View* viewOf(const std::string& statement) const;

    MariaServer server_{MariaServer::Network::socketOnly,
                        {"--innodb-flush-log-at-trx-commit=1", "--lock-wait-timeout=5"}};
    Books books_{[this](const std::string& database) { return administrator(database); }};
    std::map<std::string, View> views_;
};

Office& office();

} // namespace dn::tests
