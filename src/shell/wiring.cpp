// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Which handler answers which event: one line each, and nothing else.

#include "shell/ctr_dn_contacts.h"

namespace dn {
namespace {

template <class Room, class... Arguments, class... Parameters>
screen::Subscription on(screen::Signal<Arguments...>& event, Room& room, void (Room::*handler)(Parameters...))
{
    return event.connect([&room, handler](Arguments... arguments) { (room.*handler)(arguments...); });
}

} // namespace

void ctrDnContacts::wire()
{
    using notes::Notes;
    using projects::ProjectCommands;
    using projects::ProjectDetail;
    using projects::ProjectList;
    using prospects::Assignment;
    using prospects::ProspectDetail;
    using prospects::ProspectEditing;
    using prospects::ProspectInteraction;
    using prospects::ProspectStatus;
    const auto join = [this](auto& event, auto& room, auto handler) {
        wires_.push_back(on(event, room, handler));
    };
    auto& [control, call, persons, organisations, today, top, detail, prospects, projects] = elements_;

    join(control.Resize, layout_, &shell::Layout::UserControl_Resize);
    join(top.cbAgente.Click, agents_, &shell::Agents::cbAgente_Click);
    for (std::int16_t i = 0; i < desk::TabStrip::count; ++i)
        wires_.push_back(top.lblItem(i).Click.connect([this, i] { tabs_.lblItem_Click(i); }));

    join(prospects.cbStatus.Click, prospectStatus_, &ProspectStatus::cbStatus_Click);
    join(detail.Combo1.Click, prospectStatus_, &ProspectStatus::Combo1_Click);
    join(prospects.cmdProsDiscart.Click, prospectStatus_, &ProspectStatus::cmdProsDiscart_Click);
    join(prospects.cmdProsNewPros.Click, prospectEditing_, &ProspectEditing::cmdProsNewPros_Click);
    join(detail.cmdEditC.Click, prospectEditing_, &ProspectEditing::cmdEditC_Click);
    join(prospects.cmdProsAsignPros.Click, assignment_, &Assignment::cmdProsAsignPros_Click);
    join(prospects.lvw.ItemClick, prospectDetail_, &ProspectDetail::lvw_ItemClick);
    join(prospects.lvw.ColumnClick, prospectInteraction_, &ProspectInteraction::lvw_ColumnClick);
    join(prospects.lvw.ItemCheck, prospectInteraction_, &ProspectInteraction::lvw_ItemCheck);
    join(prospects.chkProsSelPros.Click, prospectInteraction_, &ProspectInteraction::chkProsSelPros_Click);

    join(projects.cbProjStatusProj.Click, projectList_, &ProjectList::cbProjStatusProj_Click);
    join(projects.lvwProy.ItemClick, projectDetail_, &ProjectDetail::lvwProy_ItemClick);
    join(projects.lvwProy.DblClick, projectCommands_, &ProjectCommands::lvwProy_DblClick);
    join(projects.cmdProjNewProj.Click, projectCommands_, &ProjectCommands::cmdProjNewProj_Click);
    join(projects.cmdNewProjEditProj.Click, projectCommands_, &ProjectCommands::cmdNewProjEditProj_Click);
    join(projects.cmdProjSeekProj.Click, projectCommands_, &ProjectCommands::cmdProjSeekProj_Click);
    join(projects.cmdProjNewContact.Click, projectCommands_, &ProjectCommands::cmdProjNewContact_Click);
    join(projects.cmdProjNewOrg.Click, projectCommands_, &ProjectCommands::cmdProjNewOrg_Click);
    join(projects.cmdNewProjTool.Click, projectCommands_, &ProjectCommands::cmdNewProjTool_Click);

    join(detail.cmdIntro.Click, notes_, &Notes::cmdIntro_Click);
    join(detail.cmdNote.Click, notes_, &Notes::cmdNote_Click);
    join(detail.txtText.KeyPress, notes_, &Notes::txtText_KeyPress);
}

} // namespace dn
