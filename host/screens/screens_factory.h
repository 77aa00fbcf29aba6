// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Makes the host's screens when the control asks for them.
//
//     ScreensFactory screens([&] { return database.openConnection(); }, &mainWindow);
//     control.hostObjects(&screens);
//
// The objects share a connection of their own, which is opened when the first of them needs it and goes with the
// last of them.
#pragma once

#include "host/screens/context.h"

#include <functional>
#include <memory>

namespace dn::host {

class ScreensFactory : public HostFactory {
public:
    /// @param open gives a new connection to the control's database; called for as long as an object lives.
    /// @param window that the screens stand over.
    explicit ScreensFactory(OwnConnection::Opener open, QWidget* window = nullptr);

    using MailMaker = std::function<std::shared_ptr<CorreoHost>(const std::shared_ptr<ScreenContext>&)>;
    /// Sets who makes the mail objects; without one there is no mail.
    void mailBy(MailMaker make) { makeMail_ = std::move(make); }

    std::shared_ptr<UI_CRM> newUI_CRM() override;
    std::shared_ptr<ConexionCRM> newConexionCRM() override;
    std::shared_ptr<UIProyectos> newUIProyectos() override;
    std::shared_ptr<CorreoHost> newCorreoHost() override;
    std::shared_ptr<PersonaRegistro> newPersonaRegistro() override;

    const ScreenContext& context() const { return *context_; }

private:
    std::shared_ptr<ScreenContext> context_;
    MailMaker makeMail_;
};

} // namespace dn::host
