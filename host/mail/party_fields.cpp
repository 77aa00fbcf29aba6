// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/party_fields.h"

#include "base/text.h"
#include "host/screens/directory.h"

#include <optional>

namespace dn::host {

PartyFields emptyFields()
{
    PartyFields fields;
    for (const char* name : {"nombre", "empresa", "puesto", "telefono", "correo", "ciudad", "estado", "pais",
                             "proyecto", "meta", "usuario", "fecha"})
        fields[name];
    return fields;
}

namespace {

// What holds nothing but blanks counts as not filled in.
std::string cell(const data::Recordset& row, std::size_t column)
{
    return std::string(trimmed(textOf(row, column)));
}

void ofProspect(OwnConnection& database, const std::string& identifier, PartyFields& fields)
{
    Statement statement("SELECT uf_Nombre, uf_Empresa, uf_Puesto, uf_Telefono, uf_EMail, uf_Ciudad, uf_Estado, "
                        "uf_Pais FROM ut_icontact WHERE Sys_GUID = ?");
    const auto row = database.run(statement.bind(identifier));
    if (row->Eof()) return;
    std::size_t column = 0;
    for (const char* field : {"nombre", "empresa", "puesto", "telefono", "correo", "ciudad", "estado", "pais"})
        fields[field] = cell(*row, column++);
}

void ofProject(OwnConnection& database, const std::string& identifier, PartyFields& fields)
{
    Statement statement(
        "SELECT y.Descripcion, m.Descripcion, o.Nombre, p.Puesto, COALESCE(NULLIF(p.Tel_Trabajo, ?), "
        "p.Tel_Movil), p.EMail, p.Nombre, p.Apellido1, p.Apellido2 FROM Proyecto y LEFT JOIN Meta m "
        "ON y.IMeta = m.Sys_PK LEFT JOIN Organizacion o ON y.IOrganizacion = o.Sys_PK LEFT JOIN "
        "Persona p ON y.IContacto = p.Sys_PK WHERE y.Sys_GUID = ?");
    const auto row = database.run(statement.bind("").bind(identifier)); // an empty number is none
    if (row->Eof()) return;
    std::size_t column = 0;
    for (const char* field : {"proyecto", "meta", "empresa", "puesto", "telefono", "correo"})
        fields[field] = cell(*row, column++);
    fields["nombre"] = fullName(cell(*row, 6), cell(*row, 7), cell(*row, 8));
}

struct Place {
    std::size_t begin, end; // of the brackets and what is in them
    PartyFields::const_iterator field;
};

// The next known field from a position on.
std::optional<Place> nextField(std::string_view text, std::size_t from, const PartyFields& fields)
{
    for (std::size_t open = text.find('{', from); open != std::string_view::npos;
         open = text.find('{', open + 1)) {
        const std::size_t close = text.find('}', open);
        if (close == std::string_view::npos) return std::nullopt;
        const auto field = fields.find(toLower(text.substr(open + 1, close - open - 1)));
        if (field != fields.end()) return Place{open, close + 1, field};
    }
    return std::nullopt;
}

} // namespace

PartyFields partyFields(OwnConnection& database, const std::string& record)
{
    PartyFields fields = emptyFields();
    const std::string identifier = record.size() > 3 ? record.substr(3) : std::string();
    if (identifier.empty()) return fields;
    if (record.rfind("CT.", 0) == 0) ofProspect(database, identifier, fields);
    if (record.rfind("PY.", 0) == 0) ofProject(database, identifier, fields);
    return fields;
}

std::string filled(std::string_view text, const PartyFields& fields)
{
    std::string result;
    std::size_t done = 0;
    while (const auto place = nextField(text, done, fields)) {
        result += text.substr(done, place->begin - done);
        result += place->field->second.empty() ? text.substr(place->begin, place->end - place->begin)
                                               : std::string_view(place->field->second);
        done = place->end;
    }
    return result.append(text.substr(done));
}

std::string fieldLeft(std::string_view text, const PartyFields& fields)
{
    const auto place = nextField(text, 0, fields);
    return place ? std::string(text.substr(place->begin, place->end - place->begin)) : std::string();
}

} // namespace dn::host
