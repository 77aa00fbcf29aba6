// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// "Seleccionar destinatarios": which of a party's mail addresses are written to. It is also where its caller
// gathers them: each address stands once.
#pragma once

#include "dialogs/dialog.h"
#include "dialogs/field_grid.h"
#include "screen/list_box.h"

#include <string>

namespace dn::dialogs {

class dlgDirMail : public Dialog {
public:
    explicit dlgDirMail(screen::Ports screenPorts);

    /// The result: the marked addresses, joined by ";" without a blank; empty after a cancel.
    std::string Direcciones;

    /// Adds an address at the end, without a mark: trimmed and in small letters. One that is there already adds
    /// nothing.
    void AddItem(const std::string& address);

    // ---- Events

    /// Accepts the marked lines; without one it says so and stays.
    void cmdOk_Click();
    /// Gives up.
    void cmdCancel_Click();

    // ---- Elements

    screen::ListBox lstDir{&form, "lstDir"};
    screen::Button cmdOk{&form, "cmdOk"};
    screen::Button cmdCancel{&form, "cmdCancel"};

private:
    FieldGrid grid_;
};

} // namespace dn::dialogs
