// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Where the operator stands in his work: whose work, which tab, which row, and what he is typing. Starting the
// control anew loses all of that; the program takes him back.
#pragma once

#include "desk/tab_strip.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace dn {
class ctrDnContacts;
}

namespace dn::host {

struct WorkPlace {
    std::optional<std::int32_t> agent; ///< in `cbAgente`
    std::int16_t tab = desk::none;     ///< `none` while no tab is in front
    int status = 0;                    ///< entries of the two filters
    int projectStatus = 0;
    /// The keys of the selected rows, list by list in the order of the tabs; empty for none.
    std::array<std::string, desk::TabStrip::count> selected;
    bool detail = false;              ///< the selected row's detail shows
    std::vector<std::string> checked; ///< keys of the checked prospects
    std::string note;                 ///< typed and not stored, for the selected row
    /// Typed for rows that he left since, while nothing could be stored. Opening a tab empties the box.
    std::vector<std::string> notesLeft;

    /// The list that is in view.
    std::size_t list() const
    {
        return static_cast<std::size_t>(tab == desk::none ? std::int16_t{desk::hoy} : tab);
    }
};

/// Quick, whatever the length of the lists: without what is checked.
WorkPlace placeOf(ctrDnContacts& control);
std::vector<std::string> checkedProspects(ctrDnContacts& control);

/// A place at which he has arrived while the server was gone, and its lists may have come out empty: what they had
/// selected, and what he had typed, is taken from an earlier one.
WorkPlace restored(WorkPlace place, const WorkPlace& earlier);

/// Takes the operator there, after `RefreshData`. A row that is gone stays unselected.
/// @return whether the note stands again beside the party that it was typed for.
bool returnTo(ctrDnContacts& control, const WorkPlace& place);

} // namespace dn::host
