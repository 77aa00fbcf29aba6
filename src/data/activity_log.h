// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The rows of the activity log `xt_biticontact`: everything that happens to a prospect or a project leaves one.
// Rows are never changed nor deleted.
//
// The texts are joined in as they are. Who writes a text that an operator typed cleans it first, or lets an
// apostrophe break the statement, as each command is meant to.
#pragma once

#include <string>
#include <string_view>

namespace dn::data::bitacora {

/// The row of a prospect. @param key the prospect's key in decimal.
std::string prospectRow(std::string_view message, std::string_view usuario, std::string_view key);

/// The row of a project, which stands for no prospect. @param key the project's key in decimal.
std::string projectRow(std::string_view message, std::string_view usuario, std::string_view key);

/// The rows of a party, the oldest first.
std::string prospectRows(std::string_view key);
std::string projectRows(std::string_view key);

} // namespace dn::data::bitacora
