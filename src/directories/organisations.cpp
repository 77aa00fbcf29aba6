// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "directories/organisations.h"

#include "directories/selected_entry.h"

namespace dn::directories {

void Organisations::LoadOrganizaciones() // trap
{
    loader_.load(organisations, elements_.lvwOrganizaciones,
                 {&elements_.editOrganization, &elements_.showOrganizationRelations,
                  &elements_.genProyectFromOrganization});
}

void Organisations::addOrganization_Click() // no trap
{
    std::int32_t key = 0; // a new organisation
    std::int32_t agente = 0;
    std::any unused;
    screens_.oUICRM()->EditarOrganizacion(key, agente, unused);
    LoadOrganizaciones();
}

void Organisations::editOrganization_Click() // no trap
{
    std::int32_t key = selectedKeyOrTell();
    if (key < 1) return;
    std::int32_t agente = loader_.agentForNewEntry();
    std::any unused;
    screens_.oUICRM()->EditarOrganizacion(key, agente, unused);
    LoadOrganizaciones();
}

void Organisations::deleteOrganization_Click() // no trap
{
    std::int32_t key = selectedKeyOrTell();
    if (key < 1) return;
    bool confirm = true;
    std::int32_t deleted = 0;
    screens_.oUICRM()->BorrarOrganizacion(key, confirm, deleted);
    if (deleted != 0) LoadOrganizaciones();
}

void Organisations::showOrganizationRelations_Click() // no trap
{
    std::int32_t key = selectedKeyOrTell();
    if (key < 1) return;
    std::string name;
    ItemSubText(elements_.lvwOrganizaciones, 1, name);
    std::string caption = "Relaciones de la organización: " + name;
    std::int16_t kind = desk::HostScreens::organisation;
    screens_.oUICRM()->MostrarRelaciones(kind, key, caption);
}

void Organisations::genProyectFromOrganization_Click() // no trap
{
    std::int32_t key = selectedKey();
    std::int16_t kind = desk::HostScreens::organisation;
    std::int32_t project = 0;
    screens_.oUIProyectos().CrearProyecto(kind, key, project);
}

std::int32_t Organisations::selectedKey()
{
    std::int32_t key = 0;
    ItemKeyPK(elements_.lvwOrganizaciones, key);
    return key;
}

std::int32_t Organisations::selectedKeyOrTell()
{
    const std::int32_t key = selectedKey();
    if (key < 1) dialogs_.say("Seleccione un elemento de la lista.");
    return key;
}

} // namespace dn::directories
