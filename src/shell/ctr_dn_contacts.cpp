// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/ctr_dn_contacts.h"

#include "base/runtime_error.h"

namespace dn {

ctrDnContacts::ctrDnContacts(screen::Ports ports)
    : tabStrip_(elements_.top),
      counters_(elements_),
      timeline_(session_, elements_, ports),
      hostScreens_(session_),
      notes_(session_, elements_, tabStrip_, ports),
      prospectDetail_(elements_.detail, elements_.top, tabStrip_, timeline_),
      prospectInteraction_(elements_.prospects),
      prospectList_(session_, elements_.prospects, elements_.top, tabStrip_, prospectDetail_, counters_, ports),
      prospectStatus_(session_, elements_.prospects, elements_.detail, prospectList_, hostScreens_, ports.dialogs),
      phoneChoice_(session_),
      projectDetail_(elements_.detail, elements_.top, tabStrip_, timeline_, phoneChoice_, prospectDetail_),
      projectList_(session_, elements_.projects, elements_.top, projectDetail_, counters_),
      projectCommands_(session_, elements_.projects, elements_.top, projectList_, hostScreens_, ports.dialogs),
      partyInHand_(elements_, tabStrip_),
      listInSight_(elements_, prospectList_),
      callDecision_(session_, elements_, partyInHand_, prospectStatus_, *this, ports),
      callOutcomes_(session_, elements_, notes_, callDecision_, listInSight_, ports.dialogs),
      callFlow_(session_, elements_, partyInHand_, callOutcomes_, ports.dialogs),
      layout_(elements_),
      tabs_(session_, elements_, tabStrip_, {prospectDetail_, prospectList_, projectDetail_, projectList_}),
      agents_(session_, elements_.top, tabs_),
      startUp_(session_, elements_, agents_, tabs_, ports)
{
    wire();
    startUp_.UserControl_Initialize();
}

ctrDnContacts::~ctrDnContacts() = default;

void ctrDnContacts::cmdSend_Click() { throw RuntimeError("El correo todavía no está disponible"); }

void ctrDnContacts::Historial(std::int16_t&, std::int32_t&)
{
    throw RuntimeError("El historial de correos todavía no está disponible");
}

} // namespace dn
