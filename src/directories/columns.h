// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The columns of the two directory lists, which have none until the control starts.
#pragma once

#include "desk/elements.h"

namespace dn::directories {

/// Lays out the columns of `lvwOrganizaciones` and `lvwContactos`; their only writer.
void InitDirectoryColumns(desk::OrganisationElements& organisationElements, desk::PersonElements& personElements);

} // namespace dn::directories
