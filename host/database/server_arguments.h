// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The options that the private server is laid out and started with.
#pragma once

#include "host/database/server_folder.h"

#include <filesystem>
#include <string>
#include <vector>

namespace dn::host {

/// The options that must be the same when the files are laid out and whenever a server opens them.
std::vector<std::string> layoutOptions(const std::filesystem::path& data);

/// Enough memory for the data to be read from it: 128 MB, more for larger data, at most 1 GB and a quarter of the
/// machine's. The server takes it as the data fill it, not at start.
unsigned bufferPoolMegabytes(const std::filesystem::path& data);

/// The whole command line of the server.
std::vector<std::string> serverArguments(const std::filesystem::path& program, const ServerFolder& folder,
                                         unsigned bufferPoolMegabytes);

} // namespace dn::host
