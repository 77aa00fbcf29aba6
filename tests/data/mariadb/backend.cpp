// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The contract suite on libmariadb.
#include "data/mariadb/connection.h"
#include "tests/data/contract/server_backend.h"

namespace dn::tests::contract {

std::unique_ptr<data::Connection> connectTo(const Target& target)
{
    data::mariadb::Options options;
    options.socket = target.socket;
    if (target.socket.empty()) options.host = "127.0.0.1";
    options.port = target.port;
    options.user = target.user;
    options.password = target.password;
    options.database = target.database;
    options.connectTimeOut = target.connectTimeOut;
    options.readTimeOut = target.readTimeOut;
    options.writeTimeOut = target.readTimeOut;
    return std::make_unique<data::mariadb::Connection>(options);
}

} // namespace dn::tests::contract
