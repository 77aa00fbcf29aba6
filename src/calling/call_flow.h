// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The guided telephone call: it shows the number, locks the lists and waits until somebody tells what came of it,
// the operator by the buttons of the call panel or the host by the same methods. Nobody dials in here.
#pragma once

#include "calling/call_outcomes.h"
#include "calling/party_in_hand.h"
#include "desk/elements.h"
#include "desk/session.h"
#include "screen/ports.h"
#include "screen/signal.h"

#include <cstdint>
#include <string>

namespace dn::calling {

class CallFlow {
public:
    CallFlow(desk::Session& session, desk::Elements& elements, PartyInHand& party, CallOutcomes& outcomes,
             screen::Dialogs& dialogs)
        : session_(session), elements_(elements), party_(party), outcomes_(outcomes), dialogs_(dialogs)
    {
    }

    /// Starts a call; one in progress is forgotten. Writes nothing to the database.
    /// @param Tabla "ut_icontact" or "Proyecto". @param PK key of the party's row there.
    /// @param Tel the number, or whatever the row has for one.
    void IniciarLlamada(const std::string& Tabla, std::int32_t PK, const std::string& Tel);

    /// Calls the party in hand; without one it says so, or on the tab "Hoy" does nothing.
    /// Like all buttons of a call it does nothing while a step of one has not returned.
    /// @throws RuntimeError for a row that holds no key or no telephone.
    void cmdCall_Click();

    void cmdContesta_Click();
    void cmdOcupado_Click() { nobodyReached(1); }
    void cmdNoContestan_Click() { nobodyReached(2); }
    void cmdFueraServ_Click() { nobodyReached(3); }
    void cmdCancelCall_Click() { nobodyReached(0); }
    void cmdCallCon_Click(std::int16_t Index);
    void cmdOkCall_Click();

    /// Moves the bar, round and round, whether a call is in progress or not.
    void Timer1_Timer();

    /// A call has started: its table, key and number. Raised when the screen shows it and the session holds it.
    screen::Signal<std::string, std::int32_t, std::string> started;

private:
    bool atWork() const { return outcomes_.turn().taken(); }

    Party partyInHand();
    void nobodyReached(std::int16_t motivo);
    void callProspect();
    void callProject();
    void lockLists();
    void showRinging();

    desk::Session& session_;
    desk::Elements& elements_;
    PartyInHand& party_;
    CallOutcomes& outcomes_;
    screen::Dialogs& dialogs_;
};

} // namespace dn::calling
