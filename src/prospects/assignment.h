// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Giving prospects to an agent: an administrator gives all checked ones, an agent passes on the selected one.
#pragma once

#include "desk/elements.h"
#include "desk/public_operations.h"
#include "desk/session.h"
#include "prospects/prospect_list.h"
#include "screen/ports.h"

#include <cstdint>
#include <string>

namespace dn::prospects {

class Assignment {
public:
    Assignment(desk::Session& session, desk::ProspectElements& prospects, ProspectList& list,
               desk::PublicOperations& control, screen::Ports ports)
        : session_(session), prospects_(prospects), list_(list), control_(control), ports_(ports)
    {
    }

    /// Asks for the agent and assigns. Only what an agent passes on leaves a line in the activity log.
    void cmdProsAsignPros_Click();

    /// Tells whether any row of the list is checked.
    void HayMarcados(bool& result) const;

private:
    void assignChecked();
    void passOnSelected();
    std::int32_t askForAgent();
    void assign(std::int32_t agent, const std::string& key);

    desk::Session& session_;
    desk::ProspectElements& prospects_;
    ProspectList& list_;
    desk::PublicOperations& control_;
    screen::Ports ports_;
};

} // namespace dn::prospects
