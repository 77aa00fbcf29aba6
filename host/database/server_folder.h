// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The folder of the private server: what lies where in it, and making it.
//
//   datos/         the server's own files
//   datos.nuevo.*  a first initialisation that is not done; renamed to datos/ when it is
//   tmp/           sort files and the like
//   ejecucion/     the socket; here or, when its path would be too long, in a private folder elsewhere
//   candado        lock between programs that start
//   servidor.log   the server's log since its last start, servidor.log.anterior the one before
#pragma once

#include <filesystem>
#include <string>

namespace dn::host {

struct ServerFolder {
    std::filesystem::path root, data, tmp, lock, log, installLog;
    std::filesystem::path socket; ///< under 107 bytes
};

/// `$XDG_DATA_HOME/dncontacts`, or `~/.local/share/dncontacts`.
/// @throws HostError when neither variable is set.
std::filesystem::path defaultDataFolder();

/// Makes the folder and its parts, for the user alone (mode 0700), and finds a place for the socket.
/// @throws HostError when it cannot be made, naming the reason.
ServerFolder prepareServerFolder(const std::filesystem::path& given);

/// Bytes that are free where the folder lies.
std::uintmax_t freeBytes(const std::filesystem::path& folder);

} // namespace dn::host
