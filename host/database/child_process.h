// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A program that this one starts, watches and ends.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace dn::host {

/// The program gets SIGTERM when the thread that started it ends, however that happens; so start it from a thread
/// that lives as long as the program, the main one. It runs in a session of its own: an interrupt from the
/// keyboard does not reach it.
class ChildProcess {
public:
    ChildProcess() = default;
    /// @param arguments the path of the program first.
    /// @param output takes what the program writes to both of its outputs; the file is made anew.
    /// @param variables "NAME=value", beside those of our own environment.
    /// @throws HostError when no process can be made. A program that cannot be run ends with 127.
    ChildProcess(const std::vector<std::string>& arguments, const std::filesystem::path& output,
                 const std::vector<std::string>& variables = {});
    ChildProcess(ChildProcess&& other) noexcept;
    ChildProcess& operator=(ChildProcess&& other) noexcept;
    ~ChildProcess(); ///< kills what still runs

    pid_t pid() const { return pid_; }
    /// The wait status once the program has ended.
    std::optional<int> ended();
    /// SIGTERM, and SIGKILL after that time.
    /// @return whether it ended by itself in time.
    bool stop(std::chrono::milliseconds patience);

private:
    pid_t pid_ = 0;
    std::optional<int> status_;
};

} // namespace dn::host
