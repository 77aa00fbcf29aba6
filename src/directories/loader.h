// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the two directories have in common when they are loaded: the agent's filter, the rows and the failure.
// Which buttons need a row is each one's own.
#pragma once

#include "data/recordset.h"
#include "desk/counters.h"
#include "desk/elements.h"
#include "desk/session.h"
#include "directories/kind.h"
#include "screen/ports.h"

#include <cstdint>
#include <initializer_list>

namespace dn::directories {

class Loader {
public:
    Loader(desk::Session& session, desk::TopElements& top, desk::Counters& counters, screen::Dialogs& dialogs)
        : session_(session), top_(top), counters_(counters), dialogs_(dialogs)
    {
    }

    /// Fills the list anew for the agent in `cbAgente`; without one, and for "< Sin asignar >", with the entries
    /// of everybody. A failure is told: a statement that fails leaves the former rows, a row that fails the rows
    /// ahead of it, and both leave buttons and counters as they were.
    /// @param needRow enabled when the list has a row, else disabled.
    void load(const Kind& kind, screen::ListView& list, std::initializer_list<desk::Button*> needRow);

    /// The agent that a new entry belongs to: the one in `cbAgente`, 0 for "< Sin asignar >" and without one.
    std::int32_t agentForNewEntry() const;

private:
    desk::Session& session_;
    desk::TopElements& top_;
    desk::Counters& counters_;
    screen::Dialogs& dialogs_;
};

} // namespace dn::directories
