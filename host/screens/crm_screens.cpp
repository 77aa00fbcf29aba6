// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/crm_screens.h"

#include "host/screens/boxes.h"
#include "host/screens/entry_form.h"
#include "host/screens/entry_removal.h"
#include "host/screens/relations_window.h"
#include "host/screens/search_window.h"
#include "screen/qt/hourglass.h"

namespace dn::host {
namespace {

using screen::qt::waiting;

constexpr auto person = PartyField::Kind::person;
constexpr auto organisation = PartyField::Kind::organisation;

} // namespace

void CrmScreens::NuevaOrganizacion(HostObject&, std::int32_t& agente, std::any& result)
{
    edit(organisation, 0, agente, result);
}

void CrmScreens::EditarOrganizacion(std::int32_t& key, std::int32_t& agente, std::any& result)
{
    edit(organisation, key, agente, result);
}

void CrmScreens::NuevaPersona(HostObject&, std::int32_t& agente, std::any& result)
{
    edit(person, 0, agente, result);
}

void CrmScreens::EditarPersona(std::int32_t& key, std::int32_t& agente, std::any& result)
{
    edit(person, key, agente, result);
}

void CrmScreens::edit(PartyField::Kind kind, std::int32_t key, std::int32_t agente, std::any& result)
{
    reporting(below(), [&] {
        EntryForm form = waiting([&] { return EntryForm(*context_, kind, key, agentOr(agente), below()); });
        if (form.exec() == QDialog::Accepted) result = form.key();
    });
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

void CrmScreens::BorrarOrganizacion(std::int32_t& key, bool& confirm, std::int32_t& result)
{
    remove(organisation, key, confirm, result);
}

void CrmScreens::BorrarPersona(std::int32_t& key, bool& confirm, std::int32_t& result)
{
    remove(person, key, confirm, result);
}

void CrmScreens::remove(PartyField::Kind kind, std::int32_t key, bool confirm, std::int32_t& result)
{
    result = 0;
    reporting(below(), [&] { result = removeEntry(*context_, kind, key, confirm, below()) ? 1 : 0; });
}

void CrmScreens::MostrarRelaciones(std::int16_t& kind, std::int32_t& key, std::string& caption)
{
    const PartyField::Kind of = kind == 1 ? organisation : person;
    reporting(below(), [&] {
        RelationsWindow window = waiting([&] {
            if (!findEntity(context_->database, of == organisation, key)) throw RowGone();
            return RelationsWindow(*context_, of, key, QString::fromStdString(caption), below());
        });
        window.exec();
    });
}

QWidget* CrmScreens::below() const { return windowBelow(context_->window); }

} // namespace dn::host
