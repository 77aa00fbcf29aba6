// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "prospects/prospect_editing.h"

#include "base/runtime_error.h"
#include "data/failure_modes.h"
#include "desk/row_key.h"
#include "dialogs/dlg_corregir.h"
#include "dialogs/dlg_nuevo_pros.h"

#include <memory>

namespace dn::prospects {

using data::resumeNext;

void ProspectEditing::cmdProsNewPros_Click() // continue-on-error
{
    dialogs::dlgNuevoPros dialog(ports_);
    resumeNext([&] { dialog.Motor = session_.MotorBD; });
    resumeNext([&] { dialog.pkEjecutivo = top_.cbAgente.selectedData(); });
    resumeNext([&] { dialog.Aceptado = false; });
    resumeNext([&] { dialog.Cnn = session_.AdoCnn; });
    resumeNext([&] { dialog.Show(); });
    resumeNext([&] { dialog.Cnn = nullptr; });
    if (dialog.Aceptado) resumeNext([&] { list_.LoadProspectos(); });
}

void ProspectEditing::cmdEditC_Click() // continue-on-error
{
    if (!prospects_.lvw.SelectedItem()) {
        resumeNext([&] { ports_.dialogs.say("Seleccione un elemento de la lista"); });
        return;
    }
    resumeNext([&] {
        correct("Select Sys_PK, uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto FROM ut_icontact Where "
                "Sys_PK = " +
                    desk::keyDigits(desk::selectedRow(prospects_.lvw)),
                resumeNext<const std::function<void()>&>);
    });
}

void ProspectEditing::correct(const std::string& statement, const Run& run) // as the caller runs it
{
    dialogs::dlgCorregir dialog(ports_);
    std::unique_ptr<data::Recordset> record;
    run([&] { record = session_.cnn().execute(statement); });
    const auto field = [&](const char* name) {
        if (!record) throw RuntimeError::objectNotSet();
        return record->Fields()(name).Value();
    };
    run([&] { dialog.txtNombre.Text(field("uf_Nombre").toText()); });
    run([&] { dialog.txtCorreo.Text(field("uf_EMail").toText()); });
    run([&] { dialog.txtTelefono.Text(field("uf_Telefono").toText()); });
    run([&] { dialog.txtEmpresa.Text(field("uf_Empresa").toText()); });
    run([&] { dialog.txtPuesto.Text(field("uf_Puesto").toText()); });
    run([&] { dialog.PKContacto = field("Sys_PK").toInt32(); });
    run([&] { dialog.Aceptado = false; });
    run([&] { dialog.Cnn = session_.AdoCnn; });
    run([&] { dialog.Contenedor = &control_; });
    run([&] { dialog.Show(); });
    run([&] { dialog.Cnn = nullptr; });
    if (dialog.Aceptado) run([&] { list_.LoadProspectos(); });
}

} // namespace dn::prospects
