// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/tabs.h"

#include "base/runtime_error.h"
#include "data/failure_modes.h"

#include <limits>

namespace dn::shell {

using data::resumeNext;

void Tabs::lblItem_Click(std::int16_t index) { SelectTab(index); }

void Tabs::SelectTab(std::int16_t index) // continue-on-error
{
    desk::TopElements& top = elements_.top;
    for (int i = 0; i < desk::TabStrip::count; ++i)
        resumeNext([&] { top.lblItem(i).BackColor(desk::TabStrip::inactiveColour); });
    for (int i = 0; i < desk::TabStrip::count; ++i)
        resumeNext([&] { top.lblItem(i).BorderStyle(0); });
    for (int i = 0; i < desk::TabStrip::count; ++i) // only the first two have a strip; the rest is passed over
        resumeNext([&] { top.picItem(i).Visible(false); });
    resumeNext([&] { top.lblItem(index).BackColor(desk::TabStrip::activeColour); });
    resumeNext([&] { top.lblItem(index).BorderStyle(1); });
    resumeNext([&] { top.picItem(index).Visible(true); });
    resumeNext([&] { ShowActiveTab(); });
}

void Tabs::ShowActiveTab() // continue-on-error
{
    ++switches_;
    clearCommonArea();
    hideAll();
    for (screen::Element* element :
         std::initializer_list<screen::Element*>{&elements_.top.lblBuscar, &elements_.top.txtBuscar,
                                                 &elements_.top.cmdOkBuscar, &elements_.detail.picRight})
        resumeNext([&] { element->Visible(true); });
    resumeNext([&] { elements_.today.cmdEditHoy.Enabled(false); });
    resumeNext([&] { elements_.today.geProyFromContacto.Enabled(false); });
    resumeNext([&] { rooms_.prospectDetail.LimpiaDetalle(); });
    std::int16_t active = desk::none;
    resumeNext([&] { strip_.GetActiveTab(active); });
    showTab(active);
}

void Tabs::ArrangeTabs() // no trap
{
    const std::int32_t data = elements_.top.cbAgente.selectedData();
    if (data > std::numeric_limits<std::int16_t>::max() || data < std::numeric_limits<std::int16_t>::min())
        throw RuntimeError::overflow();
    const auto runs = [](const std::function<void()>& statement) { statement(); };
    if (data == 0 && !strip_.TabsContraidos()) {
        strip_.showWorkTabs(false);
        strip_.narrow(runs);
    } else if (data != 0 && strip_.TabsContraidos()) {
        strip_.showWorkTabs(true);
        strip_.restore(runs);
    }
}

void Tabs::clearCommonArea()
{
    for (screen::TextBox* box : {&elements_.detail.txtBit, &elements_.detail.txtInfo, &elements_.detail.txtText})
        resumeNext([&] { box->Text(""); });
    resumeNext([&] { elements_.top.picColors.BackColor(screen::white); });
}

void Tabs::hideAll()
{
    for (screen::Element* element : std::initializer_list<screen::Element*>{
             &elements_.today.lvwHoy, &elements_.prospects.lvw, &elements_.projects.lvwProy,
             &elements_.persons.lvwContactos, &elements_.organisations.lvwOrganizaciones, &elements_.today.picHoy,
             &elements_.detail.Combo1, &elements_.detail.cmdEditC, &elements_.top.lblBuscar,
             &elements_.top.txtBuscar, &elements_.top.cmdOkBuscar, &elements_.organisations.picOrganizacion,
             &elements_.persons.picContactos, &elements_.top.picColors})
        resumeNext([&] { element->Visible(false); });
}

void Tabs::showTab(std::int16_t index)
{
    switch (index) {
    case desk::prospectos:
        showProspects();
        break;
    case desk::proyectos:
        showProjects();
        break;
    case desk::hoy:
        showToday();
        break;
    case desk::organizaciones:
        showDirectory(elements_.organisations.lvwOrganizaciones, elements_.organisations.picOrganizacion);
        resumeNext([&] { rooms_.organisations.LoadOrganizaciones(); });
        break;
    case desk::contactos:
        showDirectory(elements_.persons.lvwContactos, elements_.persons.picContactos);
        resumeNext([&] { rooms_.persons.LoadContactos(); });
        break;
    default:
        break;
    }
}

void Tabs::showProspects()
{
    desk::ProspectElements& prospects = elements_.prospects;
    resumeNext([&] { prospects.lvw.Visible(true); });
    resumeNext([&] { elements_.detail.Combo1.Visible(true); });
    resumeNext([&] { elements_.detail.cmdEditC.Visible(true); });
    resumeNext([&] { elements_.top.picColors.Visible(true); });
    placeInfo(465, 2190);
    const std::uint64_t thisSwitch = switches_;
    resumeNext([&] { // the row that stayed selected fills the detail again, ahead of the load
        if (const auto selected = prospects.lvw.SelectedItem()) rooms_.prospectDetail.lvw_ItemClick(selected);
    });
    if (thisSwitch != switches_) return; // the operator went to another tab while the timeline was read
    resumeNext([&] { prospects.picAdmin.Visible(session_.GAdmon); });
    resumeNext([&] { prospects.lvw.CheckBoxes(session_.GAdmon); });
    resumeNext([&] { rooms_.prospectList.LoadProspectos(); });
}

void Tabs::showProjects()
{
    resumeNext([&] { elements_.projects.lvwProy.Visible(true); });
    resumeNext([&] { elements_.top.picColors.Visible(true); });
    placeInfo(15, 2640); // the room of Combo1 goes to the text
    const std::uint64_t thisSwitch = switches_;
    resumeNext([&] {
        if (const auto selected = elements_.projects.lvwProy.SelectedItem())
            rooms_.projectDetail.lvwProy_ItemClick(selected);
    });
    if (thisSwitch != switches_) return; // the operator went to another tab while the timeline was read
    resumeNext([&] { rooms_.projectList.RefreshProyectos(); });
}

void Tabs::showToday()
{
    resumeNext([&] { elements_.today.lvwHoy.Visible(true); });
    resumeNext([&] { elements_.today.picHoy.Visible(true); });
    placeInfo(15, 2640);
    resumeNext([&] { rooms_.queue.RefreshRobot(); });
}

void Tabs::showDirectory(screen::ListView& list, screen::PicturePanel& panel)
{
    resumeNext([&] { list.Visible(true); });
    resumeNext([&] { panel.Visible(true); });
    resumeNext([&] { elements_.detail.picRight.Visible(false); });
}

void Tabs::placeInfo(screen::Twips top, screen::Twips height)
{
    resumeNext([&] { elements_.detail.txtInfo.Top(top); });
    resumeNext([&] { elements_.detail.txtInfo.Height(height); });
}

} // namespace dn::shell
