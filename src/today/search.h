// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The search row: finds a text in the list of the prospects while that one is in view, else in the list of the
// projects, seen or unseen.
#pragma once

#include "desk/elements.h"
#include "projects/project_detail.h"
#include "prospects/prospect_detail.h"
#include "screen/ports.h"

namespace dn::today {

class Search {
public:
    Search(desk::Elements& elements, prospects::ProspectDetail& prospectDetail,
           projects::ProjectDetail& projectDetail, screen::Dialogs& dialogs)
        : elements_(elements), prospectDetail_(prospectDetail), projectDetail_(projectDetail), dialogs_(dialogs)
    {
    }

    /// Selects the first row, from the top, one of whose sub-items holds the text, without regard to case. The
    /// rows' own texts are not looked at.
    void cmdOkBuscar_Click();

    /// Enter searches; the key goes on to the box.
    void txtBuscar_KeyPress(int& KeyAscii);

private:
    desk::Elements& elements_;
    prospects::ProspectDetail& prospectDetail_;
    projects::ProjectDetail& projectDetail_;
    screen::Dialogs& dialogs_;
};

} // namespace dn::today
