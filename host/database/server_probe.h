// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Who is there? Questions to a socket and to a data folder, asked without disturbing either.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>

namespace dn::host {

enum class SocketState {
    free,      ///< nothing there, or a socket that a killed server left behind
    listening, ///< somebody accepts connections
    blocked,   ///< a file or a folder of that name
};

SocketState probeSocket(const std::filesystem::path& socket);

/// The process that has the server's files open, by the lock that every server holds on them. A running server on
/// the same data would wait half a minute for it.
std::optional<pid_t> dataHolder(const std::filesystem::path& data);

} // namespace dn::host
