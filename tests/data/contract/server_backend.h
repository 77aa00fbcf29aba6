// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A backend that reaches a real MariaDB server; the driver is what a test program chooses.
#pragma once

#include "data/connection.h"
#include "tests/support/maria_server.h"

#include <chrono>
#include <memory>
#include <string>

namespace dn::tests::contract {

/// Where and how to connect; by TCP on 127.0.0.1 when there is no socket.
struct Target {
    std::string socket;
    unsigned port = 0;
    std::string user{MariaServer::user};
    std::string password{MariaServer::password};
    std::string database{MariaServer::database};
    std::chrono::seconds connectTimeOut{5};
    std::chrono::seconds readTimeOut{30};
};

Target onSocket(const MariaServer& server);

/// Each test program defines its own.
std::unique_ptr<data::Connection> connectTo(const Target& target);

} // namespace dn::tests::contract
