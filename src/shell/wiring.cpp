// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Which handler answers which event: one line each, and nothing else.

#include "shell/rooms.h"

namespace dn::shell {
namespace {

template <class Room, class... Arguments, class... Parameters>
screen::Subscription on(screen::Signal<Arguments...>& event, Room& room, void (Room::*handler)(Parameters...))
{
    return event.connect([&room, handler](Arguments... arguments) { (room.*handler)(arguments...); });
}

} // namespace

void Rooms::wire()
{
    using calling::CallFlow;
    using calling::CallOutcomes;
    using directories::Organisations;
    using directories::Persons;
    using mail::Mail;
    using notes::Notes;
    using projects::ProjectCommands;
    using projects::ProjectDetail;
    using projects::ProjectList;
    using prospects::Assignment;
    using prospects::ProspectConversion;
    using prospects::ProspectDetail;
    using prospects::ProspectEditing;
    using prospects::ProspectInteraction;
    using prospects::ProspectStatus;
    using today::Search;
    using today::TodayCommands;
    using today::TodayPanel;
    const auto join = [this](auto& event, auto& room, auto handler) {
        wires_.push_back(on(event, room, handler));
    };
    auto& [control, call, persons, organisations, today, top, detail, prospects, projects] = elements_;

    join(control.Resize, layout_, &Layout::UserControl_Resize);
    join(top.cbAgente.Click, agents_, &Agents::cbAgente_Click);
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

    join(prospects.cmdProsNewProj.Click, prospectConversion_, &ProspectConversion::cmdProsNewProj_Click);
    for (int i = 0; i < top.bColor.Count(); ++i)
        wires_.push_back(
            top.bColor(i).Click.connect([this, i] { colourMarks_.bColor_Click(static_cast<std::int16_t>(i)); }));

    join(projects.cbProjStatusProj.Click, projectList_, &ProjectList::cbProjStatusProj_Click);
    join(projects.lvwProy.ItemClick, projectDetail_, &ProjectDetail::lvwProy_ItemClick);
    join(projects.lvwProy.DblClick, projectCommands_, &ProjectCommands::lvwProy_DblClick);
    join(projects.cmdProjNewProj.Click, projectCommands_, &ProjectCommands::cmdProjNewProj_Click);
    join(projects.cmdNewProjEditProj.Click, projectCommands_, &ProjectCommands::cmdNewProjEditProj_Click);
    join(projects.cmdProjSeekProj.Click, projectCommands_, &ProjectCommands::cmdProjSeekProj_Click);
    join(projects.cmdProjNewContact.Click, projectCommands_, &ProjectCommands::cmdProjNewContact_Click);
    join(projects.cmdProjNewOrg.Click, projectCommands_, &ProjectCommands::cmdProjNewOrg_Click);
    join(projects.cmdNewProjTool.Click, projectCommands_, &ProjectCommands::cmdNewProjTool_Click);

    join(today.lvwHoy.ItemClick, todayPanel_, &TodayPanel::lvwHoy_ItemClick);
    join(today.lvwHoy.DblClick, todayCommands_, &TodayCommands::lvwHoy_DblClick);
    join(today.cmdEditHoy.Click, todayCommands_, &TodayCommands::cmdEditHoy_Click);
    join(today.geProyFromContacto.Click, todayCommands_, &TodayCommands::geProyFromContacto_Click);
    join(today.Command7.Click, todayPanel_, &TodayPanel::Command7_Click);

    join(top.cmdOkBuscar.Click, search_, &Search::cmdOkBuscar_Click);
    join(top.txtBuscar.KeyPress, search_, &Search::txtBuscar_KeyPress);

    join(persons.addContact.Click, persons_, &Persons::addContact_Click);
    join(persons.editContact.Click, persons_, &Persons::editContact_Click);
    join(persons.deleteContact.Click, persons_, &Persons::deleteContact_Click);
    join(persons.showContactRelations.Click, persons_, &Persons::showContactRelations_Click);
    join(persons.genProyectFromContact.Click, persons_, &Persons::genProyectFromContact_Click);
    join(persons.lvwContactos.DblClick, persons_, &Persons::lvwContactos_DblClick);

    join(organisations.addOrganization.Click, organisations_, &Organisations::addOrganization_Click);
    join(organisations.editOrganization.Click, organisations_, &Organisations::editOrganization_Click);
    join(organisations.deleteOrganization.Click, organisations_, &Organisations::deleteOrganization_Click);
    join(organisations.showOrganizationRelations.Click, organisations_,
         &Organisations::showOrganizationRelations_Click);
    join(organisations.genProyectFromOrganization.Click, organisations_,
         &Organisations::genProyectFromOrganization_Click);

    join(prospects.lvw.DblClick, callOutcomes_, &CallOutcomes::lvw_DblClick);
    join(detail.cmdCall.Click, callFlow_, &CallFlow::cmdCall_Click);
    join(call.cmdContesta.Click, callFlow_, &CallFlow::cmdContesta_Click);
    join(call.cmdOcupado.Click, callFlow_, &CallFlow::cmdOcupado_Click);
    join(call.cmdNoContestan.Click, callFlow_, &CallFlow::cmdNoContestan_Click);
    join(call.cmdFueraServ.Click, callFlow_, &CallFlow::cmdFueraServ_Click);
    join(call.cmdCancelCall.Click, callFlow_, &CallFlow::cmdCancelCall_Click);
    for (int i = 0; i < call.cmdCallCon.Count(); ++i)
        wires_.push_back(call.cmdCallCon(i).Click.connect(
            [this, i] { callFlow_.cmdCallCon_Click(static_cast<std::int16_t>(i)); }));
    join(call.cmdOkCall.Click, callFlow_, &CallFlow::cmdOkCall_Click);
    join(call.Timer1.TimerEvent, callFlow_, &CallFlow::Timer1_Timer);

    join(detail.cmdSend.Click, mail_, &Mail::cmdSend_Click);

    join(detail.cmdIntro.Click, notes_, &Notes::cmdIntro_Click);
    join(detail.cmdNote.Click, notes_, &Notes::cmdNote_Click);
    join(detail.txtText.KeyPress, notes_, &Notes::txtText_KeyPress);
}

} // namespace dn::shell
