// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A program that a test starts and that never outlives it, and the way in which a daemon says that it is ready.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace dn::tests {

/// The path of a program, looked for in PATH and in the folders of system programs, which an ordinary user's PATH
/// lacks. @throws std::runtime_error when it is not installed.
std::string findProgram(std::string_view name);

class ChildProcess {
public:
    /// @param command the program's path and its arguments. @param environment "NAME=value", beside our own.
    /// @param output takes what it writes to either stream.
    ChildProcess(const std::vector<std::string>& command, const std::vector<std::string>& environment,
                 const std::filesystem::path& output);
    ~ChildProcess(); ///< kills it, if it still runs
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t id() const { return id_; }
    int wait();                 ///< the exit code, -1 after a signal
    void stop() const noexcept; ///< SIGSTOP, and waits until all its threads stand still
    void resume() const noexcept;
    void killAndWait() noexcept;

private:
    pid_t id_ = 0; // 0 once it is gone
};

/// The socket on which a daemon announces itself by the protocol of sd_notify.
class ReadySocket {
public:
    explicit ReadySocket(const std::filesystem::path& path);
    ~ReadySocket();
    ReadySocket(const ReadySocket&) = delete;
    ReadySocket& operator=(const ReadySocket&) = delete;

    /// The variable that the daemon looks for.
    std::string environment() const { return "NOTIFY_SOCKET=" + path_; }
    /// @return whether the daemon became ready; false when it ended, or after 60 seconds.
    bool waitFor(const ChildProcess& daemon) const;

private:
    std::string path_;
    int socket_ = -1;
};

} // namespace dn::tests
