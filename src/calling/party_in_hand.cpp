// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "calling/party_in_hand.h"

namespace dn::calling {

Party PartyInHand::find() // no trap
{
    return Party::prospect;
}

} // namespace dn::calling
