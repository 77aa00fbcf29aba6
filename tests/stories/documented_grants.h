// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The account that docs/database.md asks for. On MariaDB the control works with it in every story.
#pragma once

#include "data/connection.h"

#include <memory>
#include <string>
#include <vector>

namespace dn::tests {

/// The grants for MariaDB as the document writes them, on the stories' database.
const std::vector<std::string>& documentedGrants();

/// Makes the account anew, with the documented grants and nothing else.
/// @param owner a connection that may do so, to a database whose tables are there.
void makeDocumentedAccount(data::Connection& owner);

/// A connection of the account to the stories' server.
std::unique_ptr<data::Connection> connectDocumentedAccount();

} // namespace dn::tests
