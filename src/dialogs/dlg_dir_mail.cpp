// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/dlg_dir_mail.h"

#include "base/text.h"
#include "data/failure_modes.h"

namespace dn::dialogs {

using data::resumeNext;

dlgDirMail::dlgDirMail(screen::Ports screenPorts)
    : Dialog("dlgDirMail", "Seleccionar destinatarios", screenPorts), grid_(form, 0, 5400)
{
    lstDir.AccessibleName("Direcciones");
    lstDir.checkBoxes(true);
    cmdOk.Caption("&Aceptar");
    cmdCancel.Caption("Cancelar");
    grid_.tall(nullptr, lstDir, 2400);
    grid_.buttons(cmdOk, cmdCancel);

    on(cmdOk.Click, *this, &dlgDirMail::cmdOk_Click);
    on(cmdCancel.Click, *this, &dlgDirMail::cmdCancel_Click);
}

void dlgDirMail::AddItem(const std::string& address) // continue-on-error
{
    const std::string line = toLower(trimmed(address));
    for (int i = 0; i < lstDir.ListCount(); ++i)
        if (lstDir.List(i) == line) return;
    resumeNext([&] { lstDir.AddItem(line); });
}

void dlgDirMail::cmdOk_Click() // no trap
{
    std::string marked;
    for (int i = 0; i < lstDir.ListCount(); ++i) {
        if (!lstDir.Selected(i)) continue;
        if (!marked.empty()) marked += ';';
        marked += lstDir.List(i);
    }
    Direcciones = trimmed(marked);
    if (!Direcciones.empty())
        Hide();
    else
        ports.dialogs.say("Debe marcar al menos una dirección");
}

void dlgDirMail::cmdCancel_Click() // no trap
{
    Direcciones.clear();
    Hide();
}

} // namespace dn::dialogs
