// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/child_process.h"

#include "host/database/host_error.h"
#include "host/database/patience.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <string_view>
#include <utility>

namespace dn::host {
namespace {

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// The given variables, and our own of other names: of two with one name a library takes the first and a shell the
/// last.
std::vector<std::string> environmentWith(std::vector<std::string> variables)
{
    const std::size_t given = variables.size();
    for (char** own = ::environ; *own != nullptr; ++own) {
        const std::string_view variable = *own;
        const std::string_view name = variable.substr(0, variable.find('=') + 1);
        const auto isGiven = [name](const std::string& one) { return one.starts_with(name); };
        const auto end = variables.begin() + static_cast<std::ptrdiff_t>(given);
        if (std::none_of(variables.begin(), end, isGiven)) variables.emplace_back(variable);
    }
    return variables;
}

/// Signals that the program was started with ignored or blocked would stay so in the server.
void resetSignals()
{
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    for (const int number : {SIGPIPE, SIGTERM, SIGINT, SIGHUP, SIGCHLD})
        std::signal(number, SIG_DFL);
}

/// Between fork and exec of a program with threads only the plainest system calls are safe.
[[noreturn]] void becomeProgram(char* const* arguments, char* const* environment, const char* output, pid_t parent)
{
    constexpr int allDescriptors = ~0;
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (::getppid() != parent) ::_exit(126); // the parent ended before the line above
    ::setsid();
    resetSignals();
    const int in = ::open("/dev/null", O_RDONLY);
    const int out = ::open(output, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    ::dup2(in, STDIN_FILENO);
    ::dup2(out, STDOUT_FILENO);
    ::dup2(out, STDERR_FILENO);
    // The host's sockets and files are not the server's. CLOSE_RANGE_CLOEXEC is 4; older kernels refuse
    // harmlessly.
    ::syscall(SYS_close_range, 3U, static_cast<unsigned>(allDescriptors), 4U);
    ::execve(arguments[0], arguments, environment);
    ::_exit(127);
}

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& arguments, const std::filesystem::path& output,
                           const std::vector<std::string>& variables)
{
    std::vector<std::string> texts = arguments;
    std::vector<std::string> environmentTexts = environmentWith(variables);
    const std::vector<char*> pointers = pointersTo(texts);
    const std::vector<char*> environment = pointersTo(environmentTexts);
    const pid_t parent = ::getpid();
    pid_ = ::fork();
    if (pid_ == 0) becomeProgram(pointers.data(), environment.data(), output.c_str(), parent);
    if (pid_ < 0) throw HostError("No se pudo iniciar «" + arguments.front() + "»: " + systemReason(errno) + ".");
}

ChildProcess::ChildProcess(ChildProcess&& other) noexcept
    : pid_(std::exchange(other.pid_, 0)), status_(std::exchange(other.status_, {}))
{
}

ChildProcess& ChildProcess::operator=(ChildProcess&& other) noexcept
{
    std::swap(pid_, other.pid_);
    std::swap(status_, other.status_);
    return *this;
}

ChildProcess::~ChildProcess()
{
    if (pid_ > 0 && !ended()) stop(std::chrono::milliseconds(0));
}

std::optional<int> ChildProcess::ended()
{
    int status = 0;
    if (pid_ > 0 && !status_ && ::waitpid(pid_, &status, WNOHANG) != 0) status_ = status;
    return status_;
}

bool ChildProcess::stop(std::chrono::milliseconds patience)
{
    if (pid_ <= 0 || ended()) return true;
    ::kill(pid_, SIGTERM);
    if (waitUntil(patience, [this] { return ended().has_value(); })) return true;
    ::kill(pid_, SIGKILL);
    int status = 0;
    ::waitpid(pid_, &status, 0);
    status_ = status;
    return false;
}

} // namespace dn::host
