// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/crm_screens.h"

#include "host/screens/boxes.h"
#include "host/screens/organisation_form.h"
#include "host/screens/person_form.h"
#include "host/screens/search_window.h"

namespace dn::host {
namespace {

template <class EntryForm>
void edit(ScreenContext& context, std::int32_t key, std::int32_t agent, QWidget* over, std::any& result)
{
    reporting(over, [&] {
        EntryForm form(context, key, agent, over);
        if (form.exec() == QDialog::Accepted) result = form.key();
    });
}

} // namespace

void CrmScreens::NuevaOrganizacion(HostObject&, std::int32_t& agente, std::any& result)
{
    edit<OrganisationForm>(*context_, 0, agentOr(agente), below(), result);
}

void CrmScreens::EditarOrganizacion(std::int32_t& key, std::int32_t& agente, std::any& result)
{
    edit<OrganisationForm>(*context_, key, agentOr(agente), below(), result);
}

void CrmScreens::NuevaPersona(HostObject&, std::int32_t& agente, std::any& result)
{
    edit<PersonForm>(*context_, 0, agentOr(agente), below(), result);
}

void CrmScreens::EditarPersona(std::int32_t& key, std::int32_t& agente, std::any& result)
{
    edit<PersonForm>(*context_, key, agentOr(agente), below(), result);
}

void CrmScreens::BuscarEntidad(const std::string& text, bool persons, bool organisations, std::string& result)
{
    result.clear();
    reporting(below(), [&] {
        SearchWindow window(*context_, QString::fromStdString(text), {persons, organisations}, below());
        window.exec();
        if (const auto entity = window.picked())
            result = (entity->organisation ? "O" : "P") + std::to_string(entity->key);
    });
}

void CrmScreens::BorrarOrganizacion(std::int32_t&, bool&, std::int32_t& result)
{
    result = 0;
    tellNotAvailable(below());
}

void CrmScreens::BorrarPersona(std::int32_t&, bool&, std::int32_t& result)
{
    result = 0;
    tellNotAvailable(below());
}

void CrmScreens::MostrarRelaciones(std::int16_t&, std::int32_t&, std::string&) { tellNotAvailable(below()); }

QWidget* CrmScreens::below() const { return windowBelow(context_->window); }

} // namespace dn::host
