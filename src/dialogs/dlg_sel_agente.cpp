// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/dlg_sel_agente.h"

#include "base/runtime_error.h"
#include "data/failure_modes.h"
#include "desk/agent_rows.h"

namespace dn::dialogs {

using data::resumeNext;

dlgSelAgente::dlgSelAgente(screen::Ports screenPorts)
    : Dialog("dlgSelAgente", "Seleccioar agente", screenPorts), grid_(form, 0, 4500)
{
    cbAgente.AccessibleName("Agentes");
    Command1.Caption("&Aceptar");
    Command2.Caption("&Cancelar");
    grid_.tall(nullptr, cbAgente, 4200);
    grid_.buttons(Command1, Command2);

    on(cbAgente.DblClick, *this, &dlgSelAgente::Command1_Click);
    on(Command1.Click, *this, &dlgSelAgente::Command1_Click);
    on(Command2.Click, *this, &dlgSelAgente::Command2_Click);
}

void dlgSelAgente::Form_Load() // no trap
{
    cbAgente.Clear();
    if (Cnn == nullptr) throw RuntimeError::objectNotSet();
    const auto agents = Cnn->execute(desk::agentsStatement);
    desk::addAgents(cbAgente, agents.get());
}

void dlgSelAgente::Command1_Click() // continue-on-error
{
    if (cbAgente.ListIndex() < 0) {
        resumeNext([&] { ports.dialogs.say("Seleccione un elemento"); });
        return;
    }
    resumeNext([&] { pkAgenteSel = cbAgente.selectedData(); });
    resumeNext([&] { Hide(); });
}

void dlgSelAgente::Command2_Click() // no trap
{
    pkAgenteSel = 0;
    Hide();
}

} // namespace dn::dialogs
