// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "prospects/prospect_conversion.h"

#include "base/runtime_error.h"
#include "data/activity_log.h"
#include "desk/row_key.h"

#include <memory>
#include <string>

namespace dn::prospects {
namespace {

constexpr std::string_view handTypedOrigin = "Contacto"; // the origin that the list shows
constexpr std::int32_t unknownCity = 1;
constexpr std::string_view internalText = "Internal";

// Where a column is null, a text that the operator corrects in the host's directory stands in for it.
std::string contactStatement(bool mySql, std::int32_t key)
{
    const std::string orElse = mySql ? "IFNULL" : "ISNULL";
    return "SELECT " + orElse + "(uf_Nombre, 'Nombre') AS uf_Nombre, " + orElse +
           "(uf_telefono, 'Teléfono') AS uf_telefono, " + orElse + "(uf_EMail, 'EMail') AS uf_EMail, " + orElse +
           "(uf_ciudad, 'Tuxtla') AS uf_ciudad, " + orElse +
           "(UF_IEjecutivo, 1) AS UF_IEjecutivo FROM UT_IContact WHERE Sys_PK = " + std::to_string(key) + ";";
}

// The rows of a statement that must give some. @throws RuntimeError when it gives none at all.
std::unique_ptr<data::Recordset> rowsOf(std::unique_ptr<data::Recordset> records)
{
    if (!records) throw RuntimeError::objectNotSet();
    return records;
}

} // namespace

void ProspectConversion::cmdProsNewProj_Click() // no trap
{
    const auto selected = prospects_.lvw.SelectedItem();
    if (!selected) return;
    if (selected->Text() != handTypedOrigin) {
        dialogs_.say("Seleccione un contacto para convertir en proyecto.");
        return;
    }
    std::int32_t key = desk::keyNumber(*selected);
    ProspectoAProyecto(key);
    list_.LoadProspectos();
}

void ProspectConversion::ProspectoAProyecto(std::int32_t& key) // no trap
{
    const std::int32_t person = createPerson(key);
    if (person == 0) return;
    std::int16_t kind = desk::HostScreens::person;
    std::int32_t party = person;
    std::int32_t project = 0;
    screens_.oUIProyectos().CrearProyecto(kind, party, project);
    if (project <= 0) return;
    session_.cnn().execute(
        "UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus='Actualizado por creación de proyecto', "
        "uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK=" +
        std::to_string(key));
    // The log keeps the wording of a discard, with no reason behind it.
    session_.cnn().execute(data::bitacora::prospectRow(">> Descartado: ", session_.Usuario, std::to_string(key)));
}

// The person that stands for the prospect; its key, 0 when the host made none.
std::int32_t ProspectConversion::createPerson(std::int32_t prospect)
{
    const auto contact = rowsOf(session_.cnn().execute(contactStatement(session_.isMySql(), prospect)));
    const data::Fields fields = contact->Fields();
    const std::int32_t city = cityLike(fields("uf_ciudad").Value().toText());
    std::int32_t person = 0;
    screens_.oUIProyectos().CrearPersona(fields("uf_Nombre").Value().toText(), std::string(internalText),
                                         std::string(internalText), city, fields("uf_telefono").Value().toText(),
                                         "", fields("uf_EMail").Value().toText(), "",
                                         fields("UF_IEjecutivo").Value().toInt32(), person);
    return person;
}

// The first city whose name holds the text, which goes into the statement as it stands.
std::int32_t ProspectConversion::cityLike(const std::string& name)
{
    const auto cities =
        rowsOf(session_.cnn().execute("SELECT Sys_PK FROM Ciudad WHERE Nombre LIKE '%" + name + "%';"));
    if (cities->Eof() || cities->Bof()) return unknownCity;
    return cities->Fields()("Sys_PK").Value().toInt32();
}

} // namespace dn::prospects
