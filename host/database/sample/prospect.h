// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One prospect of the sample data: first the facts that hang together, then the row.
#pragma once

#include "host/database/bulk_insert.h"
#include "host/database/sample/world.h"

#include <optional>
#include <string>
#include <string_view>

namespace dn::host::sample {

struct Prospect {
    int key = 0;
    int status = 0;
    int age = 0; ///< days since it came
    std::optional<int> agent;
    std::optional<int> kind; ///< uf_Tipo
    std::string name;
    std::string telephone;
    std::string reason; ///< of the status
    DateTime created;
    std::optional<DateTime> statusTime, nextContact, firstContact, lastContact, lastAttempt;
    std::optional<int> result;

    /// Who works on it, for the log: somebody took even an unassigned one.
    int worker() const { return agent.value_or(0) > 0 ? *agent : 1; }
};

Prospect inventProspect(World& world, int key);

extern const std::string_view prospectColumns;
void writeProspect(World& world, BulkInsert& rows, const Prospect& prospect);

} // namespace dn::host::sample
