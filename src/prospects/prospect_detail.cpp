// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "prospects/prospect_detail.h"

#include "base/text.h"
#include "data/failure_modes.h"

#include <string>

namespace dn::prospects {
namespace {

using data::resumeNext;

// Key and next contact; origin and interest; name; e-mail; telephones; company; job title; comments and link.
std::string summaryOf(const screen::ListItem& row)
{
    const auto subItem = [&](int index) { return row.ListSubItems()(index).Text(); };
    std::string text;
    text.append(row.Key()).append(" | ").append(subItem(2)).append(crlf);
    text.append(row.Text()).append(" | ").append(subItem(1)).append(crlf);
    for (int index = 3; index <= 7; ++index)
        text.append(subItem(index)).append(crlf);
    return text.append(row.ToolTipText());
}

} // namespace

void ProspectDetail::lvw_ItemClick(const std::optional<screen::ListItem>& row) // continue-on-error
{
    if (!row) return;
    std::int16_t tab = desk::none;
    resumeNext([&] { tabs_.GetActiveTab(tab); });
    if (tab == desk::proyectos) return;
    resumeNext([&] { detail_.txtInfo.Text(summaryOf(*row)); });
    resumeNext([&] { top_.picColors.BackColor(row->ForeColor() == 0 ? screen::white : row->ForeColor()); });
    resumeNext([&] { HabilitaDetalle(); });
    resumeNext([&] { timeline_.LoadBitacora(false); });
}

void ProspectDetail::LimpiaDetalle() // continue-on-error
{
    timeline_.abandon();
    resumeNext([&] { detail_.Combo1.Enabled(false); });
    resumeNext([&] { detail_.txtInfo.Text(""); });
    resumeNext([&] { detail_.txtBit.Text(""); });
    resumeNext([&] { detail_.txtText.Enabled(false); });
    resumeNext([&] { detail_.cmdIntro.Enabled(false); });
}

void ProspectDetail::HabilitaDetalle() // continue-on-error
{
    resumeNext([&] { detail_.Combo1.Enabled(true); });
    resumeNext([&] { detail_.txtText.Enabled(true); });
    resumeNext([&] { detail_.cmdIntro.Enabled(true); });
}

} // namespace dn::prospects
