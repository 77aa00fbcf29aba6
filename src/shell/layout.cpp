// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/layout.h"

#include "data/failure_modes.h"

#include <initializer_list>

namespace dn::shell {
namespace {

using data::resumeNext;

// Each property is a statement of its own: a refused height does not keep the width from changing.
void place(screen::Element& element, screen::Twips left, screen::Twips top)
{
    resumeNext([&] { element.Top(top); });
    resumeNext([&] { element.Left(left); });
}

void size(screen::Element& element, screen::Twips width, screen::Twips height)
{
    resumeNext([&] { element.Width(width); });
    resumeNext([&] { element.Height(height); });
}

constexpr screen::Twips gap = 60;

} // namespace

void Layout::UserControl_Resize() // continue-on-error
{
    fitLists();
    fitPanels();
    fitTopStrip();
}

void Layout::fitLists()
{
    const screen::UserControl& control = elements_.control;
    const screen::Twips top = elements_.top.picTop.Height();
    const screen::Twips right = elements_.detail.picRight.Width();
    screen::ListView& lvw = elements_.prospects.lvw;
    for (screen::ListView* list : {&lvw, &elements_.today.lvwHoy})
        place(*list, 0, top);
    for (screen::ListView* list : {&lvw, &elements_.today.lvwHoy})
        size(*list, control.Width() - right, control.Height() - top);
    place(elements_.projects.lvwProy, lvw.Left(), lvw.Top());
    size(elements_.projects.lvwProy, lvw.Width(), lvw.Height());
    for (screen::ListView* list : {&elements_.persons.lvwContactos, &elements_.organisations.lvwOrganizaciones}) {
        place(*list, lvw.Left(), lvw.Top());
        size(*list, elements_.top.picTop.Width(), lvw.Height());
    }
}

void Layout::fitPanels()
{
    const screen::UserControl& control = elements_.control;
    desk::TopElements& top = elements_.top;
    for (screen::Element* panel : std::initializer_list<screen::Element*>{
             &elements_.today.picHoy, &top.picItem(0), &top.picItem(1), &elements_.persons.picContactos,
             &elements_.organisations.picOrganizacion})
        resumeNext([&] { panel->Width(top.picTop.Width()); });
    const screen::ListView& lvw = elements_.prospects.lvw;
    screen::PicturePanel& picLlamada = elements_.call.picLlamada;
    resumeNext([&] { picLlamada.Left(lvw.Left() + lvw.Width() / 2 - picLlamada.Width() / 2); });
    screen::TextBox& txtBit = elements_.detail.txtBit;
    resumeNext([&] { txtBit.Height(control.Height() - top.picTop.Height() - txtBit.Top() - gap); });
}

void Layout::fitTopStrip()
{
    const screen::Twips width = elements_.control.Width();
    desk::TopElements& top = elements_.top;
    resumeNext([&] { top.picColors.Width(width - top.picColors.Left()); });
    resumeNext([&] { top.txtBuscar.Width(width - top.txtBuscar.Left() - top.cmdOkBuscar.Width() - 2 * gap); });
    resumeNext([&] { top.cmdOkBuscar.Left(top.txtBuscar.Left() + top.txtBuscar.Width() + gap); });
}

} // namespace dn::shell
