// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/dlg_que_h.h"

#include "base/runtime_error.h"
#include "data/failure_modes.h"

#include <initializer_list>

namespace dn::dialogs {

dlgQueH::dlgQueH(screen::Ports screenPorts) : Dialog("dlgQueH", "¿Qué hacer?", screenPorts)
{
    Option1.Caption("Agendar una próxima llamada");
    Option2.Caption("Crear un proyecto");
    Option3.Caption("Marcar sin interés");
    Option4.Caption("Descartar");
    cmdMail.Caption("Enviar un correo");
    cmdMail.Picture("mail");
    cmdOk.Caption("&Aceptar");
    cmdOk.Default(true);
    layOut();

    on(cmdOk.Click, *this, &dlgQueH::cmdOk_Click);
    on(cmdMail.Click, *this, &dlgQueH::cmdMail_Click);
}

void dlgQueH::layOut()
{
    constexpr screen::Twips inner = 4500;
    constexpr screen::Twips mailWidth = 2400;
    screen::Twips top = Metrics::margin;
    int index = 0;
    for (screen::OptionButton* option : {&Option1, &Option2, &Option3, &Option4}) {
        option->Move(Metrics::margin, top, inner, Metrics::rowHeight);
        option->TabIndex(index++);
        top += Metrics::rowHeight + Metrics::gap / 2;
    }
    top += Metrics::gap;
    cmdMail.Move(Metrics::margin, top, mailWidth, Metrics::buttonHeight);
    cmdMail.TabIndex(index++);
    cmdOk.Move(Metrics::margin + inner - Metrics::buttonWidth, top, Metrics::buttonWidth, Metrics::buttonHeight);
    cmdOk.TabIndex(index);
    form.Width(inner + 2 * Metrics::margin);
    form.Height(top + Metrics::buttonHeight + Metrics::margin);
}

void dlgQueH::cmdOk_Click() // no trap
{
    Opcion = 0;
    if (Option1.Value()) Opcion = 1;
    if (Option2.Value()) Opcion = 2;
    if (Option3.Value()) Opcion = 3;
    if (Option4.Value()) Opcion = 4;
    if (Opcion != 0)
        Hide();
    else
        ports.dialogs.say("Debe seleccionar una opción");
}

void dlgQueH::cmdMail_Click() // continue-on-error
{
    data::resumeNext([&] {
        if (Contenedor == nullptr) throw RuntimeError::objectNotSet();
        Contenedor->cmdSend_Click();
    });
}

} // namespace dn::dialogs
