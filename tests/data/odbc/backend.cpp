// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The contract suite on ODBC, with the driver for MariaDB.
#include "data/odbc/connection.h"
#include "tests/data/contract/server_backend.h"

namespace dn::tests::contract {

std::unique_ptr<data::Connection> connectTo(const Target& target)
{
    const std::string place =
        target.socket.empty() ? "SERVER=127.0.0.1;PORT=" + std::to_string(target.port) : "SOCKET=" + target.socket;
    return std::make_unique<data::odbc::Connection>(
        "DRIVER=" DN_ODBC_MARIADB ";" + place + ";UID=" + target.user + ";PWD={" + target.password +
            "};DATABASE=" + target.database,
        data::odbc::TimeOuts{target.connectTimeOut, target.readTimeOut});
}

} // namespace dn::tests::contract
