// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Three databases of the same tables: the sample, the one that is worked on, and the copy on which the
// acknowledged statements run again.
#pragma once

#include "data/connection.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace dn::tests {

class Books {
public:
    /// The moment at which all of it happens, for the server as for the machine.
    static constexpr const char* moment = "2026-03-14 09:30:00";

    /// A connection of somebody who may do everything; to no database in particular where the name is empty.
    using Connect = std::function<std::unique_ptr<data::Connection>(const std::string& database)>;

    /// Makes "muestra", "trabajo" and "copia".
    explicit Books(Connect connect);

    /// The connection that looks on.
    data::Connection& beside() { return *beside_; }
    /// After the server of that connection was away.
    void reconnect();

    /// A database is the sample again.
    void copySample(const std::string& database);
    /// All rows of all tables, new keys by their order and new identifiers by their form.
    std::string contents(const std::string& database, data::Connection& connection) const;
    /// What the sample becomes by these statements.
    const std::string& contentsAfter(const std::vector<std::string>& statements);

    const std::vector<std::string>& tables() const { return tables_; }
    const std::vector<std::string>& columnsOf(const std::string& table) const { return columns_.at(table); }

private:
    void fillSample();

    Connect connect_;
    std::unique_ptr<data::Connection> beside_;
    std::vector<std::string> tables_;
    std::map<std::string, std::vector<std::string>> columns_;
    std::map<std::string, std::string> known_; // the contents by the statements that led to them
};

/// Whether it changes rows; a call of a procedure counts.
bool changes(const std::string& statement);

} // namespace dn::tests
