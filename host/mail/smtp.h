// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A mail handed to a mail server by SMTP, encrypted unless the settings say otherwise.
#pragma once

#include "host/mail/mail_settings.h"
#include "host/mail/sending.h"

#include <string>
#include <vector>

namespace dn::host {

/// For whom the server takes a mail; the headers are none of its business.
struct Envelope {
    std::string from;
    std::vector<std::string> recipients;
};

/// The server wants another user or another password.
class LoginRefused : public HostError {
public:
    using HostError::HostError;
};

/// Sends to all recipients or to none: a single one that the server refuses keeps the mail back.
/// @param text the whole mail. @throws HostError why it did not go out, in words for the operator; LoginRefused;
/// SendCancelled.
void sendBySmtp(const MailSettings& settings, const Envelope& envelope, const std::string& text,
                SendProgress& progress);

} // namespace dn::host
