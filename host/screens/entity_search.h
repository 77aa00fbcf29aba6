// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Finding persons and organisations by what an operator remembers of them.
#pragma once

#include "host/database/own_connection.h"
#include "host/screens/directory.h"

#include <string>
#include <vector>

namespace dn::host {

/// As many as a search gives.
inline constexpr std::int32_t searchLimit = 200;

struct SearchScope {
    bool persons = true;
    bool organisations = true;
};

/// Entries whose name begins with the text first, in alphabetical order; the index over the names finds them.
/// From three letters on, and while there is room, those follow that hold the text anywhere in name, trade name,
/// telephone or mail address; that takes a pass over the table. An empty text gives the first entries. Nothing in
/// the text is a wildcard.
/// @throws data::Error
std::vector<Entity> searchEntities(OwnConnection& database, const std::string& text, SearchScope scope);

/// Those of exactly that name, without regard to case.
std::vector<Entity> entitiesNamed(const std::vector<Entity>& found, const std::string& name);

} // namespace dn::host
