// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The directory of organisations: its list and its commands. They work as those of the persons do, with
// differences that are told with each; what is done with a row that was clicked is nothing, here as there.
#pragma once

#include "desk/elements.h"
#include "desk/host_screens.h"
#include "directories/loader.h"
#include "screen/ports.h"

namespace dn::directories {

class Organisations {
public:
    Organisations(desk::OrganisationElements& elements, Loader& loader, desk::HostScreens& screens,
                  screen::Dialogs& dialogs)
        : elements_(elements), loader_(loader), screens_(screens), dialogs_(dialogs)
    {
    }

    /// Fills the list anew. A failure is told and leaves what was there. `deleteOrganization` stays enabled
    /// without a row: it answers with a message.
    void LoadOrganizaciones();

    /// A new organisation belongs to nobody, whoever works.
    void addOrganization_Click();

    /// Opens the selected organisation for the agent in `cbAgente`; it is not read first.
    void editOrganization_Click();

    /// Loads the list anew only when the organisation is gone.
    void deleteOrganization_Click();

    void showOrganizationRelations_Click();

    /// Opens the host's screen of a new project for the organisation; the project shows when the projects are
    /// loaded next.
    void genProyectFromOrganization_Click();

private:
    std::int32_t selectedKey();
    std::int32_t selectedKeyOrTell();

    desk::OrganisationElements& elements_;
    Loader& loader_;
    desk::HostScreens& screens_;
    screen::Dialogs& dialogs_;
};

} // namespace dn::directories
