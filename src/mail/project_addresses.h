// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Whom a mail about a project goes to: the addresses of its contact and of its organisation.
#pragma once

#include "desk/elements.h"
#include "desk/session.h"
#include "screen/ports.h"

#include <string>

namespace dn::mail {

class ProjectAddresses {
public:
    ProjectAddresses(desk::Session& session, desk::ProjectElements& projects, screen::Ports ports)
        : session_(session), projects_(projects), ports_(ports)
    {
    }

    /// The addresses of the selected project, joined by ";". Where there are several the operator marks those that
    /// he wants. Empty when there is none, or when he gave up.
    std::string DireccionesProyecto();

private:
    desk::Session& session_;
    desk::ProjectElements& projects_;
    screen::Ports ports_;
};

} // namespace dn::mail
