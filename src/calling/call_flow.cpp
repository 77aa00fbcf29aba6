// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "calling/call_flow.h"

#include "base/format.h"
#include "data/failure_modes.h"
#include "desk/row_key.h"

#include <string>

namespace dn::calling {
namespace {

using data::resumeNext;

constexpr int telephones = 5; // the sub-item "Teléfonos" of the prospects
constexpr int contact = 6;    // the button "Contacto establecido"

} // namespace

void CallFlow::IniciarLlamada(const std::string& Tabla, std::int32_t PK,
                              const std::string& Tel) // continue-on-error
{
    desk::CallElements& call = elements_.call;
    const screen::Element* const atWork = elements_.control.focused();
    resumeNext([&] { call.lbltel.Caption(formatTelephone(Tel)); });
    lockLists();
    showRinging();
    resumeNext([&] { session_.Call_Progress = true; });
    resumeNext([&] { session_.Call_Tabla = Tabla; });
    resumeNext([&] { session_.Call_PK = PK; });
    resumeNext([&] { session_.Call_Tel = Tel; });
    resumeNext([&] { elements_.detail.cmdCall.Enabled(false); });
    // Who is in the middle of a note when the host starts a call goes on writing it.
    if (atWork != nullptr && !atWork->usable()) resumeNext([&] { call.cmdContesta.SetFocus(); });
    resumeNext([&] { started.emit(Tabla, PK, Tel); });
}

void CallFlow::lockLists() // continue-on-error
{
    resumeNext([&] { elements_.prospects.lvw.Enabled(false); });
    resumeNext([&] { elements_.projects.lvwProy.Enabled(false); });
    resumeNext([&] { elements_.today.lvwHoy.Enabled(false); });
}

void CallFlow::showRinging() // continue-on-error
{
    desk::CallElements& call = elements_.call;
    resumeNext([&] { call.picLlamada.Visible(true); });
    resumeNext([&] { call.picContacto.Visible(false); });
    resumeNext([&] { call.picResumen.Visible(false); });
    resumeNext([&] { call.picLlamando.Visible(true); });
}

void CallFlow::cmdCall_Click() // no trap
{
    if (atWork()) return;
    switch (partyInHand()) {
    case Party::none:
        return;
    case Party::prospect:
        callProspect();
        break;
    case Party::project:
        callProject();
        break;
    }
    if (elements_.call.cmdContesta.usable()) elements_.call.cmdContesta.SetFocus();
}

// On the tab "Hoy" this yields.
Party CallFlow::partyInHand() // no trap
{
    const Turn::Hold hold(outcomes_.turn(), Turn::Work::other);
    return party_.find();
}

void CallFlow::callProspect() // no trap
{
    const auto row = elements_.prospects.lvw.SelectedItem();
    if (!row) {
        dialogs_.say("Seleccione un contacto");
        return;
    }
    IniciarLlamada("ut_icontact", desk::keyNumber(*row), std::string(row->ListSubItems()(telephones).Text()));
}

// The number is the one that the last click on a project found, whichever project that was.
void CallFlow::callProject() // no trap
{
    const auto row = elements_.projects.lvwProy.SelectedItem();
    if (!row) {
        dialogs_.say("Seleccione un proyecto");
        return;
    }
    IniciarLlamada("Proyecto", desk::keyNumber(*row), session_.Call_Tel);
}

void CallFlow::cmdContesta_Click() // continue-on-error
{
    if (atWork()) return;
    desk::CallElements& call = elements_.call;
    resumeNext([&] { call.picLlamando.Visible(false); });
    resumeNext([&] { call.picContacto.Visible(true); });
    // Who presses the same key twice goes on to the summary, which stores nothing yet.
    resumeNext([&] { call.cmdCallCon(contact).SetFocus(); });
}

void CallFlow::nobodyReached(std::int16_t motivo) // continue-on-error
{
    if (!atWork()) outcomes_.Call_NoConnect(motivo);
}

void CallFlow::cmdCallCon_Click(std::int16_t Index) // continue-on-error
{
    if (!atWork()) outcomes_.Call_Connect(Index);
}

void CallFlow::cmdOkCall_Click() // continue-on-error
{
    if (!atWork()) outcomes_.Call_Resumen(elements_.call.txtResCall.Text());
}

void CallFlow::Timer1_Timer() // continue-on-error
{
    screen::ProgressBar& PG = elements_.call.PG;
    resumeNext([&] { PG.Value(PG.Value() == 100 ? 0 : PG.Value() + 1); });
}

} // namespace dn::calling
