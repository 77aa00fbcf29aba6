// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Deleting a person or an organisation, unless something still hangs on it.
#pragma once

#include "host/screens/context.h"
#include "host/screens/party_field.h"

namespace dn::host {

/// Tells the operator why an entry cannot go, or asks where `confirm` is set, and deletes it.
/// @return whether the entry is not there any more. @throws data::Error
bool removeEntry(ScreenContext& context, PartyField::Kind kind, std::int32_t key, bool confirm, QWidget* over);

} // namespace dn::host
