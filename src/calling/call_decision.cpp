// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "calling/call_decision.h"

#include "data/failure_modes.h"
#include "dialogs/dlg_agendar_contacto.h"
#include "dialogs/dlg_que_h.h"

namespace dn::calling {

using data::resumeNext;

void CallDecision::Call_QueHacer() // continue-on-error
{
    switch (party_.find()) {
    case Party::none:
        return;
    case Party::prospect:
        ask();
        return;
    case Party::project: // its screen opens in the place of any question
        resumeNext([&] { projects_.cmdNewProjEditProj_Click(); });
        return;
    }
}

// The positions are those of the list that `Combo1` holds while "Recibido" is in view; in view of another status
// the answers lead elsewhere, or nowhere.
void CallDecision::ask() // continue-on-error
{
    for (;;) {
        const std::int16_t answer = ShowQueH();
        switch (answer) {
        case 1:
            schedule();
            return;
        case 2:
            selectStatus(3);
            break;
        case 3:
            selectStatus(2);
            break;
        case 4:
            selectStatus(1);
            break;
        default:
            return;
        }
        if (session_.StatusCambiado) return;
    }
}

std::int16_t CallDecision::ShowQueH() // continue-on-error
{
    dialogs::dlgQueH dialog(ports_);
    dialog.Contenedor = &control_;
    resumeNext([&] { dialog.Show(); });
    return dialog.Opcion;
}

void CallDecision::schedule() // continue-on-error
{
    dialogs::dlgAgendarContacto dialog(ports_);
    dialog.PKContacto = session_.Call_PK;
    dialog.Cnn = session_.AdoCnn;
    resumeNext([&] { dialog.Show(); });
}

void CallDecision::selectStatus(int position) // continue-on-error
{
    session_.StatusCambiado = false;
    resumeNext([&] {
        if (Combo1_.ListIndex() == position)
            status_.Combo1_Click();
        else
            Combo1_.ListIndex(position);
    });
}

} // namespace dn::calling
