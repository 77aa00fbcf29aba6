// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "today/today_panel.h"

#include "data/failure_modes.h"
#include "desk/row_key.h"

#include <string>

namespace dn::today {

using data::resumeNext;

void TodayPanel::lvwHoy_ItemClick(const std::optional<screen::ListItem>& row) // continue-on-error
{
    if (!row) return;
    screen::ListView& target = selectRecord(*row);
    resumeNext([&] {
        if (&target == &elements_.prospects.lvw)
            prospectDetail_.lvw_ItemClick(target.SelectedItem());
        else
            projectDetail_.lvwProy_ItemClick(target.SelectedItem());
    });
}

screen::ListView& TodayPanel::selectRecord(const screen::ListItem& row) // continue-on-error
{
    std::string key;
    bool prospect = false;
    resumeNext([&] { key = desk::keyDigits(row); });
    resumeNext([&] { prospect = row.Text() == prospectType; });
    screen::ListView& target = prospect ? elements_.prospects.lvw : elements_.projects.lvwProy;
    resumeNext([&] { target.ListItems()("K" + key).Selected(true); });
    return target;
}

void TodayPanel::Command7_Click() // continue-on-error
{
    const auto row = elements_.today.lvwHoy.SelectedItem();
    if (!row) return;
    const bool prospect = row->Text() == prospectType;
    resumeNext([&] {
        std::int16_t kind = prospect ? 0 : 1;
        // The key is the target's: where the click found no record, it is another party's.
        std::int32_t key =
            desk::keyNumber(desk::selectedRow(prospect ? elements_.prospects.lvw : elements_.projects.lvwProy));
        control_.Historial(kind, key);
    });
}

} // namespace dn::today
