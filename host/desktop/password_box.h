// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Asks for a password that no keyring knows.
#pragma once

#include <QString>

#include <optional>
#include <string>

class QWidget;

namespace dn::host {

struct PasswordAnswer {
    std::string password;
    bool keep = false; ///< in the keyring
};

/// What the window says.
struct PasswordQuestion {
    QString title;
    QString account; ///< whose password it is
    QString accepts; ///< the captions of the buttons
    QString rejects;
    bool canKeep = false; ///< there is a keyring
};

/// @return nothing when the operator gives up. The window's object name is "PedirClave".
std::optional<PasswordAnswer> askPassword(const PasswordQuestion& question, QWidget* over);

} // namespace dn::host
