// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The life of the private server: first start, later starts, two programs, sudden ends.

#include "host/database/patience.h"
#include "host/database/private_server.h"
#include "host/database/server_arguments.h"
#include "host/database/server_binaries.h"
#include "host/database/server_probe.h"
#include "tests/host/database/fixtures.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <functional>

namespace dn::host::tests {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr auto aWhile = std::chrono::seconds(20);

unsigned modeOf(const fs::path& path)
{
    struct stat status {};
    ::stat(path.c_str(), &status);
    return status.st_mode & 0777U;
}

void keepOneRow(const PrivateServer& server)
{
    const auto connection = connect(server.target(""));
    connection->execute("CREATE DATABASE t");
    connection->execute("CREATE TABLE t.kept (word VARCHAR(20)) ENGINE=InnoDB");
    connection->execute("INSERT INTO t.kept VALUES ('guardado')");
}

std::string keptWord(const PrivateServer& server)
{
    return valueOf(*connect(server.target("t")), "SELECT word FROM kept");
}

TEST(PrivateServer, first_start_lays_out_a_folder_for_the_user_alone)
{
    const TemporaryFolder folder;
    std::vector<std::string> steps;
    const PrivateServer server(serverIn(folder.path() / "a" / "datos de ñ"),
                               [&](const std::string& step) { steps.push_back(step); });
    EXPECT_TRUE(server.initialised());
    EXPECT_TRUE(server.owned());
    EXPECT_THAT(steps, ElementsAre("Preparando la base de datos por primera vez…",
                                   "Iniciando el servidor de base de datos…"));
    EXPECT_EQ(modeOf(server.folder().root), 0700U);
    EXPECT_EQ(modeOf(server.folder().data), 0700U);
    EXPECT_EQ(modeOf(server.folder().socket.parent_path()), 0700U);
    const auto connection = connect(server.target(""));
    EXPECT_EQ(valueOf(*connection, "SELECT @@lower_case_table_names"), "1");
    EXPECT_EQ(valueOf(*connection, "SELECT @@skip_networking"), "1");
    EXPECT_EQ(valueOf(*connection, "SELECT @@character_set_server"), "utf8mb4");
}

TEST(PrivateServer, second_start_keeps_the_data)
{
    const TemporaryFolder folder;
    {
        const PrivateServer first(serverIn(folder.path()));
        keepOneRow(first);
    }
    EXPECT_EQ(probeSocket(folder.path() / "ejecucion" / "s"), SocketState::free);
    const PrivateServer second(serverIn(folder.path()));
    EXPECT_FALSE(second.initialised());
    EXPECT_TRUE(second.owned());
    EXPECT_EQ(keptWord(second), "guardado");
}

TEST(PrivateServer, a_second_program_joins_and_does_not_stop_it)
{
    const TemporaryFolder folder;
    const PrivateServer first(serverIn(folder.path()));
    keepOneRow(first);
    {
        const PrivateServer second(serverIn(folder.path()));
        EXPECT_FALSE(second.owned());
        EXPECT_EQ(second.pid(), 0);
        EXPECT_EQ(keptWord(second), "guardado");
    }
    EXPECT_EQ(keptWord(first), "guardado");
}

TEST(PrivateServer, an_orphan_is_joined)
{
    const TemporaryFolder folder;
    const ServerFolder parts = [&] { return PrivateServer(serverIn(folder.path())).folder(); }();
    ChildProcess orphan(serverArguments(findServerBinaries(defaultSearchPath()).server, parts, 32),
                        folder.path() / "salida");
    ASSERT_TRUE(waitUntil(aWhile, [&] { return probeSocket(parts.socket) == SocketState::listening; }));
    {
        const PrivateServer server(serverIn(folder.path()));
        EXPECT_FALSE(server.owned());
        EXPECT_EQ(valueOf(*connect(server.target("")), "SELECT 1"), "1");
    }
    EXPECT_FALSE(orphan.ended());
}

TEST(PrivateServer, acknowledged_rows_survive_a_killed_server)
{
    const TemporaryFolder folder;
    const PrivateServer first(serverIn(folder.path()));
    keepOneRow(first);
    const auto lost = connect(first.target("t"));
    ASSERT_EQ(::kill(first.pid(), SIGKILL), 0);
    ASSERT_TRUE(waitUntil(aWhile, [&] { return !dataHolder(first.folder().data); }));
    EXPECT_THROW(lost->execute("SELECT 1"), data::Error);
    const PrivateServer second(serverIn(folder.path()));
    EXPECT_TRUE(second.owned());
    EXPECT_EQ(keptWord(second), "guardado");
}

/// Runs the action in a process of its own, which then waits to be killed.
pid_t programThat(const std::function<void()>& action, int ready)
{
    const pid_t program = ::fork();
    if (program != 0) return program;
    action();
    const char sign = 'r';
    if (::write(ready, &sign, 1) != 1) ::_exit(1);
    for (;;)
        ::pause();
}

TEST(PrivateServer, the_server_of_a_killed_program_ends_and_its_data_are_whole)
{
    const TemporaryFolder folder;
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    std::optional<PrivateServer> inChild;
    const pid_t program = programThat(
        [&] {
            inChild.emplace(serverIn(folder.path()));
            keepOneRow(*inChild);
        },
        ends[1]);
    ::close(ends[1]);
    char sign = 0;
    ASSERT_EQ(::read(ends[0], &sign, 1), 1);
    ::close(ends[0]);
    ASSERT_TRUE(dataHolder(folder.path() / "datos"));
    ::kill(program, SIGKILL);
    ::waitpid(program, nullptr, 0);
    EXPECT_TRUE(waitUntil(aWhile, [&] { return !dataHolder(folder.path() / "datos"); }));
    EXPECT_EQ(keptWord(PrivateServer(serverIn(folder.path()))), "guardado");
}

/// A server whose installer is a script of the test.
ServerOptions withInstaller(const TemporaryFolder& folder, const std::string& script)
{
    writeProgram(folder.path() / "bin" / "mariadb-install-db", script);
    writeProgram(folder.path() / "bin" / "mariadbd", "exit 0");
    ServerOptions options = serverIn(folder.path() / "datos");
    options.searchPath = {folder.path() / "bin"};
    return options;
}

TEST(PrivateServer, a_failed_first_start_tells_what_the_installer_complained_of)
{
    const TemporaryFolder folder;
    const ServerOptions broken = withInstaller(
        folder, "echo '[ERROR] InnoDB: lo que pasa'; for i in $(seq 20); do echo \"consejo $i\"; done; exit 1");
    EXPECT_THAT(failureOf([&] { PrivateServer server(broken); }),
                AllOf(HasSubstr("No se pudo crear la base de datos"), HasSubstr("[ERROR] InnoDB: lo que pasa"),
                      Not(HasSubstr("consejo"))));
}

TEST(PrivateServer, the_installer_keeps_its_temporary_tables_to_itself)
{
    const TemporaryFolder folder;
    const ServerOptions telling = withInstaller(folder, "echo \"[ERROR] en $TMPDIR\"; exit 1");
    const char* const before = ::getenv("TMPDIR");
    const std::string kept = before == nullptr ? "" : before;
    ::setenv("TMPDIR", folder.path().c_str(), 1); // the user's own does not prevail
    EXPECT_THAT(failureOf([&] { PrivateServer server(telling); }),
                HasSubstr("[ERROR] en " + (telling.folder / "tmp").string()));
    before == nullptr ? ::unsetenv("TMPDIR") : ::setenv("TMPDIR", kept.c_str(), 1);
}

TEST(PrivateServer, an_interrupted_first_start_leaves_nothing_behind)
{
    const TemporaryFolder folder;
    const ServerOptions broken = withInstaller(
        folder, "for i; do case $i in --datadir=*) mkdir -p \"${i#--datadir=}/mysql\";; esac; done; kill -9 $$");
    EXPECT_THAT(failureOf([&] { PrivateServer server(broken); }), HasSubstr("No se pudo crear la base de datos"));
    const PrivateServer server(serverIn(folder.path() / "datos"));
    EXPECT_TRUE(server.initialised());
    std::vector<std::string> unfinished;
    for (const auto& entry : fs::directory_iterator(server.folder().root))
        if (entry.path().filename().string().starts_with("datos.nuevo")) unfinished.push_back(entry.path());
    EXPECT_THAT(unfinished, IsEmpty());
}

TEST(PrivateServer, a_long_path_puts_the_socket_into_a_private_folder_elsewhere)
{
    const TemporaryFolder folder;
    const std::string former = [] {
        const char* value = ::getenv("XDG_RUNTIME_DIR");
        return value == nullptr ? std::string() : std::string(value);
    }();
    ::setenv("XDG_RUNTIME_DIR", folder.path().c_str(), 1);
    {
        const PrivateServer server(serverIn(folder.path() / std::string(120, 'x')));
        EXPECT_EQ(server.folder().socket.parent_path().parent_path(), folder.path());
        EXPECT_EQ(modeOf(server.folder().socket.parent_path()), 0700U);
        EXPECT_EQ(valueOf(*connect(server.target("")), "SELECT 1"), "1");
        const PrivateServer joined(serverIn(folder.path() / std::string(120, 'x')));
        EXPECT_FALSE(joined.owned());
        fs::permissions(server.folder().socket.parent_path(), fs::perms(0755));
        EXPECT_THAT(failureOf([&] { PrivateServer other(serverIn(folder.path() / std::string(120, 'x'))); }),
                    HasSubstr("es de otro usuario o está abierta a otros"));
    }
    former.empty() ? ::unsetenv("XDG_RUNTIME_DIR") : ::setenv("XDG_RUNTIME_DIR", former.c_str(), 1);
}

TEST(PrivateServer, the_usual_folder_follows_the_environment)
{
    const char* const value = ::getenv("HOME");
    const std::string home = value == nullptr ? "/" : value;
    ::setenv("XDG_DATA_HOME", "/x/y", 1);
    EXPECT_EQ(defaultDataFolder(), "/x/y/dncontacts");
    ::unsetenv("XDG_DATA_HOME");
    ::setenv("HOME", "/h", 1);
    EXPECT_EQ(defaultDataFolder(), "/h/.local/share/dncontacts");
    ::unsetenv("HOME");
    EXPECT_THAT(failureOf([] { defaultDataFolder(); }), HasSubstr("HOME"));
    ::setenv("HOME", home.c_str(), 1);
}

TEST(PrivateServer, memory_grows_with_the_data_up_to_a_bound)
{
    const TemporaryFolder folder;
    EXPECT_EQ(bufferPoolMegabytes(folder.path()), 128U);
    writeFile(folder.path() / "t" / "t.ibd", "");
    fs::resize_file(folder.path() / "t" / "t.ibd", 200ULL << 20U); // sparse
    EXPECT_EQ(bufferPoolMegabytes(folder.path()), 250U);
    fs::resize_file(folder.path() / "t" / "t.ibd", 1ULL << 40U);
    EXPECT_LE(bufferPoolMegabytes(folder.path()), 1024U);
}

} // namespace
} // namespace dn::host::tests
