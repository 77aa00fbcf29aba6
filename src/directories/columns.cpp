// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "directories/columns.h"

#include "directories/kind.h"

namespace dn::directories {
namespace {

void layOut(screen::ListView& list, const Kind& kind)
{
    list.ClearColumns();
    for (const Field& field : kind.fields)
        list.AddColumn(field.caption, field.width, field.name);
}

} // namespace

void InitDirectoryColumns(desk::OrganisationElements& organisationElements, desk::PersonElements& personElements)
{
    layOut(organisationElements.lvwOrganizaciones, organisations);
    layOut(personElements.lvwContactos, persons);
}

} // namespace dn::directories
