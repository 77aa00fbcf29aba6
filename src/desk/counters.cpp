// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "desk/counters.h"

#include "data/failure_modes.h"

#include <string>

namespace dn::desk {
namespace {

std::string rowsOf(screen::ListView& list) { return std::to_string(list.ListItems().Count()); }

} // namespace

void Counters::UpdateCounters() // continue-on-error
{
    using data::resumeNext;
    Label& lblCuenta = elements_.top.lblCuenta;
    resumeNext([&] {
        lblCuenta.Caption("Hoy: " + rowsOf(elements_.today.lvwHoy) + " actividades | Proyectos: " +
                          rowsOf(elements_.projects.lvwProy) + " Contactos: " + rowsOf(elements_.prospects.lvw));
    });
    resumeNext([&] { elements_.today.lblcuenta2.Caption(lblCuenta.Caption()); });
    resumeNext([&] {
        elements_.organisations.lblinfoOrganizacion.Caption(
            "Organizaciones: " + rowsOf(elements_.organisations.lvwOrganizaciones) + ".");
    });
    resumeNext([&] {
        elements_.persons.lblInfoContacto.Caption("Contactos: " + rowsOf(elements_.persons.lvwContactos) + ".");
    });
}

} // namespace dn::desk
