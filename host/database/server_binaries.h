// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Where the server's programs lie.
#pragma once

#include <filesystem>
#include <vector>

namespace dn::host {

struct ServerBinaries {
    std::filesystem::path server;    ///< mariadbd
    std::filesystem::path installer; ///< mariadb-install-db
};

/// The folders of `PATH`, then those in which distributions keep servers.
std::vector<std::filesystem::path> defaultSearchPath();

/// @throws HostError naming the packages to install when a program is missing.
ServerBinaries findServerBinaries(const std::vector<std::filesystem::path>& searchPath);

} // namespace dn::host
