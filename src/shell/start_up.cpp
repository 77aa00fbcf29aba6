// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/start_up.h"

#include "data/failure_modes.h"
#include "directories/columns.h"

namespace dn::shell {

using data::resumeNext;

void StartUp::UserControl_Initialize()
{
    elements_.detail.Combo1.AddItem("<Cambiar estado>");
    for (const char* status : {"Recibido", "Descartado", "Sin interés", "Oportunidad"})
        elements_.prospects.cbStatus.AddItem(status);
    elements_.prospects.cbStatus.ListIndex(0);
    for (const char* status : {"<Todos los proyectos>", "Congelados", "Fríos", "Tibios", "Calientes", "Perdidos"})
        elements_.projects.cbProjStatusProj.AddItem(status);
    directories::InitDirectoryColumns(elements_.organisations, elements_.persons);
}

void StartUp::SetObjects(data::Connection* Cn, std::int32_t Agente, bool Admon,
                         const std::string& pUsuario) // continue-on-error
{
    session_.AdoCnn = Cn;
    if (!isOpen(Cn)) {
        resumeNext([&] {
            ports_.dialogs.MsgBox({.prompt = "Error al conectar al servidor.",
                                   .icon = screen::MessageBox::Icon::critical,
                                   .title = "Fuerza de ventas"});
        });
        return;
    }
    session_.PKAgente = Agente;
    session_.GAdmon = Admon;
    session_.Usuario = pUsuario;
    resumeNext([&] { elements_.prospects.lvw.CheckBoxes(Admon); });
    resumeNext([&] { elements_.prospects.picAdmin.Visible(Admon); });
    resumeNext([&] { elements_.top.cbAgente.Enabled(Admon); });
    resumeNext([&] { elements_.projects.cmdNewProjTool.Enabled(elements_.top.cbAgente.Enabled()); });
    // The engine is copied only when the probe comes back: a probe that fails leaves the old value.
    resumeNext([&] {
        std::int16_t engine = 0;
        DetectMotorBD(engine);
        session_.MotorBD = engine;
    });
}

void StartUp::RefreshData() // no trap
{
    agents_.LoadAgentes();
    agents_.SelAgente(session_.PKAgente);
    if (elements_.top.cbAgente.ListIndex() >= 1) {
        queue_.RefreshRobot();
        elements_.today.picHoy.Visible(false);
        elements_.today.lvwHoy.Visible(true);
        elements_.detail.Combo1.Visible(false);
        elements_.detail.cmdEditC.Visible(false);
    } else {
        tabs_.SelectTab(desk::prospectos);
        elements_.today.picHoy.Visible(false);
        elements_.today.lvwHoy.Visible(false);
    }
}

// A server that refuses the first probe ends the routine with that failure, so that the second one is never sent.
// That does no harm: whatever is not MySQL takes the SQL Server forms.
void StartUp::DetectMotorBD(std::int16_t& result) // no trap
{
    if (session_.cnn().execute("SELECT NOW()")) {
        result = desk::Session::mySql;
        return;
    }
    if (session_.cnn().execute("SELECT GETDATE()")) result = desk::Session::sqlServer;
}

bool StartUp::isOpen(data::Connection* connection) const
{
    bool open = false;
    resumeNext([&] { open = connection != nullptr && connection->State() == data::Connection::open; });
    return open;
}

} // namespace dn::shell
