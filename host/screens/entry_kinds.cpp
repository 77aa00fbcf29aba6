// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/entry_kinds.h"

#include <array>

namespace dn::host {
namespace {

constexpr std::array personFields{
    EntryField{"Codigo", "Códi&go:", 40, Entry::text, Width::half},
    EntryField{"Nombre", "&Nombre:", 255, Entry::name, Width::half},
    EntryField{"Apellido1", "Apellido &paterno:", 255, Entry::text, Width::half},
    EntryField{"Apellido2", "Apellido &materno:", 255, Entry::text, Width::half},
    EntryField{"Organizacion", "&Organización:", 0, Entry::organisation, Width::whole},
    EntryField{"Puesto", "Pue&sto:", 255, Entry::text, Width::half},
    EntryField{"Agente", "Ag&ente:", 0, Entry::agent, Width::half},
    EntryField{"EMail", "Co&rreo electrónico:", 255, Entry::mail, Width::half},
    EntryField{"EMail2", "Segundo correo:", 255, Entry::mail, Width::half},
    EntryField{"Tel_Trabajo", "&Teléfono de oficina:", 100, Entry::text, Width::half},
    EntryField{"Tel_Movil", "Telé&fono móvil:", 100, Entry::text, Width::half},
    EntryField{"Tel_Casa", "Te&léfono de casa:", 100, Entry::text, Width::half},
    EntryField{"CodPostal", "Código postal:", 20, Entry::text, Width::half},
    EntryField{"Domicilio", "&Domicilio:", 255, Entry::text, Width::whole},
    EntryField{"Colonia", "Colon&ia:", 255, Entry::text, Width::half},
    EntryField{"Ciudad", "Ci&udad:", 0, Entry::city, Width::half},
};

constexpr std::array organisationFields{
    EntryField{"Codigo", "Códi&go:", 40, Entry::text, Width::half},
    EntryField{"Agente", "Ag&ente:", 0, Entry::agent, Width::half},
    EntryField{"Nombre", "&Nombre o razón social:", 255, Entry::name, Width::whole},
    EntryField{"NomComercial", "Nombre co&mercial:", 255, Entry::text, Width::whole},
    EntryField{"Tel1", "&Teléfono 1:", 100, Entry::text, Width::half},
    EntryField{"Tel2", "Teléfono &2:", 100, Entry::text, Width::half},
    EntryField{"Tel3", "Teléfono &3:", 100, Entry::text, Width::half},
    EntryField{"Fax", "&Fax:", 100, Entry::text, Width::half},
    EntryField{"EMail", "Co&rreo electrónico:", 255, Entry::mail, Width::half},
    EntryField{"WebSite", "Sitio &web:", 255, Entry::text, Width::half},
    EntryField{"Domicilio", "&Domicilio:", 255, Entry::text, Width::whole},
    EntryField{"Colonia", "Colon&ia:", 255, Entry::text, Width::half},
    EntryField{"CodPostal", "Código &postal:", 20, Entry::text, Width::half},
    EntryField{"Ciudad", "Ci&udad:", 0, Entry::city, Width::half},
    EntryField{"Nacionalidad", "Paí&s:", 100, Entry::text, Width::half},
};

std::vector<ColumnType> columnsOf(std::span<const EntryField> fields)
{
    std::vector<ColumnType> types;
    for (const EntryField& field : fields)
        types.push_back(field.longest > 0 ? ColumnType::text : ColumnType::number);
    return types;
}

const EntryKind& persons()
{
    static const EntryKind kind{
        "NuevaPersona",
        "Nueva persona",
        "EditarPersona",
        "Persona",
        "Escriba el nombre de la persona.",
        personFields,
        {columnsOf(personFields),
         "SELECT Codigo, Nombre, Apellido1, Apellido2, IOrganizacion, Puesto, IEjecutivo, EMail, EMail2, "
         "Tel_Trabajo, Tel_Movil, Tel_Casa, CodPostal, Domicilio, Colonia, ICiudad FROM Persona WHERE Sys_PK = ?",
         "UPDATE Persona SET Nombre = Nombre WHERE Sys_PK = ?",
         "INSERT INTO Persona (Codigo, Nombre, Apellido1, Apellido2, IOrganizacion, Puesto, IEjecutivo, EMail, "
         "EMail2, Tel_Trabajo, Tel_Movil, Tel_Casa, CodPostal, Domicilio, Colonia, ICiudad, Sys_GUID, "
         "Sys_DTCreated) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, CURRENT_TIMESTAMP)",
         "UPDATE Persona SET Codigo = ?, Nombre = ?, Apellido1 = ?, Apellido2 = ?, IOrganizacion = ?, Puesto = ?, "
         "IEjecutivo = ?, EMail = ?, EMail2 = ?, Tel_Trabajo = ?, Tel_Movil = ?, Tel_Casa = ?, CodPostal = ?, "
         "Domicilio = ?, Colonia = ?, ICiudad = ? WHERE Sys_PK = ?"}};
    return kind;
}

const EntryKind& organisations()
{
    static const EntryKind kind{
        "NuevaOrganizacion",
        "Nueva organización",
        "EditarOrganizacion",
        "Organización",
        "Escriba el nombre de la organización.",
        organisationFields,
        {columnsOf(organisationFields),
         "SELECT Codigo, IEjecutivo, Nombre, NomComercial, Tel1, Tel2, Tel3, Fax, EMail, WebSite, Domicilio, "
         "Colonia, CodPostal, ICiudad, Nacionalidad FROM Organizacion WHERE Sys_PK = ?",
         "UPDATE Organizacion SET Nombre = Nombre WHERE Sys_PK = ?",
         "INSERT INTO Organizacion (Codigo, IEjecutivo, Nombre, NomComercial, Tel1, Tel2, Tel3, Fax, EMail, "
         "WebSite, Domicilio, Colonia, CodPostal, ICiudad, Nacionalidad, Sys_GUID, Sys_DTCreated) VALUES "
         "(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, CURRENT_TIMESTAMP)",
         "UPDATE Organizacion SET Codigo = ?, IEjecutivo = ?, Nombre = ?, NomComercial = ?, Tel1 = ?, Tel2 = ?, "
         "Tel3 = ?, Fax = ?, EMail = ?, WebSite = ?, Domicilio = ?, Colonia = ?, CodPostal = ?, ICiudad = ?, "
         "Nacionalidad = ? WHERE Sys_PK = ?"}};
    return kind;
}

} // namespace

const EntryKind& entryKind(PartyField::Kind kind)
{
    return kind == PartyField::Kind::organisation ? organisations() : persons();
}

} // namespace dn::host
