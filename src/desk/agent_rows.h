// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The agents, as they are read from the table `Agente` into a list or a combo.
#pragma once

#include "data/recordset.h"
#include "screen/item_list.h"

namespace dn::desk {

/// The agents in the order of their names.
inline constexpr const char* agentsStatement = "Select Sys_PK, Nombre From Agente Order By Nombre";

/// Adds an entry for each agent, with his key for item data.
/// @throws RuntimeError without a recordset, for a null, and for a key that does not fit; data::Error when the
/// server fails. What was added until then stays.
void addAgents(screen::ItemList& list, data::Recordset* agents);

} // namespace dn::desk
