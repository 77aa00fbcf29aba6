// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// "¿Qué hacer?": what happens next to the party of a call. It only asks; what each answer leads to is its
// caller's.
#pragma once

#include "desk/public_operations.h"
#include "dialogs/dialog.h"
#include "screen/button.h"

#include <cstdint>

namespace dn::dialogs {

class dlgQueH : public Dialog {
public:
    explicit dlgQueH(screen::Ports screenPorts);

    desk::PublicOperations* Contenedor = nullptr; ///< the control, set by the caller; not owned
    /// The result: 1 another call, 2 a project, 3 no interest, 4 discarded. 0 when the window was closed instead.
    std::int16_t Opcion = 0;

    // ---- Events

    /// Takes the marked option; without one it says so and stays.
    void cmdOk_Click();
    /// Writes a mail first. The question stays.
    void cmdMail_Click();

    // ---- Elements

    screen::OptionButton Option1{&form, "Option1"};
    screen::OptionButton Option2{&form, "Option2"};
    screen::OptionButton Option3{&form, "Option3"};
    screen::OptionButton Option4{&form, "Option4"};
    screen::Button cmdMail{&form, "cmdMail"};
    screen::Button cmdOk{&form, "cmdOk"};

private:
    void layOut();
};

} // namespace dn::dialogs
