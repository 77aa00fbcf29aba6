// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The host's screens for persons and organisations, as the control asks for them. A failure is shown to the
// operator here, in the server's words: the control passes most of them over.
#pragma once

#include "host/screens/context.h"
#include "host/screens/party_field.h"

#include <memory>

namespace dn::host {

class CrmScreens : public UI_CRM {
public:
    explicit CrmScreens(std::shared_ptr<ScreenContext> context) : context_(std::move(context)) {}

    void SetAgente(std::int32_t agente) override { context_->agent = agente; }
    void SetPathXML(const std::string& path) override { context_->pathXML = path; }
    std::shared_ptr<ConexionCRM> Conexion() override { return holder_; }
    void Conexion(std::shared_ptr<ConexionCRM> holder) override { holder_ = std::move(holder); }
    /// Nothing: the screens open their connection when the first of them needs it.
    void Abrir() override {}
    void SetFXLands(const HostObject& lands) override { context_->lands = lands; }
    /// Nothing is left to prepare.
    void Preparar() override {}

    void NuevaOrganizacion(HostObject& object, std::int32_t& agente, std::any& result) override;
    /// @param result the organisation's key, a std::int32_t, where something was stored.
    void EditarOrganizacion(std::int32_t& key, std::int32_t& agente, std::any& result) override;
    void NuevaPersona(HostObject& object, std::int32_t& agente, std::any& result) override;
    /// @param result the person's key, a std::int32_t, where something was stored.
    void EditarPersona(std::int32_t& key, std::int32_t& agente, std::any& result) override;
    void BuscarEntidad(const std::string& text, bool persons, bool organisations, std::string& result) override;
    /// @param result 1 when the organisation is gone, also when it was gone already; else 0.
    void BorrarOrganizacion(std::int32_t& key, bool& confirm, std::int32_t& result) override;
    void BorrarPersona(std::int32_t& key, bool& confirm, std::int32_t& result) override;
    void MostrarRelaciones(std::int16_t& kind, std::int32_t& key, std::string& caption) override;

private:
    void edit(PartyField::Kind kind, std::int32_t key, std::int32_t agente, std::any& result);
    void remove(PartyField::Kind kind, std::int32_t key, bool confirm, std::int32_t& result);
    QWidget* below() const;
    std::int32_t agentOr(std::int32_t agente) const { return agente != 0 ? agente : context_->agent; }

    std::shared_ptr<ScreenContext> context_;
    std::shared_ptr<ConexionCRM> holder_;
};

} // namespace dn::host
