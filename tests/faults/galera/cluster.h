// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The cluster that scripts/prove-on-galera has started, of three nodes: DN_GALERA_PORTS and DN_GALERA_PROCESSES,
// three numbers each.
#pragma once

#include "data/connection.h"
#include "host/database/database.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace dn::tests {

class Cluster {
public:
    static constexpr std::size_t size = 3;
    /// May do everything; the script makes it.
    static constexpr const char* owner = "prueba:clave";

    /// The text of `--connect` for a node.
    static std::string node(std::size_t number, const std::string& account, const std::string& database);
    /// The owner's connection to a node.
    static std::unique_ptr<data::Connection> ownerAt(std::size_t number, const std::string& database);
    /// All nodes as the servers of one database, in their order.
    static host::DatabaseOptions servers(const std::string& account, const std::string& database);
    /// Makes the database "ventas" with its schema, the agent 7 "Ana" and her prospect 1 "Luz".
    static void makeVentas();
    /// Without a warning to anybody, and waits for its end.
    static void kill(std::size_t number);
};

// Lends the one connection of the program to whoever watches it.
class Lent final : public data::Connection {
public:
    explicit Lent(data::Connection& connection) : connection_(connection) {}
    int State() const override { return connection_.State(); }
    std::unique_ptr<data::Recordset> execute(std::string_view statement) override
    {
        return connection_.execute(statement);
    }

private:
    data::Connection& connection_;
};

} // namespace dn::tests
