// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/server_binaries.h"

#include "host/database/host_error.h"

#include <unistd.h>

#include <cstdlib>
#include <sstream>

namespace dn::host {
namespace fs = std::filesystem;
namespace {

fs::path find(const std::vector<fs::path>& folders, const char* program)
{
    std::error_code error;
    for (const fs::path& folder : folders) {
        fs::path candidate = folder / program;
        if (fs::is_regular_file(candidate, error) && ::access(candidate.c_str(), X_OK) == 0) return candidate;
    }
    throw HostError(
        "Falta el servidor de base de datos: no se encontró el programa «" + std::string(program) +
        "». Instale los paquetes mariadb-server-core y mariadb-client-core, o indique otra base de datos "
        "con --connect.");
}

} // namespace

std::vector<fs::path> defaultSearchPath()
{
    std::vector<fs::path> folders;
    const char* path = std::getenv("PATH"); // NOLINT(concurrency-mt-unsafe)
    std::istringstream parts(path == nullptr ? "" : path);
    for (std::string part; std::getline(parts, part, ':');)
        if (!part.empty()) folders.emplace_back(part);
    folders.insert(folders.end(), {"/usr/sbin", "/usr/libexec", "/usr/bin", "/usr/local/sbin", "/usr/local/bin"});
    return folders;
}

ServerBinaries findServerBinaries(const std::vector<fs::path>& searchPath)
{
    return {find(searchPath, "mariadbd"), find(searchPath, "mariadb-install-db")};
}

} // namespace dn::host
