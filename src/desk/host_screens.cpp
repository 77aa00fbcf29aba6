// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "desk/host_screens.h"

#include "base/runtime_error.h"
#include "data/failure_modes.h"

namespace dn::desk {
namespace {

// What the host gave. @throws RuntimeError when it gave nothing.
template <class Object>
std::shared_ptr<Object> present(std::shared_ptr<Object> object)
{
    if (!object) throw RuntimeError::objectNotSet();
    return object;
}

} // namespace

void HostScreens::InitUICRM(const std::string& PathXML, HostObject& FXLands) // no trap
{
    // A reference of its own: the host may replace the property while one of its operations runs.
    std::shared_ptr<UI_CRM> screens = present(make().newUI_CRM());
    session_.oUICRM = screens;
    screens->Conexion(present(make().newConexionCRM()));
    present(screens->Conexion())->AdoCnn(session_.AdoCnn);
    PathXML_ = PathXML;
    screens->SetPathXML(PathXML);
    screens->SetFXLands(FXLands);
    screens->Abrir();
    session_.TemplatePath = "R:";
    screens->Preparar();
    oUIProyectos().SetMotorBD(session_.MotorBD);
    oUIProyectos().Inicializar(session_.AdoCnn, screens, FXLands, PathXML_, session_.Usuario);
    session_.oUICRM = screens;
}

std::int32_t HostScreens::NuevoProyecto(std::int32_t&) // continue-on-error
{
    std::int16_t kind = noParty;
    std::int32_t party = 0;
    std::int32_t result = 0;
    // A host that wrote a result and then failed has made no project.
    const bool made = data::resumeNext([&] { oUIProyectos().CrearProyecto(kind, party, result); });
    return made ? result : 0;
}

// A reference of the caller's own: the host may replace the property while one of its operations runs.
std::shared_ptr<UI_CRM> HostScreens::oUICRM() const { return present(session_.oUICRM); }

UIProyectos& HostScreens::oUIProyectos()
{
    if (!oUIProyectos_) oUIProyectos_ = present(make().newUIProyectos());
    return *oUIProyectos_;
}

std::shared_ptr<CorreoHost> HostScreens::newCorreoHost() const { return present(make().newCorreoHost()); }

std::shared_ptr<PersonaRegistro> HostScreens::newPersonaRegistro() const
{
    return present(make().newPersonaRegistro());
}

HostFactory& HostScreens::make() const
{
    if (factory_ == nullptr) throw RuntimeError::objectNotSet();
    return *factory_;
}

} // namespace dn::desk
