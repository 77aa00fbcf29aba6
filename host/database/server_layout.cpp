// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/server_layout.h"

#include "host/database/child_process.h"
#include "host/database/host_error.h"
#include "host/database/patience.h"
#include "host/database/server_arguments.h"
#include "host/database/server_log.h"
#include "host/database/unique_fd.h"

#include <fcntl.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace dn::host {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view unfinished = "datos.nuevo.";
constexpr auto installPatience = std::chrono::minutes(3);

void removeUnfinished(const fs::path& root)
{
    std::error_code ignored; // what cannot be removed is in nobody's way: each attempt has a name of its own
    for (const fs::directory_entry& entry : fs::directory_iterator(root, ignored))
        if (entry.path().filename().string().starts_with(unfinished)) fs::remove_all(entry.path(), ignored);
}

void requireRoom(const ServerFolder& folder, std::uintmax_t bytes)
{
    if (freeBytes(folder.root) >= bytes) return;
    throw HostError("No queda espacio en el disco para crear la base de datos en «" + folder.root.string() +
                    "»: hacen falta " + std::to_string(bytes >> 20U) +
                    " MB. Libere espacio o elija otra carpeta de datos.");
}

HostError installFailed(const ServerFolder& folder)
{
    std::string lines = complaints(folder.installLog, 8);
    if (lines.empty()) lines = lastLines(folder.installLog, 12);
    return HostError{"No se pudo crear la base de datos en «" + folder.root.string() + "». De «" +
                     folder.installLog.string() + "»:\n" + lines};
}

void install(const ServerFolder& folder, const ServerBinaries& programs, const fs::path& fresh)
{
    std::vector<std::string> arguments{programs.installer.string(), "--no-defaults"};
    for (const std::string& option : layoutOptions(fresh))
        arguments.push_back(option);
    // The folder, closed to others, guards the server: accounts tied to a name of the system would break when the
    // user's home moves to another name. A machine that cannot look up its own name is good enough, too: nothing
    // here goes over the network (--force).
    for (const char* option :
         {"--auth-root-authentication-method=normal", "--skip-test-db", "--skip-name-resolve", "--force"})
        arguments.emplace_back(option);
    // The installer is a server, and a server that starts removes every temporary table in its folder: in one that
    // is shared, those of another installation as well. A variable, since the script cannot hand on an option with
    // blanks.
    ChildProcess installer(arguments, folder.installLog, {"TMPDIR=" + folder.tmp.string()});
    const bool done = waitUntil(installPatience, [&] { return installer.ended().has_value(); });
    if (!done || *installer.ended() != 0) throw installFailed(folder);
}

void writeThrough(const fs::path& path)
{
    const UniqueFd fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (fd) ::fsync(fd.get());
}

/// The renamed folder must not hold files that a power failure would find empty.
void writeThroughAll(const fs::path& folder)
{
    std::error_code ignored; // without it the files are written a little later
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder, ignored))
        writeThrough(entry.path());
    writeThrough(folder);
}

} // namespace

bool isLaidOut(const ServerFolder& folder)
{
    std::error_code error;
    return fs::exists(folder.data, error);
}

void layOut(const ServerFolder& folder, const ServerBinaries& programs, std::uintmax_t minimumFreeBytes)
{
    removeUnfinished(folder.root);
    requireRoom(folder, minimumFreeBytes);
    const fs::path fresh = folder.root / (std::string(unfinished) + std::to_string(::getpid()));
    install(folder, programs, fresh);
    writeThroughAll(fresh);
    std::error_code error;
    fs::rename(fresh, folder.data, error);
    if (error) throw installFailed(folder);
}

} // namespace dn::host
