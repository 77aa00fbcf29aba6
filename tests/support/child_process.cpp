// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/child_process.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <stdexcept>

namespace dn::tests {
namespace {

std::vector<char*> pointers(std::vector<std::string>& texts)
{
    std::vector<char*> result;
    result.reserve(texts.size() + 1);
    for (std::string& text : texts)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

std::vector<std::string> fullEnvironment(const std::vector<std::string>& own)
{
    std::vector<std::string> variables(own);
    for (char** variable = ::environ; *variable != nullptr; ++variable)
        variables.emplace_back(*variable);
    return variables;
}

// Between fork and exec: only calls that are safe there.
[[noreturn]] void becomeProgram(pid_t parent, int output, char* const* arguments, char* const* environment)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent) ::_exit(127); // it died before the wish was known
    ::dup2(output, STDOUT_FILENO);
    ::dup2(output, STDERR_FILENO);
    ::execve(arguments[0], arguments, environment);
    ::_exit(127);
}

} // namespace

std::string findProgram(std::string_view name)
{
    const char* const path = std::getenv("PATH");
    std::istringstream folders(std::string(path == nullptr ? "" : path) + ":/usr/sbin:/usr/local/sbin:/usr/bin");
    for (std::string folder; std::getline(folders, folder, ':');) {
        const std::filesystem::path program = std::filesystem::path(folder) / name;
        if (::access(program.c_str(), X_OK) == 0) return program.string();
    }
    throw std::runtime_error("the program " + std::string(name) + " is not installed");
}

ChildProcess::ChildProcess(const std::vector<std::string>& command, const std::vector<std::string>& environment,
                           const std::filesystem::path& output)
{
    std::vector<std::string> arguments(command);
    std::vector<std::string> variables = fullEnvironment(environment);
    const std::vector<char*> argumentPointers = pointers(arguments);
    const std::vector<char*> variablePointers = pointers(variables);
    const int file = ::open(output.c_str(), O_CREAT | O_APPEND | O_WRONLY | O_CLOEXEC, 0600);
    const pid_t parent = ::getpid();
    id_ = ::fork();
    if (id_ == 0) becomeProgram(parent, file, argumentPointers.data(), variablePointers.data());
    ::close(file);
    if (id_ < 0) throw std::runtime_error("cannot start " + command.front());
}

ChildProcess::~ChildProcess() { killAndWait(); }

int ChildProcess::wait()
{
    int status = 0;
    while (::waitpid(id_, &status, 0) < 0 && errno == EINTR) {
    }
    id_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void ChildProcess::stop() const noexcept
{
    if (id_ <= 0 || ::kill(id_, SIGSTOP) != 0) return;
    siginfo_t how{};
    while (::waitid(P_PID, static_cast<id_t>(id_), &how, WSTOPPED | WEXITED | WNOWAIT) < 0 && errno == EINTR) {
    }
}

void ChildProcess::resume() const noexcept
{
    if (id_ > 0) ::kill(id_, SIGCONT);
}

void ChildProcess::killAndWait() noexcept
{
    if (id_ <= 0) return;
    ::kill(id_, SIGKILL);
    wait();
}

ReadySocket::ReadySocket(const std::filesystem::path& path)
    : path_(path.string()), socket_(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0))
{
    ::unlink(path_.c_str());
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path_.size() >= sizeof address.sun_path) throw std::runtime_error("path too long for a socket: " + path_);
    std::memcpy(address.sun_path, path_.c_str(), path_.size() + 1);
    if (::bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        throw std::runtime_error("cannot listen on " + path_);
}

ReadySocket::~ReadySocket()
{
    ::close(socket_);
    ::unlink(path_.c_str());
}

bool ReadySocket::waitFor(const ChildProcess& daemon) const
{
    const int watched = static_cast<int>(::syscall(SYS_pidfd_open, daemon.id(), 0));
    std::array<pollfd, 2> events{{{socket_, POLLIN, 0}, {watched, POLLIN, 0}}};
    bool ready = false;
    while (!ready && ::poll(events.data(), events.size(), 60'000) > 0 && events[0].revents != 0) {
        std::array<char, 4096> message{};
        const ssize_t size = ::recv(socket_, message.data(), message.size(), 0);
        if (size > 0)
            ready = std::string_view(message.data(), static_cast<std::size_t>(size)).find("READY=1") !=
                    std::string_view::npos;
    }
    ::close(watched);
    return ready;
}

} // namespace dn::tests
