// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/dlg_corregir.h"

#include "base/runtime_error.h"
#include "data/failure_modes.h"

namespace dn::dialogs {

dlgCorregir::dlgCorregir(screen::Ports screenPorts)
    : Dialog("dlgCorregir", "Corregir datos de contacto", screenPorts), grid_(form, 1950, 5400)
{
    cmdHistorial.Caption("Ver historial de correos");
    cmdHistorial.Picture("history");
    cmdOk.Caption("&Aceptar");
    cmdCancel.Caption("&Cancelar");
    grid_.field("Nombre:", txtNombre);
    grid_.field("Teléfono:", txtTelefono);
    grid_.field("Correo electrónico:", txtCorreo);
    grid_.field("Empresa:", txtEmpresa);
    grid_.field("Puesto:", txtPuesto);
    grid_.buttons(cmdHistorial, 3000, cmdOk, cmdCancel);

    on(cmdHistorial.Click, *this, &dlgCorregir::cmdHistorial_Click);
    on(cmdOk.Click, *this, &dlgCorregir::cmdOk_Click);
    on(cmdCancel.Click, *this, &dlgCorregir::cmdCancel_Click);
}

void dlgCorregir::cmdOk_Click() // trap
{
    data::trap([&] { store(); }, [&](const std::string& failure) { ports.dialogs.say(failure); });
}

void dlgCorregir::cmdCancel_Click() // no trap
{
    Aceptado = false;
    Hide();
}

void dlgCorregir::cmdHistorial_Click() // continue-on-error
{
    data::resumeNext([&] {
        if (Contenedor == nullptr) throw RuntimeError::objectNotSet();
        std::int16_t prospect = 0;
        std::int32_t key = PKContacto;
        Contenedor->Historial(prospect, key);
    });
}

void dlgCorregir::store()
{
    if (Cnn == nullptr) throw RuntimeError::objectNotSet();
    Cnn->execute("UPDATE ut_icontact set uf_Nombre='" + txtNombre.Text() + "',uf_EMail='" + txtCorreo.Text() +
                 "',uf_Telefono='" + txtTelefono.Text() + "',uf_Empresa='" + txtEmpresa.Text() + "',uf_Puesto='" +
                 txtPuesto.Text() + "' WHERE Sys_PK=" + std::to_string(PKContacto));
    Aceptado = true;
    Hide();
}

} // namespace dn::dialogs
