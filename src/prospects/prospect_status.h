// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The life of a prospect as its status tells it: which status the list shows, and moving prospects to another one.
#pragma once

#include "desk/elements.h"
#include "desk/host_screens.h"
#include "desk/session.h"
#include "prospects/prospect_list.h"
#include "screen/ports.h"

#include <string>

namespace dn::prospects {

class ProspectStatus {
public:
    /// The codes of `uf_Status`: the index of the entry in `cbStatus`.
    enum Status : std::int32_t { recibido = 0, descartado = 1, sinInteres = 2, oportunidad = 3 };

    ProspectStatus(desk::Session& session, desk::ProspectElements& prospects, desk::DetailElements& detail,
                   ProspectList& list, desk::HostScreens& screens, screen::Dialogs& dialogs)
        : session_(session),
          prospects_(prospects),
          detail_(detail),
          list_(list),
          screens_(screens),
          dialogs_(dialogs)
    {
    }

    /// Reloads the list and offers in `Combo1` the statuses other than the one in view.
    void cbStatus_Click();

    /// Moves the selected prospect to the status picked: with a reason, or for "Oportunidad" with a project made
    /// in the host's screen. Sets StatusCambiado when it was stored.
    void Combo1_Click();

    /// Discards every checked prospect for one reason, after a confirmation.
    void cmdProsDiscart_Click();

private:
    void changeStatus();
    void discard(const screen::ListItem& row, const std::string& motivo);

    desk::Session& session_;
    desk::ProspectElements& prospects_;
    desk::DetailElements& detail_;
    ProspectList& list_;
    desk::HostScreens& screens_;
    screen::Dialogs& dialogs_;
};

} // namespace dn::prospects
