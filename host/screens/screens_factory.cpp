// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/screens_factory.h"

#include "host/screens/crm_connection.h"
#include "host/screens/crm_screens.h"
#include "host/screens/person_record.h"
#include "host/screens/project_screens.h"

namespace dn::host {

ScreensFactory::ScreensFactory(OwnConnection::Opener open, QWidget* window)
    : context_(std::make_shared<ScreenContext>(ScreenContext{OwnConnection(std::move(open)), window}))
{
}

std::shared_ptr<UI_CRM> ScreensFactory::newUI_CRM() { return std::make_shared<CrmScreens>(context_); }

std::shared_ptr<ConexionCRM> ScreensFactory::newConexionCRM() { return std::make_shared<CrmConnection>(context_); }

std::shared_ptr<UIProyectos> ScreensFactory::newUIProyectos()
{
    return std::make_shared<ProjectScreens>(context_);
}

// The control takes nothing as a failure.
std::shared_ptr<CorreoHost> ScreensFactory::newCorreoHost() { return makeMail_ ? makeMail_(context_) : nullptr; }

std::shared_ptr<PersonaRegistro> ScreensFactory::newPersonaRegistro() { return std::make_shared<PersonRecord>(); }

} // namespace dn::host
