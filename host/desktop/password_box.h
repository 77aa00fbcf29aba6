// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Asks for a password that no keyring knows.
#pragma once

#include <QString>

#include <optional>
#include <string>

namespace dn::host {

struct PasswordAnswer {
    std::string password;
    bool keep = false; ///< in the keyring
};

/// @param account whose password it is. @param canKeep whether there is a keyring.
/// @return nothing when the operator gives up. The window's object name is "PedirClave".
std::optional<PasswordAnswer> askPassword(const QString& account, bool canKeep);

} // namespace dn::host
