// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "today/today_commands.h"

#include "desk/row_key.h"
#include "today/today_panel.h"

#include <functional>
#include <string>

namespace dn::today {

void TodayCommands::cmdEditHoy_Click() // no trap
{
    const auto row = today_.lvwHoy.SelectedItem();
    if (!row) return;
    const std::int32_t key = desk::keyNumber(*row);
    if (row->Text() == prospectType)
        editing_.correct("Select Sys_PK, uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto FROM ut_icontact "
                         "Where Sys_PK=" +
                             std::to_string(key),
                         [](const std::function<void()>& statement) { statement(); });
    else
        screens_.oUIProyectos().EditarProyecto(key);
    queue_.RefreshRobot();
}

void TodayCommands::lvwHoy_DblClick() // no trap
{
    cmdEditHoy_Click();
}

void TodayCommands::geProyFromContacto_Click() // no trap
{
    const auto row = today_.lvwHoy.SelectedItem();
    if (!row) return;
    if (row->Text() != prospectType) {
        dialogs_.say("Seleccione un contacto para convertir en proyecto.");
        return;
    }
    std::int32_t key = desk::keyNumber(*row);
    conversion_.ProspectoAProyecto(key);
    queue_.RefreshRobot();
}

} // namespace dn::today
