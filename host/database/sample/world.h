// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the rooms of the sample data share while they write: the connection, chance, the present moment, the sizes.
#pragma once

#include "base/date_time.h"
#include "data/connection.h"
#include "host/database/host_error.h"
#include "host/database/sample/dice.h"
#include "host/database/sql_text.h"

#include <optional>

namespace dn::host::sample {

struct Sizes {
    int agents = 12;
    int organisations = 0;
    int persons = 0;
    int projects = 0;
    int prospects = 0;
};

struct World {
    data::Connection& connection;
    Engine engine;
    Dice dice;
    DateTime now;
    Sizes sizes;
    const Progress& progress;

    /// A key from 1 on, or nothing at times.
    std::optional<int> keyOrNull(int count, int nullPercent)
    {
        if (dice.chance(nullPercent)) return {};
        return dice.between(1, count);
    }
    /// A moment of a working day, so many days away from today (negative: in the past), at a quarter of an hour.
    DateTime workingMoment(int days)
    {
        return now.date().plusDays(days).plusSeconds(std::int64_t{900} * dice.between(9 * 4, 18 * 4));
    }
};

/// Agents, executives, cities, goals, kinds of activity, learnt values.
void writeCatalogues(World& world);
void writeDirectory(World& world);
/// With their activities and the lines of the log that belong to them.
void writeProjects(World& world);
/// With the lines of the log that belong to them.
void writeProspects(World& world);

} // namespace dn::host::sample
