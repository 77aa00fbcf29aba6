// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/maria_server.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <fstream>
#include <stdexcept>

namespace dn::tests {
namespace {

namespace fs = std::filesystem;

// In memory, where there is room for it: a busy disk makes four seconds out of each half, and nothing here needs
// to outlive the machine.
fs::path temporaryRoot()
{
    const fs::path inMemory = "/dev/shm";
    std::error_code failure;
    const fs::space_info space = fs::space(inMemory, failure);
    const bool roomy = !failure && space.available > 512ULL * 1024 * 1024;
    return roomy && ::access(inMemory.c_str(), W_OK | X_OK) == 0 ? inMemory : fs::temp_directory_path();
}

// The path is short: a socket's path has 107 characters at most.
fs::path newFolder()
{
    std::string path = (temporaryRoot() / "dn-maria-XXXXXX").string();
    if (::mkdtemp(path.data()) == nullptr) throw std::runtime_error("cannot create " + path);
    return path;
}

// Goes away with its owner.
struct TemporaryFolder {
    fs::path path = newFolder();
    TemporaryFolder() = default;
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
};

// What the server and the program that fills its data folder must agree on. The sizes are the floor.
std::vector<std::string> commonOptions(const fs::path& folder)
{
    std::vector<std::string> options{"--no-defaults", "--datadir=" + (folder / "data").string(),
                                     "--lower-case-table-names=1", "--innodb-log-file-size=4M",
                                     "--innodb-data-file-path=ibdata1:10M:autoextend",
                                     // scarce where several servers run for one user
                                     "--innodb-use-native-aio=0"};
    if (::geteuid() == 0) options.emplace_back("--user=root");
    return options;
}

std::string endOf(const fs::path& file)
{
    std::ifstream stream(file);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    return text.substr(text.size() > 2000 ? text.size() - 2000 : 0);
}

void initialise(const fs::path& folder)
{
    std::vector<std::string> command{findProgram("mariadb-install-db")};
    for (std::string& option : commonOptions(folder))
        command.push_back(std::move(option));
    for (const char* option :
         {"--skip-test-db", "--skip-name-resolve", "--auth-root-authentication-method=socket"})
        command.emplace_back(option);
    // In a shared folder it would lose its temporary tables to the next server that starts.
    const std::vector<std::string> environment{"TMPDIR=" + folder.string()};
    if (ChildProcess(command, environment, folder / "install.log").wait() != 0)
        throw std::runtime_error("mariadb-install-db failed: " + endOf(folder / "install.log"));
}

// A data folder fit to be copied, made once a program.
const fs::path& initialisedData()
{
    static const TemporaryFolder folder;
    static const bool done = (initialise(folder.path), true);
    (void)done;
    static const fs::path data = folder.path / "data";
    return data;
}

void writeInitFile(const fs::path& file)
{
    std::ofstream stream(file);
    const auto name = [](std::string_view text) { return "'" + std::string(text) + "'"; };
    stream << "CREATE DATABASE IF NOT EXISTS " << MariaServer::database << " CHARACTER SET utf8mb4;\n"
           << "CREATE USER IF NOT EXISTS " << name(MariaServer::user) << "@'%' IDENTIFIED BY "
           << name(MariaServer::password) << ";\n"
           << "GRANT ALL ON *.* TO " << name(MariaServer::user) << "@'%' WITH GRANT OPTION;\n";
}

} // namespace

MariaServer::MariaServer(Network network, std::vector<std::string> options)
    : folder_(newFolder()), options_(std::move(options)), port_(network == Network::tcp ? freePort() : 0)
{
    fs::copy(initialisedData(), folder_ / "data", fs::copy_options::recursive);
    writeInitFile(folder_ / "init.sql");
    start();
}

MariaServer::~MariaServer()
{
    process_->killAndWait();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

std::vector<std::string> MariaServer::commandLine() const
{
    std::vector<std::string> command{findProgram("mariadbd")};
    for (std::string& option : commonOptions(folder_))
        command.push_back(std::move(option));
    const auto path = [&](const char* option, const char* name) {
        command.push_back(option + (folder_ / name).string());
    };
    path("--socket=", "s");
    path("--pid-file=", "pid");
    path("--log-error=", "error.log");
    path("--init-file=", "init.sql");
    path("--tmpdir=", "");
    if (port_ == 0)
        command.emplace_back("--skip-networking");
    else
        command.insert(command.end(), {"--bind-address=127.0.0.1", "--port=" + std::to_string(port_)});
    command.insert(command.end(), {"--skip-name-resolve", "--character-set-server=utf8mb4", "--max-connections=50",
                                   "--innodb-buffer-pool-size=32M", "--innodb-flush-log-at-trx-commit=0",
                                   "--key-buffer-size=1M", "--aria-pagecache-buffer-size=1M"});
    command.insert(command.end(), options_.begin(), options_.end());
    return command;
}

void MariaServer::start()
{
    ReadySocket ready(folder_ / "ready");
    auto server =
        std::make_unique<ChildProcess>(commandLine(), std::vector{ready.environment()}, folder_ / "output.log");
    if (!ready.waitFor(*server))
        throw std::runtime_error("mariadbd did not start: " + endOf(folder_ / "error.log"));
    process_ = std::move(server);
}

void MariaServer::kill() { process_->killAndWait(); }

void MariaServer::restart()
{
    kill();
    start();
}

void MariaServer::freeze() { process_->stop(); }

void MariaServer::thaw() noexcept { process_->resume(); }

MariaServer& sharedServer()
{
    static MariaServer server(MariaServer::Network::tcp);
    return server;
}

unsigned freePort()
{
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const general = reinterpret_cast<sockaddr*>(&address);
    const bool bound = ::bind(socket, general, size) == 0 && ::getsockname(socket, general, &size) == 0;
    ::close(socket);
    if (!bound) throw std::runtime_error("no port is free on 127.0.0.1");
    return ntohs(address.sin_port);
}

} // namespace dn::tests
