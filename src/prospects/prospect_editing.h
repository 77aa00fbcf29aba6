// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The dialogs that change a prospect's own data: typing in a new one, correcting one.
#pragma once

#include "desk/elements.h"
#include "desk/public_operations.h"
#include "desk/session.h"
#include "prospects/prospect_list.h"
#include "screen/ports.h"

#include <functional>
#include <string>

namespace dn::prospects {

/// How a procedure runs a statement of its own: passing over a failure, or letting it go to the caller.
using Run = std::function<void(const std::function<void()>&)>;

class ProspectEditing {
public:
    ProspectEditing(desk::Session& session, desk::ProspectElements& prospects, desk::TopElements& top,
                    ProspectList& list, desk::PublicOperations& control, screen::Ports ports)
        : session_(session), prospects_(prospects), top_(top), list_(list), control_(control), ports_(ports)
    {
    }

    /// Takes down a new prospect of the agent in `cbAgente` and reloads the list when one was stored.
    void cmdProsNewPros_Click();

    /// Lets the operator correct the selected prospect.
    void cmdEditC_Click();

    /// Shows the prospect that a statement reads in the dialog of corrections, and reloads the list when it was
    /// written. Also for a list of another room.
    /// @param statement gives `Sys_PK` and the five columns of the dialog.
    /// @param run each statement; where it lets a failure go, a null in a column is one.
    void correct(const std::string& statement, const Run& run);

private:
    desk::Session& session_;
    desk::ProspectElements& prospects_;
    desk::TopElements& top_;
    ProspectList& list_;
    desk::PublicOperations& control_;
    screen::Ports ports_;
};

} // namespace dn::prospects
