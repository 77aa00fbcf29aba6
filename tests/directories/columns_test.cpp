// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "directories/columns.h"

#include <gtest/gtest.h>

namespace dn::directories {
namespace {

struct Expected {
    const char* caption;
    const char* key;
    int width;
};

template <std::size_t Count>
void expectColumns(const screen::ListView& list, const Expected (&expected)[Count])
{
    ASSERT_EQ(list.ColumnHeaders().size(), Count);
    for (std::size_t i = 0; i < Count; ++i) {
        const screen::ColumnHeader& column = list.ColumnHeaders()[i];
        EXPECT_EQ(column.Index, static_cast<int>(i) + 1);
        EXPECT_EQ(column.Text, expected[i].caption);
        EXPECT_EQ(column.Key, expected[i].key);
        EXPECT_EQ(column.Width, expected[i].width);
    }
}

TEST(DirectoryColumns, are_laid_out_once_however_often_they_are_asked_for)
{
    desk::Elements elements;
    InitDirectoryColumns(elements.organisations, elements.persons);
    InitDirectoryColumns(elements.organisations, elements.persons);
    expectColumns(elements.organisations.lvwOrganizaciones, {{"Código", "Codigo", 1000},
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
                                                             {"Pais", "Nacionalidad", 2000}});
    expectColumns(elements.persons.lvwContactos, {{"Código", "Codigo", 1000},
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
                                                  {"Código postal", "CodPostal", 2000}});
}

} // namespace
} // namespace dn::directories
