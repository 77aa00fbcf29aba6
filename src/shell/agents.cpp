// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/agents.h"

#include "base/runtime_error.h"
#include "data/failure_modes.h"
#include "desk/agent_rows.h"
#include "dialogs/dlg_sel_agente.h"

namespace dn::shell {

using data::resumeNext;

void Agents::LoadAgentes() // no trap
{
    const auto agents = session_.cnn().execute(desk::agentsStatement);
    desk::ComboBox& cbAgente = top_.cbAgente;
    cbAgente.Clear();
    cbAgente.AddItem("< Sin asignar >");
    desk::addAgents(cbAgente, agents.get());
}

void Agents::SelAgente(std::int32_t PK) // continue-on-error
{
    if (PK == 0 && !session_.GAdmon) return;
    for (int i = 0; i < top_.cbAgente.ListCount(); ++i) {
        if (top_.cbAgente.ItemData(i) != PK) continue;
        resumeNext([&] { top_.cbAgente.ListIndex(i); });
        return;
    }
}

void Agents::cbAgente_Click() // continue-on-error
{
    if (top_.cbAgente.ListIndex() < 0) return;
    resumeNext([&] {
        const auto screens = session_.oUICRM; // the host may replace the property while it is told
        if (!screens) throw RuntimeError::objectNotSet();
        screens->SetAgente(top_.cbAgente.selectedData());
    });
    resumeNext([&] { tabs_.ArrangeTabs(); });
    resumeNext([&] { tabs_.ShowActiveTab(); });
}

std::int32_t Agents::ShSelAgente() // continue-on-error
{
    std::int32_t key = 0;
    dialogs::dlgSelAgente dialog(ports_);
    resumeNext([&] { dialog.Cnn = session_.AdoCnn; });
    resumeNext([&] { dialog.Show(); });
    resumeNext([&] { key = dialog.pkAgenteSel; });
    return key;
}

} // namespace dn::shell
