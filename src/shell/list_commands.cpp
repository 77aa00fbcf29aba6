// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/list_commands.h"

namespace dn::shell {
namespace {

using Commands = std::vector<screen::Button*>;

/// What can be done with a party, whatever list it stands in.
Commands withParty(desk::DetailElements& detail, const Commands& own)
{
    Commands commands{&detail.cmdCall, &detail.cmdNote, &detail.cmdSend};
    commands.insert(commands.end(), own.begin(), own.end());
    return commands;
}

void addMarks(Commands& commands, desk::TopElements& top)
{
    for (int index = 0; index < top.bColor.Count(); ++index)
        commands.push_back(&top.bColor(index));
}

Commands ofProspects(desk::Elements& elements)
{
    desk::ProspectElements& own = elements.prospects;
    Commands commands = withParty(elements.detail, {&elements.detail.cmdEditC, &own.cmdProsNewProj,
                                                    &own.cmdProsAsignPros, &own.cmdProsDiscart});
    addMarks(commands, elements.top);
    return commands;
}

Commands ofProjects(desk::Elements& elements)
{
    Commands commands = withParty(elements.detail, {&elements.projects.cmdNewProjEditProj});
    addMarks(commands, elements.top);
    return commands;
}

} // namespace

std::vector<screen::Button*> commandsOf(std::string_view list, desk::Elements& elements)
{
    desk::TodayElements& today = elements.today;
    desk::OrganisationElements& firms = elements.organisations;
    desk::PersonElements& persons = elements.persons;
    if (list == elements.prospects.lvw.name()) return ofProspects(elements);
    if (list == elements.projects.lvwProy.name()) return ofProjects(elements);
    if (list == today.lvwHoy.name())
        return withParty(elements.detail, {&today.cmdEditHoy, &today.Command7, &today.geProyFromContacto});
    if (list == firms.lvwOrganizaciones.name())
        return {&firms.editOrganization, &firms.deleteOrganization, &firms.showOrganizationRelations,
                &firms.genProyectFromOrganization};
    if (list == persons.lvwContactos.name())
        return {&persons.editContact, &persons.deleteContact, &persons.showContactRelations,
                &persons.genProyectFromContact};
    return {};
}

} // namespace dn::shell
