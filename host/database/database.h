// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The host's database, whichever it is: opened, with its tables, and with sample data when it is new.
#pragma once

#include "data/connection.h"
#include "host/database/lasting_connection.h"
#include "host/database/private_server.h"
#include "host/database/server_list.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace dn::host {

struct DatabaseOptions {
    std::string connect;              ///< another's database, see `parseDatabaseChoice`; empty: the private server
    std::vector<std::string> further; ///< other servers of that database, for when the former ones do not work
    ServerOptions server;             ///< of the private server
    bool createSchema = false;        ///< in another's database, which must be empty of our tables
    /// Prospects of the sample data that a new database gets. Without a number the private database gets 3,000 and
    /// another's none.
    std::optional<std::size_t> demoRows;
};

/// An open database. It must outlive the connections that it gave: the private server stops with it.
class Database {
public:
    Database(Database&&) = default;
    Database& operator=(Database&&) = delete; // it would stop a server ahead of its connection

    /// The control's connection. It stays the same object when the database is reached anew.
    LastingConnection& connection() { return *connection_; }
    /// A further connection to the same database, for the host's own screens. May be called on any thread.
    /// @throws HostError
    std::unique_ptr<data::Connection> openConnection() const { return servers_->connect(); }
    /// The way to a new connection after one was lost: starts the private server again where it has ended, then
    /// connects. It may run on a thread of its own, also when this object has gone meanwhile.
    /// @throws HostError when it runs.
    using Revival = std::function<std::unique_ptr<data::Connection>(const std::stop_token& givenUp)>;
    Revival revival() const;

    /// What the operator should know: Spanish texts, most often none.
    const std::vector<std::string>& warnings() const { return warnings_; }
    /// The private server, if it is what was opened.
    const PrivateServer* server() const { return server_.get(); }
    /// Whether the tables were made by this call.
    bool created() const { return created_; }
    /// Where the database lies, for whoever reaches it by a client of his own.
    const DatabaseChoice& choice() const { return servers_->present(); }
    std::string description() const { return servers_->description(); }

private:
    friend Database openDatabase(const DatabaseOptions& options, const Progress& progress);
    Database() = default;

    std::shared_ptr<PrivateServer> server_; // first, so that it goes last
    std::shared_ptr<ServerList> servers_;
    std::unique_ptr<LastingConnection> connection_;
    std::vector<std::string> warnings_;
    bool created_ = false;
};

/// Starts or joins the private server, or reaches another's database; makes tables and sample data where they are
/// due.
/// @throws HostError with what is wrong and what to do.
Database openDatabase(const DatabaseOptions& options, const Progress& progress = {});

} // namespace dn::host
