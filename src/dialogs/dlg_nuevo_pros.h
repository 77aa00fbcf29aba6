// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// "Nuevo prospecto": takes down a prospect by hand and stores it.
#pragma once

#include "data/connection.h"
#include "dialogs/dialog.h"
#include "dialogs/field_grid.h"
#include "screen/combo_box.h"
#include "screen/text_box.h"

#include <cstdint>

namespace dn::dialogs {

class dlgNuevoPros : public Dialog {
public:
    explicit dlgNuevoPros(screen::Ports screenPorts);

    // ---- Set by the caller ahead of Show

    std::int16_t Motor = 0;          ///< engine of the connection, the control's MotorBD
    std::int32_t pkEjecutivo = 0;    ///< agent who receives the prospect; 0 for none
    bool Aceptado = false;           ///< the result: a prospect was stored
    data::Connection* Cnn = nullptr; ///< not owned

    // ---- Events

    /// Offers the states of the country picked; only Mexico has any, and there one must be picked.
    void cPais_Click();
    /// Stores the prospect when all that is required is there; otherwise tells what is missing and goes there.
    /// When the database refuses it, the dialog stays with what was typed.
    void cmdOk_Click();
    void cmdCancel_Click();

    // ---- Elements

    screen::TextBox txtNombre{&form, "txtNombre"};
    screen::TextBox txtTelefono{&form, "txtTelefono"};
    screen::TextBox txtCorreo{&form, "txtCorreo"};
    screen::TextBox txtEmpresa{&form, "txtEmpresa"};
    screen::TextBox txtPuesto{&form, "txtPuesto"};
    screen::ComboBox cPais{&form, "cPais"};
    screen::ComboBox cEdo{&form, "cEdo"};
    screen::TextBox cCiudad{&form, "cCiudad"};
    screen::ComboBox cInteres{&form, "cInteres"};
    screen::CheckBox chk1{&form, "chk1"}; ///< nothing reads it
    screen::ComboBox cObtencion{&form, "cObtencion"};
    screen::ComboBox cReferencia{&form, "cReferencia"};
    screen::TextBox cNotas{&form, "cNotas"};
    screen::Button cmdOk{&form, "cmdOk"};
    screen::Button cmdCancel{&form, "cmdCancel"};

protected:
    void Form_Load() override;

private:
    void layOut();
    bool complete();
    bool missing(bool failed, const char* message, screen::Element& field);
    void store();
    std::string statement() const;
    void AddReferencia(const std::string& text);
    void AddOrigen(const std::string& text);
    void AddInteres(const std::string& text);
    void learn(const char* procedure, const std::string& text);
    data::Connection& cnn() const;
    bool isMySql() const;

    FieldGrid grid_;
};

} // namespace dn::dialogs
