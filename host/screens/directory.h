// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Persons and organisations as the host's forms read and write them.
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

/// Empty texts are stored as nulls, so that the lists find the next telephone or address.
struct Person {
    std::string nombre, apellido1, apellido2, puesto, email, telTrabajo, telMovil, domicilio, colonia, codPostal;
    std::int32_t organizacion = 0; ///< 0 for none
};

struct Organisation {
    std::string nombre, nomComercial, tel1, tel2, email, webSite, domicilio, colonia, codPostal;
};

// All of these throw data::Error with what the server said, and HostError when the row is gone.

Person readPerson(OwnConnection& database, std::int32_t key);
Organisation readOrganisation(OwnConnection& database, std::int32_t key);

/// @param agent who looks after the new entry, 0 for nobody. @return its key.
std::int32_t insertPerson(OwnConnection& database, const Person& person, std::int32_t agent);
std::int32_t insertOrganisation(OwnConnection& database, const Organisation& organisation, std::int32_t agent);

/// Writes what the forms show; whatever else the row holds stays as it is.
void updatePerson(OwnConnection& database, std::int32_t key, const Person& person);
void updateOrganisation(OwnConnection& database, std::int32_t key, const Organisation& organisation);

/// The name of an entry. @return nothing when there is no such entry.
std::optional<Entity> findEntity(OwnConnection& database, bool organisation, std::int32_t key);

/// "Nombre Apellido1 Apellido2", without the parts that are empty.
std::string fullName(const std::string& nombre, const std::string& apellido1, const std::string& apellido2);

/// A new global identifier, 32 hexadecimal digits.
std::string newGuid();

} // namespace dn::host
