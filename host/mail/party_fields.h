// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What is known of the party that a mail goes to: the fields that a template may name.
#pragma once

#include "host/database/own_connection.h"

#include <map>
#include <string>

namespace dn::host {

/// By the fields' names: nombre, empresa, puesto, telefono, correo, ciudad, estado, pais, proyecto, meta, usuario,
/// fecha. Each is there; what is not known is empty.
using PartyFields = std::map<std::string, std::string>;

PartyFields emptyFields();

/// @param record "CT." or "PY." and the identifier. A record that is not there gives empty fields.
/// @throws data::Error
PartyFields partyFields(OwnConnection& database, const std::string& record);

/// The text with each "{field}" as its value; the names' letter case does not matter. A field that is unknown or
/// empty stays as it is, for the operator to see. What a value holds is never taken for a field.
std::string filled(std::string_view text, const PartyFields& fields);

/// The first field that stands in a text still, with its brackets; empty when there is none.
std::string fieldLeft(std::string_view text, const PartyFields& fields);

} // namespace dn::host
