// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/dlg_show.h"

#include "tables/html_document.h"
#include "tables/workbook.h"

#include "data/failure_modes.h"
#include "dialogs/shown_rows.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace dn::dialogs {

using data::resumeNext;

namespace {

/// The text of a column in the present row; empty for a null.
std::string textOf(const data::Recordset& row, const char* column)
{
    const data::Value value = row.Fields()(column).Value();
    return value.isNull() ? std::string() : value.toText();
}

} // namespace

dlgShow::dlgShow(screen::Ports screenPorts) : Dialog("dlgShow", "dlgCorreos", screenPorts), grid_(form, 0, 11'550)
{
    layOut();
    on(cmdExport.Click, *this, &dlgShow::cmdExport_Click);
    on(cmdCerrar.Click, *this, &dlgShow::cmdCerrar_Click);
}

void dlgShow::layOut()
{
    constexpr screen::Twips buttonWidth = 1800;
    dxGrid.AccessibleName("Lista de correos");
    cmdExport.Caption("Exportar datos");
    cmdCerrar.Caption("Cerrar");
    grid_.tall(nullptr, dxGrid, 6000);
    grid_.field(nullptr, lblTotal);
    grid_.buttons(cmdExport, cmdCerrar, buttonWidth);
}

void dlgShow::Form_Load() // continue-on-error
{
    resumeNext([&] { InitGrid(); });
    resumeNext([&] { FillGrid(); });
}

void dlgShow::InitGrid() // continue-on-error
{
    resumeNext([&] { dxGrid.Dataset().Active(false); });
    for (const auto& [name, width] : {std::pair("Nombre", 200), std::pair("Empresa", 200),
                                      std::pair("Correos", 150), std::pair("Telefonos", 150)})
        resumeNext([&, name = name, width = width] { AddGridColumn(name, width); });
    resumeNext([&] { dxGrid.Dataset().Active(true); });
}

/// @param width in logical pixels.
void dlgShow::AddGridColumn(const std::string& name, int width)
{
    constexpr int size = 150;
    dxGrid.AddColumn(name, width * ShownRows::twipsPerPixel, name);
    dxGrid.Dataset().AddField(name, size);
}

void dlgShow::FillGrid() // continue-on-error
{
    std::int32_t total = 0;
    const auto add = [&](data::Recordset* rows, void (dlgShow::*addRow)(data::Recordset&)) {
        while (rows != nullptr && !rows->Eof()) {
            (this->*addRow)(*rows);
            resumeNext([&] { rows->MoveNext(); });
            ++total;
        }
    };
    add(rsContactos, &dlgShow::addProspect);
    add(rsProyectos, &dlgShow::addProject);
    resumeNext([&] { dxGrid.Dataset().First(); });
    resumeNext([&] { lblTotal.Caption("Total de Registros: " + std::to_string(total)); });
}

void dlgShow::addProspect(data::Recordset& row) // continue-on-error
{
    resumeNext([&] { dxGrid.Dataset().Append(); });
    copy("Nombre", row, "uf_Nombre");
    copy("Empresa", row, "uf_Empresa");
    copy("Correos", row, "uf_Email");
    copy("Telefonos", row, "uf_Telefono");
    resumeNext([&] { dxGrid.Dataset().Post(); });
}

void dlgShow::addProject(data::Recordset& row) // continue-on-error
{
    resumeNext([&] { dxGrid.Dataset().Append(); });
    copy("Nombre", row, "Nombre");
    copy("Empresa", row, "Empresa");
    copy("Correos", row, "EmailOrg");
    join("Correos", row, "EmailPersona");
    copy("Telefonos", row, "Tel1");
    join("Telefonos", row, "Tel2");
    resumeNext([&] { dxGrid.Dataset().Post(); });
}

void dlgShow::copy(const char* field, data::Recordset& row, const char* column)
{
    resumeNext([&] { dxGrid.Dataset().FieldValue(field, textOf(row, column)); });
}

// A null behind a text adds nothing to it but the joint.
void dlgShow::join(const char* field, data::Recordset& row, const char* column)
{
    resumeNext([&] {
        const std::string& first = dxGrid.Dataset().FieldValue(field);
        const std::string second = textOf(row, column);
        dxGrid.Dataset().FieldValue(field, first.empty() ? second : first + ";" + second);
    });
}

void dlgShow::cmdExport_Click() { ExportGrid(); }

void dlgShow::ExportGrid() // continue-on-error
{
    constexpr int html = 2;
    const auto choice = AskFileName("Archivos de MS Excel|*.xls|Archivos HTML|*.html");
    if (!choice || choice->path.empty()) return;
    const ShownRows rows(dxGrid);
    if (choice->filterIndex == html)
        resumeNext([&] { tables::writeHtml(choice->path, "Listas de correo", rows); });
    else
        resumeNext([&] { tables::writeWorkbook(choice->path, "Correos", rows); });
}

std::optional<screen::SaveChoice> dlgShow::AskFileName(const std::string& filter) // continue-on-error
{
    std::optional<screen::SaveChoice> choice;
    resumeNext([&] { choice = ports.dialogs.ShowSave(filter); });
    return choice;
}

void dlgShow::cmdCerrar_Click() { Hide(); }

} // namespace dn::dialogs
