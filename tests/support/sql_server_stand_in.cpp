// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/sql_server_stand_in.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <vector>

// Set by CMake where everything that the stand-in is made of is installed.
#ifndef DN_STAND_IN_JAVA
#define DN_STAND_IN_JAVA ""
#define DN_STAND_IN_CLASSES ""
#define DN_ODBC_FREETDS ""
#endif

namespace dn::tests {
namespace {

struct Pipe {
    std::array<int, 2> ends{-1, -1};
    Pipe()
    {
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe for the stand-in");
    }
};

// The machine for a program that lives for seconds: it compiles little and collects plainly.
std::vector<std::string> commandLine(const std::filesystem::path& log)
{
    std::vector<std::string> command{DN_STAND_IN_JAVA,
                                     "-XX:TieredStopAtLevel=1",
                                     "-XX:+UseSerialGC",
                                     "-Xmx256m",
                                     "-cp",
                                     DN_STAND_IN_CLASSES,
                                     "standin.StandIn",
                                     std::string(SqlServerStandIn::user),
                                     std::string(SqlServerStandIn::password),
                                     std::string(SqlServerStandIn::database)};
    if (!log.empty()) command.push_back(log.string());
    return command;
}

// Its standard input is what ends it when this program is gone, however it went.
pid_t start(std::vector<std::string> command, int input, int output)
{
    std::vector<char*> arguments;
    for (std::string& argument : command)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t id = 0;
    const int failure = ::posix_spawn(&id, arguments[0], &actions, nullptr, arguments.data(), ::environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (failure != 0) throw std::runtime_error("the stand-in for SQL Server does not start: " + command[0]);
    return id;
}

} // namespace

SqlServerStandIn::SqlServerStandIn(const std::filesystem::path& log)
{
    const Pipe to, from;
    input_ = to.ends[1];
    output_ = from.ends[0];
    id_ = start(commandLine(log), to.ends[0], from.ends[1]);
    ::close(to.ends[0]);
    ::close(from.ends[1]);
    const std::string port = readLine();
    if (port.empty()) throw std::runtime_error("the stand-in for SQL Server ended before it listened");
    port_ = static_cast<unsigned>(std::stoul(port));
}

SqlServerStandIn::~SqlServerStandIn()
{
    kill();
    ::close(input_);
    ::close(output_);
}

std::string SqlServerStandIn::connectionString(std::string_view databaseName, std::string_view application) const
{
    return "DRIVER=" DN_ODBC_FREETDS ";SERVER=127.0.0.1;PORT=" + std::to_string(port_) +
           ";UID=" + std::string(user) + ";PWD={" + std::string(password) +
           "};DATABASE=" + std::string(databaseName) + ";APP=" + std::string(application);
}

void SqlServerStandIn::setClock(const std::optional<std::string>& moment)
{
    const std::string order = "clock " + moment.value_or("run") + "\n";
    const bool sent = ::write(input_, order.data(), order.size()) == static_cast<ssize_t>(order.size());
    if (!sent || readLine() != "ok")
        throw std::runtime_error("the stand-in for SQL Server does not set its clock");
}

std::string SqlServerStandIn::readLine() const
{
    std::string line;
    for (char c = 0; ::read(output_, &c, 1) == 1 && c != '\n';)
        line += c;
    return line;
}

void SqlServerStandIn::kill() noexcept
{
    if (id_ <= 0) return;
    ::kill(id_, SIGKILL);
    while (::waitpid(id_, nullptr, 0) < 0 && errno == EINTR) {
    }
    id_ = 0;
}

void SqlServerStandIn::freeze() const noexcept
{
    if (id_ <= 0 || ::kill(id_, SIGSTOP) != 0) return;
    siginfo_t how{}; // until the last of its threads stands still
    while (::waitid(P_PID, static_cast<id_t>(id_), &how, WSTOPPED | WEXITED | WNOWAIT) < 0 && errno == EINTR) {
    }
}

SqlServerStandIn& sharedStandIn()
{
    const char* const log = std::getenv("DN_STAND_IN_LOG");
    static SqlServerStandIn standIn(log == nullptr ? std::filesystem::path() : std::filesystem::path(log));
    return standIn;
}

} // namespace dn::tests
