// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/dlg_nuevo_pros.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "data/failure_modes.h"
#include "desk/session.h"
#include "dialogs/places.h"
#include "dialogs/prospect_insert.h"

namespace dn::dialogs {
namespace {

/// Adds what the database has learnt for a combo.
void fill(screen::ComboBox& combo, data::Connection& cnn, const char* statement, const char* field)
{
    const auto records = cnn.execute(statement);
    if (!records) return;
    for (; !records->Eof(); records->MoveNext())
        combo.AddItem(records->Fields()(field).Value().toText());
}

std::size_t trimmedLength(const screen::TextBox& box) { return length(trimmed(box.Text())); }

} // namespace

dlgNuevoPros::dlgNuevoPros(screen::Ports screenPorts)
    : Dialog("dlgNuevoPros", "Nuevo prospecto", screenPorts), grid_(form, 1950, 5400)
{
    layOut();
    on(cPais.Click, *this, &dlgNuevoPros::cPais_Click);
    on(cmdOk.Click, *this, &dlgNuevoPros::cmdOk_Click);
    on(cmdCancel.Click, *this, &dlgNuevoPros::cmdCancel_Click);
}

void dlgNuevoPros::layOut()
{
    for (screen::ComboBox* combo : {&cInteres, &cObtencion, &cReferencia})
        combo->editable(true);
    cNotas.MultiLine(true);
    chk1.Caption("Es distribuidor");
    cmdOk.Caption("&Aceptar");
    cmdCancel.Caption("&Cancelar");

    grid_.field("Nombre:", txtNombre);
    grid_.field("Teléfono:", txtTelefono);
    grid_.field("Correo electrónico:", txtCorreo);
    grid_.field("Empresa:", txtEmpresa);
    grid_.field("Puesto:", txtPuesto);
    grid_.field("País:", cPais);
    grid_.field("Estado:", cEdo);
    grid_.field("Ciudad:", cCiudad);
    grid_.field("Interes:", cInteres);
    grid_.field(nullptr, chk1);
    grid_.field("Forma de obtención:", cObtencion);
    grid_.field("¿Cómo se enteró?", cReferencia);
    grid_.tall("Notas:", cNotas, 1200);
    grid_.buttons(cmdOk, cmdCancel);
}

void dlgNuevoPros::Form_Load() // no trap
{
    for (const char* country : countries)
        cPais.AddItem(country);
    cPais.ListIndex(0);
    fill(cInteres, cnn(), "SELECT uf_Interes FROM ut_InteresContacto;", "uf_Interes");
    fill(cObtencion, cnn(), "SELECT uf_Origen FROM ut_OrigenContacto;", "uf_Origen");
    fill(cReferencia, cnn(), "SELECT uf_Referencia FROM ut_ReferenciaContacto;", "uf_Referencia");
}

void dlgNuevoPros::cPais_Click() // no trap
{
    cEdo.Clear();
    if (cPais.Text() == mexico) {
        for (const char* state : mexicanStates)
            cEdo.AddItem(state);
    } else {
        cEdo.AddItem("<No aplica>");
        cEdo.ListIndex(0);
    }
}

void dlgNuevoPros::cmdOk_Click() // trap
{
    if (!complete()) return;
    data::trap([&] { store(); }, [&](const std::string& failure) { ports.dialogs.say(failure); });
}

void dlgNuevoPros::cmdCancel_Click() // no trap
{
    Aceptado = false;
    Hide();
}

bool dlgNuevoPros::complete()
{
    const auto empty = [](const std::string& text) { return trimmed(text).empty(); };
    const bool noAddress = trimmedLength(txtCorreo) < 5 || txtCorreo.Text().find('@') == std::string::npos;
    return !(
        missing(trimmedLength(txtNombre) < 5, "Indique el nombre completo", txtNombre) ||
        missing(trimmedLength(txtTelefono) < 10, "Indique el teléfono con clave LADA", txtTelefono) ||
        missing(noAddress, "Indique una dirección de correo electrónico", txtCorreo) ||
        missing(cEdo.ListIndex() < 0, "Indique el estado o provincia", cEdo) ||
        missing(empty(cCiudad.Text()), "Indique la ciudad", cCiudad) ||
        missing(empty(cInteres.Text()), "Indique el interés del prospecto", cInteres) ||
        missing(empty(cObtencion.Text()), "Indique la manera como obtuvo los datos del prospecto", cObtencion) ||
        missing(empty(cReferencia.Text()), "Indique el medio por el que el prospecto se enteró de nosotros",
                cReferencia));
}

bool dlgNuevoPros::missing(bool failed, const char* message, screen::Element& field)
{
    if (!failed) return false;
    ports.dialogs.say(message);
    field.SetFocus();
    return true;
}

void dlgNuevoPros::store()
{
    cnn().execute(statement());
    AddReferencia(cReferencia.Text());
    AddOrigen(cObtencion.Text());
    AddInteres(cInteres.Text());
    Aceptado = true;
    Hide();
}

// The order counts: a text that holds a later marker takes that marker's value in.
std::string dlgNuevoPros::statement() const
{
    const std::string pais = cPais.Text() == mexico ? "MX" : cPais.Text();
    const std::string line(crlf);
    std::string text = prospectInsert(isMySql());
    SetParam(text, "uf_Nombre", txtNombre.Text());
    SetParam(text, "uf_EMail", txtCorreo.Text());
    SetParam(text, "uf_Telefono", txtTelefono.Text());
    SetParam(text, "uf_Empresa", txtEmpresa.Text());
    SetParam(text, "uf_Puesto", txtPuesto.Text());
    SetParam(text, "uf_Pais", pais);
    SetParam(text, "uf_Estado", cEdo.Text());
    SetParam(text, "uf_Ciudad", cCiudad.Text());
    SetParam(text, "uf_Interes", cInteres.Text());
    SetParam(text, "uf_Comentarios",
             "Obtenido: " + cObtencion.Text() + line + "Referencia: " + cReferencia.Text() + line + cNotas.Text() +
                 " ");
    SetParam(text, "uf_iejecutivo", pkEjecutivo, pkEjecutivo == 0);
    SetParam(text, "uf_status", 0);
    SetParam(text, "uf_tipo", 1);
    SetParam(text, "uf_color", 0);
    SetParam(text, "uf_redirect", "URL_Directo");
    return text;
}

void dlgNuevoPros::AddReferencia(const std::string& text) { learn("AddReferenciaContacto", text); } // trap

void dlgNuevoPros::AddOrigen(const std::string& text) { learn("AddOrigenContacto", text); } // trap

void dlgNuevoPros::AddInteres(const std::string& text) { learn("AddInteresContacto", text); } // trap

// The prospect stands already: what the database does not learn is told and no more.
void dlgNuevoPros::learn(const char* procedure, const std::string& text)
{
    data::trap([&] { cnn().execute(learningCall(isMySql(), procedure, text)); },
               [&](const std::string& failure) { ports.dialogs.say("Error: " + failure); });
}

data::Connection& dlgNuevoPros::cnn() const
{
    if (Cnn == nullptr) throw RuntimeError::objectNotSet();
    return *Cnn;
}

bool dlgNuevoPros::isMySql() const { return Motor == desk::Session::mySql; }

} // namespace dn::dialogs
