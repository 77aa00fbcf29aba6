// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the operator does to the list of the prospects itself: sorting by a header and checking rows.
#pragma once

#include "desk/elements.h"

namespace dn::prospects {

class ProspectInteraction {
public:
    explicit ProspectInteraction(desk::ProspectElements& prospects) : prospects_(prospects) {}

    /// Sorts by the column, upwards; once more by the same column turns the order round.
    void lvw_ColumnClick(const screen::ColumnHeader& header);

    /// Takes the mark off "Seleccionar todos" when a row loses its own.
    void lvw_ItemCheck(screen::ListItem row);

    /// Checks or unchecks all rows.
    void chkProsSelPros_Click();

private:
    desk::ProspectElements& prospects_;
    bool MarcaSincronizando = false; // the box follows a row: its click is not the operator's
};

} // namespace dn::prospects
