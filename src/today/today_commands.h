// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the operator does to a party of the queue: correcting or opening it, and making a project of a prospect.
//
// None of the commands passes over a failure: it reaches the host.
#pragma once

#include "desk/elements.h"
#include "desk/host_screens.h"
#include "prospects/prospect_conversion.h"
#include "prospects/prospect_editing.h"
#include "screen/ports.h"
#include "today/queue.h"

namespace dn::today {

class TodayCommands {
public:
    TodayCommands(desk::TodayElements& today, Queue& queue, prospects::ProspectEditing& editing,
                  prospects::ProspectConversion& conversion, desk::HostScreens& screens, screen::Dialogs& dialogs)
        : today_(today),
          queue_(queue),
          editing_(editing),
          conversion_(conversion),
          screens_(screens),
          dialogs_(dialogs)
    {
    }

    /// Lets the operator correct the selected prospect, or opens the selected project in the host's screen, and
    /// loads the queue anew.
    void cmdEditHoy_Click();

    void lvwHoy_DblClick();

    /// Makes a project of the selected prospect and loads the queue anew.
    void geProyFromContacto_Click();

private:
    desk::TodayElements& today_;
    Queue& queue_;
    prospects::ProspectEditing& editing_;
    prospects::ProspectConversion& conversion_;
    desk::HostScreens& screens_;
    screen::Dialogs& dialogs_;
};

} // namespace dn::today
