// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A prospect who is worth following becomes a business project: a person in the host's directory, a project on
// that person in the host's screen, and the prospect closed with a note.
#pragma once

#include "desk/elements.h"
#include "desk/host_screens.h"
#include "desk/session.h"
#include "prospects/prospect_list.h"
#include "screen/ports.h"

#include <cstdint>
#include <string>

namespace dn::prospects {

class ProspectConversion {
public:
    ProspectConversion(desk::Session& session, desk::ProspectElements& prospects, ProspectList& list,
                       desk::HostScreens& screens, screen::Dialogs& dialogs)
        : session_(session), prospects_(prospects), list_(list), screens_(screens), dialogs_(dialogs)
    {
    }

    /// Converts the selected prospect and loads the list anew. A prospect that came by the web is refused.
    /// @throws what ProspectoAProyecto throws; the list is not loaded then.
    void cmdProsNewProj_Click();

    /// Converts a prospect. Where the operator gives up in the screen of the new project, the person stays in the
    /// directory and the prospect as it was.
    /// @param key of the prospect.
    /// @throws data::Error or RuntimeError when a statement fails or the prospect is gone, and whatever the host's
    /// screens fail with; what was done until then stays.
    void ProspectoAProyecto(std::int32_t& key);

private:
    std::int32_t createPerson(std::int32_t prospect);
    std::int32_t cityLike(const std::string& name);

    desk::Session& session_;
    desk::ProspectElements& prospects_;
    ProspectList& list_;
    desk::HostScreens& screens_;
    screen::Dialogs& dialogs_;
};

} // namespace dn::prospects
