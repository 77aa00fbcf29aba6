// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The password of the mail server. It lies in the desktop's keyring; where there is none, or the operator does not
// want it kept, he is asked for it once and it is known until the program ends. It is written into no file, and
// one that stands in the user's settings is moved.
#pragma once

#include "host/desktop/keyring.h"
#include "host/desktop/password_box.h"
#include "host/mail/mail_settings.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

class QWidget;

namespace dn::host {

/// The name under which a keyring keeps the password.
std::string accountOf(const MailSettings& settings);

class MailPassword {
public:
    /// @param keyring outlives this.
    explicit MailPassword(Keyring& keyring) : keyring_(keyring) {}

    /// Moves a password that stands in the user's file into the keyring. Where that cannot be, the file stays as
    /// it is, so that nobody loses his password, and the settings have a warning more.
    void takeIn(MailSettings& settings);

    /// Gives the settings the password that their server wants: as it is known, else as the operator types it.
    /// @return false when he gives up.
    bool provide(MailSettings& settings, QWidget* over);

    /// The server took it: only now is a typed one kept.
    void accepted(const MailSettings& settings);
    /// The server refused it: the operator is asked for the next one.
    void refused(const MailSettings& settings);

private:
    std::optional<std::string> known(const MailSettings& settings, const std::string& account);

    Keyring& keyring_;
    std::map<std::string, std::string> known_;              // by account, until the program ends
    std::map<std::string, PasswordAnswer> typed_;           // and not taken by the server yet
    std::set<std::pair<std::string, std::string>> refused_; // accounts with their passwords
};

} // namespace dn::host
