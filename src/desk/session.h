// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the host sets and what the rooms of the control share: plain values, no behaviour. The names are those of
// the public properties.
#pragma once

#include "base/runtime_error.h"
#include "data/connection.h"
#include "desk/host_objects.h"

#include <any>
#include <cstdint>
#include <memory>
#include <string>

namespace dn::desk {

struct Session {
    /// Value of MotorBD for MySQL and MariaDB; any other value takes the SQL Server forms.
    static constexpr std::int16_t mySql = 1;
    static constexpr std::int16_t sqlServer = 2;

    std::string Call_Tabla;     ///< table of the party being called
    std::int32_t Call_PK = 0;   ///< key of the party being called
    std::string Call_Tel;       ///< number being called
    bool Call_Progress = false; ///< a call is in progress
    std::string TemplatePath;   ///< folder of the mail templates
    std::shared_ptr<UI_CRM> oUICRM;
    std::string Usuario;                ///< user name, written into every row of the activity log
    data::Connection* AdoCnn = nullptr; ///< the host's connection; it outlives the control's use of it
    std::int32_t PKAgente = 0;          ///< key of the agent who works
    bool GAdmon = false;                ///< the user is an administrator
    std::any eBasic;                    ///< stored for the host; nothing in the control reads it

    std::int16_t MotorBD = 0; ///< engine of the connection: mySql, sqlServer or 0 when no probe succeeded

    /// Set after a change of status was stored. Whoever moves `Combo1` by code clears it first and reads it
    /// afterwards.
    bool StatusCambiado = false;

    bool isMySql() const { return MotorBD == mySql; }

    /// The connection. @throws RuntimeError when the host has set none.
    data::Connection& cnn() const
    {
        if (AdoCnn == nullptr) throw RuntimeError::objectNotSet();
        return *AdoCnn;
    }
};

} // namespace dn::desk
