// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "calling/list_in_sight.h"

#include "data/failure_modes.h"

#include <string>

namespace dn::calling {
namespace {

using data::resumeNext;

void showCount(screen::Label& label, screen::ListView& list) // continue-on-error
{
    resumeNext([&] { label.Caption(std::to_string(list.ListItems().Count())); });
}

} // namespace

void ListInSight::Call_RefreshList() // continue-on-error
{
    if (elements_.prospects.lvw.Visible()) {
        resumeNext([&] { prospectList_.LoadProspectos(); });
        showCount(elements_.top.lblCuenta, elements_.prospects.lvw);
    } else if (elements_.projects.lvwProy.Visible()) {
        resumeNext([&] { projectList_.RefreshProyectos(); });
        showCount(elements_.top.lblCuenta, elements_.projects.lvwProy);
    } else {
        resumeNext([&] { queue_.RefreshRobot(); });
        showCount(elements_.today.lblcuenta2, elements_.today.lvwHoy);
    }
}

void ListInSight::takeFocus()
{
    for (screen::ListView* list : {&elements_.prospects.lvw, &elements_.projects.lvwProy, &elements_.today.lvwHoy,
                                   &elements_.persons.lvwContactos, &elements_.organisations.lvwOrganizaciones}) {
        if (!list->usable()) continue;
        list->SetFocus();
        return;
    }
}

} // namespace dn::calling
