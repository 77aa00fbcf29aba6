// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What happens next to the party of a call: a prospect is asked about until a decision stands, a project is
// opened.
#pragma once

#include "calling/party_in_hand.h"
#include "desk/elements.h"
#include "desk/public_operations.h"
#include "desk/session.h"
#include "prospects/prospect_status.h"
#include "screen/ports.h"

#include <cstdint>

namespace dn::calling {

class CallDecision {
public:
    CallDecision(desk::Session& session, desk::Elements& elements, PartyInHand& party,
                 prospects::ProspectStatus& status, desk::PublicOperations& control, screen::Ports ports)
        : session_(session), elements_(elements), party_(party), status_(status), control_(control), ports_(ports)
    {
    }

    /// Asks what to do with a prospect, whose key is in Call_PK, and does it: another call is scheduled, or
    /// the status of the selected prospect changes. A change that was given up brings the question back; closing
    /// its window ends it.
    void Call_QueHacer();

private:
    std::int16_t ShowQueH();
    void ask();
    void schedule();
    void selectStatus(int position);

    desk::Session& session_;
    desk::Elements& elements_;
    PartyInHand& party_;
    prospects::ProspectStatus& status_;
    desk::PublicOperations& control_;
    screen::Ports ports_;
};

} // namespace dn::calling
