// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/dlg_agendar_contacto.h"

#include "base/format.h"
#include "base/runtime_error.h"
#include "data/failure_modes.h"

#include <initializer_list>
#include <string>

namespace dn::dialogs {

using data::resumeNext;

dlgAgendarContacto::dlgAgendarContacto(screen::Ports screenPorts)
    : Dialog("dlgAgendarContacto", "Agendar próximo contacto", screenPorts)
{
    opt1.Caption("Contactar dentro de:");
    opt1.Value(true);
    opt2.Caption("Programar para el dìa y hora:");
    cmbTiempo.AccessibleName("Cantidad");
    cmbMedida.AccessibleName("Unidad de tiempo");
    cal.AccessibleName("Día");
    dtHora.AccessibleName("Hora");
    cmdOk.Caption("&Aceptar");
    cmdOk.Default(true);
    cmdCancel.Caption("&Cancelar");
    cmdCancel.Cancel(true);
    layOut();

    on(opt1.Click, *this, &dlgAgendarContacto::SyncControls);
    on(opt2.Click, *this, &dlgAgendarContacto::SyncControls);
    on(cmbTiempo.Click, *this, &dlgAgendarContacto::cmbTiempo_Click);
    on(cmdOk.Click, *this, &dlgAgendarContacto::cmdOk_Click);
    on(cmdCancel.Click, *this, &dlgAgendarContacto::cmdCancel_Click);
}

void dlgAgendarContacto::layOut()
{
    using M = Metrics;
    constexpr screen::Twips inner = 5400;
    constexpr screen::Twips indent = M::margin + 300; // under the caption of an option
    constexpr screen::Twips calendarWidth = 3750;
    constexpr screen::Twips calendarHeight = 2850;
    constexpr screen::Twips right = M::margin + inner;

    screen::Twips top = M::margin;
    opt1.Move(M::margin, top, 2250, M::rowHeight);
    cmbTiempo.Move(2550, top, 900, M::rowHeight);
    cmbMedida.Move(3450 + M::gap, top, 1350, M::rowHeight);
    top += M::rowHeight + M::gap;
    line.Move(M::margin, top, inner, 0);
    top += M::gap;
    opt2.Move(M::margin, top, inner, M::rowHeight);
    top += M::rowHeight + M::gap / 2;
    cal.Move(indent, top, calendarWidth, calendarHeight);
    dtHora.Move(indent + calendarWidth + M::gap, top, right - indent - calendarWidth - M::gap, M::rowHeight);
    top += calendarHeight + M::margin;
    cmdCancel.Move(right - M::buttonWidth, top, M::buttonWidth, M::buttonHeight);
    cmdOk.Move(cmdCancel.Left() - M::gap - M::buttonWidth, top, M::buttonWidth, M::buttonHeight);
    form.Width(inner + 2 * M::margin);
    form.Height(top + M::buttonHeight + M::margin);

    int index = 0;
    for (screen::Element* element : std::initializer_list<screen::Element*>{&opt1, &cmbTiempo, &cmbMedida, &opt2,
                                                                            &cal, &dtHora, &cmdOk, &cmdCancel})
        element->TabIndex(index++);
}

void dlgAgendarContacto::Form_Load() // no trap
{
    constexpr int most = 45;
    cmbTiempo.Clear();
    cmbMedida.Clear();
    for (int count = 1; count <= most; ++count)
        cmbTiempo.AddItem(std::to_string(count));
    cal.Value(ports.clock.Now());
    dtHora.Value(ports.clock.Now());
    cmbMedida.AddItem("Horas");
    cmbMedida.AddItem("Minutos");
    cmbMedida.ListIndex(hours);
    cmbTiempo.ListIndex(0);
    SyncControls();
}

void dlgAgendarContacto::SyncControls() // no trap
{
    const bool fromNow = opt1.Value();
    cmbTiempo.Enabled(fromNow);
    cmbMedida.Enabled(fromNow);
    cal.Enabled(!fromNow);
    dtHora.Enabled(!fromNow);
}

void dlgAgendarContacto::cmbTiempo_Click() // no trap
{
    constexpr int mostHours = 6;
    if (cmbTiempo.ListIndex() >= mostHours) cmbMedida.ListIndex(minutes); // the texts count from 1
}

void dlgAgendarContacto::cmdOk_Click() // continue-on-error
{
    DateTime when;
    resumeNext([&] { when = moment(); });
    bool past = false;
    resumeNext([&] { past = when < ports.clock.Now(); });
    if (past) {
        resumeNext([&] {
            ports.dialogs.say("La fecha y hora para el próximo contacto debe ser posterior a este momento");
        });
        return;
    }
    screen::Answer answer = screen::Answer::no;
    resumeNext([&] {
        answer = ports.dialogs.MsgBox({.prompt = "¿Seguro desea programar el contacto para: " +
                                                 formatDate(when, "yyyy-mmm-dd hh:nn:ss") + "?",
                                       .buttons = screen::MessageBox::Buttons::yesNo});
    });
    if (answer != screen::Answer::yes) return;
    resumeNext([&] {
        if (Cnn == nullptr) throw RuntimeError::objectNotSet();
        Cnn->execute("UPDATE ut_icontact SET uf_proxcontac = CAST('" + formatDate(when, "yyyy-mm-dd hh:nn:ss") +
                     "' AS DATETIME) WHERE Sys_PK=" + std::to_string(PKContacto));
    });
    Hide();
}

void dlgAgendarContacto::cmdCancel_Click() { Hide(); } // no trap

DateTime dlgAgendarContacto::moment() const
{
    if (opt1.Value()) {
        const int count = cmbTiempo.ListIndex() + 1;
        return ports.clock.Now().plusSeconds(std::int64_t{count} * (cmbMedida.ListIndex() == hours ? 3600 : 60));
    }
    DateTime when = cal.Value();
    const DateTime& time = dtHora.Value();
    when.hour = time.hour;
    when.minute = time.minute;
    when.second = time.second;
    return when;
}

} // namespace dn::dialogs
