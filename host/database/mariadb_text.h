// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The text "mariadb://..." by which an operator names a server and a database.
#pragma once

#include "host/database/database_choice.h"

#include <string_view>

namespace dn::host {

bool isMariadbText(std::string_view text);

/// @throws HostError saying in Spanish which part is wrong, and quoting none: any of them may be a piece of a
/// password with a sign in it that should have been written with a percent sign.
MariadbTarget parseMariadbText(std::string_view text);

} // namespace dn::host
