// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// How a project is reached: a project has no telephone of its own, its organisation and its contact have.
#pragma once

#include "desk/session.h"

#include <cstdint>
#include <string>

namespace dn::projects {

class PhoneChoice {
public:
    explicit PhoneChoice(desk::Session& session) : session_(session) {}

    /// The contact data of a project for its detail, and at the same time the number of its next call, which goes
    /// into Call_Tel: the first that is not null of the organisation's three and of the contact's at work and
    /// mobile; "Tel. Proyecto" when all are null.
    /// @param PK key of the project. @return the empty text, with Call_Tel as it was, for a project whose
    /// organisation or contact is missing and when the statement fails.
    std::string GetDatosProyecto(std::int32_t PK);

private:
    desk::Session& session_;
};

} // namespace dn::projects
