// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The first start: laying out the server's files, whole or not at all.
#pragma once

#include "host/database/server_binaries.h"
#include "host/database/server_folder.h"

#include <cstdint>

namespace dn::host {

bool isLaidOut(const ServerFolder& folder);

/// Lays the files out under another name and renames them when all is done, so that an interrupted first start
/// leaves nothing that a later one would take for data.
/// @throws HostError when there is no room for them, or the installer fails.
void layOut(const ServerFolder& folder, const ServerBinaries& programs, std::uintmax_t minimumFreeBytes);

} // namespace dn::host
