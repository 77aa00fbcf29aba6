// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What happens next to the party of a call: a prospect is asked about until a decision stands, a project is
// opened.
#pragma once

#include "calling/party_in_hand.h"
#include "desk/public_operations.h"
#include "desk/session.h"
#include "projects/project_commands.h"
#include "prospects/prospect_status.h"
#include "screen/combo_box.h"
#include "screen/ports.h"

#include <cstdint>

namespace dn::calling {

class CallDecision {
public:
    CallDecision(desk::Session& session, screen::ComboBox& Combo1, PartyInHand& party,
                 prospects::ProspectStatus& status, projects::ProjectCommands& projects,
                 desk::PublicOperations& control, screen::Ports ports)
        : session_(session),
          Combo1_(Combo1),
          party_(party),
          status_(status),
          projects_(projects),
          control_(control),
          ports_(ports)
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
    screen::ComboBox& Combo1_;
    PartyInHand& party_;
    prospects::ProspectStatus& status_;
    projects::ProjectCommands& projects_;
    desk::PublicOperations& control_;
    screen::Ports ports_;
};

} // namespace dn::calling
