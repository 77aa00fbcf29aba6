// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Whom a call is about: the tab in view tells whether it is a prospect or a project.
#pragma once

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "today/today_panel.h"

#include <cstdint>

namespace dn::calling {

enum class Party : std::uint8_t { none, prospect, project };

class PartyInHand {
public:
    PartyInHand(desk::Elements& elements, desk::TabStrip& tabs, today::TodayPanel& today)
        : elements_(elements), tabs_(tabs), today_(today)
    {
    }

    /// The kind of party of the tab in view. On the tab "Hoy" the record behind the selected row is selected in
    /// its own list first; without a selected row there is no party.
    Party find();

private:
    Party ofTheDay();

    desk::Elements& elements_;
    desk::TabStrip& tabs_;
    today::TodayPanel& today_;
};

} // namespace dn::calling
