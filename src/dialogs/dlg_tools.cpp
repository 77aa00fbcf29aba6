// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/dlg_tools.h"

#include "base/runtime_error.h"
#include "data/failure_modes.h"
#include "desk/agent_rows.h"
#include "dialogs/dlg_filtro.h"

#include <memory>

namespace dn::dialogs {

using data::resumeNext;

namespace {

void addLine(screen::ComboBox& list, std::int32_t key, const std::string& name)
{
    list.AddItem(name);
    list.ItemData(list.NewIndex(), key);
}

} // namespace

dlgTools::dlgTools(screen::Ports screenPorts)
    : Dialog("dlgTools", "Herramientas", screenPorts), grid_(form, 1200, 4200)
{
    layOut();
    on(cmdCambiar.Click, *this, &dlgTools::cmdCambiar_Click);
    on(cmdCerrar.Click, *this, &dlgTools::cmdCerrar_Click);
}

void dlgTools::layOut()
{
    Label1.Caption("Cambiar ejecutivo de grupo de proyectos");
    Check1.Caption("Excepto el color seleccionado");
    cmdCambiar.Caption("&Cambiar");
    cmdCerrar.Caption("C&errar");
    grid_.heading(Label1);
    grid_.field("En color:", cmdColor);
    grid_.field(nullptr, Check1);
    grid_.field("En estado:", cmdEstado);
    grid_.field("De:", cmdEjecutivo);
    grid_.field("A:", cmdDestino);
    grid_.buttons(cmdCambiar, cmdCerrar);
}

void dlgTools::Form_Load() // continue-on-error
{
    for (const char* color : {"<Cualquier color>", "Predeterminado", "Rojo", "Verde", "Azul", "Morado"})
        resumeNext([&] { cmdColor.AddItem(color); });
    resumeNext([&] { cmdColor.ListIndex(0); });
    resumeNext([&] { cmdEstado.Clear(); });
    for (const char* estado :
         {"<Cualquier estado>", "Congelados", "Fríos", "Tibios", "Calientes", "Cerrados", "Perdidos"})
        resumeNext([&] { cmdEstado.AddItem(estado); });
    loadAgents();
    resumeNext([&] { cmdEjecutivo.ListIndex(0); });
    resumeNext([&] { cmdEstado.ListIndex(0); });
}

// A line and its key are one step, as is reading them: a line with the key of another one would hand projects to
// the wrong executive.
void dlgTools::loadAgents() // continue-on-error
{
    resumeNext([&] { cmdEjecutivo.Clear(); });
    resumeNext([&] { cmdDestino.Clear(); });
    resumeNext([&] { cmdEjecutivo.AddItem("<Todos los ejecutivos>"); });
    std::unique_ptr<data::Recordset> agents;
    resumeNext([&] { agents = cnn().execute(desk::agentsStatement); });
    while (agents && !agents->Eof()) {
        for (screen::ComboBox* list : {&cmdEjecutivo, &cmdDestino})
            resumeNext([&] {
                const data::Fields fields = agents->Fields();
                addLine(*list, fields("Sys_PK").Value().toInt32(), fields("Nombre").Value().toText());
            });
        resumeNext([&] { agents->MoveNext(); });
    }
}

void dlgTools::cmdCambiar_Click() // trap
{
    data::trap([&] { change(); }, [&](const std::string& failure) { ports.dialogs.say(failure); });
}

// A failed statement leaves the hourglass: nothing sets the pointer back on that way.
void dlgTools::change()
{
    const std::string where = group();
    if (cmdDestino.ListIndex() < 0) {
        ports.dialogs.say("Debe seleccionar el ejecutivo que recibirá los proyectos");
        return;
    }
    const std::string statement =
        "UPDATE Proyecto SET IEjecutivo = " + std::to_string(cmdDestino.selectedData()) + " " + where;
    const screen::MessageBox question{.prompt = "¿Seguro desea ejecutar este proceso (es irreversible)?",
                                      .buttons = screen::MessageBox::Buttons::yesNo,
                                      .defaultButton = 2};
    if (ports.dialogs.MsgBox(question) == screen::Answer::no) return;
    ports.pointer.MousePointer(screen::Pointer::hourglass);
    cnn().execute(statement);
    ports.pointer.MousePointer(screen::Pointer::standard);
    ports.dialogs.say("Proceso completado.");
}

// The conditions of the group, none of which need be there. Their blanks are part of the statement.
std::string dlgTools::group() const
{
    std::string text;
    const auto joint = [&text] { return text.empty() ? " WHERE " : " AND "; };
    if (cmdColor.ListIndex() >= 1) // the first line stands for any colour, the second for colour 0
        text += joint() + std::string(Check1.Value() == 1 ? " uf_Color<> " : " uf_Color= ") +
                std::to_string(cmdColor.ListIndex() - 1) + " ";
    if (cmdEstado.ListIndex() != 0) text += joint() + ("uf_Status1 = " + std::to_string(cmdEstado.ListIndex()));
    if (cmdEjecutivo.ListIndex() != 0)
        text += joint() + ("IEjecutivo = " + std::to_string(cmdEjecutivo.selectedData()) + " ");
    return text;
}

data::Connection& dlgTools::cnn() const
{
    if (Cnn == nullptr) throw RuntimeError::objectNotSet();
    return *Cnn;
}

void dlgTools::cmdCerrar_Click() { Hide(); }

void dlgTools::ShowExportFiltro() // continue-on-error
{
    resumeNext([&] {
        dlgFiltro filter(ports);
        filter.Cnn = Cnn;
        filter.Motor = Motor;
        filter.Show();
    });
}

} // namespace dn::dialogs
