// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// "Correo": a mail to the party in hand, and its line in the activity log once it was sent.
#pragma once

#include "mail/project_addresses.h"
#include "mail/record_mail.h"

#include "calling/party_in_hand.h"
#include "desk/elements.h"
#include "notes/notes.h"

#include <string>

namespace dn::mail {

class Mail {
public:
    Mail(desk::Elements& elements, calling::PartyInHand& party, ProjectAddresses& addresses, RecordMail& mails,
         notes::Notes& notes)
        : elements_(elements), party_(party), addresses_(addresses), mails_(mails), notes_(notes)
    {
    }

    /// Writes a mail to the selected prospect, whether it has an address or not, or to the addresses of the
    /// selected project. A mail that was sent leaves a note, which takes the place of whatever stands typed in
    /// `txtText`.
    void cmdSend_Click();

private:
    bool toProspect();
    bool toProject();

    desk::Elements& elements_;
    calling::PartyInHand& party_;
    ProjectAddresses& addresses_;
    RecordMail& mails_;
    notes::Notes& notes_;
};

} // namespace dn::mail
