// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The list that the operator comes back to when a call is over.
#pragma once

#include "desk/elements.h"
#include "projects/project_list.h"
#include "prospects/prospect_list.h"
#include "today/queue.h"

namespace dn::calling {

class ListInSight {
public:
    ListInSight(desk::Elements& elements, prospects::ProspectList& prospectList,
                projects::ProjectList& projectList, today::Queue& queue)
        : elements_(elements), prospectList_(prospectList), projectList_(projectList), queue_(queue)
    {
    }

    /// Loads the list in sight anew, on a directory that of the day. Its bare number of rows takes the place of
    /// the counters until the next load.
    void Call_RefreshList();

    /// Gives it the focus; on the tabs of the directories that is theirs.
    void takeFocus();

private:
    desk::Elements& elements_;
    prospects::ProspectList& prospectList_;
    projects::ProjectList& projectList_;
    today::Queue& queue_;
};

} // namespace dn::calling
