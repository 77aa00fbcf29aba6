// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Where passwords are kept between two starts, as a port: the desktop's keyring, or what a test puts in its place.
// Nothing else of this program ever writes a password down.
#pragma once

#include <optional>
#include <string>

namespace dn::host {

class Keyring {
public:
    Keyring() = default;
    Keyring(const Keyring&) = delete;
    Keyring& operator=(const Keyring&) = delete;
    virtual ~Keyring() = default;

    /// Whether there is a keyring at all.
    virtual bool answers() = 0;
    /// The password of an account; nothing when none is kept, or when the operator does not open the keyring.
    virtual std::optional<std::string> find(const std::string& account) = 0;
    /// Keeps a password in place of what was there. @return false when the keyring did not take it.
    virtual bool keep(const std::string& account, const std::string& password) = 0;
    virtual void forget(const std::string& account) = 0;
};

/// The password that is kept for an account; an empty text when none is, or an empty one.
inline std::string keptPassword(Keyring& keyring, const std::string& account)
{
    return keyring.find(account).value_or(std::string());
}

} // namespace dn::host
