// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Where a MySQL or MariaDB server is found, and how long it may take.
#pragma once

#include <chrono>
#include <string>

namespace dn::data::mariadb {

struct Options {
    std::string host;   ///< empty: this machine
    unsigned port = 0;  ///< 0: the usual one; with a port, "localhost" too is reached by TCP
    std::string socket; ///< path of a Unix socket; goes ahead of host and port
    std::string user;
    std::string password;
    std::string database;
    std::chrono::seconds connectTimeOut{5};
    /// For each wait on the server, so that it also bounds the slowest statement.
    std::chrono::seconds readTimeOut{30};
    std::chrono::seconds writeTimeOut{30};
};

} // namespace dn::data::mariadb
