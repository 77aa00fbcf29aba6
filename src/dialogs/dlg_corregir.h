// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// "Corregir datos de contacto": five columns of a prospect, which the caller has read.
#pragma once

#include "data/connection.h"
#include "desk/public_operations.h"
#include "dialogs/dialog.h"
#include "dialogs/field_grid.h"
#include "screen/text_box.h"

#include <cstdint>

namespace dn::dialogs {

class dlgCorregir : public Dialog {
public:
    explicit dlgCorregir(screen::Ports screenPorts);

    // ---- Set by the caller ahead of Show, as are the texts of the boxes

    std::int32_t PKContacto = 0;                  ///< key of the row
    bool Aceptado = false;                        ///< the result: the row was written
    data::Connection* Cnn = nullptr;              ///< not owned
    desk::PublicOperations* Contenedor = nullptr; ///< the control

    // ---- Events

    /// Writes the texts as they stand. When the database refuses them, the dialog tells why and stays.
    void cmdOk_Click();
    void cmdCancel_Click();
    /// Shows the mails of the prospect.
    void cmdHistorial_Click();

    // ---- Elements

    screen::TextBox txtNombre{&form, "txtNombre"};
    screen::TextBox txtTelefono{&form, "txtTelefono"};
    screen::TextBox txtCorreo{&form, "txtCorreo"};
    screen::TextBox txtEmpresa{&form, "txtEmpresa"};
    screen::TextBox txtPuesto{&form, "txtPuesto"};
    screen::Button cmdHistorial{&form, "cmdHistorial"};
    screen::Button cmdOk{&form, "cmdOk"};
    screen::Button cmdCancel{&form, "cmdCancel"};

private:
    void store();

    FieldGrid grid_;
};

} // namespace dn::dialogs
