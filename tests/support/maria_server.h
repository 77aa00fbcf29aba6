// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A real MariaDB server for a test: its data in a folder of its own in memory (or under the temporary folder),
// reached by a Unix socket and, where asked for, by TCP on 127.0.0.1. It dies with the test program and leaves
// nothing behind.
//
// A start takes about a tenth of a second, the first one in a program half a second more. Tests that do not harm
// the server share one (sharedServer); a test that kills or stops it starts its own.
#pragma once

#include "tests/support/child_process.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace dn::tests {

class MariaServer {
public:
    /// The account that may do everything, from anywhere.
    static constexpr std::string_view user = "prueba";
    static constexpr std::string_view password = "clave-de-prueba";
    /// A database that is there from the start, in utf8mb4.
    static constexpr std::string_view database = "pruebas";

    enum class Network : bool { socketOnly, tcp };

    /// Starts the server and waits until it takes statements.
    /// @param options further options of the server's command line.
    /// @throws std::runtime_error when it does not come up, with the end of its log.
    explicit MariaServer(Network network = Network::socketOnly, std::vector<std::string> options = {});
    ~MariaServer();
    MariaServer(const MariaServer&) = delete;
    MariaServer& operator=(const MariaServer&) = delete;

    std::string socket() const { return (folder_ / "s").string(); }
    unsigned port() const { return port_; } ///< 0 without TCP
    const std::filesystem::path& folder() const { return folder_; }

    void kill();          ///< SIGKILL, and waits for the end
    void restart();       ///< on the same data, after a kill
    void freeze();        ///< SIGSTOP: takes connections, answers nothing
    void thaw() noexcept; ///< SIGCONT

private:
    std::vector<std::string> commandLine() const;
    void start();

    std::filesystem::path folder_;
    std::vector<std::string> options_;
    unsigned port_ = 0;
    std::unique_ptr<ChildProcess> process_;
};

/// The server that the tests of a program share; it starts with the first test that asks, and has TCP.
MariaServer& sharedServer();

/// A port of 127.0.0.1 on which nobody listens.
unsigned freePort();

} // namespace dn::tests
