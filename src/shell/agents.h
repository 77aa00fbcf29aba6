// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The agents: the combo of whose work the control shows, and the choice of one in a dialog.
#pragma once

#include "desk/elements.h"
#include "desk/session.h"
#include "screen/ports.h"
#include "shell/tabs.h"

#include <cstdint>

namespace dn::shell {

class Agents {
public:
    Agents(desk::Session& session, desk::TopElements& top, Tabs& tabs, screen::Ports ports)
        : session_(session), top_(top), tabs_(tabs), ports_(ports)
    {
    }

    /// Fills `cbAgente` from the table `Agente`, behind the entry "< Sin asignar >" with the key 0.
    /// @throws data::Error what the statement failed with.
    void LoadAgentes();

    /// Selects the entry of a key; a key that is not there changes nothing. An agent who is no administrator
    /// cannot select the key 0.
    void SelAgente(std::int32_t PK);

    /// Tells the host's screens who works, and shows the tab in view anew.
    void cbAgente_Click();

    /// Asks for an agent. @return his key; 0 when none was chosen or anything failed.
    std::int32_t ShSelAgente();

private:
    desk::Session& session_;
    desk::TopElements& top_;
    Tabs& tabs_;
    screen::Ports ports_;
};

} // namespace dn::shell
