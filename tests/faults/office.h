// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A server with three databases of the same tables: the sample, the one that is worked on, and the copy on which
// the acknowledged statements run again.
#pragma once

#include "data/connection.h"
#include "tests/support/maria_server.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace dn::tests {

class Office {
public:
    /// The moment at which all of it happens, for the server as for the machine.
    static constexpr const char* moment = "2026-03-14 09:30:00";

    Office();

    /// The database that is worked on is the sample again.
    void reset() { copySample("trabajo"); }
    /// A connection of the salespersons' account, which has no more rights than it needs.
    std::unique_ptr<data::Connection> salesperson();
    /// An administrator's connection to the database that is worked on.
    std::unique_ptr<data::Connection> administrator(const std::string& database = "trabajo");
    /// The administrator of the tests.
    data::Connection& beside() { return *beside_; }

    MariaServer& server() { return server_; }
    /// After the server was killed: on its data again.
    void restart();

    /// All rows of all tables, without what no run has twice: new keys and identifiers.
    std::string contents(const std::string& database = "trabajo");
    /// What the sample becomes by these statements.
    const std::string& contentsAfter(const std::vector<std::string>& statements);

    /// The table that a statement is about; for a list of the day the table behind the view. Empty for none.
    std::string tableOf(const std::string& statement) const;
    /// A column of that table that the statement names; empty for none.
    std::string columnOf(const std::string& table, const std::string& statement) const;

private:
    void create(const std::string& database);
    void fillSample();
    void addTraps();
    void copySample(const std::string& database);
    void connectBeside();

    MariaServer server_{MariaServer::Network::socketOnly,
                        {"--innodb-flush-log-at-trx-commit=1", "--lock-wait-timeout=5"}};
    std::unique_ptr<data::Connection> beside_;
    std::vector<std::string> tables_;
    std::map<std::string, std::vector<std::string>> columns_;
    std::map<std::string, std::string> known_; // the contents by the statements that led to them
};

Office& office();

/// Whether it changes rows; a call of a procedure counts.
bool changes(const std::string& statement);

} // namespace dn::tests
