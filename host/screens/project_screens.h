// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The host's screens for projects, as the control asks for them. A failure is shown to the operator here, in the
// server's words: the control passes most of them over.
#pragma once

#include "host/screens/context.h"

#include <memory>

namespace dn::host {

class ProjectScreens : public UIProyectos {
public:
    explicit ProjectScreens(std::shared_ptr<ScreenContext> context) : context_(std::move(context)) {}

    /// Leaves oUICRM as it is.
    void Inicializar(data::Connection* connection, std::shared_ptr<UI_CRM>& oUICRM, HostObject& lands,
                     const std::string& pathXML, const std::string& usuario) override;
    /// Stores the first two texts as street and quarter, the third as mobile telephone, the fourth as second mail
    /// address.
    void CrearPersona(const std::string& nombre, const std::string& text1, const std::string& text2,
                      std::int32_t ciudad, const std::string& telefono, const std::string& text3,
                      const std::string& email, const std::string& text4, std::int32_t agente,
                      std::int32_t& result) override;
    void SetMotorBD(std::int16_t motor) override { context_->motor = motor; }
    void CrearProyecto(std::int16_t& kind, std::int32_t& party, std::int32_t& result) override;
    /// Returns when the window closes.
    void EditarProyecto(std::int32_t key) override;

private:
    std::shared_ptr<ScreenContext> context_;
};

} // namespace dn::host
