// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A stand-in for SQL Server for a test: a program of its own (tests/sqlserver) that speaks the protocol of SQL
// Server on 127.0.0.1 and keeps its tables in memory. It ends with the test program.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace dn::tests {

class SqlServerStandIn {
public:
    static constexpr std::string_view user = "prueba";
    static constexpr std::string_view password = "clave-de-prueba";
    /// A database that is there from the start; a text without an N ahead of it is UTF-8 in it.
    static constexpr std::string_view database = "pruebas";

    /// Starts it and waits until it takes connections.
    /// @param log takes every batch that it is sent, with what became of it; none without a name.
    /// @throws std::runtime_error when it does not come up.
    explicit SqlServerStandIn(const std::filesystem::path& log = {});
    ~SqlServerStandIn();
    SqlServerStandIn(const SqlServerStandIn&) = delete;
    SqlServerStandIn& operator=(const SqlServerStandIn&) = delete;

    /// The string by which ODBC reaches a database of it.
    /// @param application the name under which the log has the batches.
    std::string connectionString(std::string_view databaseName = database,
                                 std::string_view application = "pruebas") const;
    unsigned port() const { return port_; }

    /// Its clock stands at "2026-03-14T09:30:00" from then on; without a moment it runs.
    void setClock(const std::optional<std::string>& moment);

    void kill() noexcept;         ///< SIGKILL, and waits for the end
    void freeze() const noexcept; ///< SIGSTOP: takes connections, answers nothing

private:
    std::string readLine() const;

    pid_t id_ = 0;
    int input_ = -1;
    int output_ = -1;
    unsigned port_ = 0;
};

/// The one that the tests of a program share; it starts with the first test that asks. It logs into the file that
/// the variable DN_STAND_IN_LOG names, if there is one.
SqlServerStandIn& sharedStandIn();

} // namespace dn::tests
