// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the end of a call writes: the attempt in the party's row and a line in its log. Each ending takes the
// screen back to where no call is, asks what happens next and loads the list in sight anew.
#pragma once

#include "calling/call_decision.h"
#include "calling/list_in_sight.h"
#include "calling/turn.h"
#include "desk/elements.h"
#include "desk/session.h"
#include "notes/notes.h"
#include "screen/ports.h"
#include "screen/signal.h"

#include <cstdint>
#include <string>

namespace dn::calling {

class CallOutcomes {
public:
    CallOutcomes(desk::Session& session, desk::Elements& elements, notes::Notes& notes, CallDecision& decision,
                 ListInSight& list, screen::Dialogs& dialogs)
        : session_(session),
          elements_(elements),
          notes_(notes),
          decision_(decision),
          list_(list),
          dialogs_(dialogs)
    {
    }

    /// The line was answered. @param R 6 or more: with contact, on to the summary. Below 6: the reason why no
    /// contact came of it, an index of `cmdCallCon`; 5 asks for the reason.
    void Call_Connect(std::int16_t R);

    /// Ends a call with contact. @param S what was said.
    void Call_Resumen(const std::string& S);

    /// Ends a call. @param motivo 0 cancelled, which stores nothing; 1 busy, 2 no answer, 3 out of service.
    void Call_NoConnect(std::int16_t motivo);

    /// Asks what happens next with the selected prospect, without a call; not during one.
    void lvw_DblClick();

    /// Held by each ending, and by the question of a double click, until it has returned.
    Turn& turn() { return turn_; }

    /// A call has ended. Raised when the screen is back and the outcome of a call that reached nobody is written,
    /// ahead of the question. The question and what is written behind it still go by the call in hand.
    screen::Signal<> ended;

private:
    void toSummary();
    std::string reasonOf(std::int16_t R);
    void note(const std::string& text);
    void execute(const std::string& statement);
    void toIdle();

    desk::Session& session_;
    desk::Elements& elements_;
    notes::Notes& notes_;
    CallDecision& decision_;
    ListInSight& list_;
    screen::Dialogs& dialogs_;
    Turn turn_;
};

} // namespace dn::calling
