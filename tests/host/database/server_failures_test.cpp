// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the operator reads when the private server cannot be had.

#include "host/database/file_lock.h"
#include "host/database/patience.h"
#include "host/database/private_server.h"
#include "host/database/server_arguments.h"
#include "host/database/server_binaries.h"
#include "host/database/server_log.h"
#include "host/database/server_probe.h"
#include "tests/host/database/fixtures.h"

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fstream>

namespace dn::host::tests {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using testing::AllOf;
using testing::HasSubstr;

std::string startFailure(const ServerOptions& options)
{
    return failureOf([&] { PrivateServer server(options); });
}

TEST(ServerFailures, missing_programs_name_the_packages)
{
    const TemporaryFolder folder;
    ServerOptions options = serverIn(folder.path() / "d");
    options.searchPath = {folder.path()};
    EXPECT_THAT(startFailure(options), AllOf(HasSubstr("«mariadbd»"), HasSubstr("mariadb-server-core"),
                                             HasSubstr("mariadb-client-core")));
    writeProgram(folder.path() / "mariadbd", "exit 0");
    EXPECT_THAT(startFailure(options), HasSubstr("«mariadb-install-db»"));
}

TEST(ServerFailures, a_folder_below_a_file)
{
    const TemporaryFolder folder;
    writeFile(folder.path() / "archivo", "x");
    EXPECT_THAT(startFailure(serverIn(folder.path() / "archivo" / "datos")),
                AllOf(HasSubstr("No se pudo crear la carpeta de datos"), HasSubstr("no es una carpeta")));
    EXPECT_THAT(startFailure(serverIn(folder.path() / "archivo")), HasSubstr("ya existe y no es una carpeta"));
}

TEST(ServerFailures, a_folder_where_nothing_can_be_made)
{
    EXPECT_THAT(startFailure(serverIn("/proc/dncontacts")),
                AllOf(HasSubstr("No se pudo crear la carpeta de datos «/proc/dncontacts»"),
                      HasSubstr("elija otra carpeta")));
}

TEST(ServerFailures, reasons_of_the_system_are_spanish)
{
    EXPECT_EQ(systemReason(EROFS), "el sistema de archivos es de sólo lectura");
    EXPECT_EQ(systemReason(ENOSPC), "no queda espacio en el disco");
    EXPECT_EQ(systemReason(EACCES), "permiso denegado");
}

TEST(ServerFailures, a_folder_that_cannot_be_written)
{
    const TemporaryFolder folder;
    fs::create_directories(folder.path() / "candado");
    EXPECT_THAT(startFailure(serverIn(folder.path())), HasSubstr("No se puede escribir en la carpeta de datos"));
}

TEST(ServerFailures, a_full_disk_is_told_ahead_of_a_first_start)
{
    const TemporaryFolder folder;
    ServerOptions options = serverIn(folder.path());
    options.minimumFreeBytes = UINTMAX_MAX - 1;
    EXPECT_THAT(startFailure(options), HasSubstr("No queda espacio en el disco"));
    EXPECT_FALSE(fs::exists(folder.path() / "datos"));
}

TEST(ServerFailures, another_program_at_its_first_start)
{
    const TemporaryFolder folder;
    const FileLock held(folder.path() / "candado", 1s);
    ServerOptions options = serverIn(folder.path());
    options.lockPatience = 30ms;
    EXPECT_THAT(startFailure(options), HasSubstr("Otro programa está preparando la carpeta de datos"));
}

TEST(ServerFailures, a_file_in_the_place_of_the_socket)
{
    const TemporaryFolder folder;
    writeFile(folder.path() / "ejecucion" / "s", "x");
    EXPECT_THAT(startFailure(serverIn(folder.path())), HasSubstr("la usa otra cosa"));
}

TEST(ServerFailures, something_else_listens_at_the_socket)
{
    const TemporaryFolder folder;
    fs::create_directories(folder.path() / "ejecucion");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, (folder.path() / "ejecucion" / "s").c_str(), sizeof address.sun_path - 1);
    const UniqueFd listener(::socket(AF_UNIX, SOCK_STREAM, 0));
    ASSERT_EQ(::bind(listener.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(::listen(listener.get(), 5), 0);
    ServerOptions options = serverIn(folder.path());
    options.joinPatience = 100ms;
    EXPECT_THAT(startFailure(options), HasSubstr("la usa otra cosa"));
}

TEST(ServerFailures, a_server_that_stands_still)
{
    const TemporaryFolder folder;
    const PrivateServer server(serverIn(folder.path()));
    ::kill(server.pid(), SIGSTOP);
    ServerOptions options = serverIn(folder.path());
    options.joinPatience = 100ms;
    EXPECT_THAT(startFailure(options),
                AllOf(HasSubstr("que no responde"), HasSubstr("proceso " + std::to_string(server.pid()))));
    ::kill(server.pid(), SIGCONT);
}

TEST(ServerFailures, another_server_on_the_same_data)
{
    const TemporaryFolder folder;
    ServerFolder parts = [&] { return PrivateServer(serverIn(folder.path())).folder(); }();
    parts.socket = folder.path() / "otro";
    const ChildProcess other(serverArguments(findServerBinaries(defaultSearchPath()).server, parts, 32),
                             folder.path() / "salida");
    ASSERT_TRUE(waitUntil(20s, [&] { return probeSocket(parts.socket) == SocketState::listening; }));
    ServerOptions options = serverIn(folder.path());
    options.joinPatience = 100ms;
    EXPECT_THAT(startFailure(options), AllOf(HasSubstr("la tiene abierta otro servidor"),
                                             HasSubstr("proceso " + std::to_string(other.pid()))));
}

TEST(ServerFailures, a_server_that_never_answers)
{
    const TemporaryFolder folder;
    writeProgram(folder.path() / "bin" / "mariadbd", "exec sleep 1000");
    writeProgram(folder.path() / "bin" / "mariadb-install-db", "exit 1");
    fs::create_directories(folder.path() / "d" / "datos");
    ServerOptions options = serverIn(folder.path() / "d");
    options.searchPath = {folder.path() / "bin"};
    options.startPatience = 50ms;
    EXPECT_THAT(startFailure(options), AllOf(HasSubstr("no respondió a tiempo"), HasSubstr("servidor.log")));
}

void spoil(const fs::path& file)
{
    std::fstream out(file, std::ios::in | std::ios::out | std::ios::binary);
    ASSERT_TRUE(out.is_open()) << file;
    const auto size = fs::file_size(file);
    for (std::uintmax_t i = 0; i < size; ++i)
        out.put(static_cast<char>('A' + i % 23));
}

TEST(ServerFailures, spoilt_data_are_told_with_the_log)
{
    const TemporaryFolder folder;
    const ServerFolder parts = [&] { return PrivateServer(serverIn(folder.path())).folder(); }();
    spoil(parts.data / "ibdata1");
    EXPECT_THAT(startFailure(serverIn(folder.path())),
                AllOf(HasSubstr("dañados"), HasSubstr("[ERROR]"), HasSubstr(parts.log.string()),
                      HasSubstr("copia de seguridad")));
}

TEST(ServerFailures, a_spoilt_log_of_the_system_tables)
{
    const TemporaryFolder folder;
    const ServerFolder parts = [&] { return PrivateServer(serverIn(folder.path())).folder(); }();
    spoil(parts.data / "aria_log_control");
    EXPECT_THAT(startFailure(serverIn(folder.path())), AllOf(HasSubstr("dañados"), HasSubstr("[ERROR]")));
}

TEST(ServerFailures, the_log_tells_a_full_disk_from_spoilt_data)
{
    const TemporaryFolder folder;
    const fs::path log = folder.path() / "servidor.log";
    writeFile(log, "one\n[ERROR] mariadbd: Error writing file (Errcode: 28 \"No space left on device\")\n");
    EXPECT_THAT(explainFailedStart(folder.path(), log), HasSubstr("no queda espacio en el disco"));
    writeFile(log, "[ERROR] InnoDB: Operating system error number 13: Permission denied\n");
    EXPECT_THAT(explainFailedStart(folder.path(), log), HasSubstr("no tiene permiso"));
    EXPECT_EQ(lastLines(log, 0), "");
    EXPECT_EQ(lastLines(folder.path() / "none", 3), "");
}

} // namespace
} // namespace dn::host::tests
