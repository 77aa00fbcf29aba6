// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The commands on projects. The control has no project screen of its own: it asks the host's, and afterwards loads
// the list anew and finds the row again.
#pragma once

#include "desk/elements.h"
#include "desk/host_screens.h"
#include "desk/session.h"
#include "projects/project_list.h"
#include "screen/ports.h"

#include <cstdint>
#include <string>

namespace dn::projects {

class ProjectCommands {
public:
    ProjectCommands(desk::Session& session, desk::ProjectElements& projects, desk::TopElements& top,
                    ProjectList& list, desk::HostScreens& screens, screen::Ports ports)
        : session_(session), projects_(projects), top_(top), list_(list), screens_(screens), ports_(ports)
    {
    }

    /// Opens the host's screen of a new project without a party; where one was made, shows it in the list.
    void cmdProjNewProj_Click();

    /// Opens the selected project in the host's screen and loads the list anew. Also the end of a call on a
    /// project.
    void cmdNewProjEditProj_Click();

    /// A double click on the list opens the selected project.
    void lvwProy_DblClick();

    /// Searches a person or an organisation and opens it. The list is not loaded anew.
    void cmdProjSeekProj_Click();

    /// Opens the host's screen of a new person for the agent in view.
    /// @throws whatever the host fails with; RuntimeError without an agent.
    void cmdProjNewContact_Click();

    /// The same for a new organisation, with failures passed over.
    void cmdProjNewOrg_Click();

    /// Opens the tool that hands groups of projects over. The list is not loaded anew.
    void cmdNewProjTool_Click();

    /// Opens the export of the mail lists, which that tool holds.
    void ExportarListas();

private:
    void SelProyecto(std::int32_t PK, bool& result);
    void open(const std::string& found);

    desk::Session& session_;
    desk::ProjectElements& projects_;
    desk::TopElements& top_;
    ProjectList& list_;
    desk::HostScreens& screens_;
    screen::Ports ports_;
};

} // namespace dn::projects
