// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the two directories are made of: their tables, their fields and how each field shows. Columns, statement
// and rows all follow from it, so that the n-th field always lands under the n-th header.
#pragma once

#include "screen/element.h"

#include <array>
#include <span>

namespace dn::directories {

/// A field of the directory's table and the column of the list that shows it.
struct Field {
    const char* caption;
    const char* name; ///< in the recordset, and the key of the column
    screen::Twips width;
    const char* column = name; ///< in the table
};

struct Kind {
    const char* table;
    const char* order; ///< the fields that the statement sorts by
    std::span<const Field> fields;
};

inline constexpr std::array<Field, 12> personFields{{{"Código", "Codigo", 1000},
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

inline constexpr std::array<Field, 13> organisationFields{
    {{"Código", "Codigo", 1000},
     {"Nombre", "Nombre", 3000},
     {"Nombre comercial", "NombreComercial", 3000, "NomComercial"},
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

inline constexpr Kind persons{"Persona", "Nombre, Apellido1, Apellido2", personFields};
inline constexpr Kind organisations{"Organizacion", "Nombre, NombreComercial", organisationFields};

} // namespace dn::directories
