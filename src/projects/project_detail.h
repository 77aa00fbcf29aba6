// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The detail panel of a project: what a click on its row fills, and the number that a call to it will use.
#pragma once

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "desk/timeline.h"
#include "projects/phone_choice.h"
#include "prospects/prospect_detail.h"
#include "screen/list_view.h"

#include <optional>
#include <string_view>

namespace dn::projects {

class ProjectDetail {
public:
    /// @param panel unlocks what needs a selected row: the panel is the same for prospects and projects.
    ProjectDetail(desk::DetailElements& detail, desk::TopElements& top, desk::TabStrip& tabs,
                  desk::Timeline& timeline, PhoneChoice& phoneChoice, prospects::ProspectDetail& panel)
        : detail_(detail), top_(top), tabs_(tabs), timeline_(timeline), phoneChoice_(phoneChoice), panel_(panel)
    {
    }

    /// Fills the summary, the colour swatch and the timeline from a row, picks the number of the next call and
    /// unlocks what needs a row. The timeline is that of the row selected in `lvwProy`: select it first. Does
    /// nothing while the tab "Prospectos" is in view. Without a row the summary stays as it is.
    void lvwProy_ItemClick(const std::optional<screen::ListItem>& row);

private:
    void showRow(const screen::ListItem& row);
    void appendLine(std::string_view text);

    desk::DetailElements& detail_;
    desk::TopElements& top_;
    desk::TabStrip& tabs_;
    desk::Timeline& timeline_;
    PhoneChoice& phoneChoice_;
    prospects::ProspectDetail& panel_;
};

} // namespace dn::projects
