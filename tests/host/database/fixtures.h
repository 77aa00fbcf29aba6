// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the tests of the host's database share: folders that go away, servers that are asked, failures that are
// read.
#pragma once

#include "data/connection.h"
#include "data/error.h"
#include "host/database/database_choice.h"
#include "host/database/host_error.h"
#include "host/database/private_server.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dn::host::tests {

/// A new folder, removed with all it holds.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

void writeFile(const std::filesystem::path& file, std::string_view text);
/// A program that a shell runs.
void writeProgram(const std::filesystem::path& file, std::string_view script);

/// A private server's options for a folder, with little memory.
ServerOptions serverIn(const std::filesystem::path& folder);

/// The text of the HostError that this throws; a text that says so when it throws none.
template <class Action>
std::string failureOf(Action&& action)
{
    try {
        action();
    } catch (const HostError& error) {
        return error.what();
    }
    return "(no failure)";
}

using Row = std::vector<std::string>;

/// The rows of a statement, each value in its raw text, a null as "NULL".
std::vector<Row> rowsOf(data::Connection& connection, std::string_view statement);
/// The only value of the only row.
std::string valueOf(data::Connection& connection, std::string_view statement);

/// A new database of that name with our tables on the server, and a connection to it.
std::unique_ptr<data::Connection> freshDatabase(const PrivateServer& server, const std::string& name);

/// One server for all the tests of a suite.
class SharedServer {
public:
    static const PrivateServer& get();
    /// Stops it; for the end of the test program.
    static void stop();
};

} // namespace dn::host::tests
