// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Where a MySQL or MariaDB server is found, and how long it may take.
#pragma once

#include <chrono>
#include <string>

namespace dn::data::mariadb {

/// What `Connection` takes. The times are bounds: none of them is waited for where all is well.
struct Options {
    std::string host = {};                  ///< empty: this machine
    unsigned port = 0;                      ///< 0: the usual one; with a port, "localhost" too is reached by TCP
    std::string socket = {};                ///< path of a Unix socket; goes ahead of host and port
    std::string user = {};                  ///< account of the server
    std::string password = {};              ///< empty: none
    std::string database = {};              ///< empty: none is chosen
    std::chrono::seconds connectTimeOut{5}; ///< for the way to the server and its greeting
    /// For each wait on the server, so that it also bounds the slowest statement.
    std::chrono::seconds readTimeOut{30};
    std::chrono::seconds writeTimeOut{30}; ///< for sending a statement
};

} // namespace dn::data::mariadb
