// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The link from the queue to its records: a row of `lvwHoy` is a pointer to a row of `lvw` or of `lvwProy`, which
// a click selects there, seen or unseen. All commands then work on that selection.
#pragma once

#include "desk/elements.h"
#include "desk/public_operations.h"
#include "projects/project_detail.h"
#include "prospects/prospect_detail.h"
#include "screen/list_view.h"

#include <optional>
#include <string_view>

namespace dn::today {

/// What a row's text says of a prospect; every other text is a project's.
inline constexpr std::string_view prospectType = "Contacto";

class TodayPanel {
public:
    TodayPanel(desk::Elements& elements, prospects::ProspectDetail& prospectDetail,
               projects::ProjectDetail& projectDetail, desk::PublicOperations& control)
        : elements_(elements), prospectDetail_(prospectDetail), projectDetail_(projectDetail), control_(control)
    {
    }

    /// Selects the row's record in its own list and fills the detail from what is selected there. A record that
    /// the list does not hold leaves the former selection, and the detail shows that other party. Does nothing
    /// without a row.
    void lvwHoy_ItemClick(const std::optional<screen::ListItem>& row);

    /// The first half of the click: selects the row's record in its own list and gives that list. Runs no events.
    screen::ListView& selectRecord(const screen::ListItem& row);

    /// Shows the mails of the party that the click selected.
    void Command7_Click();

private:
    desk::Elements& elements_;
    prospects::ProspectDetail& prospectDetail_;
    projects::ProjectDetail& projectDetail_;
    desk::PublicOperations& control_;
};

} // namespace dn::today
