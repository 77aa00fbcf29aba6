// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "projects/project_commands.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "data/failure_modes.h"
#include "desk/row_key.h"
#include "dialogs/dlg_tools.h"

#include <any>
#include <memory>

namespace dn::projects {
namespace {

using data::resumeNext;

// The host's screens, held while one of their operations runs: the host may replace the property meanwhile.
std::shared_ptr<UI_CRM> present(const std::shared_ptr<UI_CRM>& screens)
{
    if (!screens) throw RuntimeError::objectNotSet();
    return screens;
}

} // namespace

void ProjectCommands::cmdProjNewProj_Click() // no trap
{
    std::int32_t noParty = 0;
    const std::int32_t key = screens_.NuevoProyecto(noParty);
    if (key < 1) return;
    list_.RefreshProyectos();
    bool found = false;
    SelProyecto(key, found);
}

void ProjectCommands::cmdNewProjEditProj_Click() // continue-on-error
{
    const auto selected = projects_.lvwProy.SelectedItem();
    if (!selected) {
        resumeNext([&] { ports_.dialogs.say("Debe seleccionar un elemento de la lista"); });
        return;
    }
    std::int32_t key = 0;
    resumeNext([&] { key = desk::keyNumber(*selected); });
    if (key < 1) return;
    resumeNext([&] { screens_.oUIProyectos().EditarProyecto(key); });
    resumeNext([&] { list_.RefreshProyectos(); });
    bool found = false;
    resumeNext([&] { SelProyecto(key, found); });
}

void ProjectCommands::lvwProy_DblClick() // continue-on-error
{
    resumeNext([&] { cmdNewProjEditProj_Click(); });
}

void ProjectCommands::SelProyecto(std::int32_t PK, bool& result)
{
    const std::string key = "K" + std::to_string(PK);
    screen::ListItems rows = projects_.lvwProy.ListItems();
    for (int i = 1; i <= rows.Count() && !result; ++i) {
        screen::ListItem row = rows(i);
        if (row.Key() != key) continue;
        row.Selected(true);
        result = true;
    }
}

void ProjectCommands::cmdProjSeekProj_Click() // continue-on-error
{
    std::string found;
    resumeNext([&] { present(session_.oUICRM)->BuscarEntidad("", true, true, found); });
    if (found.empty()) return;
    resumeNext([&] { open(found); });
}

// A letter and a key: "O" is an organisation, any other letter a person, a small "o" too.
void ProjectCommands::open(const std::string& found)
{
    std::string_view digits = found;
    const bool organisation = takeCharacter(digits) == U'O';
    std::int32_t key = data::Value(data::Value::Kind::text, digits).toInt32();
    std::int32_t agente = 0;
    std::any result;
    const auto screens = present(session_.oUICRM);
    if (organisation)
        screens->EditarOrganizacion(key, agente, result);
    else
        screens->EditarPersona(key, agente, result);
}

void ProjectCommands::cmdProjNewContact_Click() // no trap
{
    std::int32_t agente = top_.cbAgente.selectedData();
    HostObject none;
    std::any result;
    present(session_.oUICRM)->NuevaPersona(none, agente, result);
}

void ProjectCommands::cmdProjNewOrg_Click() // continue-on-error
{
    resumeNext([&] {
        std::int32_t agente = top_.cbAgente.selectedData();
        HostObject none;
        std::any result;
        present(session_.oUICRM)->NuevaOrganizacion(none, agente, result);
    });
}

void ProjectCommands::cmdNewProjTool_Click() // continue-on-error
{
    resumeNext([&] {
        dialogs::dlgTools tool(ports_);
        tool.Motor = session_.MotorBD;
        tool.Cnn = session_.AdoCnn;
        tool.Show();
    });
}

void ProjectCommands::ExportarListas() // continue-on-error
{
    resumeNext([&] {
        dialogs::dlgTools tool(ports_);
        tool.Motor = session_.MotorBD;
        tool.Cnn = session_.AdoCnn;
        tool.ShowExportFiltro();
    });
}

} // namespace dn::projects
