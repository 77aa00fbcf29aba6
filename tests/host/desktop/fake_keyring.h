// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A keyring for tests, in place of the desktop's.
#pragma once

#include "host/desktop/keyring.h"

#include <map>

namespace dn::host {

/// A keyring in memory, which may be missing.
struct FakeKeyring : Keyring {
    bool answers() override { return there; }
    std::optional<std::string> find(const std::string& account) override
    {
        const auto found = kept.find(account);
        return there && found != kept.end() ? std::optional(found->second) : std::nullopt;
    }
    bool keep(const std::string& account, const std::string& password) override
    {
        if (there) kept[account] = password;
        keeps += there ? 1 : 0;
        return there;
    }
    void forget(const std::string& account) override { kept.erase(account); }

    bool there = true;
    std::map<std::string, std::string> kept;
    int keeps = 0; ///< how often something was put into it
};

} // namespace dn::host
