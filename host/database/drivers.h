// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The one place in which the host opens connections through the drivers.
#pragma once

#include "data/connection.h"

#include <memory>
#include <string>

namespace dn::host {

struct MariadbTarget;

/// @throws data::Error when the server refuses or does not answer in time.
std::unique_ptr<data::Connection> openMariadb(const MariadbTarget& target);

/// @param text an ODBC connection string. @throws data::Error as above.
std::unique_ptr<data::Connection> openOdbc(const std::string& text);

} // namespace dn::host
