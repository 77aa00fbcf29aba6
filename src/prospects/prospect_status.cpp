// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "prospects/prospect_status.h"

#include "base/text.h"
#include "data/activity_log.h"
#include "data/failure_modes.h"
#include "desk/row_key.h"

namespace dn::prospects {

using data::resumeNext;
using desk::keyDigits;
using desk::selectedRow;

void ProspectStatus::cbStatus_Click() // continue-on-error
{
    const desk::ComboBox& cbStatus = prospects_.cbStatus;
    desk::ComboBox& Combo1 = detail_.Combo1;
    resumeNext([&] { list_.LoadProspectos(); });
    resumeNext([&] { Combo1.Clear(); });
    resumeNext([&] { Combo1.AddItem("< Cambiar estado >"); });
    for (int i = 0; i < cbStatus.ListCount(); ++i) {
        if (i == cbStatus.ListIndex()) continue;
        resumeNext([&] { Combo1.AddItem(cbStatus.List(i)); });
        resumeNext([&] { Combo1.ItemData(Combo1.NewIndex(), i); });
    }
    resumeNext([&] { Combo1.ListIndex(0); });
}

void ProspectStatus::Combo1_Click() // trap
{
    if (detail_.Combo1.ListIndex() < 1) return;
    if (!prospects_.lvw.SelectedItem()) {
        dialogs_.say("Seleccione un contacto");
        return;
    }
    data::trap([&] { changeStatus(); }, [&](const std::string& failure) { dialogs_.say(failure); });
}

void ProspectStatus::changeStatus()
{
    screen::ListView& lvw = prospects_.lvw;
    // What the operator picked. The questions below let events run, which may fill the combo anew.
    const std::int32_t status = detail_.Combo1.selectedData();
    const std::string picked = detail_.Combo1.Text();
    std::string motivo;
    if (status == oportunidad) {
        std::int32_t key = desk::keyNumber(selectedRow(lvw));
        if (screens_.NuevoProyecto(key) < 1) {
            dialogs_.say("No se puede cambiar el status del contacto sin crear un proyecto de negocio");
            return;
        }
    } else {
        motivo = dialogs_.InputBox("Motivo del cambio de estado:");
        if (motivo.empty()) return;
    }
    // The row is asked for anew each time: the questions above let the operator move on.
    session_.cnn().execute("UPDATE ut_icontact SET uf_Status = " + std::to_string(status) + ", uf_NotaStatus = '" +
                           motivo +
                           "', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK = " + keyDigits(selectedRow(lvw)));
    session_.cnn().execute(data::bitacora::prospectRow(">> " + picked + ": " + motivo, session_.Usuario,
                                                       keyDigits(selectedRow(lvw))));
    list_.LoadProspectos();
    session_.StatusCambiado = true;
}

void ProspectStatus::cmdProsDiscart_Click() // continue-on-error
{
    std::string motivo;
    resumeNext([&] { motivo = dialogs_.InputBox("Motivo:"); });
    if (trimmed(motivo).empty()) return;
    screen::Answer answer = screen::Answer::no;
    resumeNext([&] {
        answer = dialogs_.MsgBox({.prompt = "¿Seguro desea descartar estos contactos?",
                                  .buttons = screen::MessageBox::Buttons::yesNo,
                                  .defaultButton = 2});
    });
    if (answer != screen::Answer::yes) return;
    screen::ListItems rows = prospects_.lvw.ListItems();
    for (int i = 1; i <= rows.Count(); ++i)
        if (rows(i).Checked()) discard(rows(i), motivo);
    resumeNext([&] { list_.LoadProspectos(); });
}

void ProspectStatus::discard(const screen::ListItem& row, const std::string& motivo) // continue-on-error
{
    resumeNext([&] {
        session_.cnn().execute("UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus='" + motivo +
                               "', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK=" + keyDigits(row));
    });
    resumeNext([&] {
        session_.cnn().execute(
            data::bitacora::prospectRow(">> Descartado: " + motivo, session_.Usuario, keyDigits(row)));
    });
}

} // namespace dn::prospects
