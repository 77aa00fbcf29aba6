// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The directory of persons: its list and its commands. A person is made, edited and deleted by the host's screens;
// the control finds out which one is meant, asks, and loads the list anew.
//
// None of the commands passes over a failure: it reaches the host.
#pragma once

#include "desk/elements.h"
#include "desk/host_screens.h"
#include "desk/session.h"
#include "directories/loader.h"
#include "screen/ports.h"

namespace dn::directories {

class Persons {
public:
    Persons(desk::Session& session, desk::PersonElements& elements, Loader& loader, desk::HostScreens& screens,
            screen::Dialogs& dialogs)
        : session_(session), elements_(elements), loader_(loader), screens_(screens), dialogs_(dialogs)
    {
    }

    /// Fills the list anew. A failure is told and leaves what was there.
    void LoadContactos();

    /// A new person belongs to the agent in `cbAgente`.
    void addContact_Click();

    /// Reads the selected person, and opens it for the agent to whom it belongs.
    void editContact_Click();

    /// Loads the list anew only when the person is gone.
    void deleteContact_Click();

    void showContactRelations_Click();

    /// Opens the host's screen of a new project for the person; the project shows when the projects are loaded
    /// next.
    void genProyectFromContact_Click();

    void lvwContactos_DblClick();

private:
    std::int32_t selectedKey();

    desk::Session& session_;
    desk::PersonElements& elements_;
    Loader& loader_;
    desk::HostScreens& screens_;
    screen::Dialogs& dialogs_;
};

} // namespace dn::directories
