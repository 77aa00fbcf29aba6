// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The list of an agent's projects, each by its next pending activity, and how it is loaded.
#pragma once

#include "data/recordset.h"
#include "desk/counters.h"
#include "desk/elements.h"
#include "desk/session.h"
#include "projects/project_detail.h"

namespace dn::projects {

class ProjectList {
public:
    ProjectList(desk::Session& session, desk::ProjectElements& projects, desk::TopElements& top,
                ProjectDetail& detail, desk::Counters& counters)
        : session_(session), projects_(projects), top_(top), detail_(detail), counters_(counters)
    {
    }

    /// Empties the list and fills it anew from the database, for the agent in `cbAgente` and the status in
    /// `cbProjStatusProj`: first the projects with pending activities, by the earliest of them, then those
    /// without. The row that was selected is selected again and shown. Shows no message: a statement that fails
    /// gives no rows. Does not yield to the event loop until the rows are there.
    void RefreshProyectos();

    /// Reloads the list for the status picked.
    void cbProjStatusProj_Click();

private:
    int filterStatus() const;
    void addProjectsByActivity(data::Recordset& records);
    void addProjectsWithoutActivity(data::Recordset& records);

    desk::Session& session_;
    desk::ProjectElements& projects_;
    desk::TopElements& top_;
    ProjectDetail& detail_;
    desk::Counters& counters_;
};

} // namespace dn::projects
