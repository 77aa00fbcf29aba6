// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The one place in which the host opens connections through the drivers.
#pragma once

#include "data/connection.h"

#include <memory>

namespace dn::host {

struct MariadbTarget;
struct OdbcTarget;

/// @throws data::Error when the server refuses or does not answer in time.
std::unique_ptr<data::Connection> openMariadb(const MariadbTarget& target);

/// @throws data::Error as above.
std::unique_ptr<data::Connection> openOdbc(const OdbcTarget& target);

} // namespace dn::host
