// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "prospects/assignment.h"

#include "data/activity_log.h"
#include "data/failure_modes.h"
#include "desk/row_key.h"

#include <vector>

namespace dn::prospects {
namespace {

/// The keys of the checked rows, in the order shown.
std::vector<std::string> checkedKeys(screen::ListView& lvw)
{
    std::vector<std::string> keys;
    screen::ListItems rows = lvw.ListItems();
    for (int i = 1; i <= rows.Count(); ++i)
        if (rows(i).Checked()) keys.push_back(desk::keyDigits(rows(i)));
    return keys;
}

} // namespace

using data::resumeNext;

void Assignment::cmdProsAsignPros_Click() // continue-on-error
{
    if (session_.GAdmon)
        assignChecked();
    else
        passOnSelected();
}

void Assignment::HayMarcados(bool& result) const
{
    result = false;
    screen::ListItems rows = prospects_.lvw.ListItems();
    for (int i = 1; i <= rows.Count() && !result; ++i)
        result = rows(i).Checked();
}

void Assignment::assignChecked() // continue-on-error
{
    bool marked = false;
    resumeNext([&] { HayMarcados(marked); });
    if (!marked) {
        resumeNext([&] { ports_.dialogs.say("Seleccione al menos un contacto"); });
        return;
    }
    const std::int32_t agent = askForAgent();
    if (agent < 1) return;
    resumeNext([&] { ports_.pointer.MousePointer(screen::Pointer::hourglass); });
    // Taken once: during a yield the operator may sort the list or load it anew.
    for (const std::string& key : checkedKeys(prospects_.lvw)) {
        resumeNext([&] { assign(agent, key); });
        resumeNext([&] { ports_.events.DoEvents(); });
    }
    resumeNext([&] { list_.LoadProspectos(); });
    resumeNext([&] { ports_.pointer.MousePointer(screen::Pointer::standard); });
}

void Assignment::passOnSelected() // continue-on-error
{
    screen::ListView& lvw = prospects_.lvw;
    if (!lvw.SelectedItem()) {
        resumeNext([&] { ports_.dialogs.say("Debe seleccionar un prospecto de la lista"); });
        return;
    }
    const std::int32_t agent = askForAgent();
    if (agent < 1) return;
    resumeNext([&] { assign(agent, desk::keyDigits(desk::selectedRow(lvw))); });
    resumeNext([&] {
        session_.cnn().execute(data::bitacora::prospectRow("Contacto transferido", session_.Usuario,
                                                           desk::keyDigits(desk::selectedRow(lvw))));
    });
    resumeNext([&] { list_.LoadProspectos(); });
}

std::int32_t Assignment::askForAgent() // continue-on-error
{
    std::int32_t agent = 0;
    resumeNext([&] { agent = control_.ShSelAgente(); });
    return agent;
}

void Assignment::assign(std::int32_t agent, const std::string& key)
{
    session_.cnn().execute("UPDATE ut_icontact SET uf_IEjecutivo = " + std::to_string(agent) +
                           " WHERE Sys_PK=" + key);
}

} // namespace dn::prospects
