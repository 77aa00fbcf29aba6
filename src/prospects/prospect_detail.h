// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The detail panel of a prospect: what a click on its row fills, and what an empty list empties.
#pragma once

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "desk/timeline.h"
#include "screen/list_view.h"

#include <optional>

namespace dn::prospects {

class ProspectDetail {
public:
    ProspectDetail(desk::DetailElements& detail, desk::TopElements& top, desk::TabStrip& tabs,
                   desk::Timeline& timeline)
        : detail_(detail), top_(top), tabs_(tabs), timeline_(timeline)
    {
    }

    /// Fills the summary, the colour swatch and the timeline from a row, and unlocks what needs one. Does nothing
    /// without a row, and while the tab "Proyectos" is in view.
    void lvw_ItemClick(const std::optional<screen::ListItem>& row);

    /// Empties the summary and the timeline and locks what needs a selected row. The text of `txtText` stays.
    void LimpiaDetalle();

    /// Unlocks what needs a selected row.
    void HabilitaDetalle();

private:
    desk::DetailElements& detail_;
    desk::TopElements& top_;
    desk::TabStrip& tabs_;
    desk::Timeline& timeline_;
};

} // namespace dn::prospects
