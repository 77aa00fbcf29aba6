// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "projects/phone_choice.h"

#include "base/no_case_pattern.h"
#include "base/text.h"
#include "data/failure_modes.h"
#include "desk/shared.h"

#include <memory>

namespace dn::projects {
namespace {

using data::resumeNext;

constexpr std::string_view contactData =
    "SELECT Organizacion.Tel1, Organizacion.Tel2, Organizacion.Tel3, Organizacion.Fax, Organizacion.EMail, "
    "Organizacion.WebSite,Persona.Nombre AS PN_Nombre, Persona.Apellido1 AS PN_Apellido1, Persona.Apellido2 AS "
    "PN_Apellido2 , Persona.EMail, Persona.Tel_Trabajo, Persona.Tel_Movil, Persona.Tel_Casa FROM (Proyecto INNER "
    "JOIN "
    "Organizacion ON Proyecto.IOrganizacion=Organizacion.Sys_PK) INNER JOIN Persona ON "
    "Proyecto.IContacto=Persona.Sys_PK WHERE Proyecto.Sys_PK=";

// The text of the contact data, column by column: what has a value gets a line with the column's name ahead of it;
// the parts of the name stand on one line, each with a blank behind it.
class ContactText {
public:
    void add(const data::Field& field)
    {
        std::string value;
        desk::NullATexto(field.Value(), value);
        value = std::string(trimmed(value));
        if (containsNoCase(field.Name(), "PN_"))
            addNamePart(value);
        else if (!value.empty())
            addLine(field.Name(), value);
    }

    const std::string& text() const { return text_; }

private:
    void addNamePart(const std::string& value)
    {
        if (!inName_) text_ += crlf;
        inName_ = true;
        if (!value.empty()) text_.append(value).append(" ");
    }

    void addLine(const std::string& label, const std::string& value)
    {
        if (!text_.empty()) text_ += crlf;
        text_.append(label).append(": ").append(value);
    }

    std::string text_;
    bool inName_ = false;
};

// Only a null moves on to the next number; an empty one is taken.
std::string firstNumber(const data::Recordset& records)
{
    for (const char* column : {"Tel1", "Tel2", "Tel3", "Tel_Trabajo", "Tel_Movil"}) {
        std::string number;
        bool found = false;
        resumeNext([&] {
            const data::Value value = records.Fields()(column).Value();
            found = !value.isNull();
            desk::NullATexto(value, number);
        });
        if (found) return number;
    }
    return "Tel. Proyecto";
}

} // namespace

std::string PhoneChoice::GetDatosProyecto(std::int32_t PK) // continue-on-error
{
    std::unique_ptr<data::Recordset> records;
    resumeNext([&] { records = session_.cnn().execute(std::string(contactData) + std::to_string(PK)); });
    if (!records || (records->Eof() && records->Bof())) return {};
    ContactText text;
    for (std::size_t i = 0; i < records->Fields().Count(); ++i)
        resumeNext([&] { text.add(records->Fields()(i)); });
    resumeNext([&] { session_.Call_Tel = firstNumber(*records); });
    return text.text();
}

} // namespace dn::projects
