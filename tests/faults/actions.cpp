// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/faults/actions.h"

#include "screen/list_box.h"
#include "tests/support/element_tree.h"

namespace dn::tests {
namespace {

constexpr std::int32_t ana = 7;

void press(screen::Form& form, const char* button) { elementNamed<screen::Button>(form, button).press(); }

// ---- Where the actions begin

void beforeLuz(AtWork& at)
{
    at.begins(ana, false);
    at.opensTab(desk::prospectos);
    at.clicksRow(at.elements().prospects.lvw, "K1");
}

void beforeSilo(AtWork& at)
{
    at.begins(ana, false);
    at.opensTab(desk::proyectos);
    at.clicksRow(at.elements().projects.lvwProy, "K1");
}

void beforeTheQueue(AtWork& at)
{
    at.begins(ana, false);
    at.opensTab(desk::prospectos);
    at.opensTab(desk::hoy);
    at.clicksRow(at.elements().today.lvwHoy, "K1");
}

void asSupervisor(AtWork& at)
{
    at.begins(0, true);
    at.opensTab(desk::prospectos);
}

void asAdministrator(AtWork& at)
{
    at.begins(ana, true);
    at.opensTab(desk::prospectos);
    at.checks("K1");
    at.checks("K2");
}

// ---- Pieces of actions

void calls(AtWork& at)
{
    at.presses("cmdCall");
    at.will("dlgQueH", [](screen::Form& form) { form.closeWindow(); });
}

EasyWindows::Act answer(const char* option)
{
    return [option](screen::Form& form) {
        elementNamed<screen::OptionButton>(form, option).choose();
        press(form, "cmdOk");
    };
}

void picksAnAgent(AtWork& at)
{
    at.will("dlgSelAgente", [](screen::Form& form) {
        elementNamed<screen::ListBox>(form, "cbAgente").pick(std::string_view("Beto"));
        press(form, "Command1");
    });
}

void corrects(AtWork& at)
{
    at.will("dlgCorregir", [](screen::Form& form) {
        elementNamed<screen::TextBox>(form, "txtTelefono").edit("961 555");
        press(form, "cmdOk");
    });
}

void typesInAProspect(AtWork& at)
{
    at.will("dlgNuevoPros", [](screen::Form& form) {
        for (const auto& [box, text] :
             std::initializer_list<std::pair<const char*, const char*>>{{"txtNombre", "María"},
                                                                        {"txtTelefono", "961 111 2233"},
                                                                        {"txtCorreo", "m@x.mx"},
                                                                        {"txtEmpresa", "Acme"},
                                                                        {"txtPuesto", "Compras"},
                                                                        {"cCiudad", "Morelia"},
                                                                        {"cNotas", "llamar"}})
            elementNamed<screen::TextBox>(form, box).edit(text);
        elementNamed<screen::ComboBox>(form, "cEdo").pick(std::string_view("Michoacán de Ocampo"));
        for (const auto& [box, text] : std::initializer_list<std::pair<const char*, const char*>>{
                 {"cInteres", "Curso"}, {"cObtencion", "Llamada"}, {"cReferencia", "Un amigo"}})
            elementNamed<screen::ComboBox>(form, box).edit(text);
        press(form, "cmdOk");
    });
    at.presses("cmdProsNewPros");
}

void handsProjectsOver(AtWork& at)
{
    at.will("dlgTools", [](screen::Form& form) {
        elementNamed<screen::ComboBox>(form, "cmdDestino").pick(std::string_view("Beto"));
        press(form, "cmdCambiar");
    });
    at.presses("cmdNewProjTool");
}

void exportsLists(AtWork& at)
{
    at.will("dlgFiltro", [](screen::Form& form) {
        elementNamed<screen::CheckBox>(form, "chkContactos").toggle();
        elementNamed<screen::CheckBox>(form, "chkProyectos").toggle();
        press(form, "cmdExportar");
    });
    at.will("dlgShow", [](screen::Form& form) { press(form, "cmdCerrar"); });
    at.control.ExportarListas();
}

const std::string note = "INSERT INTO xt_biticontact";
const std::string agents = "Select Sys_PK, Nombre From Agente";
const std::string nobodyToReceive = "Debe seleccionar el ejecutivo que recibirá los proyectos";
const std::string nobodyToMail = "No se puede ubicar información del destinatario";

Action answeredInVain(const char* name, void (*prepare)(AtWork&), const char* button, bool isAlike = true)
{
    return {.name = name,
            .prepare = prepare,
            .act =
                [button](AtWork& at) {
                    calls(at);
                    at.presses("cmdContesta");
                    at.presses(button);
                },
            .told = {{note}},
            .isAlike = isAlike};
}

/// Asks what is to follow, without a call.
void clicksLuzTwice(AtWork& at, const char* option)
{
    screen::ListView& lvw = at.elements().prospects.lvw;
    at.will("dlgQueH", answer(option));
    lvw.doubleClickRow(static_cast<std::size_t>(lvw.ListItems()("K1").Index()) - 1);
}

std::vector<Action> notesAndCalls()
{
    return {
        {.name = "a note on a prospect",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { at.types("txtText", "pide precios\n"); },
         .told = {{note}}},
        {.name = "a note on a project",
         .prepare = beforeSilo,
         .act = [](AtWork& at) { at.types("txtText", "pide planos\n"); },
         .told = {{note}}},
        {.name = "a dictated note from the queue",
         .prepare = beforeTheQueue,
         .act = [](AtWork& at) { at.presses("cmdNote"); },
         .told = {{note}}},
        {.name = "a call: busy",
         .prepare = beforeLuz,
         .act =
             [](AtWork& at) {
                 calls(at);
                 at.presses("cmdOcupado");
             },
         .told = {{note}}},
        {.name = "a call about a project: nobody answers",
         .prepare = beforeSilo,
         .act =
             [](AtWork& at) {
                 calls(at);
                 at.presses("cmdNoContestan");
             },
         .told = {{note}}},
        {.name = "a call from the queue: out of service",
         .prepare = beforeTheQueue,
         .act =
             [](AtWork& at) {
                 calls(at);
                 at.presses("cmdFueraServ");
             },
         .told = {{note}}},
        {.name = "a call: cancelled",
         .prepare = beforeLuz,
         .act =
             [](AtWork& at) {
                 calls(at);
                 at.presses("cmdCancelCall");
             }},
        answeredInVain("a call: not there", beforeLuz, "cmdCallCon(0)"),
        answeredInVain("a call: in a meeting", beforeLuz, "cmdCallCon(1)", false),
        answeredInVain("a call: hung up", beforeLuz, "cmdCallCon(3)"),
        answeredInVain("a call: wants to know nothing", beforeLuz, "cmdCallCon(4)"),
        answeredInVain("a call: another reason", beforeLuz, "cmdCallCon(5)"),
        answeredInVain("a call about a project: not there", beforeSilo, "cmdCallCon(0)"),
        {.name = "a call about a project: contact",
         .prepare = beforeSilo,
         .act =
             [](AtWork& at) {
                 calls(at);
                 at.presses("cmdContesta");
                 at.presses("cmdCallCon(6)");
                 at.types("txtResCall", "quiere planos");
                 at.presses("cmdOkCall");
             },
         .told = {{note}}},
        {.name = "a call: wrong number, discarded",
         .prepare = beforeLuz,
         .act =
             [](AtWork& at) {
                 calls(at);
                 at.will("dlgQueH", answer("Option4"));
                 at.presses("cmdContesta");
                 at.presses("cmdCallCon(2)");
             },
         .told = {{note}, {"UPDATE ut_icontact SET uf_Status"}}},
        {.name = "a call: contact and appointment",
         .prepare = beforeLuz,
         .act =
             [](AtWork& at) {
                 calls(at);
                 at.will("dlgQueH", answer("Option1"));
                 at.will("dlgAgendarContacto", [](screen::Form& form) { press(form, "cmdOk"); });
                 at.presses("cmdContesta");
                 at.presses("cmdCallCon(6)");
                 at.types("txtResCall", "quiere una visita");
                 at.presses("cmdOkCall");
             },
         .told = {{note}}},
    };
}

std::vector<Action> prospectCommands()
{
    return {
        {.name = "another status",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { at.picks("Combo1", "Sin interés"); },
         .told = {{note}, {"UPDATE"}}},
        {.name = "an opportunity",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { at.picks("Combo1", "Oportunidad"); },
         .told = {{note}, {"UPDATE"}}},
        {.name = "discarded by its status",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { at.picks("Combo1", "Descartado"); },
         .told = {{note}, {"UPDATE"}}},
        {.name = "a double click: no interest",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { clicksLuzTwice(at, "Option3"); },
         .told = {{note}, {"UPDATE"}}},
        {.name = "a double click: a project",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { clicksLuzTwice(at, "Option2"); },
         .told = {{note}, {"UPDATE"}}},
        {.name = "two discarded",
         .prepare = asAdministrator,
         .act = [](AtWork& at) { at.presses("cmdProsDiscart"); }},
        {.name = "two assigned",
         .prepare = asAdministrator,
         .act =
             [](AtWork& at) {
                 picksAnAgent(at);
                 at.presses("cmdProsAsignPros");
             },
         .emptyTells = "Seleccione un elemento"},
        {.name = "one passed on",
         .prepare = beforeLuz,
         .act =
             [](AtWork& at) {
                 picksAnAgent(at);
                 at.presses("cmdProsAsignPros");
             },
         .emptyTells = "Seleccione un elemento"},
        {.name = "a colour on a prospect",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { at.presses("bColor(3)"); },
         .told = {{"UPDATE"}}},
        {.name = "a prospect becomes a project",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { at.presses("cmdProsNewProj"); },
         .leaves = {"SELECT IFNULL", "SELECT Sys_PK FROM Ciudad", "UPDATE", note},
         .emptyLeaves = true},
        {.name = "a new prospect",
         .prepare = beforeLuz,
         .act = typesInAProspect,
         .told = {{"INSERT INTO ut_icontact"}, {"CALL", "Error: %"}}},
        {.name = "a correction",
         .prepare = beforeLuz,
         .act =
             [](AtWork& at) {
                 corrects(at);
                 at.presses("cmdEditC");
             },
         .told = {{"UPDATE"}}},
        {.name = "a correction from the queue",
         .prepare = beforeTheQueue,
         .act =
             [](AtWork& at) {
                 corrects(at);
                 at.presses("cmdEditHoy");
             },
         .told = {{"UPDATE"}},
         .leaves = {"Select Sys_PK"},
         .emptyLeaves = true},
        {.name = "a mail to a prospect",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { at.presses("cmdSend"); },
         .told = {{note}, {"SELECT Sys_GUID", nobodyToMail}},
         .emptyTells = nobodyToMail},
    };
}

std::vector<Action> projectsAndLists()
{
    return {
        {.name = "a colour on a project",
         .prepare = beforeSilo,
         .act = [](AtWork& at) { at.presses("bColor(1)"); },
         .told = {{"UPDATE"}}},
        {.name = "a project edited",
         .prepare = beforeSilo,
         .act = [](AtWork& at) { at.presses("cmdNewProjEditProj"); }},
        {.name = "a new project", .prepare = beforeSilo, .act = [](AtWork& at) { at.presses("cmdProjNewProj"); }},
        {.name = "a mail about a project",
         .prepare = beforeSilo,
         .act =
             [](AtWork& at) {
                 at.will("dlgDirMail", [](screen::Form& form) { press(form, "cmdOk"); });
                 at.presses("cmdSend");
             },
         .told = {{note}, {"SELECT Sys_GUID", nobodyToMail}},
         .emptyTells = nobodyToMail},
        {.name = "the mails of a prospect",
         .prepare = beforeTheQueue,
         .act = [](AtWork& at) { at.presses("Command7"); },
         .told = {{"SELECT Sys_GUID", nobodyToMail}},
         .emptyTells = nobodyToMail},
        {.name = "the mails of a project",
         .prepare =
             [](AtWork& at) {
                 beforeTheQueue(at);
                 at.clicksRow(at.elements().today.lvwHoy, "P1");
             },
         .act = [](AtWork& at) { at.presses("Command7"); },
         .told = {{"SELECT Sys_GUID", nobodyToMail}},
         .emptyTells = nobodyToMail},
        {.name = "projects handed over",
         .prepare =
             [](AtWork& at) {
                 at.begins(ana, true);
                 at.opensTab(desk::proyectos);
             },
         .act = handsProjectsOver,
         .told = {{"UPDATE"}, {agents, nobodyToReceive}},
         .emptyTells = nobodyToReceive,
         .hourglassMayStay = true},
        {.name = "mail lists",
         .prepare = beforeLuz,
         .act = exportsLists,
         .leaves = {"Select uf_Email", "SELECT Proyecto.IEjecutivo"}},
        {.name = "the start",
         .prepare = [](AtWork&) {},
         .act = [](AtWork& at) { at.begins(ana, false); },
         .leaves = {agents}},
        {.name = "the prospects", .prepare = beforeSilo, .act = [](AtWork& at) { at.opensTab(desk::prospectos); }},
        {.name = "the projects", .prepare = beforeLuz, .act = [](AtWork& at) { at.opensTab(desk::proyectos); }},
        {.name = "the queue", .prepare = beforeTheQueue, .act = [](AtWork& at) { at.opensTab(desk::hoy); }},
        {.name = "a row of the queue",
         .prepare = beforeTheQueue,
         .act = [](AtWork& at) { at.clicksRow(at.elements().today.lvwHoy, "K2"); }},
        {.name = "a row of the prospects",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { at.clicksRow(at.elements().prospects.lvw, "K2"); }},
        {.name = "a row of the projects",
         .prepare = beforeSilo,
         .act = [](AtWork& at) { at.clicksRow(at.elements().projects.lvwProy, "K2"); }},
        {.name = "everything read again",
         .prepare = beforeLuz,
         .act =
             [](AtWork& at) {
                 at.control.RefreshData();
                 at.opensTab(desk::prospectos);
             },
         .leaves = {agents}},
        {.name = "the organisations",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { at.opensTab(desk::organizaciones); },
         .told = {{"SELECT"}}},
        {.name = "the persons",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { at.opensTab(desk::contactos); },
         .told = {{"SELECT"}}},
        {.name = "everybody's organisations",
         .prepare = asSupervisor,
         .act = [](AtWork& at) { at.opensTab(desk::organizaciones); },
         .told = {{"SELECT"}}},
        {.name = "everybody's persons",
         .prepare = asSupervisor,
         .act = [](AtWork& at) { at.opensTab(desk::contactos); },
         .told = {{"SELECT"}}},
        {.name = "a status of the prospects",
         .prepare = beforeLuz,
         .act = [](AtWork& at) { at.picks("cbStatus", "Descartado"); }},
        {.name = "a status of the projects",
         .prepare = beforeSilo,
         .act = [](AtWork& at) { at.picks("cbProjStatusProj", "Fríos"); }},
        {.name = "another agent",
         .prepare = asAdministrator,
         .act = [](AtWork& at) { at.picks("cbAgente", "Beto"); }},
        {.name = "nobody's work",
         .prepare = asAdministrator,
         .act = [](AtWork& at) { at.picks("cbAgente", "< Sin asignar >"); }},
        {.name = "a search",
         .prepare = beforeLuz,
         .act =
             [](AtWork& at) {
                 at.elements().top.txtBuscar.edit("rita");
                 at.presses("cmdOkBuscar");
             }},
    };
}

} // namespace

const std::vector<Action>& allActions()
{
    static const std::vector<Action> all = [] {
        std::vector<Action> actions = notesAndCalls();
        for (const auto& more : {prospectCommands(), projectsAndLists()})
            actions.insert(actions.end(), more.begin(), more.end());
        return actions;
    }();
    return all;
}

} // namespace dn::tests
