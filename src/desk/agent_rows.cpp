// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "desk/agent_rows.h"

#include "base/runtime_error.h"

namespace dn::desk {

void addAgents(screen::ItemList& list, data::Recordset* agents)
{
    if (agents == nullptr) throw RuntimeError::objectNotSet(); // an update in disguise: there is nothing to read
    while (!agents->Eof()) {
        list.AddItem(agents->Fields()("Nombre").Value().toText());
        list.ItemData(list.NewIndex(), agents->Fields()("Sys_PK").Value().toInt32());
        agents->MoveNext();
    }
}

} // namespace dn::desk
