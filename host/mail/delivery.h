// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// How a mail goes out: to the server or into the outbox.
#pragma once

#include "host/mail/mail_settings.h"
#include "host/mail/message.h"
#include "host/mail/sending.h"

namespace dn::host {

/// Gives a message its moment and an identifier that no other has.
void stamp(Message& message);

/// What sends a message, to be run on a thread of its own. It needs neither of the arguments any longer.
Sending::Work delivery(const MailSettings& settings, const Message& message);

} // namespace dn::host
