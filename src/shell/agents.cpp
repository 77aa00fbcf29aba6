// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/agents.h"

#include "data/failure_modes.h"

namespace dn::shell {

using data::resumeNext;

void Agents::LoadAgentes() // no trap
{
    const auto agents = session_.cnn().execute("Select Sys_PK, Nombre From Agente Order By Nombre");
    desk::ComboBox& cbAgente = top_.cbAgente;
    cbAgente.Clear();
    cbAgente.AddItem("< Sin asignar >");
    if (!agents) throw RuntimeError::objectNotSet(); // an update in disguise: there is nothing to read
    while (!agents->Eof()) {
        cbAgente.AddItem(agents->Fields()("Nombre").Value().toText());
        cbAgente.ItemData(cbAgente.NewIndex(), agents->Fields()("Sys_PK").Value().toInt32());
        agents->MoveNext();
    }
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

} // namespace dn::shell
