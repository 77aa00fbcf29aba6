// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// How the control comes to life: what it fills before any connection exists, how it takes the host's connection
// and finds its engine, and which screen it shows first.
#pragma once

#include "desk/elements.h"
#include "desk/session.h"
#include "screen/ports.h"
#include "shell/agents.h"
#include "shell/tabs.h"
#include "today/queue.h"

#include <cstdint>
#include <string>

namespace dn::shell {

class StartUp {
public:
    StartUp(desk::Session& session, desk::Elements& elements, Agents& agents, Tabs& tabs, today::Queue& queue,
            screen::Ports ports)
        : session_(session), elements_(elements), agents_(agents), tabs_(tabs), queue_(queue), ports_(ports)
    {
    }

    /// Fills the combos and lays out the columns of the directories.
    void UserControl_Initialize();

    /// Stores what the host hands over and finds the engine. A connection that is not open is stored too, and told
    /// to the operator; nothing else is stored then.
    void SetObjects(data::Connection* Cn, std::int32_t Agente, bool Admon, const std::string& pUsuario);

    /// Fills the agents, selects the one who works and shows the first screen.
    /// @throws data::Error what the statement of the agents failed with.
    void RefreshData();

private:
    void DetectMotorBD(std::int16_t& result);
    bool isOpen(data::Connection* connection) const;

    desk::Session& session_;
    desk::Elements& elements_;
    Agents& agents_;
    Tabs& tabs_;
    today::Queue& queue_;
    screen::Ports ports_;
};

} // namespace dn::shell
