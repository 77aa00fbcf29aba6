// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The scripts of schema/, built into the program so that it is one file.
#pragma once

#include <span>
#include <string_view>

namespace dn::host {

struct SchemaScript {
    std::string_view engine; ///< the folder that it lies in
    std::string_view name;
    std::string_view text;
};

/// In the order of their names.
std::span<const SchemaScript> schemaScripts();

} // namespace dn::host
