// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/work_place.h"

#include "shell/ctr_dn_contacts.h"

namespace dn::host {
namespace {

std::array<screen::ListView*, desk::TabStrip::count> listsOf(desk::Elements& elements)
{
    return {&elements.prospects.lvw, &elements.projects.lvwProy, &elements.today.lvwHoy,
            &elements.organisations.lvwOrganizaciones, &elements.persons.lvwContactos};
}

std::int16_t tabOf(desk::Elements& elements)
{
    for (std::int16_t tab = 0; tab < desk::TabStrip::count; ++tab)
        if (elements.top.lblItem(tab).BackColor() == desk::TabStrip::activeColour) return tab;
    return desk::none;
}

std::string selectedIn(screen::ListView& list)
{
    const auto row = list.SelectedItem();
    return row ? std::string(row->Key()) : std::string();
}

void check(screen::ListView& list, const std::vector<std::string>& keys)
{
    screen::ListItems rows = list.ListItems();
    for (const std::string& key : keys)
        if (rows.Contains(key)) rows(key).Checked(true);
}

// Each of these loads its list.
void openTab(desk::Elements& elements, const WorkPlace& place)
{
    if (place.tab == desk::none) return;
    if (place.tab == desk::hoy) {
        elements.top.lblItem(desk::prospectos).click(); // the queue finds its prospects in their list
    } else {
        if (place.status != elements.prospects.cbStatus.ListIndex())
            elements.prospects.cbStatus.ListIndex(place.status);
        if (place.projectStatus != elements.projects.cbProjStatusProj.ListIndex())
            elements.projects.cbProjStatusProj.ListIndex(place.projectStatus);
    }
    elements.top.lblItem(place.tab).click();
}

/// @return whether the row is there.
bool select(screen::ListView& list, const std::string& key, bool detail)
{
    if (!list.ListItems().Contains(key)) return false;
    screen::ListItem row = list.ListItems()(key);
    if (detail)
        list.clickRow(static_cast<std::size_t>(row.Index()) - 1);
    else
        row.Selected(true);
    row.EnsureVisible();
    return true;
}

} // namespace

WorkPlace placeOf(ctrDnContacts& control)
{
    desk::Elements& elements = control.elements();
    WorkPlace place;
    if (elements.top.cbAgente.ListIndex() >= 0) place.agent = elements.top.cbAgente.selectedData();
    place.tab = tabOf(elements);
    place.status = elements.prospects.cbStatus.ListIndex();
    place.projectStatus = elements.projects.cbProjStatusProj.ListIndex();
    const auto lists = listsOf(elements);
    for (std::size_t i = 0; i < lists.size(); ++i)
        place.selected[i] = selectedIn(*lists[i]);
    place.detail = !elements.detail.txtInfo.Text().empty();
    place.note = elements.detail.txtText.Text();
    return place;
}

std::vector<std::string> checkedProspects(ctrDnContacts& control)
{
    screen::ListView& lvw = control.elements().prospects.lvw;
    std::vector<std::string> keys;
    screen::ListItems rows = lvw.ListItems();
    for (int i = 1; lvw.CheckBoxes() && i <= rows.Count(); ++i)
        if (rows(i).Checked()) keys.emplace_back(rows(i).Key());
    return keys;
}

// A note that was stored leaves its row selected and the box empty; it is no lost one.
WorkPlace restored(WorkPlace place, const WorkPlace& earlier)
{
    const auto isAt = [&place, &earlier](std::size_t list) {
        return place.tab == earlier.tab && place.selected[list] == earlier.selected[list];
    };
    const bool stayed = isAt(earlier.list());
    if (place.selected[place.list()].empty()) place.detail = earlier.detail;
    for (std::size_t i = 0; i < place.selected.size(); ++i)
        if (place.selected[i].empty()) place.selected[i] = earlier.selected[i];
    place.notesLeft = earlier.notesLeft;
    if (stayed || earlier.note.empty() || earlier.note == place.note) return place;
    if (place.note.empty() && isAt(earlier.list()))
        place.note = earlier.note;
    else
        place.notesLeft.push_back(earlier.note);
    return place;
}

bool returnTo(ctrDnContacts& control, const WorkPlace& place)
{
    desk::Elements& elements = control.elements();
    desk::ComboBox& cbAgente = elements.top.cbAgente;
    const bool elsewhere = cbAgente.ListIndex() < 0 || place.agent != cbAgente.selectedData();
    if (place.agent && elsewhere) control.SelAgente(*place.agent);
    openTab(elements, place);
    check(elements.prospects.lvw, place.checked);
    const std::string& key = place.selected[place.list()];
    const bool there = key.empty() || select(*listsOf(elements)[place.list()], key, place.detail);
    if (place.note.empty()) return true;
    if (there) elements.detail.txtText.Text(place.note);
    return there;
}

} // namespace dn::host
