// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/host/database/fixtures.h"

#include "host/database/schema.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>

namespace dn::host::tests {
namespace fs = std::filesystem;
namespace {

struct Shared {
    TemporaryFolder folder;
    PrivateServer server{serverIn(folder.path())};
};

std::unique_ptr<Shared>& shared()
{
    static std::unique_ptr<Shared> one;
    return one;
}

/// Servers write through at every commit: in memory, unless TMPDIR says otherwise, the tests do not wait for the
/// disk.
fs::path temporaryRoot()
{
    const bool inMemory = ::getenv("TMPDIR") == nullptr && ::access("/dev/shm", W_OK) == 0;
    return inMemory ? fs::path("/dev/shm") : fs::temp_directory_path();
}

class StopShared : public testing::Environment {
public:
    void TearDown() override { SharedServer::stop(); }
};

const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new StopShared);

} // namespace

TemporaryFolder::TemporaryFolder()
{
    std::string name = (temporaryRoot() / "dn-host-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

void writeFile(const fs::path& file, std::string_view text)
{
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

void writeProgram(const fs::path& file, std::string_view script)
{
    writeFile(file, "#!/bin/sh\n" + std::string(script) + "\n");
    fs::permissions(file, fs::perms::owner_all);
}

ServerOptions serverIn(const fs::path& folder)
{
    ServerOptions options;
    options.folder = folder;
    options.bufferPoolMegabytes = 32;
    return options;
}

std::vector<Row> rowsOf(data::Connection& connection, std::string_view statement)
{
    std::vector<Row> all;
    const auto rows = connection.execute(statement);
    for (; rows && !rows->Eof(); rows->MoveNext()) {
        Row row;
        for (std::size_t i = 0; i < rows->names().size(); ++i)
            row.push_back(rows->value(i).isNull() ? "NULL" : std::string(rows->value(i).raw()));
        all.push_back(std::move(row));
    }
    return all;
}

std::string valueOf(data::Connection& connection, std::string_view statement)
{
    const std::vector<Row> rows = rowsOf(connection, statement);
    return rows.size() == 1 && rows.front().size() == 1 ? rows.front().front() : "(not one value)";
}

std::unique_ptr<data::Connection> freshDatabase(const PrivateServer& server, const std::string& name)
{
    const auto any = connect(server.target(""));
    any->execute("DROP DATABASE IF EXISTS " + name);
    any->execute("CREATE DATABASE " + name);
    auto connection = connect(server.target(name));
    createSchema(*connection, Engine::mariadb);
    return connection;
}

const PrivateServer& SharedServer::get()
{
    if (!shared()) shared() = std::make_unique<Shared>();
    return shared()->server;
}

void SharedServer::stop() { shared().reset(); }

} // namespace dn::host::tests
