// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The keyring of the desktop session, by the secret service that its desktops have in common.
#pragma once

#include "host/desktop/keyring.h"

namespace dn::host {

/// A keyring that does not answer within some seconds counts as none. One that is locked asks the operator to open
/// it, in a window of its own, and is waited for as long as that takes.
class SecretKeyring : public Keyring {
public:
    bool answers() override;
    std::optional<std::string> find(const std::string& account) override;
    bool keep(const std::string& account, const std::string& password) override;
    void forget(const std::string& account) override;
};

} // namespace dn::host
