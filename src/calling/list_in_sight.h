// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The list that the operator comes back to when a call is over.
#pragma once

#include "desk/elements.h"
#include "prospects/prospect_list.h"

namespace dn::calling {

class ListInSight {
public:
    ListInSight(desk::Elements& elements, prospects::ProspectList& prospectList)
        : elements_(elements), prospectList_(prospectList)
    {
    }

    /// Loads the list in sight anew. Its bare number of rows takes the place of the counters until the next load.
    void Call_RefreshList();

    /// Gives it the focus; on the tabs of the directories that is theirs.
    void takeFocus();

private:
    desk::Elements& elements_;
    prospects::ProspectList& prospectList_;
};

} // namespace dn::calling
