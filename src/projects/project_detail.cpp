// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "projects/project_detail.h"

#include "base/text.h"
#include "data/failure_modes.h"
#include "desk/row_key.h"

#include <string>

namespace dn::projects {
namespace {

using data::resumeNext;

constexpr int lastShown = 5; // activity, subject, goal, organisation and description

} // namespace

void ProjectDetail::lvwProy_ItemClick(const std::optional<screen::ListItem>& row) // continue-on-error
{
    std::int16_t tab = desk::none;
    resumeNext([&] { tabs_.GetActiveTab(tab); });
    if (tab == desk::prospectos) return;
    if (row) showRow(*row);
    resumeNext([&] { panel_.HabilitaDetalle(); });
    resumeNext([&] { timeline_.LoadBitacora(true); });
}

void ProjectDetail::showRow(const screen::ListItem& row)
{
    resumeNext([&] { top_.picColors.BackColor(row.ForeColor() == 0 ? screen::white : row.ForeColor()); });
    resumeNext([&] { detail_.txtInfo.Text(std::string(row.Text()).append(crlf)); });
    for (int index = 1; index <= lastShown; ++index)
        resumeNext([&] { appendLine(row.ListSubItems()(index).Text()); });
    resumeNext([&] { appendLine(phoneChoice_.GetDatosProyecto(desk::keyNumber(row))); });
}

void ProjectDetail::appendLine(std::string_view text)
{
    detail_.txtInfo.Text(std::string(detail_.txtInfo.Text()).append(text).append(crlf));
}

} // namespace dn::projects
