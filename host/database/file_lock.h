// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A lock between programs: two that start on one data folder for the first time must not both lay it out.
#pragma once

#include "host/database/unique_fd.h"

#include <chrono>
#include <filesystem>
#include <stop_token>

namespace dn::host {

/// Held until the object goes away, or the process does.
class FileLock {
public:
    /// Makes the file if need be and waits for the lock.
    /// @throws HostError when the file cannot be written, or another program holds the lock for longer than that
    /// or than anybody wants to wait.
    FileLock(const std::filesystem::path& file, std::chrono::milliseconds patience,
             const std::stop_token& givenUp = {});

private:
    UniqueFd fd_;
};

} // namespace dn::host
