// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Persons and organisations as far as a name among many: who an entry is, and whom it belongs to.
#pragma once

#include "host/database/own_connection.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dn::host {

/// A person or an organisation, as far as a choice among many needs it.
struct Entity {
    bool organisation = false;
    std::int32_t key = 0;
    std::string name;
    std::string telephone;
    std::string email;
};

/// The name of an entry. @return nothing when there is no such entry. @throws data::Error
std::optional<Entity> findEntity(OwnConnection& database, bool organisation, std::int32_t key);

/// The organisation that a person works for; 0 for none, and for a person who is gone. @throws data::Error
std::int32_t organisationOf(OwnConnection& database, std::int32_t person);

/// "Nombre Apellido1 Apellido2", without the parts that are empty.
std::string fullName(const std::string& nombre, const std::string& apellido1, const std::string& apellido2);

} // namespace dn::host
