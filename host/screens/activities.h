// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The activities of a project while its form is open: changed in memory, and stored together with the project.
#pragma once

#include "host/screens/record.h"

#include <cstdint>
#include <vector>

namespace dn::host {

/// The columns of an activity's row.
namespace activity_column {
inline constexpr std::size_t when = 0;
inline constexpr std::size_t kind = 1;
inline constexpr std::size_t subject = 2;
inline constexpr std::size_t done = 3;
inline constexpr std::size_t project = 4;
} // namespace activity_column

struct Activity {
    std::int32_t key = 0; ///< 0 for one that is not stored yet
    Values base;          ///< as it was read
    Values now;

    bool isDone() const { return now[activity_column::done] != "0"; }
    bool changed() const { return key == 0 || now != base; }
};

/// Those to do first, in the order of their dates. @throws data::Error
std::vector<Activity> readActivities(OwnConnection& database, std::int32_t project);

/// Stores what changed, in a transaction of the caller.
/// @throws data::Error; HostError when another operator changed or deleted one meanwhile. What that one did counts
/// as read from then on, so that the next attempt goes through.
void storeActivities(OwnConnection& database, std::vector<Activity>& activities);

} // namespace dn::host
