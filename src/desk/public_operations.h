// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The public operations of the control that its dialogs and rooms call back, as the host would. The control
// implements them; whoever needs one holds this interface and so knows no room above itself.
#pragma once

#include "base/export.h"

#include <cstdint>

namespace dn::desk {

/// What `ctrDnContacts` offers its own rooms.
class DN_EXPORT PublicOperations {
public:
    /// Writes a mail to the party in hand.
    virtual void cmdSend_Click() = 0;
    /// Shows the mails of a record. @param t 0 a prospect, 1 a project. @param Sys_PK its key.
    virtual void Historial(std::int16_t& t, std::int32_t& Sys_PK) = 0;
    /// Asks for an agent. @return his key; 0 when none was chosen or anything failed.
    virtual std::int32_t ShSelAgente() = 0;

protected:
    ~PublicOperations() = default;
};

} // namespace dn::desk
