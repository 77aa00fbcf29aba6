// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "calling/party_in_hand.h"

#include "data/failure_modes.h"

namespace dn::calling {

Party PartyInHand::find() // no trap
{
    switch (tabs_.GetActiveTab()) {
    case desk::proyectos:
        return Party::project;
    case desk::hoy:
        return ofTheDay();
    default:
        return Party::prospect;
    }
}

Party PartyInHand::ofTheDay() // no trap
{
    const auto row = elements_.today.lvwHoy.SelectedItem();
    if (!row) return Party::none;
    const Party party = row->Text() == today::prospectType ? Party::prospect : Party::project;
    data::resumeNext([&] { today_.lvwHoy_ItemClick(row); });
    return party;
}

} // namespace dn::calling
