// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The binding of the host's screens: how the control creates their objects and hands them what they need.
#pragma once

#include "desk/host_objects.h"
#include "desk/session.h"

#include <cstdint>
#include <memory>
#include <string>

namespace dn::desk {

class HostScreens {
public:
    /// The kinds of party of a new project.
    static constexpr std::int16_t person = 0;
    static constexpr std::int16_t organisation = 1;
    static constexpr std::int16_t noParty = 2;

    explicit HostScreens(Session& session) : session_(session) {}

    void factory(HostFactory* factory) { factory_ = factory; }

    /// Creates the host's objects and binds them to the connection and the user. May be repeated: the directory
    /// screens are made anew, the project screens stay and receive the new references.
    /// @throws whatever an operation of the host fails with; RuntimeError when the host handed over no factory.
    void InitUICRM(const std::string& PathXML, HostObject& FXLands);

    /// Opens the host's screen of a new project without a party.
    /// @param Key is not used. @return the new project's key; 0 or less when none was made or anything failed.
    std::int32_t NuevoProyecto(std::int32_t& Key);

    /// The directory screens. @throws RuntimeError when there are none.
    std::shared_ptr<UI_CRM> oUICRM() const;

    /// The project screens, created when they are needed for the first time.
    UIProyectos& oUIProyectos();

    /// A new object for a mail or a look at the history. @throws RuntimeError when the host gives none.
    std::shared_ptr<CorreoHost> newCorreoHost() const;
    /// A new object that reads a person. @throws RuntimeError when the host gives none.
    std::shared_ptr<PersonaRegistro> newPersonaRegistro() const;

private:
    HostFactory& make() const;

    Session& session_;
    HostFactory* factory_ = nullptr;
    std::string PathXML_;
    std::shared_ptr<UIProyectos> oUIProyectos_;
};

} // namespace dn::desk
