// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The timeline of the party in hand: the lines of the activity log in `txtBit`, the newest at the top.
#pragma once

#include "desk/elements.h"
#include "desk/session.h"
#include "screen/ports.h"

#include <cstdint>

namespace dn::desk {

class Timeline {
public:
    Timeline(Session& session, Elements& elements, screen::Ports ports)
        : session_(session), elements_(elements), ports_(ports)
    {
    }

    /// Shows the log of the selected row: of `lvwProy` when `deProyecto`, else of `lvw`. Without a selected row,
    /// and when the log cannot be read, the box is left empty.
    void LoadBitacora(const bool& deProyecto);

    /// The panel was emptied: a load that is in its yield at present leaves the box alone.
    void abandon() { ++load_; }

private:
    std::string entriesOf(data::Recordset& lines);

    Session& session_;
    Elements& elements_;
    screen::Ports ports_;
    std::uint64_t load_ = 0; // counts the loads, so that one overtaken during its yield knows
};

/// One entry of the timeline: who, when, a line end, what, and an empty line.
std::string timelineEntry(std::string_view usuario, std::string_view moment, std::string_view message);

} // namespace dn::desk
