// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The list of the prospects of one agent in one status, and how it is loaded.
#pragma once

#include "desk/counters.h"
#include "desk/elements.h"
#include "desk/session.h"
#include "desk/tab_strip.h"
#include "prospects/prospect_detail.h"
#include "screen/ports.h"

#include <cstdint>
#include <string>

namespace dn::prospects {

class ProspectList {
public:
    ProspectList(desk::Session& session, desk::ProspectElements& prospects, desk::TopElements& top,
                 desk::TabStrip& tabs, ProspectDetail& detail, desk::Counters& counters, screen::Ports ports);

    /// Empties the list and fills it anew from the database, for the agent in `cbAgente` and the status in
    /// `cbStatus`; the row that was selected is selected again. Shows no message: a statement that fails gives an
    /// empty list. Every change that touches prospects ends by calling it.
    void LoadProspectos();

private:
    void readRows();
    void fitTabs(std::int32_t agente);
    void addRows(data::Recordset& records);

    desk::Session& session_;
    desk::ProspectElements& prospects_;
    desk::TopElements& top_;
    desk::TabStrip& tabs_;
    ProspectDetail& detail_;
    desk::Counters& counters_;
    screen::Ports ports_;
    std::uint64_t loads_ = 0; // counts the loads, so that one overtaken during its yield knows
};

} // namespace dn::prospects
