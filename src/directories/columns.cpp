// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "directories/columns.h"

#include <array>

namespace dn::directories {
namespace {

struct Column {
    const char* caption;
    const char* key; // the field that the column shows
    screen::Twips width;
};

constexpr std::array<Column, 13> organisationColumns{{{"Código", "Codigo", 1000},
                                                      {"Nombre", "Nombre", 3000},
                                                      {"Nombre comercial", "NombreComercial", 3000},
                                                      {"Teléfono 1", "Tel1", 3000},
                                                      {"Teléfono 2", "Tel2", 4000},
                                                      {"Teléfono 3", "Tel3", 4000},
                                                      {"Fax", "Fax", 4000},
                                                      {"Correo electrónico", "EMail", 4000},
                                                      {"Sitio web", "WebSite", 4000},
                                                      {"Domicilio", "Domicilio", 5000},
                                                      {"Colonia", "Colonia", 3000},
                                                      {"Código postal", "CodPostal", 2000},
                                                      {"Pais", "Nacionalidad", 2000}}};

constexpr std::array<Column, 12> personColumns{{{"Código", "Codigo", 1000},
                                                {"Nombre", "Nombre", 3000},
                                                {"Apellido paterno", "Apellido1", 3000},
                                                {"Apellido materno", "Apellido2", 3000},
                                                {"E-Mail", "EMail", 4000},
                                                {"E-Mail 2", "EMail2", 4000},
                                                {"Teléfono de casa", "Tel_Casa", 4000},
                                                {"Teléfono de oficina", "Tel_Trabajo", 4000},
                                                {"Teléfono movil", "Tel_Movil", 4000},
                                                {"Domicilio", "Domicilio", 5000},
                                                {"Colonia", "Colonia", 3000},
                                                {"Código postal", "CodPostal", 2000}}};

template <std::size_t Count>
void layOut(screen::ListView& list, const std::array<Column, Count>& columns)
{
    list.ClearColumns();
    for (const Column& column : columns)
        list.AddColumn(column.caption, column.width, column.key);
}

} // namespace

void InitDirectoryColumns(desk::OrganisationElements& organisations, desk::PersonElements& persons)
{
    layOut(organisations.lvwOrganizaciones, organisationColumns);
    layOut(persons.lvwContactos, personColumns);
}

} // namespace dn::directories
