// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "prospects/prospect_interaction.h"

#include "data/failure_modes.h"

namespace dn::prospects {

using data::resumeNext;

void ProspectInteraction::lvw_ColumnClick(const screen::ColumnHeader& header) // no trap
{
    screen::ListView& lvw = prospects_.lvw;
    const int column = header.Index - 1;
    if (lvw.SortKey() != column) {
        lvw.SortKey(column);
        lvw.SortOrder(screen::ListView::ascending);
    } else {
        lvw.SortOrder(lvw.SortOrder() == screen::ListView::ascending ? screen::ListView::descending
                                                                     : screen::ListView::ascending);
    }
    lvw.Sorted(true);
}

void ProspectInteraction::lvw_ItemCheck(screen::ListItem row) // continue-on-error
{
    bool checked = true;
    resumeNext([&] { checked = row.Checked(); });
    if (checked) return;
    MarcaSincronizando = true;
    resumeNext([&] { prospects_.chkProsSelPros.Value(0); });
    MarcaSincronizando = false;
}

void ProspectInteraction::chkProsSelPros_Click() // continue-on-error
{
    if (MarcaSincronizando) return;
    screen::ListItems rows = prospects_.lvw.ListItems();
    for (int i = 1; i <= rows.Count(); ++i)
        resumeNext([&] { rows(i).Checked(prospects_.chkProsSelPros.Value() == 1); });
}

} // namespace dn::prospects
