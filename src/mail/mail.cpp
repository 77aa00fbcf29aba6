// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "mail/mail.h"

#include "base/text.h"
#include "data/failure_modes.h"
#include "desk/row_key.h"

namespace dn::mail {

using calling::Party;
using data::resumeNext;

namespace {

constexpr int emailColumn = 4; // of `lvw`

}

void Mail::cmdSend_Click() // continue-on-error
{
    auto party = Party::prospect;
    resumeNext([&] { party = party_.find(); });
    if (party == Party::none) return;
    if (!(party == Party::prospect ? toProspect() : toProject())) return;
    resumeNext([&] { elements_.detail.txtText.Text("Se envió un mensaje de correo electrónico"); });
    resumeNext([&] { notes_.cmdIntro_Click(); });
}

// Without a selected row the key stays 0, which finds no record.
bool Mail::toProspect() // continue-on-error
{
    screen::ListView& lvw = elements_.prospects.lvw;
    std::int16_t kind = ofProspect;
    std::int32_t key = 0;
    std::string address;
    bool sent = false;
    resumeNext([&] { key = desk::keyNumber(desk::selectedRow(lvw)); });
    resumeNext([&] { address = desk::selectedRow(lvw).ListSubItems()(emailColumn).Text(); });
    resumeNext([&] { mails_.EnviaCorreo(kind, key, address, sent); });
    return sent;
}

bool Mail::toProject() // continue-on-error
{
    std::int16_t kind = ofProject;
    std::int32_t key = 0;
    std::string addresses;
    bool sent = false;
    resumeNext([&] { addresses = addresses_.DireccionesProyecto(); });
    if (trimmed(addresses).empty()) return false;
    resumeNext([&] { key = desk::keyNumber(desk::selectedRow(elements_.projects.lvwProy)); });
    resumeNext([&] { mails_.EnviaCorreo(kind, key, addresses, sent); });
    return sent;
}

} // namespace dn::mail
