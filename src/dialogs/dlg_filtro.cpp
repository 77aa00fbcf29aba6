// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/dlg_filtro.h"

#include "base/runtime_error.h"
#include "data/failure_modes.h"
#include "desk/session.h"
#include "dialogs/dlg_show.h"

#include <initializer_list>
#include <memory>
#include <utility>

namespace dn::dialogs {

using data::resumeNext;

namespace {

using Options = std::initializer_list<std::pair<std::int32_t, const char*>>;

void addOptions(screen::eOptionLstField& field, const Options& options) // continue-on-error
{
    for (const auto& [key, text] : options)
        resumeNext([&, key = key, text = text] { field.AddOption(key, text); });
}

void selectFirst(screen::eOptionLstField& field) // continue-on-error
{
    resumeNext([&] {
        if (field.OptionCount() >= 1) field.InnerList().ListIndex(0);
    });
}

bool isMarked(const screen::CheckBox& box) { return box.Value() == 1; }

ListFilter::Choice choice(const screen::eOptionLstField& field, const screen::CheckBox& except)
{
    return {field.SelectedKey(), isMarked(except)};
}

} // namespace

dlgFiltro::dlgFiltro(screen::Ports screenPorts)
    : Dialog("dlgFiltro", "Exportar listas de correo", screenPorts), grid_(form, 0, 6600)
{
    caption();
    layOut();
    on(cmdExportar.Click, *this, &dlgFiltro::cmdExportar_Click);
    on(cmdCancel.Click, *this, &dlgFiltro::cmdCancel_Click);
}

void dlgFiltro::caption()
{
    label1.Caption("Incluir:");
    Label.Caption("Filtros:");
    Label2.Caption("Contactos:");
    Label4.Caption("Proyectos");
    chkContactos.Caption("Contactos");
    chkProyectos.Caption("Proyectos");
    dxEjecutivo.caption("Ejecutivo:");
    dxStatus.caption("Status:");
    dxMeta.caption("Meta:");
    dxColor.caption("Color:");
    dxEstado.caption("Estado:");
    for (screen::CheckBox* except : {&chkStatus, &chkMeta, &chkColor, &chkEstado})
        except->Caption("Excepto");
    chkStatus.AccessibleName("Excepto el status");
    chkMeta.AccessibleName("Excepto la meta");
    chkColor.AccessibleName("Excepto el color");
    chkEstado.AccessibleName("Excepto el estado");
    cCerrado.Caption("Excepto cerrados");
    cPerdidos.Caption("Excepto perdidos");
    cmdExportar.Caption("&Exportar");
    cmdCancel.Caption("Cerrar");
}

void dlgFiltro::layOut()
{
    constexpr screen::Twips half = 3240;
    constexpr screen::Twips except = 1200;
    grid_.heading(label1);
    grid_.pair(chkContactos, chkProyectos, half);
    grid_.heading(Label);
    grid_.field(nullptr, dxEjecutivo);
    grid_.heading(Label2);
    grid_.pair(dxStatus, chkStatus, except);
    grid_.heading(Label4);
    grid_.pair(dxMeta, chkMeta, except);
    grid_.pair(dxColor, chkColor, except);
    grid_.pair(dxEstado, chkEstado, except);
    grid_.pair(cCerrado, cPerdidos, half);
    grid_.buttons(cmdExportar, cmdCancel);
}

void dlgFiltro::Form_Load() // continue-on-error
{
    addOptions(dxEjecutivo, {{0, "Todas los ejecutivos"}});
    addRows(dxEjecutivo, "Select Sys_PK, Nombre From Ejecutivo ORDER BY Nombre", "Nombre");
    selectFirst(dxEjecutivo);
    addOptions(dxStatus, {{0, "Todos los status"}, {1, "Descartado"}, {2, "Sin interes"}, {3, "Oportunidad"}});
    selectFirst(dxStatus);
    addOptions(dxMeta, {{0, "Todas las metas"}});
    addRows(
        dxMeta,
        "Select Sys_pk, Descripcion FROM Meta WHERE Descripcion NOT LIKE '~%' AND Descripcion NOT LIKE 'Otro%' "
        "Order By Descripcion;",
        "Descripcion");
    selectFirst(dxMeta);
    addOptions(dxColor, {{ListFilter::anyColour, "Todos los Colores"},
                         {0, "Negro"},
                         {1, "Rojo"},
                         {2, "Verde"},
                         {3, "Azul"},
                         {4, "Morado"}});
    selectFirst(dxColor);
    addOptions(dxEstado, {{0, "Todos los estados"},
                          {1, "Congelado"},
                          {2, "Frio"},
                          {3, "Tibio"},
                          {4, "Caliente"},
                          {5, "Cerrado"},
                          {6, "Perdido"}});
    selectFirst(dxEstado);
}

// A row that cannot be read gives no entry.
void dlgFiltro::addRows(screen::eOptionLstField& field, const char* statement,
                        const char* column) // continue-on-error
{
    std::unique_ptr<data::Recordset> rows;
    resumeNext([&] { rows = cnn().execute(statement); });
    while (rows && !rows->Eof()) {
        resumeNext([&] {
            field.AddOption(rows->Fields()("Sys_PK").Value().toInt32(), rows->Fields()(column).Value().toText());
        });
        resumeNext([&] { rows->MoveNext(); });
    }
}

void dlgFiltro::cmdExportar_Click() // no trap
{
    const bool prospects = isMarked(chkContactos);
    const bool projects = isMarked(chkProyectos);
    if (!prospects && !projects) {
        ports.dialogs.say("Seleccion cuando menos un elemento a incluir");
        return;
    }
    const std::string ofProspects = prospects ? prospectListStatement(prospectFilter()) : "";
    const std::string ofProjects =
        projects ? projectListStatement(projectFilter(), Motor == desk::Session::mySql) : "";
    std::unique_ptr<data::Recordset> contactos;
    std::unique_ptr<data::Recordset> proyectos;
    if (prospects) contactos = cnn().execute(ofProspects);
    if (projects) proyectos = cnn().execute(ofProjects);
    ShowDlgExport(contactos.get(), proyectos.get());
}

void dlgFiltro::cmdCancel_Click() { Hide(); }

ListFilter dlgFiltro::prospectFilter() const
{
    ListFilter filter;
    filter.ejecutivo = dxEjecutivo.SelectedKey();
    filter.status = choice(dxStatus, chkStatus);
    return filter;
}

ListFilter dlgFiltro::projectFilter() const
{
    ListFilter filter;
    filter.ejecutivo = dxEjecutivo.SelectedKey();
    filter.meta = choice(dxMeta, chkMeta);
    filter.color = choice(dxColor, chkColor);
    filter.estado = choice(dxEstado, chkEstado);
    filter.exceptCerrados = isMarked(cCerrado);
    filter.exceptPerdidos = isMarked(cPerdidos);
    return filter;
}

data::Connection& dlgFiltro::cnn() const
{
    if (Cnn == nullptr) throw RuntimeError::objectNotSet();
    return *Cnn;
}

void dlgFiltro::ShowDlgExport(data::Recordset* contactos, data::Recordset* proyectos) // continue-on-error
{
    resumeNext([&] {
        dlgShow lists(ports);
        lists.rsContactos = contactos;
        lists.rsProyectos = proyectos;
        lists.Show();
    });
}

} // namespace dn::dialogs
