// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/list_statements.h"

namespace dn::dialogs {
namespace {

using Choice = ListFilter::Choice;

/// The conditions of a statement. The first word is "WHERE" where the executive comes first, else "Where".
class Conditions {
public:
    explicit Conditions(const std::string& ejecutivoColumn, std::int32_t ejecutivo)
    {
        if (ejecutivo >= 1) text_ = " WHERE " + ejecutivoColumn + "=" + std::to_string(ejecutivo);
    }

    void byKey(const std::string& column, const Choice& choice)
    {
        if (choice.key >= 1) compare(column, choice);
    }

    void compare(const std::string& column, const Choice& choice)
    {
        text_ += text_.empty() ? " Where " : " AND ";
        text_ += " " + column + (choice.except ? "<>" : "=") + std::to_string(choice.key);
    }

    const std::string& text() const { return text_; }

private:
    std::string text_;
};

std::string fullName(bool isMySql)
{
    if (isMySql)
        return " CONCAT( IFNULL(Persona.Nombre, ''), ' ', IFNULL(Persona.Apellido1, ''), ' ', "
               "IFNULL(Persona.Apellido2, '')) as Nombre ";
    return " (ISNULL(Persona.Nombre, '') + ' ' + ISNULL(Persona.Apellido1, '') + ' ' + "
           "ISNULL(Persona.Apellido2), ''))  as Nombre ";
}

} // namespace

std::string prospectListStatement(const ListFilter& filter)
{
    Conditions conditions("uf_iEjecutivo", filter.ejecutivo);
    conditions.byKey("uf_Status", filter.status);
    return "Select uf_Email, uf_Nombre, uf_Telefono, uf_Empresa FROM ut_icontact" + conditions.text();
}

std::string projectListStatement(const ListFilter& filter, bool isMySql)
{
    constexpr std::int32_t cerrado = 5;
    constexpr std::int32_t perdido = 6;
    Conditions conditions("Proyecto.IEjecutivo", filter.ejecutivo);
    conditions.byKey("Proyecto.IMeta", filter.meta);
    if (filter.color.key != ListFilter::anyColour) conditions.compare("Proyecto.uf_color", filter.color);
    conditions.byKey("Proyecto.uf_status1", filter.estado);
    if (filter.exceptCerrados) conditions.compare("Proyecto.uf_status1", {cerrado, true});
    if (filter.exceptPerdidos) conditions.compare("Proyecto.uf_status1", {perdido, true});
    return "SELECT Proyecto.IEjecutivo, Proyecto.IMeta, Proyecto.IOrganizacion, Proyecto.uf_status1, "
           "Proyecto.uf_color, Proyecto.Icontacto, Organizacion.Tel1, Organizacion.Nombre as Empresa, "
           "Organizacion.Email as EmailOrg, Persona.eMail as EmailPersona, Persona.tel_trabajo as Tel2, " +
           fullName(isMySql) +
           "FROM (Proyecto INNER JOIN Organizacion ON Proyecto.IOrganizacion=Organizacion.Sys_PK) INNER JOIN "
           "Persona ON Proyecto.IContacto = Persona.Sys_PK" +
           conditions.text();
}

} // namespace dn::dialogs
