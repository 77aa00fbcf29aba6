// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// How this user's mail goes out: a file that he writes himself, and variables of the environment, which win over
// it.
//
//     # ~/.config/dncontacts/mail.ini                          variable
//     url       = smtp://correo.example.com:587               DNCONTACTS_SMTP_URL
//     user      = ana                                         DNCONTACTS_SMTP_USER
//                                                             DNCONTACTS_SMTP_PASSWORD
//     from      = ana@example.com                             DNCONTACTS_SMTP_FROM
//     name      = Ana López                                   DNCONTACTS_SMTP_NAME
//     tls       = yes                                         DNCONTACTS_SMTP_TLS
//     ca        = /etc/ssl/empresa.pem                        DNCONTACTS_SMTP_CA
//     timeout   = 60                                          DNCONTACTS_SMTP_TIMEOUT
//     limit     = 25                                          DNCONTACTS_SMTP_LIMIT
//     templates = /srv/plantillas                             DNCONTACTS_MAIL_TEMPLATES
//     outbox    = /home/ana/correo                            DNCONTACTS_MAIL_OUTBOX
//
// Without an url mails go into a folder, the outbox, one file each. The password lies in the desktop's keyring;
// see mail_password.h, which also tells what becomes of one that stands in the file as `password = ...`.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace dn::host {

struct MailSettings {
    std::string url;  ///< empty: the outbox
    std::string user; ///< empty: the server wants no login
    std::string password;
    std::string from; ///< the sender's address
    std::string name; ///< the sender's name; empty: the name of who works
    bool tls = true;  ///< no mail goes out in the clear
    std::string ca;   ///< a file with certificates to trust; empty: those of the system
    int timeout = 60; ///< seconds without an answer
    int limit = 25;   ///< megabytes of attachments that a mail may carry
    std::filesystem::path templates;
    std::filesystem::path outbox;

    std::filesystem::path file; ///< that they were read from
    std::string openPassword;   ///< which stands there for everybody who reads it

    std::string problem;               ///< why no mail can go out, for the operator; empty when it can
    std::vector<std::string> warnings; ///< what he should know besides

    bool toOutbox() const { return url.empty(); }
    bool wantsPassword() const { return !toOutbox() && !user.empty(); }
    /// The server's name, for the operator.
    std::string host() const;
};

/// Where the user's file lies.
std::filesystem::path mailSettingsFile();

/// Takes every line with a password out of the user's file and leaves the others to the byte.
/// @return false when the file could not be written; it is then as it was.
bool removePassword(const std::filesystem::path& file);

/// Reads the file, if there is one, and the environment. Never throws: what is wrong is told in the result.
/// @param dataFolder in which the outbox lies unless the settings name another place.
MailSettings readMailSettings(const std::filesystem::path& file, const std::filesystem::path& dataFolder);

} // namespace dn::host
