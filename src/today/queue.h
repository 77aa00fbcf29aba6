// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The queue of the day: what is due, then what got stuck, as two views of the host's database tell it. Nothing is
// kept here: what happens to a party moves it in or out of the views.
#pragma once

#include "desk/counters.h"
#include "desk/elements.h"
#include "desk/session.h"
#include "desk/tab_strip.h"
#include "screen/ports.h"
#include "today/today_panel.h"

#include <cstdint>
#include <string>

namespace dn::today {

class Queue {
public:
    Queue(desk::Session& session, desk::Elements& elements, desk::TabStrip& tabs, TodayPanel& panel,
          desk::Counters& counters, screen::Clock& clock)
        : session_(session), elements_(elements), tabs_(tabs), panel_(panel), counters_(counters), clock_(clock)
    {
    }

    /// Fills `lvwHoy` anew for the agent in `cbAgente`; the row that was selected is selected again and clicked.
    /// The status filters of prospects and projects go back to their first entries first, and a filter that stood
    /// elsewhere reloads its list. Without a single agent the queue stays as it was. Shows no message: a statement
    /// that fails gives no rows.
    void RefreshRobot();

private:
    void widenLists();
    void readView(const char* view, std::int32_t agente);
    void selectAgain(const std::string& key, std::int16_t tab);
    void enableCommands();

    desk::Session& session_;
    desk::Elements& elements_;
    desk::TabStrip& tabs_;
    TodayPanel& panel_;
    desk::Counters& counters_;
    screen::Clock& clock_;
};

} // namespace dn::today
